#include "shell/instrument_file.h"

#include <gtest/gtest.h>

#include "common/file.h"
#include "common/text.h"
#include "tests/data/shipped_data.h"
#include "tests/support/fault_of.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/temporary_folder.h"

namespace shell {
namespace {

using tests::FaultOf;
using tests::ScriptedMessages;
using Texts = std::vector<std::string>;

class InstrumentFile : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    ASSERT_TRUE(data::ReadPipeTable(tests::ShippedFile("PipeThickness.dat"), pipes));
    ASSERT_TRUE(data::ReadConvertLists(tests::ShippedFile("ZephaConvertData.dat"), lists));
  }

  std::vector<TagRow> Parse(std::string bytes) const {
    return ParseInstrumentFile(std::move(bytes), pipes, lists);
  }
  bool Open(TagStore& store, const std::string& path) {
    return OpenInstrumentFile(store, path, pipes, lists, messages);
  }

  static data::PipeTable pipes;
  static data::ConvertLists lists;
  ScriptedMessages messages;
  tests::TemporaryFolder folder;
};
data::PipeTable InstrumentFile::pipes;
data::ConvertLists InstrumentFile::lists;

const char* const kKinds[] = {"⊿P Flow", "Integral", "Vortex",   "TW",
                              "測温体",  "CV",       "圧力損失", "制限ｵﾘﾌｨｽ"};

/// A tag of a kind with every column filled, among them texts that are hard to store.
TagRow FullRow(const std::string& kind, int number) {
  const Texts texts = {"", " ", "315,115", "±1.5 ㎜", "表示ソ\\", "ﾊﾝｶｸ", "a\nb", "～－∥", "'"};
  TagRow row;
  for (std::size_t column = 0; column < row.size(); ++column) {
    row[column] = texts[(column + static_cast<std::size_t>(number)) % texts.size()];
  }
  row[0] = "TAG-" + std::to_string(number);
  row[50] = kind;
  if (kind == "TW") row[49] = "Ver 2.2";
  return row;
}

std::vector<TagRow> FullRows(int tags) {
  std::vector<TagRow> rows(1);
  rows[0][0] = kProgramVersion;
  for (int tag = 1; tag <= tags; ++tag) {
    rows.push_back(FullRow(kKinds[static_cast<std::size_t>(tag) % std::size(kKinds)], tag));
  }
  return rows;
}

TagStore StoreOf(std::vector<TagRow> rows) {
  TagStore store;
  store.TakeRows(std::move(rows));
  return store;
}

/// Bytes of a file with a header and tags "1", "2", ...
std::string FileOf(int tags, const std::string& version = "3.0.0") {
  std::string bytes;
  for (int row = 0; row <= tags; ++row) {
    bytes += '"' + (row == 0 ? version : std::to_string(row)) + '"';
    for (int column = 1; column < kTagColumns; ++column) {
      bytes += column == kKindColumn && row > 0 ? ",\"CV\"" : ",\"\"";
    }
    bytes += "\r\n";
  }
  return bytes;
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
    text.replace(at, what.size(), with);
  }
  return text;
}

TEST_F(InstrumentFile, IsQuotedCp932InLinesOfCrLf) {
  TagStore store;
  store.Register("⊿1", "CV", messages, [&](int row) { store.SetText(row, 2, "1,2"); });
  std::string expected = "\"3.0.0\"";
  for (int column = 1; column < kTagColumns; ++column) expected += ",\"\"";
  expected += "\r\n\"\x87\x99\x31\",\"\",\"1,2\"";
  for (int column = 3; column < kKindColumn; ++column) expected += ",\"\"";
  expected += ",\"CV\"\r\n";
  EXPECT_EQ(EncodeInstrumentFile(store), expected);
}

TEST_F(InstrumentFile, WriteReadWriteGivesTheSameBytes) {
  const std::vector<TagRow> rows = FullRows(300);
  const TagStore store = StoreOf(rows);
  const std::string bytes = EncodeInstrumentFile(store);
  const std::vector<TagRow> read = Parse(bytes);
  ASSERT_EQ(read.size(), rows.size());
  for (std::size_t row = 0; row < rows.size(); ++row) EXPECT_EQ(read[row], rows[row]) << row;
  EXPECT_EQ(EncodeInstrumentFile(StoreOf(read)), bytes);
}

