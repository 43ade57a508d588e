#include "shell/sheet.h"
#include "shell/tag_commands.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

class SensorSheetTest : public SheetTest {
 protected:
  static constexpr int kK = 4, kPt = 8, kJPt = 9;

  SensorSheetTest() { bench.Window().Run("mnuTC"); }

  void ChooseKind(int kind) { Choose(Element("optTC", kind)); }
  void EnterScale(const std::string& low, const std::string& high) {
    Type("txtScale(0)", low);
    Type("txtScale(1)", high);
    Click("cmd計算");
  }
  void PressEnter(const std::string& name) { Find<forms::TextBox>(name).PressKey(U'\r'); }
};

// Figures of the published tables: ITS-90 type K and IEC 60751.
TEST_F(SensorSheetTest, TabulatesTheScale) {
  ChooseKind(kK);
  EnterScale("", "1000");
  EXPECT_EQ(Text("lbl温度(0)"), "0.0");
  EXPECT_EQ(Text("lblTE出力(0)"), "0");
  EXPECT_EQ(Text("lblTE出力(5)"), "20,644");
  EXPECT_EQ(Text("lbl温度(10)"), "1,000.0");
  EXPECT_EQ(Text("lblTE出力(10)"), "41,276");
  EXPECT_TRUE(bench.Space().calcDone);
  ChooseKind(kPt);
  EXPECT_EQ(Text("lbl温度(10)"), "");
  EnterScale("100", "-200");  // a falling scale
  EXPECT_EQ(Text("lblTE出力(0)"), "138.51");
  EXPECT_EQ(Text("lblTE出力(10)"), "18.52");
  ChooseKind(0);
  EnterScale("0.7", "1820");  // (1820 - 0.7) / 10 x 10 + 0.7 is above 1820 in doubles
  EXPECT_EQ(Text("lblTE出力(10)"), "13,820");
  EnterScale("50", "50");
  EXPECT_EQ(Text("lbl温度(0)"), "");
  EXPECT_EQ(TakeTexts(), Texts());
}

TEST_F(SensorSheetTest, StopsAtTheFirstLineBeyondTheTable) {
  ChooseKind(kK);
  EnterScale("0", "1400");
  ASSERT_EQ(presenter.messages.shown.size(), 1u);
  EXPECT_EQ(presenter.messages.shown[0].title, "計器目盛較正");
  EXPECT_EQ(TakeTexts(), Texts{"温度が高すぎます。"});
  EXPECT_NE(Text("lblTE出力(9)"), "");
  EXPECT_EQ(Text("lbl温度(10)"), "1,400.0");
  EXPECT_EQ(Text("lblTE出力(10)"), "");
  EnterScale("-300", "0");
  EXPECT_EQ(TakeTexts(), Texts{"温度が低すぎます。"});
  EXPECT_EQ(Text("lbl温度(1)"), "");
}

TEST_F(SensorSheetTest, ConvertsBothWays) {
  ChooseKind(kK);
  Type("txt温度", "100");
  EXPECT_EQ(Text("lbl換算出力"), "4,096");
  Type("txtEMF", "41276");
  PressEnter("txtEMF");
  EXPECT_EQ(Text("lblTemp"), "1,000.0");
  Type("txtEMF", "99999");
  EXPECT_EQ(Text("lblTemp"), "1,372.0");
  Type("txtEMF", "");
  PressEnter("txtEMF");
  EXPECT_EQ(Text("lblTemp"), "0.0");
  EXPECT_EQ(TakeTexts(), Texts());
  ChooseKind(kPt);
  Type("txtEMF", "390.48");
  EXPECT_EQ(Text("lblTemp"), "850.0");
  for (const char* text : {"", "0", "-5", "abc"}) {
    Type("txtEMF", text);
    EXPECT_EQ(TakeTexts(), Texts()) << text;  // typing is not interrupted
    PressEnter("txtEMF");
    EXPECT_EQ(TakeTexts(), Texts{"温度が一定値に定まりません"}) << text;
    EXPECT_EQ(Text("lblTemp"), "");
  }
  Type("txt温度", "851");
  PressEnter("txt温度");
  EXPECT_EQ(TakeTexts(), Texts{"温度が高すぎます。"});
}

TEST_F(SensorSheetTest, CaptionsFollowTheKind) {
  EXPECT_EQ(Text("lbl測温体"), "B(JIS C 1602-1995)");
  EXPECT_EQ(Text("lblEMF"), "起 電 力");
  EXPECT_EQ(Text("lbl出力見出し"), "起電力(μV)");
  ChooseKind(kPt);
  EXPECT_EQ(Text("lbl測温体"), "Pt100(JIS C 1604-1997)");
  EXPECT_EQ(Text("lblEMF"), "抵 抗 値");
  EXPECT_EQ(Text("lbl出力見出し"), "抵抗値(Ω)");
  ChooseKind(kJPt);
  EXPECT_EQ(Text("lbl測温体"), "JPt100(JIS C 1604-1997 参考)");
  EXPECT_EQ(Text("lblEMF単位"), "Ω");
}

TEST_F(SensorSheetTest, RecallsAScaleThatCannotBeDrawn) {
  Type("txtTagNo", "TE-1");
  ChooseKind(kJPt);
  EnterScale("0", "200");
  shell::RegisterTag(bench.Space());
  ChooseKind(kK);
  auto& sheet = dynamic_cast<shell::Sheet&>(*bench.Forms().Active());
  for (const char* limit : {"-300", "1e400", "200"}) {
    bench.Space().tags.SetText(1, 4, limit);
    sheet.GetFrom(1);
    EXPECT_EQ(Text("lblTE出力(5)"), "139.16") << limit;
  }
  EXPECT_EQ(Text("lblEMF単位"), "Ω");
  EXPECT_EQ(TakeTexts(), Texts());
}

}  // namespace
}  // namespace sheets
