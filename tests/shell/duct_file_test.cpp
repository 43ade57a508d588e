#include "shell/duct_file.h"

#include <gtest/gtest.h>

#include "common/file.h"
#include "common/text.h"
#include "shell/duct_commands.h"
#include "shell/lifecycle.h"
#include "shell/main_menu.h"
#include "shell/tag_commands.h"
#include "shell/workspace.h"
#include "tests/support/fault_of.h"
#include "tests/support/recording_presenter.h"
#include "tests/support/temporary_folder.h"

namespace shell {
namespace {

using Texts = std::vector<std::string>;

/// A duct with every field filled, among them texts that are hard to store.
DuctRow Duct(const std::string& name) {
  const Texts texts = {"", " ", "1,234", "被覆銅管", "表示ソ\\", "ﾊﾝｶｸ", "CVV     ", "～㎜⊿"};
  DuctRow row;
  for (std::size_t i = 0; i < row.size(); ++i) row[i] = texts[(i + name.size()) % texts.size()];
  row[kDuctName] = name;
  return row;
}

std::vector<DuctRow> Ducts(int count) {
  std::vector<DuctRow> rows(static_cast<std::size_t>(count));
  int number = 0;
  for (DuctRow& row : rows) row = Duct(std::string("D").append(std::to_string(number++)));
  return rows;
}

DuctStore StoreOf(int count) {
  DuctStore store;
  store.TakeRows(Ducts(count));
  return store;
}

class DuctFile : public testing::Test {
 protected:
  /// Opens a file with these bytes.
  bool Open(DuctStore& store, const std::string& bytes) {
    common::WriteFile(path, bytes);
    return OpenDuctFile(store, path, messages);
  }
  tests::TemporaryFolder folder;
  const std::string path = folder / "a.dct";
  tests::ScriptedMessages messages;
};

TEST_F(DuctFile, NewDuctsGoBehindTheSelectedOne) {
  DuctStore store;
  for (const char* name : {"A", "B", "C"}) EXPECT_TRUE(store.Add(Duct(name), messages));
  store.Select(0);
  EXPECT_TRUE(store.Add(Duct("A2"), messages));
  EXPECT_EQ(store.Lines(), Texts({"A", "A2", "B", "C"}));
  EXPECT_EQ(store.Selection(), 1);
  EXPECT_EQ(store.Row(2), Duct("B"));
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_TRUE(store.ductModified);
}

TEST_F(DuctFile, SameNameIsReplacedInPlaceOrLeft) {
  DuctStore store = StoreOf(3);
  DuctRow row = Duct("D1");
  row[kDuctSpan] = "6";
  messages.Queue(false);
  messages.Queue(true);
  EXPECT_FALSE(store.Add(row, messages));
  EXPECT_FALSE(store.ductModified);
  EXPECT_EQ(store.Row(1), Duct("D1"));
  EXPECT_TRUE(store.Add(row, messages));
  EXPECT_EQ(store.Row(1), row);
  EXPECT_EQ(store.DuctCount(), 3);
  EXPECT_TRUE(store.ductModified);
  EXPECT_EQ(messages.Texts(), Texts(2, "すでに登録されています。\n新しいデータと置き換えますか"));
  EXPECT_EQ(messages.shown[0].icon, common::Icon::kQuestion);
}

TEST_F(DuctFile, TwentyAreTheMost) {
  DuctStore store = StoreOf(20);
  EXPECT_FALSE(store.Add(Duct("X"), messages));
  EXPECT_EQ(messages.Texts(), Texts({"最大20件です。もう追加できません。"}));
  EXPECT_EQ(store.Lines(), StoreOf(20).Lines());
  EXPECT_FALSE(store.ductModified);
  EXPECT_TRUE(store.Add(Duct("D19"), messages));  // its own place
  EXPECT_EQ(store.DuctCount(), 20);
}

TEST_F(DuctFile, NamesTypedInOtherCodePointsAreTheSame) {
  DuctStore store;
  store.Add(Duct("1\u301C2\u2212A"), messages);  // wave dash and minus of input methods
  ASSERT_TRUE(Open(store, EncodeDuctFile(store)));
  store.Add(Duct("1\u301C2\u2212A"), messages);
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(store.DuctCount(), 1);
}

TEST_F(DuctFile, DeletingClosesTheGapAndSelectsTheOneBefore) {
  const struct {
    int ducts, selected;
    Texts left;
    int selectedThen;
  } rows[] = {{3, 1, {"D0", "D2"}, 0},
              {3, 2, {"D0", "D1"}, 1},
              {3, 0, {"D1", "D2"}, 0},
              {1, 0, {}, -1},
              {2, -1, {"D0", "D1"}, -1}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.selected);
    DuctStore store = StoreOf(row.ducts);
    store.Select(row.selected);
    store.Delete();
    EXPECT_EQ(store.Lines(), row.left);
    EXPECT_EQ(store.Selection(), row.selectedThen);
    EXPECT_EQ(store.ductModified, row.selected >= 0);
    EXPECT_EQ(store.Row(row.ducts - (row.selected >= 0 ? 1 : 0)), DuctRow());
  }
}

TEST_F(DuctFile, NeighboursChangePlaces) {
  DuctStore store = StoreOf(3);
  store.MoveUp();
  EXPECT_FALSE(store.ductModified);
  store.MoveDown();
  EXPECT_EQ(store.Lines(), Texts({"D1", "D0", "D2"}));
  store.MoveDown();
  store.MoveDown();
  EXPECT_EQ(store.Lines(), Texts({"D1", "D2", "D0"}));
  EXPECT_EQ(store.Selection(), 2);
  EXPECT_EQ(store.Row(2), Duct("D0"));
  store.Select(-1);
  store.MoveUp();
  EXPECT_EQ(store.Lines(), Texts({"D1", "D2", "D0"}));
}

TEST_F(DuctFile, IsVersionAndQuotedFields) {
  DuctStore store;
  DuctRow row;
  row[kDuctName] = "⊿1";
  row[kDuctSag] = "4.9";
  store.TakeRows({row});
  std::string expected = "\"3.0.0\"\r\n\"\x87\x99\x31\"";
  for (int field = 1; field < 152; ++field) expected += ",\"\"";
  EXPECT_EQ(EncodeDuctFile(store), expected + ",\"4.9\"\r\n");
}

TEST_F(DuctFile, IsReadBackAsWritten) {
  for (const int count : {1, 2, 20}) {
    SCOPED_TRACE(count);
    DuctStore store = StoreOf(count);
    store.ductModified = true;
    store.ductFileName = path;
    EXPECT_TRUE(SaveDuctFile(store, messages));
    EXPECT_FALSE(store.ductModified);
    DuctStore read;
    read.ductModified = true;
    EXPECT_TRUE(OpenDuctFile(read, path, messages));
    ASSERT_EQ(read.DuctCount(), count);
    for (int row = 0; row < count; ++row) EXPECT_EQ(read.Row(row), store.Row(row));
    EXPECT_EQ(read.Selection(), 0);
    EXPECT_FALSE(read.ductModified);
    EXPECT_EQ(read.ductFileName, path);
    EXPECT_EQ(read.ListCaption(), "Duct List：a");
    EXPECT_EQ(EncodeDuctFile(read), common::ReadFile(path));
  }
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(DuctFile, DamagedFilesKeepTheirCompleteDuctsAndNoName) {
  const std::string two = EncodeDuctFile(StoreOf(2));
  const std::string twenty = EncodeDuctFile(StoreOf(20));
  const std::string row = two.substr(two.find('\n') + 1);
  const std::string cut = "ファイルのデータが途中で終わっています。";
  const std::string notOurs = "ケーブルダクトのファイルではありません。";
  std::string tags = "\"3.0.0\"";
  for (int field = 1; field < 51; ++field) tags += ",\"\"";
  for (int field = 0; field < 300; ++field) tags += ",\"x\"";
  const struct {
    const char* name;
    std::string bytes;
    int ducts;
    std::string text;
  } rows[] = {
      {"empty", "", 0, cut},
      {"cut in a field", two.substr(0, two.size() - 200), 1, cut},
      {"last field gone", two.substr(0, two.rfind("\",\"") + 1), 1, cut},
      {"one field more", two + "\"\"", 2, cut},
      {"21 ducts", twenty + row, 20, "インデックスが有効範囲にありません。"},
      {"instrument file", tags, 0, notOurs},
      {"zeros", std::string(100000, '\0'), 0, cut},
      {"noise", std::string(5000, '\xFF') + ",\"", 0, cut},
      {"commas", std::string(1 << 20, ','), 20, "インデックスが有効範囲にありません。"},
      {"open quote", "\"3.0.0\"\r\n\"" + std::string(1 << 20, 'x'), 0, cut},
  };
  for (const auto& damaged : rows) {
    SCOPED_TRACE(damaged.name);
    messages.shown.clear();
    DuctStore store = StoreOf(5);
    EXPECT_FALSE(Open(store, damaged.bytes));
    EXPECT_EQ(store.DuctCount(), damaged.ducts);
    EXPECT_EQ(messages.Texts(), Texts({damaged.text + "\n" + path}));
    EXPECT_EQ(store.ductFileName, "");
    EXPECT_EQ(store.ductModified, damaged.ducts > 0);
  }
}

TEST_F(DuctFile, UnreadableFileLeavesTheListAlone) {
  DuctStore store = StoreOf(2);
  store.ductFileName = "before.dct";
  store.ductModified = true;
  for (const std::string& name : {folder / "none.dct", folder / "no/folder.dct", folder.Path()}) {
    SCOPED_TRACE(name);
    messages.shown.clear();
    EXPECT_FALSE(OpenDuctFile(store, name, messages));
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(store.DuctCount(), 2);
    EXPECT_EQ(store.ductFileName, "before.dct");
    EXPECT_TRUE(store.ductModified);
  }
}

TEST_F(DuctFile, FailedSaveTouchesNothing) {
  DuctStore store;
  store.ductFileName = path;
  EXPECT_FALSE(SaveDuctFile(store, messages));
  EXPECT_EQ(messages.Texts(), Texts({"データがありません。\n保存を中止します。"}));
  common::WriteFile(path, "old");
  for (const char* const text : {"m³", "1\"\",2"}) {
    SCOPED_TRACE(text);
    DuctRow row = Duct("D");
    row[kDuctSpan] = text;
    store.TakeRows({row});
    store.ductModified = true;
    const std::string told = tests::FaultOf([&] { SaveDuctFile(store, messages); }).value().Text();
    EXPECT_TRUE(told.starts_with("ダクト「D」")) << told;
    EXPECT_TRUE(told.ends_with("データは保存されていません。")) << told;
    EXPECT_TRUE(store.ductModified);
    EXPECT_EQ(common::ReadFile(path), "old");
  }
}

/// A workspace with the sheet on top as far as the commands see it.
class DuctCommands : public DuctFile {
 protected:
  DuctCommands() { Prepare(space); }

  static void Prepare(Workspace& workspace) {
    for (const char* name : {kDuctListForm, kTagListForm}) {
      workspace.forms.Provide(
          name, [name] { return std::make_unique<forms::Form>(name, "", forms::FormRole::kTool); });
    }
    BuildMainMenu(workspace);
    workspace.activeSheetKind = kDuctSheet;
  }
  tests::RecordingPresenter presenter;
  MemorySettings settings;
  Workspace space{presenter, settings, nullptr};
};

TEST_F(DuctCommands, FileCommandsWorkOnTheDucts) {
  space.window.Run("mnuSave");
  space.window.Run("mnuUpdate");
  EXPECT_EQ(presenter.messages.Texts(), Texts(2, "データがありません。\n保存を中止します。"));
  space.ducts.TakeRows(Ducts(3));
  space.window.Run("mnuUpdate");  // the dialogue is cancelled
  EXPECT_EQ(presenter.asked.back().filter, "Cable Duct Data(*.dct)|*.dct");
  EXPECT_EQ(space.ducts.ductFileName, "");
  presenter.chosen = folder / "plant";
  space.window.Run("mnuUpdate");
  EXPECT_EQ(space.ducts.ductFileName, folder / "plant.dct");
  EXPECT_EQ(space.ducts.ListCaption(), "Duct List：plant");
  space.window.Run("mnuSave");
  EXPECT_EQ(presenter.asked.back().name, "plant.dct");
  EXPECT_EQ(presenter.asked.back().folder + "/", folder / "");
  presenter.asked.clear();
  space.window.Press(3);
  EXPECT_TRUE(presenter.asked.empty());
  space.ducts.StartNewFile();
  presenter.chosen = folder / "plant.dct";
  space.window.Press(2);
  EXPECT_EQ(presenter.asked.back().folder + "/", folder / "");  // where it was last chosen
  EXPECT_EQ(space.ducts.Lines(), Texts({"D0", "D1", "D2"}));
  EXPECT_NE(space.forms.Find(kDuctListForm), nullptr);
  EXPECT_EQ(space.tags.zephaFileName, "");
  space.ducts.Select(2);
  space.window.Press(5);
  EXPECT_EQ(space.ducts.Selection(), 0);
  EXPECT_EQ(space.ducts.ListCaption(), "Duct List:plant");
  space.activeSheetKind = "CV";
  space.window.Press(5);
  EXPECT_NE(space.forms.Find(kTagListForm), nullptr);
}

TEST_F(DuctCommands, NewFileAsksAboutTheDuctsAndSavesTheTags) {
  const struct {
    common::Answer answer;
    bool hasTags;
    std::string zephaFile;
    int ducts;
    bool modified;
  } rows[] = {
      {common::Answer::kCancel, true, "tags.zph", 2, true},
      {common::Answer::kNo, true, "tags.zph", 0, false},
      {common::Answer::kYes, true, "tags.zph", 0, true},
      {common::Answer::kYes, true, "", 2, true},  // nothing to save under: all stays
      {common::Answer::kYes, false, "", 0, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << static_cast<int>(row.answer) << row.zephaFile);
    tests::RecordingPresenter user;
    user.messages.always = row.answer;
    Workspace work{user, settings, nullptr};
    Prepare(work);
    const std::string tags = row.zephaFile.empty() ? "" : folder / row.zephaFile;
    work.tags.zephaFileName = tags;
    if (row.hasTags) work.tags.Register("FE-1", "CV", messages, [](int) {});
    work.ducts.TakeRows(Ducts(2));
    work.ducts.ductFileName = path;
    work.ducts.ductModified = true;
    work.window.Run("mnuNewFileOpen");
    ASSERT_FALSE(user.messages.shown.empty());
    EXPECT_EQ(user.messages.shown[0].title, "File Open");
    EXPECT_EQ(user.messages.shown[0].text,
              "開いているダクトリストが変更されています。\n新しいファイルを開く前に保存しますか");
    EXPECT_EQ(user.messages.shown[0].buttons, common::Buttons::kYesNoCancel);
    EXPECT_EQ(work.ducts.DuctCount(), row.ducts);
    EXPECT_EQ(work.ducts.ductFileName, row.ducts > 0 ? path : "");
    EXPECT_EQ(work.ducts.ductModified, row.modified);
    if (row.ducts == 0) {
      EXPECT_EQ(work.ducts.ListCaption(), "Duct List：New File");
    }
    EXPECT_EQ(work.tags.TagCount(), row.hasTags ? 1 : 0);
  }
  EXPECT_FALSE(common::ReadFile(folder / "tags.zph").empty());
}

TEST_F(DuctCommands, RunStartsWithTheDuctsOfTheLastOne) {
  space.ducts.TakeRows(Ducts(4));
  space.ducts.ductFileName = path;
  SaveDuctFile(space.ducts, messages);
  WorkspaceEnd(space);
  Workspace next{presenter, settings, nullptr};
  BuildMainMenu(next);
  RestoreLastRun(next);
  EXPECT_EQ(next.ducts.Lines(), Texts({"D0", "D1", "D2", "D3"}));
  EXPECT_EQ(next.ducts.ductFileName, path);
  EXPECT_TRUE(presenter.messages.shown.empty());
  // The file has gone: one message, and the run starts without it.
  settings.Set("ExeScrn", "DuctFile", folder / "gone.dct");
  Workspace third{presenter, settings, nullptr};
  BuildMainMenu(third);
  RestoreLastRun(third);
  EXPECT_EQ(presenter.messages.shown.size(), 1U);
  EXPECT_EQ(third.ducts.ductFileName, "");
}

TEST_F(DuctCommands, DroppedFilesAreOpenedByTheirExtension) {
  common::WriteFile(folder / "B.DCT", EncodeDuctFile(StoreOf(1)));
  space.activeSheetKind = "";
  space.window.DropFile(folder / "B.DCT");
  EXPECT_EQ(space.ducts.DuctCount(), 1);
  EXPECT_EQ(space.tags.zephaFileName, "");
}

}  // namespace
}  // namespace shell
