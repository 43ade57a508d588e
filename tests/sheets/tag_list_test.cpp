#include <filesystem>

#include "common/file.h"
#include "shell/instrument_file.h"
#include "shell/lifecycle.h"
#include "shell/tag_commands.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

class TagListTest : public SheetTest {
 protected:
  TagListTest() { bench.Window().Run("mnuOrifice"); }

  /// Water at a flow that is part of the tag number, so that tags can be told apart.
  void EnterTag(const std::string& number, const std::string& flow) {
    Activate("frmOrifice");
    for (const auto& [name, text] : {std::pair("txtTagNo", number),
                                     {"txt目盛流量", flow},
                                     {"txt常用流量", flow},
                                     {"txt圧力", "500"},
                                     {"txt温度", "20"},
                                     {"txt密度", "998.2"},
                                     {"txt粘性係数", "1"},
                                     {"txt配管内径", "102.3"},
                                     {"txt設計差圧", "25"}}) {
      Type(name, text);
    }
    Click("cmd計算");
  }
  void RegisterTags(std::initializer_list<const char*> numbers) {
    int flow = 20000;
    for (const char* number : numbers) {
      EnterTag(number, std::to_string(flow += 1000));
      shell::RegisterTag(bench.Space());
    }
  }
  void Activate(const std::string& form) { bench.Forms().MakeActive(*bench.Forms().Find(form)); }
  void OpenList() { bench.Window().Run("mnuTagList"); }
  std::string NumberIn(const std::string& form, const std::string& name) {
    return bench.Forms().Find(form)->Find(name)->Text();
  }
  std::vector<std::string> Numbers() {
    std::vector<std::string> numbers;
    for (int row = 1; row <= Tags().TagCount(); ++row) numbers.push_back(Tags().Text(row, 0));
    return numbers;
  }
};

TEST_F(TagListTest, RegistersTheSheetBehindTheSelectedLine) {
  OpenList();
  EXPECT_EQ(bench.Forms().Active()->Caption(), "Tag List ： New File");
  RegisterTags({"FE-1", "FE-2"});
  Activate("frmTagList");
  Pick("lstTagNo", 0);
  EnterTag("FE-3", "23000");
  Activate("frmTagList");
  Click("cmd追加");
  EXPECT_EQ(Numbers(), Texts({"FE-1", "FE-3", "FE-2"}));
  EXPECT_EQ(Text("lstTagNo"), "FE-3                        ⊿P Flow");
  EXPECT_EQ(Text("lblListNo"), "2");
  EXPECT_EQ(bench.Window().Title(), "New File * － ZEPHA");
}

TEST_F(TagListTest, ListRecallsDeletesMovesAndSorts) {
  RegisterTags({"FE-3", "FE-1", "FE-2"});
  OpenList();
  Pick("lstTagNo", 1);
  DblClick("lstTagNo");
  EXPECT_EQ(NumberIn("frmOrifice", "txt目盛流量"), "22000");
  Pick("lstTagNo", 2);
  Find<forms::ListBox>("lstTagNo").PressEnter();
  EXPECT_EQ(NumberIn("frmOrifice", "txt目盛流量"), "23000");
  EXPECT_NE(NumberIn("frmOrifice", "lbl表示β"), "");
  Click("cmdUp");
  EXPECT_EQ(Numbers(), Texts({"FE-3", "FE-2", "FE-1"}));
  EXPECT_EQ(Text("lblListNo"), "2");
  Click("cmdTagSort");
  EXPECT_EQ(Numbers(), Texts({"FE-1", "FE-2", "FE-3"}));
  Answer(false);
  Click("cmdTagDelete");
  Click("cmdTagDelete");
  EXPECT_EQ(Numbers(), Texts({"FE-1", "FE-3"}));
  EXPECT_EQ(TakeTexts().size(), 2U);
}

