#include "tests/sheets/flow_sheet_test.h"

namespace sheets {
namespace {

class RestrictionTest : public FlowSheetTest {
 protected:
  RestrictionTest() { bench.Window().Run("mnuRO"); }

  /// 20 t/h of water, 300 kPa to be lost in 4 in Sch40.
  void EnterWater() {
    TypeAll({{"txt流量", "20000"},
             {"txt圧力", "600"},
             {"txt差圧", "300"},
             {"txt温度", "20"},
             {"txt密度", "998.2"},
             {"txtヤング率", "19700"},
             {"txt許容応力", "13.2"},
             {"txt配管内径", "102.3"},
             {"txtThickness", "6"}});
  }
};

// SI: d = sqrt(4 W / (pi C sqrt(2 rho dP))) = 19.9 mm with C = 0.72 for t/d 0.3; 1 % of flow lies
// between 1.2649 and 1.2522.
TEST_F(RestrictionTest, SizesAPlateThatHolds) {
  EnterWater();
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts());
  EXPECT_NEAR(Number("lbl絞り径"), 19.9, 0.1);
  EXPECT_EQ(Text("lbl背圧補正"), "");
  EXPECT_EQ(Color("lbl最大応力"), forms::kBlack);
  const std::string hint = "板厚は" + Text("lblMinThickness") + "mm以上必要です。";
  EXPECT_EQ(Find("txtThickness").ToolTip(), hint);
  EXPECT_EQ(Find("lbl最大応力").ToolTip(), hint);

  // In newtons: the same stress times 9.80665.
  const double kgf = Number("lbl最大応力");
  Pick("cbo許容応力単位", 1);
  EXPECT_EQ(Text("lbl最大応力"), "");
  EXPECT_EQ(Text("lbl最大応力単位"), "N/mm2");
  Type("txt許容応力", "129.4");
  Click("cmd計算");
  EXPECT_NEAR(Number("lbl最大応力"), kgf * 9.80665, 0.1);
}

TEST_F(RestrictionTest, RecordKeepsJudgements) {
  EnterWater();
  Type("txtThickness", "1");
  Click("cmd計算");
  const shell::TagRow row = RegisterAndRecall("RO-1");
  for (const std::size_t column : {37, 39, 41}) EXPECT_EQ(row[column], "255");
  for (const char* red : {"lbl最大応力", "lbl変形量", "lblMinThickness"}) {
    EXPECT_EQ(Color(red), forms::kRed) << red;
  }
  EXPECT_EQ(Text("Label5(0)"), "(半径方向)");
  Type("txtThickness", "12");
  EXPECT_EQ(Text("lbl最大応力"), "");
  EXPECT_EQ(Color("lbl最大応力"), forms::kBlack);
  EXPECT_EQ(Find("txtThickness").ToolTip(), "");
}

TEST_F(RestrictionTest, GasDefaultsAndFaultsSpeak) {
  EnterWater();
  Pick("cbo流体", kGas);
  TypeAll({{"txt密度", "1.293"}, {"txt相対湿度", "50"}});
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts({"飽和蒸気圧力が入力されていません"}));
  DblClick("txt飽和水蒸気圧");
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts({"圧縮係数が入力されていないので\n1として計算します",
                                "ｱｲｾﾞﾝﾄﾛﾋﾟｯｸ指数が入力されていないので\n1.4として計算します"}));
  EXPECT_EQ(Text("lbl背圧補正"), "1.00");
  const std::pair<const char*, const char*> spoilers[] = {{"txtThickness", ""},
                                                          {"txt差圧", ""},
                                                          {"txt許容応力", ""},
                                                          {"txt配管内径", ""},
                                                          {"txt比熱比", "1"}};
  for (const auto& [field, text] : spoilers) {
    SCOPED_TRACE(field);
    Type(field, text);
    Click("cmd計算");
    EXPECT_EQ(TakeTexts(), Texts({"0 で除算しました。\nデータを見直してください。"}));
    EXPECT_EQ(Text("lbl絞り径"), "");
    EnterWater();
    TypeAll({{"txt密度", "1.293"}, {"txt比熱比", "1.4"}});
  }
  // mmHg is an absolute pressure and counts no atmosphere: 735.72 mmHg are 1 kgf/cm2.
  Pick("cbo差圧単位", 4);
  Type("txt差圧", "735.72");
  Click("cmd計算");
  EXPECT_NEAR(static_cast<double>(bench.Space().process.differentialPressure), 10000, 1e-6);
}

