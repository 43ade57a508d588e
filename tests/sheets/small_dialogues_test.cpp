#include <filesystem>

#include "tests/sheets/sheet_test.h"
#include "tests/support/fake_platform.h"

namespace sheets {
namespace {

class SmallDialogues : public SheetTest {};

TEST_F(SmallDialogues, KeepWhatTheyAreTold) {
  bench.Window().Run("mnuCompany");
  Type("txtCompany", "東西エンジニアリング株式会社　計装設計部第一課");
  EXPECT_EQ(Text("txtCompany"), "東西エンジニアリング株式会社　計装設計部");
  Click("cmdOK");
  EXPECT_EQ(bench.Space().issuerName, "東西エンジニアリング株式会社　計装設計部");
  EXPECT_EQ(settings.Get("user", "company"), bench.Space().issuerName);
  bench.Window().Run("mnuSystemVersion");
  EXPECT_EQ(Text("lblVersion"), "Ver.3.0.0");
  Click("cmdSysInfo");
  EXPECT_EQ(TakeTexts(), Texts({"現時点ではｼｽﾃﾑ情報を使用できません"}));
  Click("cmdOK");
  EXPECT_EQ(bench.Forms().Active(), nullptr);
}

TEST_F(SmallDialogues, UserProgramsAreStoredWithoutQuotesAndStarted) {
  tests::FakePlatform desktop;
  const std::string folder = testing::TempDir() + "user-programs";
  std::filesystem::create_directories(folder);
  Workbench own(presenter, folder, settings, &desktop);
  own.Start();
  TakeTexts();
  own.Window().Run("mnuUserProgram");
  forms::Form& form = *own.Forms().Active();
  const auto type = [&form](const char* name, const char* text) {
    dynamic_cast<forms::TextBox&>(*form.Find(name)).Type(text);
  };
  type("txtUserProTitle(0)", "電卓");
  type("txtUser(0)", "\"calculator --big\"");
  type("txtUser(1)", "missing");
  form.Find("cmd登録")->Click();
  EXPECT_EQ(own.Space().userPrograms[0].command, "calculator --big");
  EXPECT_EQ(own.Window().Button(29)->toolTip, "電卓");
  own.Window().Press(29);
  EXPECT_EQ(desktop.started, Texts({"calculator", "--big"}));
  own.Window().Press(30);
  EXPECT_EQ(TakeTexts(), Texts({"プログラムを起動できません。\nmissing"}));
  own.Window().Press(31);
  EXPECT_EQ(TakeTexts(), Texts());
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace sheets