TEST_F(InstrumentFile, ConvertsOldRecords) {
  // Outside diameters and Sch40 walls of JIS G 3454: 10.5 x 1.7 mm, 114.3 x 6.0 mm.
  const struct {
    const char *kind, *version;
    int column;
    const char *text, *newKind, *newText;
  } rows[] = {
      {"Orifice", "2.1.0", 2, "3", "⊿P Flow", "3"},
      {"Orifice", "2.1.0", 2, "", "⊿P Flow", ""},
      {"Nozzle", "2.1.0", 2, "1", "⊿P Flow", "6"},
      {"Nozzle", "2.1.0", 2, "", "⊿P Flow", "5"},
      {"Venturi", "2.1.0", 2, "2", "⊿P Flow", "9"},
      {"Venturi", "2.1.0", 2, "", "⊿P Flow", "7"},
      {"⊿P Flow", "1.0.0", 2, "3", "⊿P Flow", "3"},
      {"nozzle", "2.1.0", 2, "1", "nozzle", "1"},
      {"TW", "2.1.0", 49, "Ver 2.2", "TW", "Ver 2.2"},
      {"TW", "2.1.0", 49, "Ver 2.3", "TW", "Ver 2.3"},
      {"TW", "2.1.0", 49, "Ver 2.10", "TW", " "},
      {"TW", "2.1.0", 49, "", "TW", " "},
      {"TW", "2.1.0", 49, " ", "TW", " "},
      {"CV", "1.9.3", 37, "12", "CV", "4"},
      {"CV", "10.0.0", 37, "0", "CV", "1/8"},
      {"CV", "1.9.3", 37, "", "CV", "1/8"},
      {"CV", "1.9.3", 37, "24", "CV", "26"},
      {"CV", "1.9.3", 37, "26", "CV", "30"},
      {"CV", "2.1.0", 37, "12", "CV", "12"},
      {"CV", "", 37, "12", "CV", "12"},
      {"Vortex", "1.9.3", 37, "12", "Vortex", "12"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.kind) + " " + row.version + " '" + row.text + "'");
    TagRow record;
    record.fill("old");
    record[50] = row.kind;
    record[static_cast<std::size_t>(row.column)] = row.text;
    const TagRow before = record;
    ConvertOldRecord(record, row.version, pipes, lists);
    EXPECT_EQ(record[50], row.newKind);
    EXPECT_EQ(record[static_cast<std::size_t>(row.column)], row.newText);
    const bool thermowell = before[50] == "TW" && record[49] == " ";
    const bool valve = before[50] == "CV" && record[37] != before[37];
    for (std::size_t column = 0; column < 50; ++column) {
      const bool converted =
          (thermowell && column >= 28) || (valve && (column == 26 || column == 28));
      if (static_cast<int>(column) == row.column || converted) continue;
      EXPECT_EQ(record[column], "old") << column;
    }
    if (thermowell) {
      for (std::size_t column = 28; column < 50; ++column) EXPECT_EQ(record[column], " ");
    }
    if (valve) {
      EXPECT_EQ(record[28], "");
    }
  }
}

TEST_F(InstrumentFile, OldValvesGetTheBoreOfTheirPipe) {
  // JIS G 3454 (JIS G 3459 at 26 in), outside diameter less two Sch40 walls.
  const struct {
    const char *size, *bore;
  } rows[] = {{"0", "7.1"},     // 10.5 - 2 * 1.7
              {"8", "52.7"},    // 60.5 - 2 * 3.9
              {"12", "102.3"},  // 114.3 - 2 * 6
              {"16", "248.8"},  // 267.4 - 2 * 9.3
              {"25", "old"},   {"26", "old"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.size);
    TagRow record;
    record[26] = "old";
    record[37] = row.size;
    record[50] = "CV";
    ConvertOldRecord(record, "1", pipes, lists);
    EXPECT_EQ(record[26], row.bore);
  }
  for (const char* const size : {"27", "-1", "1e9", "99999999999"}) {
    SCOPED_TRACE(size);
    TagRow record;
    record[37] = size;
    record[50] = "CV";
    EXPECT_THROW(ConvertOldRecord(record, "1", pipes, lists), common::RuntimeFault);
  }
}