TEST_F(TagListTest, RecallRefusesOtherKindsAndTellsDamage) {
  RegisterTags({"FE-1", "FE-2"});
  Tags().SetText(1, 50, "CV");
  Tags().SetText(2, 8, "99");
  shell::RecallTag(bench.Space(), 1);
  EXPECT_EQ(Text("txtTagNo"), "FE-2");
  OpenList();
  Pick("lstTagNo", 1);
  Click("cmdTagCall");
  EXPECT_EQ(TakeTexts(), Texts({"インデックスが有効範囲にありません。"}));
}

TEST_F(TagListTest, SavesOpensAndForgetsNothing) {
  const std::string path = testing::TempDir() + "保存 先.zph";
  RegisterTags({"FE-1", "FE-2"});
  shell::SaveFileNamed(bench.Space(), path);
  EXPECT_EQ(bench.Window().Title(), "保存 先.zph － ZEPHA");
  EXPECT_THROW(shell::SaveFileNamed(bench.Space(), "/nonexistent/x.zph"), common::RuntimeFault);
  EXPECT_EQ(Tags().zephaFileName, path);
  const std::string first = common::ReadFile(path);
  bench.Window().Run("mnuNewFileOpen");
  EXPECT_EQ(Tags().TagCount(), 0);
  bench.Window().DropFile(path);
  EXPECT_EQ(Numbers(), Texts({"FE-1", "FE-2"}));
  EXPECT_EQ(bench.Forms().Active()->Caption(), "Tag List ： 保存 先");
  bench.Window().Run("mnuUpdate");
  EXPECT_EQ(common::ReadFile(path), first);
  ASSERT_NE(bench.Window().Find("mnuRecent1"), nullptr);
  EXPECT_EQ(bench.Window().Find("mnuRecent1")->caption, path);
  bench.Window().Run("mnuDataVersion");
  EXPECT_EQ(TakeTexts(), Texts({"表示している計装データ" + path + "は\n　ZEPHA version " +
                                shell::kProgramVersion + "\nで作成されました。"}));
  std::filesystem::remove(path);
}

TEST_F(TagListTest, SecondRunIsAsTheFirstWasLeft) {
  const std::string path = testing::TempDir() + "second-run.zph";
  RegisterTags({"FE-1", "FE-2", "FE-3"});
  OpenList();
  Pick("lstTagNo", 1);
  Click("cmdTagCall");
  shell::SaveFileNamed(bench.Space(), path);
  shell::WindowPlacement placement;
  placement.left = 3000;
  placement.width = 15000;
  bench.Window().Moved(placement);
  shell::WorkspaceEnd(bench.Space());
  EXPECT_EQ(bench.Forms().Active(), nullptr);

  tests::RecordingPresenter again;
  Workbench second(again, ZEPHA_BUILD_DIR, settings);
  second.Start();
  EXPECT_EQ(again.messages.Texts(), Texts());
  EXPECT_EQ(second.Space().tags.TagCount(), 3);
  EXPECT_EQ(second.Space().activeSheetKind, "⊿P Flow");
  EXPECT_EQ(second.Forms().Find("frmOrifice")->Find("txtTagNo")->Text(), "FE-2");
  EXPECT_NE(second.Forms().Find("frmOrifice")->Find("lbl表示β")->Text(), "");
  EXPECT_EQ(second.Window().Placement().left, 3000);
  EXPECT_EQ(second.Window().Placement().width, 15000);
  EXPECT_FALSE(second.Space().tags.tagModified);

  std::filesystem::remove(path);
  Workbench third(again, ZEPHA_BUILD_DIR, settings);
  third.Start();
  EXPECT_EQ(again.messages.Texts(),
            Texts({"ＺＥＰＨＡのデータファイル\n" + path + "\nが見つかりません。"}));
  EXPECT_EQ(third.Space().activeSheetKind, "⊿P Flow");
}

}  // namespace
}  // namespace sheets
