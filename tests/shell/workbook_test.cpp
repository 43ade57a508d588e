// Workbooks are read back by tests/support/read-workbook, which uses another library than the one
// that wrote them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

#include "common/file.h"
#include "shell/instrument_file.h"
#include "shell/workbook_export.h"
#include "shell/workspace.h"
#include "tests/support/fault_of.h"
#include "tests/support/recording_presenter.h"
#include "tests/support/temporary_folder.h"

namespace shell {
namespace {

using nlohmann::json;

struct ExpectedColumn {
  std::string title;
  /// "#n" the number 1000 + n + 0.5, "$n" the text of column n of the record, "=" a number, "-" an
  /// empty cell, anything else a text.
  std::string cell;
  std::string format;
};

struct ExpectedSheet {
  const char* kind;
  /// Texts of the record that are no plain numbers; column n of all others holds "1,0nn.5".
  std::map<std::size_t, std::string> record;
  /// title:cell or title:cell:decimals, divided by bars; line breaks count for nothing.
  const char* columns;
};

const std::vector<ExpectedSheet>& Expected() {
  static const std::vector<ExpectedSheet> kExpected = {
      {"⊿P Flow",
       {{2, "9"},
        {3, "1"},
        {5, "6"},
        {8, "3"},
        {10, "1"},
        {12, "3"},
        {14, "2"},
        {16, "False"},
        {18, "3"},
        {29, "5"},
        {39, "Uf 51.2"},
        {38, " "},
        {22, "       "}},
       R"(Tag No.:$0:2|用途:$1|絞り機構種類:板金溶接入口円すい管付きベンチュリ管|流体:気体|目盛流量:#4:0|
常用流量:#6:0|単位:Sm3/h|圧力:#7:3|単位:mmH2OG|温度:#9:1|単位:ﾟＫ|密度:#11:4|単位:kg/Sm3|
粘性係数:#13:4|単位:cSt|相対湿度(%):#15|計算基準:DryBase|飽和水蒸気圧:#17|単位:atm|偏差係数:#19:4|
比熱比:#20:3|絞り部材質:$21|絞り部膨張率:-:0|配管呼称径:$23|配管種類:$24|ｽｹｼﾞｭｰﾙ:$25:4|
配管内径:#26:1|配管線膨張率:#27|設計差圧:#28:0|単位:mbar:2|絞り径(mm):#30:2|使用状態密度:#43:4|
最大ﾚｲﾉﾙｽﾞ数:#32|常用ﾚｲﾉﾙｽﾞ数:#33:0|流出係数:#34|流量係数:#35|膨張補正係数:#36:4|β:#37:4|
四分円半径:-|下流Tap位置:Uf 51.2|永久圧損:#40:2|単位:mbar|使用下限(%FS):#41:0|使用上限(%FS):#42:0)"},
      {"Integral",
       {{2, "4"},
        {3, "0"},
        {5, "3"},
        {8, "0"},
        {10, "0"},
        {12, "1"},
        {14, "1"},
        {16, ""},
        {18, "-1"},
        {31, "6"}},
       R"(Tag No.:$0:2|用途:$1|計器型式:13mm系（100～40000mmH2O）|流体:液体|目盛流量:#4:0|常用流量:#6:0|
単位:L/min|圧力:#7:3|単位:kPaG|温度:#9:1|単位:℃|密度:#11:4|単位:g/cm3|粘性係数:#13:4|単位:cP|
相対湿度(%):#15|:-|飽和水蒸気圧:#17|単位:-|偏差係数:#19:4|比熱比:#20:3|ｵﾘﾌｨｽ番号:7|
常用ﾚｲﾉﾙｽﾞ数:#32:0|補正係数Kaf:#33|流量係数α:#34:4|膨張補正係数:#35:4|水相当流量:#36:3|
空気相当流量:#37:3|差圧(mmH2O):#38:0|差圧(kPa):#39:2|永久圧損(mmH2O):#40:0|永久圧損(kPa):#41:2)"},
      {"Vortex",
       {{2, "2"},
        {4, "1"},
        {7, "6"},
        {9, "2"},
        {11, "0"},
        {13, "0"},
        {16, "6"},
        {17, "3"},
        {18, "80"},
        {19, "9.5;112.4;1250;98.7;ｷｬﾋﾞﾃｰｼｮﾝ"}},
       R"(Tag No.:$0|用途:$1|流体:蒸気|目盛流量:#3:0|最少流量:#5:0|単位:t/h|圧力:#6:3|単位:psiG|温度:#8:1|
単位:ﾟＦ|密度:#10|単位:kg/m3|粘性係数:#12|単位:mPa･s|偏差係数:#14|飽和蒸気圧:#15:2|単位:psiA|
メーカー:トキコ|ﾒｰﾀｰｻｲｽﾞ:=80|測定下限(%FS):=9.5:0|測定上限(%FS):=112.4:0|圧力損失(mmH2O):=1250:0|
周波数(Hz):=98.7:1|備考:ｷｬﾋﾞﾃｰｼｮﾝ)"},
      {"TW",
       {{2, "0"},
        {4, "1"},
        {6, "0"},
        {8, "1"},
        {10, "0"},
        {11, "1"},
        {14, "1"},
        {20, "0"},
        {22, "2"},
        {39, "255"},
        {40, "同期"},
        {42, "-2147483640"},
        {43, "可"},
        {45, "0"},
        {46, "  "},
        {49, "Ver 2.2"}},
       R"(Tag No.:$0|用途:$1|流体:液体|圧力:#3:3|単位:MPaG|温度:#5:1|単位:℃|密度:#7|単位:g/cm3|粘性係数:#9|
単位:mPa･s|設置形式:攪拌槽|管内径/回転数/流速:#13|流量/ｲﾝﾍﾟﾗｰ直径:#12:0|単位:mm|攪拌槽内径:#15|
保護管材質:$17|保護管密度:#18:0|ヤング率:#19:0|単位:kgf/mm2|許容応力:#21:1|単位:MPa|
先端外経(mm):#23|根元外経(mm):#24|保護管内径(mm):#25|保護管長(mm):#26:0|挿入長(mm):#27:0|
先端厚さ(mm):#28:0|臨界減衰係数:#29:3|応力集中係数:#30:2|流速(m/s):#31:1|レイノルズ数:#32:1|
ストローハル数:#33:1|カルマン渦波数:#34:1|1次固有振動数:#36:2|換算流速(Vr):#37:2|
換算減衰率(Cn):#38:2|判定:　×:2|定常抗力:#41:3|単位:MPa:3|判定:　○:3|ランダム励振力:#44|単位:MPa|
判定:判定出来ず)"},
      {"測温体",
       {{6, ""}, {7, "8"}},
       R"(Tag No.:$0|用途:$1|Maker:$2|Model:$3|下限目盛:#4|上限目盛:#5|単位:℃|測温体種類:Pt100|0％指示:#8|
出力:#19|１０％指示:#9|出力:#20|２０％指示:#10|出力:#21|３０％指示:#11|出力:#22|４０％指示:#12|
出力:#23|５０％指示:#13|出力:#24|６０％指示:#14|出力:#25|７０％指示:#15|出力:#26|８０％指示:#16|
出力:#27|９０％指示:#17|出力:#28|１００％指示:#18|出力:#29)"},
      {"CV",
       {{2, "1"},
        {4, "5"},
        {6, "2"},
        {7, "True"},
        {8, "下流圧"},
        {10, "6"},
        {12, "0"},
        {14, "4"},
        {16, "0"},
        {18, "2"},
        {20, "1"},
        {28, " JPI 300#"}},
       R"(Tag No.:$0|用途:$1|流体:気体|最大流量:#3:0|単位:Nm3/h|圧力:#5:3|単位:kgf/cm2G|計算基準:下流圧|
差圧/下流圧:#9:3|単位:kgf/cm2G|温度:#11:1|単位:℃|密度:#13:4|単位:比重(G)|粘性係数:#15:4|
単位:mPa･s|飽和蒸気圧:#17:3|単位:kgf/cm2A|臨界圧力:#19:1|単位:MPaA|偏差係数:#21|比熱比:#22:3|
FCI計算Ｃv:#23|ISA計算Ｃv:#24|メーカー:$25|弁モデル:$27|ＦＬ:#29:2|N係数:#30:1|内弁サイズ:$31|
弁Ｆｄ:#32:2|弁Ｃv:#33|ﾚﾝｼﾞｱﾋﾞﾘﾃｨ:#34|弁特性:$35|弁本体呼称径:$37|フランジ規格: JPI 300#|
弁口径(mm):#26:0|上流配管外径(mm):#38:1|上流配管厚(mm):#39:1|下流配管外径(mm):#40:1|
下流配管厚(mm):#41:1|配管材質:$42|管壁単位重量:#44:1|ｻｲｼﾞﾝｸﾞＣv:#45|弁開度:#46:0|下流流速:#47:1|
騒音:#48:0)"},
      {"圧力損失",
       {{2, "2"},
        {4, "0"},
        {6, "3"},
        {8, "0"},
        {10, "0"},
        {12, "0"},
        {15, "5"},
        {17, "24"},
        {18, "0"}},
       R"(Tag No.:$0|用途:$1|流体:蒸気|流量:#3:0|単位:kg/h|圧力:#5:3|単位:mmH2OG|温度:#7:1|単位:℃|密度:#9:4|
単位:kg/m3|粘性係数:#11:4|単位:mPa･s|相対湿度(%):#13|飽和水蒸気圧:#14:4|単位:barA|偏差係数:#16|
配管呼称径:26in|ｽｹｼﾞｭｰﾙ:SGP|配管内径:#19:1|管内粗さ:#20:2|配管長さ:#21:0|45ﾟｴﾙﾎﾞｰ:#22|
90ﾟｴﾙﾎﾞｰ:#23|180ﾟﾍﾞﾝﾄﾞ:#24|ティー:#25|ｸﾞﾛｰﾌﾞ弁:#26|ｱﾝｸﾞﾙ弁:#27|ｹﾞｰﾄ弁:#28|ﾀﾞｲｱﾌﾗﾑ弁:#29|
ﾊﾞﾀﾌﾗｲ弁:#30|ﾁｪｯｸ弁:#31|配管入口形状:#32|入口管径比率:#33:2|入口円錐角度:#34|出口管径比率:#35:2|
出口円錐角度:#36|関係粗度:#37|レイノルズ数:#40:0|入口流速(m/s):#41:2|出口流速(m/s):#42:2|
ζin:#43:3|ζout:#44:3|入口圧損:#45:4|出口圧損:#46:4|配管λ:#39:4|付属品ζ:#48:2|全圧力損失:#47:4|
単位:mmH2O)"},
      {"制限ｵﾘﾌｨｽ",
       {{3, "0"},
        {5, "2"},
        {7, "0"},
        {9, "1"},
        {11, "0"},
        {13, "0"},
        {15, "1"},
        {18, "0"},
        {23, "1"},
        {25, "0"}},
       R"(Tag No.:$0|用途:$1|流体:液体|流量:#4:0|単位:L/h|圧力:#6:3|単位:kPaG|差圧:#8:3|単位:MPa|温度:#10:1|
単位:℃|密度:#12:4|単位:kg/m3|粘性係数:#14:4|単位:cP|相対湿度(%):#16|飽和水蒸気圧:#17|単位:kPaA|
圧縮係数:#19:3|比熱比:#20|ＲＯ材質:$21|ヤング率:#22:0|単位:N/mm2|許容応力:#24:1|単位:kgf/mm2|
配管呼称径:$26|ｽｹｼﾞｭｰﾙ:$27|配管内径(mm):#28:1|板厚(mm):#29:1|入口流速(m/s):#30:2|流量係数:#31:2|
背圧補正:#32:3|絞り比(β):#33:4|絞り径:#34:2|応力係数:#35:2|たわみ係数:#36:2|最大応力:#38:2|
変形量(mm):#40:2)"},
  };
  return kExpected;
}

std::vector<std::string> Split(const std::string& text, char divider) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, divider);) parts.push_back(part);
  return parts;
}

std::vector<ExpectedColumn> ColumnsOf(const ExpectedSheet& sheet) {
  std::string text = sheet.columns;
  std::erase(text, '\n');
  std::vector<ExpectedColumn> columns;
  for (const std::string& column : Split(text, '|')) {
    const auto parts = Split(column, ':');
    const std::string decimals(parts.size() < 3 ? 0 : std::stoul(parts[2]), '0');
    columns.push_back({parts[0], parts[1],
                       parts.size() < 3   ? "General"
                       : decimals.empty() ? "#,##0_ "
                                          : "#,##0." + decimals + "_ "});
  }
  return columns;
}

/// Position of a column; "A|B" is the B behind A.
std::size_t PositionOf(const std::string& kind, const std::string& title) {
  std::string titles = "|";
  for (const ExpectedSheet& sheet : Expected()) {
    if (sheet.kind != kind) continue;
    for (const ExpectedColumn& column : ColumnsOf(sheet)) titles += column.title + "|";
  }
  const std::size_t begin = titles.find("|" + title + "|");
  if (begin == std::string::npos) throw std::out_of_range(kind + " has no column " + title);
  const std::size_t end = begin + title.size() + 1;
  const auto bars = std::count(titles.begin(), titles.begin() + static_cast<long>(end), '|');
  return static_cast<std::size_t>(bars) - 1;
}

std::string PlainText(std::size_t column) {
  return (column < 10 ? "1,00" : "1,0") + std::to_string(column) + ".5";
}

TagRow RecordOf(const ExpectedSheet& sheet) {
  TagRow record;
  for (std::size_t column = 0; column < record.size(); ++column) record[column] = PlainText(column);
  for (const auto& [column, text] : sheet.record) record[column] = text;
  record[kKindColumn] = sheet.kind;
  return record;
}

/// Value of a cell as the expectation says it.
json ValueOf(const std::string& cell) {
  if (cell == "-") return nullptr;
  if (cell[0] == '#') return 1000 + std::stod(cell.substr(1)) + 0.5;
  if (cell[0] == '$') return PlainText(std::stoul(cell.substr(1)));
  if (cell[0] == '=') return std::stod(cell.substr(1));
  return cell;
}

class WorkbookTest : public testing::Test {
 protected:
  WorkbookTest() {
    space.tables = LoadTables(ZEPHA_BUILD_DIR);
    path = folder / "計器 一覧.xlsx";
  }

  void SetTags(std::vector<TagRow> rows) {
    rows.insert(rows.begin(), TagRow());
    space.tags.TakeRows(std::move(rows));
  }

  json Written() {
    WriteWorkbook(space, path);
    const std::string command = ZEPHA_SOURCE_DIR "/tests/support/read-workbook '" + path + "'";
    const std::string read = folder / "read.json";
    if (std::system((command + " > " + read).c_str()) != 0) throw std::runtime_error(command);
    return json::parse(common::ReadFile(read));
  }

  /// A text in a column of a record, and the cell to look at.
  struct Asked {
    const char* kind;
    std::size_t column;
    std::string text;
    std::string cell;  // as PositionOf wants it
  };

  /// The cells of a workbook with a tag for each question.
  std::vector<json> CellsOf(const std::vector<Asked>& questions) {
    std::vector<TagRow> records;
    for (const Asked& asked : questions) {
      TagRow& record = records.emplace_back();
      record[kTagNumberColumn] = "TAG";
      record[asked.column] = asked.text;
      record[kKindColumn] = asked.kind;
    }
    SetTags(std::move(records));
    std::map<std::string, json> rows;
    for (const json& sheet : Written()) rows[sheet["name"]] = sheet["rows"];
    std::vector<json> cells;
    cells.reserve(questions.size());
    std::map<std::string, std::size_t> next;
    for (const Asked& asked : questions) {
      cells.push_back(
          rows[asked.kind].at(++next[asked.kind]).at(PositionOf(asked.kind, asked.cell)));
    }
    return cells;
  }

  tests::RecordingPresenter user;
  MemorySettings settings;
  Workspace space{user, settings, nullptr};
  tests::TemporaryFolder folder;
  std::string path;
};

TEST_F(WorkbookTest, EveryColumnOfEveryKindHasItsTitleFormatAndValue) {
  std::vector<TagRow> records;
  records.reserve(Expected().size());
  for (const ExpectedSheet& sheet : Expected()) records.push_back(RecordOf(sheet));
  std::reverse(records.begin(), records.end());  // the order of the worksheets is fixed
  SetTags(records);
  const json book = Written();
  ASSERT_EQ(book.size(), Expected().size());
  for (std::size_t i = 0; i < book.size(); ++i) {
    const ExpectedSheet& expected = Expected()[i];
    SCOPED_TRACE(expected.kind);
    EXPECT_EQ(book[i]["name"], expected.kind);
    const auto columns = ColumnsOf(expected);
    const json& rows = book[i]["rows"];
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(book[i]["frozen"], "B2");
    EXPECT_TRUE(book[i]["filter"].get<std::string>().starts_with("A1:"));
    for (std::size_t c = 0; c < std::min(columns.size(), rows[0].size()); ++c) {
      const auto& [title, value, format] = columns[c];
      SCOPED_TRACE(title);
      ASSERT_EQ(rows[0][c].is_null() ? json("") : rows[0][c][0], title)
          << "From here on the columns differ.";
      const json& cell = rows[1][c];
      EXPECT_EQ(cell.is_null() ? cell : cell[0], ValueOf(value))
          << "Expected is " << value << "; ExpectedColumn tells what #, $ and = stand for.";
      if (cell.is_null()) continue;
      EXPECT_EQ(cell[1], format);
      EXPECT_EQ(cell[2] == "n", ValueOf(value).is_number());
    }
    EXPECT_EQ(rows[0].size(), columns.size()) << "Columns at the end.";
  }
}

TEST_F(WorkbookTest, AnEmptyStoreHasTitlesAlone) {
  for (const bool header : {true, false}) {  // without one the number of tags is -1
    SetTags({});
    if (!header) space.tags.TakeRows({});
    const json book = Written();
    ASSERT_EQ(book.size(), 8U);
    for (const json& sheet : book) EXPECT_EQ(sheet["rows"].size(), 1U) << sheet["name"];
  }
}

TEST_F(WorkbookTest, AnUnknownKindEndsItAtItsRowAndLeavesTheFileAlone) {
  TagRow known, unknown;
  known[kKindColumn] = "CV";
  unknown[kKindColumn] = "CableDuct";
  SetTags({known, unknown, known});
  TagExport work(space);
  EXPECT_EQ(work.Steps(), 12);
  const auto goOn = [&work] {
    while (work.Next()) continue;
  };
  EXPECT_EQ(tests::FaultOf(goOn).value().Text(), "該当するカテゴリーがありません。");
  EXPECT_EQ(work.Done(), 11);
  common::WriteFile(path, "kept");
  EXPECT_THROW(WriteWorkbook(space, path), common::RuntimeFault);
  EXPECT_EQ(common::ReadFile(path), "kept");
}

TEST_F(WorkbookTest, ATagBecomesNeitherFormulaNorDamage) {
  const std::string wide = "　";
  constexpr std::size_t kMostBytes = std::size_t{3} * 32767;  // a cell holds 32,767 characters
  std::string longest;
  for (int i = 0; i < 40000; ++i) longest += "弁";
  const struct {
    std::string text;
    json number, words;  // as a cell of numbers, as one of texts
  } rows[] = {
      {"=1+1", "=1+1", "=1+1"},
      {"+81", 81, "+81"},
      {"=HYPERLINK(\"http://a\")", "=HYPERLINK(\"http://a\")", "=HYPERLINK(\"http://a\")"},
      {"http://a", "http://a", "http://a"},
      {"1-1/2", "1-1/2", "1-1/2"},
      {"-1,234,567.25", -1234567.25, "-1,234,567.25"},
      {"1E-05", 1e-5, "1E-05"},
      {" 2. ", 2, " 2. "},
      {"12,34", "12,34", "12,34"},
      {"1,2345", "1,2345", "1,2345"},
      {"1e999", "1e999", "1e999"},
      {"nan", "nan", "nan"},
      {"0x10", "0x10", "0x10"},
      {"1 2", "1 2", "1 2"},
      {"<a & \"b\">", "<a & \"b\">", "<a & \"b\">"},
      {"a\x01z\x1B", "a z ", "a z "},
      {"a\r\nb", "a\nb", "a\nb"},
      {std::string("a\0b", 3), "a b", "a b"},
      {"\xFF", "\uFFFD", "\uFFFD"},
      {"\uFFFF", "\uFFFD", "\uFFFD"},
      {wide + " \r\n", nullptr, nullptr},
      {longest, longest.substr(0, kMostBytes), longest.substr(0, kMostBytes)},
  };
  std::vector<Asked> questions;
  for (const auto& row : rows) {
    questions.push_back({"測温体", 4, row.text, "下限目盛"});
    questions.push_back({"測温体", 2, row.text, "Maker"});
  }
  const std::vector<json> cells = CellsOf(questions);
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(rows[i].text.substr(0, 40));
    const json& number = cells[2 * i];
    const json& words = cells[2 * i + 1];
    EXPECT_EQ(number.is_null() ? number : number[0], rows[i].number);
    EXPECT_EQ(words.is_null() ? words : words[0], rows[i].words);
    EXPECT_TRUE(words.is_null() || words[2] == "s") << words[2];
  }
}

TEST_F(WorkbookTest, PositionsOutsideTheirListGiveNothingAndTextsStand) {
  const std::vector<std::pair<Asked, json>> rows = {
      {{"圧力損失", 17, "8B", "配管呼称径"}, "8B"},
      {{"圧力損失", 17, "25", "配管呼称径"}, nullptr},
      {{"圧力損失", 18, "14", "ｽｹｼﾞｭｰﾙ"}, nullptr},
      {{"測温体", 7, "熱電対", "測温体種類"}, "熱電対"},
      {{"TW", 11, "2", "設置形式"}, nullptr},
      {{"CV", 10, "6", "差圧/下流圧|単位"}, "psi"},
      {{"CV", 28, "True", "フランジ規格"}, nullptr},
      {{"⊿P Flow", 16, "-1", "計算基準"}, "WetBase"},
      {{"TW", 39, "", "判定"}, "判定出来ず"},
      {{"TW", 39, "0", "判定"}, "判定出来ず"},
  };
  std::vector<Asked> questions;
  questions.reserve(rows.size());
  for (const auto& [asked, value] : rows) questions.push_back(asked);
  const std::vector<json> cells = CellsOf(questions);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(std::string(rows[i].first.kind) + " " + rows[i].first.text);
    EXPECT_EQ(cells[i].is_null() ? cells[i] : cells[i][0], rows[i].second);
  }
}

TEST_F(WorkbookTest, ThreeHundredTagsKeepTheirOrderAndColumnsTheirWidth) {
  OpenInstrumentFile(space.tags, ZEPHA_SOURCE_DIR "/samples/plant.zph", space.tables.pipes,
                     space.tables.lists, user);
  std::vector<TagRow> rows;
  std::map<std::string, std::vector<std::string>> tags;
  for (int i = 0; i < kMaxTags; ++i) {
    rows.push_back(space.tags.Row(1 + i % space.tags.TagCount()));
    rows.back()[0] = std::to_string(i);
    tags[rows.back()[kKindColumn]].push_back(rows.back()[0]);
  }
  rows[0][1] = "とても長い用途の記述、例えば冷却水戻りヘッダー";
  SetTags(rows);
  for (const json& sheet : Written()) {
    const auto& expected = tags[sheet["name"]];
    ASSERT_EQ(sheet["rows"].size(), expected.size() + 1);
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(sheet["rows"][i + 1][0][0], expected[i]);
    }
    if (sheet["name"] != "⊿P Flow") continue;
    EXPECT_GT(sheet["widths"]["B"], 46);  // full-width characters of two digits each
    EXPECT_LT(sheet["widths"]["D"], 12);
  }
}

TEST_F(WorkbookTest, ANewFileGetsAFreeName) {
  setenv("TMPDIR", folder.Path().c_str(), 1);
  EXPECT_EQ(NewWorkbookPath("C:\\計装\\plant.zph"), folder / "plant.xlsx");
  EXPECT_EQ(NewWorkbookPath("/plant.zph"), folder / "plant(2).xlsx");
  EXPECT_EQ(NewWorkbookPath(""), folder / "ZEPHA.xlsx");
  unsetenv("TMPDIR");
}

}  // namespace
}  // namespace shell