TEST_F(InstrumentFile, ReadsFieldsWhereverTheLinesBreak) {
  const std::string good = FileOf(3);
  const struct {
    const char* name;
    std::string bytes;
    int tags;
  } rows[] = {
      {"as written", good, 3},
      {"LF only", Replaced(good, "\r\n", "\n"), 3},
      {"no last line end", good.substr(0, good.size() - 2), 3},
      {"byte order mark", "\xEF\xBB\xBF" + good, 3},
      {"one line", Replaced(good.substr(0, good.size() - 2), "\r\n", ","), 3},
      {"a line per field", Replaced(good, ",", "\r\n"), 3},
      {"empty lines and blanks", "\r\n \r\n" + Replaced(good, "\r\n", "\r\n\r\n \t"), 3},
      {"inch marks", Replaced(good, "\"2\"", "\"1/2\"\""), 3},
      {"header alone", FileOf(0), 0},
      {"nothing", "", -1},
      {"blank", "\r\n\r\n", -1},
      {"300 tags", FileOf(300), 300},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string path = folder / "a.zph";
    common::WriteFile(path, row.bytes);
    TagStore store;
    EXPECT_TRUE(Open(store, path));
    EXPECT_EQ(store.TagCount(), row.tags);
    EXPECT_EQ(store.zephaFileName, path);
    EXPECT_EQ(store.FileMajorVersion(), row.tags < 0 ? "" : "3");
    EXPECT_EQ(static_cast<int>(store.Lines().size()), std::max(row.tags, 0));
    for (int tag = 1; tag <= row.tags; ++tag) EXPECT_EQ(store.Text(tag, 50), "CV");
  }
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(InstrumentFile, KeepsWhateverTextItCanRead) {
  std::string huge(5'000'000, 'x');
  const struct {
    const char* name;
    std::string field, text;
  } rows[] = {
      {"NUL", std::string("a\0b", 3), std::string("a\0b", 3)},
      {"broken lead byte", "a\x81", "a?"},
      {"no character of CP932",
       "\xFF\xFE"
       "a",
       "??a"},
      {"wave dash", "\x81\x60", "～"},
      {"trail byte like a backslash", "\x83\x5C", "ソ"},
      {"5 MB", huge, huge},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const auto records = Parse(Replaced(FileOf(2), "\"1\"", "\"" + row.field + "\""));
    ASSERT_EQ(records.size(), 3U);
    EXPECT_TRUE(records[1][0] == row.text);
    EXPECT_EQ(records[2][0], "2");
  }
}

TEST_F(InstrumentFile, ARefusedFileLeavesAnEmptyStoreWithoutName) {
  const std::string good = FileOf(300);
  const std::string cut = "ファイルのデータが途中で終わっています。";
  const std::string bounds = "インデックスが有効範囲にありません。";
  const struct {
    const char* name;
    std::string bytes, text;
  } rows[] = {
      {"302 records", FileOf(301), bounds},
      {"last field missing", good.substr(0, good.rfind(',')), cut},
      {"half", good.substr(0, good.size() / 2), cut},
      {"one more field", FileOf(3) + "\"x\"\r\n", cut},
      {"no text", std::string(1000, '\0'), cut},
      {"no quote", std::string(1000, '\xFF'), cut},
      {"open quote", "\"" + std::string(5'000'000, 'x'), cut},
      {"commas", std::string(5'000'000, ','), bounds},
      {"old valve of no size", Replaced(FileOf(300, "1.0.0"), "\"\"", "\"27\""), bounds},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string path = folder / "a.zph";
    common::WriteFile(path, row.bytes);
    TagStore store = StoreOf(FullRows(3));
    store.zephaFileName = "before.zph";
    store.currentTag = 2;
    messages.shown.clear();
    EXPECT_FALSE(Open(store, path));
    EXPECT_EQ(messages.Texts(), Texts{row.text});
    EXPECT_EQ(messages.shown[0].icon, common::Icon::kWarning);
    EXPECT_EQ(store.TagCount(), 0);
    EXPECT_EQ(store.currentTag, 0);
    EXPECT_TRUE(store.Lines().empty());
    EXPECT_EQ(store.zephaFileName, "");
    EXPECT_EQ(common::ReadFile(path), row.bytes);
  }
}

TEST_F(InstrumentFile, SavesAndIsReadBack) {
  TagStore store = StoreOf(FullRows(8));
  store.SetText(0, 0, "1.2.3");
  store.SetText(0, 7, "kept");
  store.SetText(0, 50, "dropped");
  store.tagModified = true;
  store.zephaFileName = folder / "計装.zph";
  EXPECT_TRUE(SaveInstrumentFile(store, messages));
  EXPECT_FALSE(store.tagModified);
  EXPECT_EQ(store.Text(0, 0), "3.0.0");
  EXPECT_EQ(store.Text(0, 50), "");
  TagStore read;
  EXPECT_TRUE(Open(read, store.zephaFileName));
  for (int row = 0; row <= 8; ++row) EXPECT_EQ(read.Row(row), store.Row(row));
  EXPECT_EQ(read.Text(0, 7), "kept");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(InstrumentFile, AnEmptyStoreKeepsTheOldFile) {
  const std::string path = folder / "a.zph";
  common::WriteFile(path, "old");
  for (const bool withoutRecords : {false, true}) {
    TagStore store;
    if (withoutRecords) store.TakeRows({});
    store.zephaFileName = path;
    store.tagModified = true;
    messages.shown.clear();
    EXPECT_FALSE(SaveInstrumentFile(store, messages));
    EXPECT_EQ(messages.Texts(),
              Texts{"《 Ｔａｇ Ｌｉｓｔ 》 には、一件もデータが登録されていません。\n"
                    "保存する前に 《 Ｔａｇ Ｌｉｓｔ 》 に登録して下さい。"});
    EXPECT_EQ(common::ReadFile(path), "old");
    EXPECT_TRUE(store.tagModified);
  }
}

TEST_F(InstrumentFile, RefusesTextsThatTheFileCannotHold) {
  const std::string lost = "\nデータは保存されていません。";
  const struct {
    const char *text, *sentence;
  } rows[] = {
      {"10 m³",
       "Tag No.「TAG-2」 "
       "の文字「³」は、データファイルの文字コード（CP932）にないため保存できません。"},
      {"café",
       "Tag No.「TAG-2」 "
       "の文字「é」は、データファイルの文字コード（CP932）にないため保存できません。"},
      {"\xE3\x81",
       "Tag No.「TAG-2」 "
       "の文字「\uFFFD」は、データファイルの文字コード（CP932）にないため保存できません。"},
      {"1/2\", 3",
       "Tag No.「TAG-2」 "
       "に、「\"」の後に「,」または改行が続く文字列があるため保存できません。\n1/2\", 3"},
      {"a\"\nb",
       "Tag No.「TAG-2」 "
       "に、「\"」の後に「,」または改行が続く文字列があるため保存できません。\na\"\nb"},
  };
  const std::string path = folder / "a.zph";
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    common::WriteFile(path, "old");
    TagStore store = StoreOf(FullRows(3));
    store.SetText(2, 20, row.text);
    store.zephaFileName = path;
    store.tagModified = true;
    EXPECT_EQ(FaultOf([&] { SaveInstrumentFile(store, messages); }).value().Text(),
              row.sentence + lost);
    EXPECT_EQ(common::ReadFile(path), "old");
    EXPECT_TRUE(store.tagModified);
    EXPECT_EQ(store.TagCount(), 3);
  }
  TagStore store = StoreOf(FullRows(3));
  store.SetText(1, 20, "1, 1/2\"");
  EXPECT_EQ(Parse(EncodeInstrumentFile(store))[1][20], "1, 1/2") << "a quote ends the field";
}

TEST_F(InstrumentFile, NewAsksWhetherToSave) {
  using common::Answer;
  const struct {
    const char* name;
    bool modified;
    Answer answer;
    int tags;
    bool named;
    bool emptied, modifiedAfter, saved;
  } rows[] = {
      {"unchanged", false, Answer::kCancel, 2, true, true, false, false},
      {"cancel", true, Answer::kCancel, 2, true, false, true, false},
      {"no", true, Answer::kNo, 2, true, true, false, false},
      {"yes", true, Answer::kYes, 2, true, true, false, true},
      {"yes without tags", true, Answer::kYes, 0, true, true, true, false},
      {"yes without a name", true, Answer::kYes, 2, false, false, true, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string path = row.named ? folder / "a.zph" : "";
    if (row.named) common::WriteFile(path, "old");
    TagStore store = StoreOf(FullRows(row.tags));
    store.zephaFileName = path;
    store.lastTagIndex = 2;
    store.tagModified = row.modified;
    ScriptedMessages user;
    user.always = row.answer;
    bool went = false;
    const auto fault = FaultOf([&] { went = NewInstrumentFile(store, user); });
    EXPECT_EQ(fault.has_value(), !row.named);
    EXPECT_EQ(went, row.emptied);
    EXPECT_EQ(store.TagCount(), row.emptied ? 0 : row.tags);
    EXPECT_EQ(store.Lines().empty(), row.emptied);
    EXPECT_EQ(store.lastTagIndex, row.emptied ? 0 : 2);
    EXPECT_EQ(store.zephaFileName, row.emptied ? "" : path);
    EXPECT_EQ(store.tagModified, row.modifiedAfter);
    if (row.named) {
      EXPECT_EQ(common::ReadFile(path) != "old", row.saved);
    }
    if (!row.modified) continue;
    EXPECT_EQ(user.shown[0].text,
              "開いているデータシートが変更されています。\n新しいファイルを開く前に保存しますか");
    EXPECT_EQ(user.shown[0].title, "File Open");
    EXPECT_EQ(user.shown[0].icon, common::Icon::kQuestion);
    EXPECT_EQ(user.shown[0].buttons, common::Buttons::kYesNoCancel);
  }
}

}  // namespace
}  // namespace shell
