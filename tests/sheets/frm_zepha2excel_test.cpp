#include "sheets/frm_zepha2excel.h"

#include <cstdlib>
#include <filesystem>

#include "common/file.h"
#include "shell/tag_commands.h"
#include "tests/sheets/sheet_test.h"
#include "tests/support/fake_platform.h"
#include "tests/support/temporary_folder.h"

namespace sheets {
namespace {

/// The form of the export over the sample plant, with a folder for temporary files of its own.
class ExportTest : public SheetTest {
 protected:
  ExportTest() {
    setenv("TMPDIR", folder.Path().c_str(), 1);
    shell::OpenFileNamed(bench.Space(), ZEPHA_SOURCE_DIR "/samples/plant.zph");
    presenter.messages.shown.clear();
    bench.Space().platform = &platform;
  }
  ~ExportTest() override { unsetenv("TMPDIR"); }

  void Start() {
    bench.Window().Run("mnuExcel");
    presenter.changed.clear();
    Click("cmdExchangeStart");
  }
  void ExpectIdle() {
    EXPECT_EQ(Text("lblMessage"), "ＥＸＣＥＬデータを生成します。");
    EXPECT_TRUE(Find("cmdExchangeStart").Enabled());
    EXPECT_TRUE(Find("cmdEnd").Enabled());
  }

  tests::TemporaryFolder folder;
  tests::FakePlatform platform;
};

TEST_F(ExportTest, WritesANewFileAndOpensIt) {
  Start();
  EXPECT_EQ(TakeTexts(), Texts({"変換は終了しました。"}));
  EXPECT_EQ(platform.opened, Texts({folder / "plant.xlsx"}));
  EXPECT_TRUE(common::ReadFile(folder / "plant.xlsx").starts_with("PK"));
  EXPECT_EQ(Find<forms::ProgressBar>("ProgressBar1").Maximum(), bench.Space().tags.TagCount() + 9);
  ExpectIdle();
  Click("cmdExchangeStart");
  EXPECT_EQ(platform.opened.back(), folder / "plant(2).xlsx");
  Click("cmdEnd");
  EXPECT_EQ(bench.Forms().Find(frmZepha2Excel::kName), nullptr);
}

TEST_F(ExportTest, AnUnknownKindLeavesNoFile) {
  bench.Space().tags.SetText(40, shell::kKindColumn, "物性推算");
  Start();
  EXPECT_EQ(TakeTexts(), Texts({"該当するカテゴリーがありません。"}));
  EXPECT_FALSE(std::filesystem::exists(folder / "plant.xlsx"));
  EXPECT_TRUE(platform.opened.empty());
  ExpectIdle();
}

TEST_F(ExportTest, WithoutAFolderItCannotStart) {
  std::filesystem::remove_all(folder.Path());
  setenv("TMPDIR", "/proc", 1);  // a folder that takes no files
  Start();
  EXPECT_EQ(TakeTexts(), Texts({"Excelを起動できません。"}));
  ExpectIdle();
}

}  // namespace
}  // namespace sheets