TEST_F(RestrictionTest, ImpossibleResultsCarryACaution) {
  const struct {
    const char *what, *field, *text;
    const char* doubtful;
    bool noted;
  } rows[] = {
      {"bore beyond the pipe", "txt流量", "600000", "lblβ", true},
      {"beta beyond the plate", "txt配管内径", "23.5", "lblたわみ係数", true},
      {"differential beyond the pressure", "txt差圧", "800", "lbl絞り径", true},
      {"thick plate", "txtThickness", "30", nullptr, true},
      {"sound", "txtThickness", "6", nullptr, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EnterWater();
    Type(row.field, row.text);
    Click("cmd計算");
    EXPECT_EQ(TakeTexts(), Texts());
    EXPECT_NE(Text("lbl絞り径"), "");
    EXPECT_EQ(!Text("lbl注意").empty(), row.noted);
    if (row.doubtful != nullptr) {
      EXPECT_EQ(Color(row.doubtful), forms::kMagenta);
      EXPECT_NE(Find(row.doubtful).ToolTip(), "");
    }
  }
  Pick("cbo流体", kSteam);
  EnterWater();
  TypeAll({{"txt密度", "3.6"}, {"txt比熱比", "1.3"}});
  Click("cmd計算");
  EXPECT_NE(Text("lbl注意"), "");
}

// SUS316 at 20 degC: about 19900 kgf/mm2 and 195000 N/mm2; allowable stress 14.1 kgf/mm2.
TEST_F(RestrictionTest, MaterialFillsModulusAndStress) {
  Type("txt温度", "20");
  Pick("cboRO材質", 7);
  EXPECT_NEAR(Number("txtヤング率"), 19900, 100);
  EXPECT_NEAR(Number("txt許容応力"), 14.1, 0.5);
  const double kgf = Number("txtヤング率");
  Pick("cboヤング率単位", 2);
  EXPECT_EQ(Number("txtヤング率"), kgf);  // a unit never converts the number
  DblClick("txtヤング率");
  EXPECT_NEAR(Number("txtヤング率"), kgf * 9.80665, 0.5);
  Find<forms::ComboBox>("cboRO材質").SetText("チタン");
  DblClick("txtヤング率");
  Find<forms::ComboBox>("cboRO材質").SetText("");
  DblClick("txt許容応力");
  EXPECT_EQ(TakeTexts(), Texts({"データベースに登録されていないオリフィス材料です",
                                "データベースに未登録です。"}));
  EXPECT_EQ(Text("txtヤング率"), "");
  EXPECT_EQ(Text("txt許容応力"), "");
}

// At normal state the ratio to the normal state is 1; the compressibility factor of carbon dioxide
// there is 0.9933.
TEST_F(RestrictionTest, FluidListFillsTheCompressibilityFactorItself) {
  Pick("cbo流体", kGas);
  TypeAll({{"txt圧力", "0"}, {"txt温度", "0"}});
  Click("lbl圧縮係数");
  auto& names = Find<forms::ListBox>("lst物性推算");
  names.Pick(names.IndexOf(" 二酸化炭素"));
  Click("cmd全物性");
  EXPECT_NEAR(Number("txt圧縮係数"), 0.9933, 0.002);
  EXPECT_NEAR(Number("txt比熱比"), 1.31, 0.02);
}

// Opening this sheet puts the limits of nozzles over those of flange and D and D/2 taps for the
// rest of the run.
TEST_F(RestrictionTest, OpeningChangesTheLimitsOfTwoPlates) {
  const flow::OrificeTable& limits = bench.Space().tables.orifice;
  EXPECT_EQ(limits.betaMin[0], 0.3);
  EXPECT_EQ(limits.pipeMax[0], 500);
  EXPECT_EQ(limits.betaMin[1], 0.2);
  EXPECT_EQ(limits.pipeMax[1], 630);
  EXPECT_EQ(limits.betaMin[2], 0.1);
  bench.Window().Run("mnuOrifice");
  Pick("cbo絞り機構種類", 0);
  TypeAll({{"txt目盛流量", "20000"},
           {"txt常用流量", "20000"},
           {"txt圧力", "500"},
           {"txt温度", "20"},
           {"txt密度", "998.2"},
           {"txt粘性係数", "1"},
           {"txt配管内径", "102.3"},
           {"txt設計差圧", "200"}});
  Click("cmd計算");
  const Texts texts = TakeTexts();
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].substr(0, 7), "β(=0.2");
}

}  // namespace
}  // namespace sheets
