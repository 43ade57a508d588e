#include "common/number.h"
#include "shell/sheet.h"
#include "shell/tag_commands.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

class ThermowellSheetTest : public SheetTest {
 protected:
  static constexpr int kPipe = 0, kTank = 1, kSus316 = 7;

  ThermowellSheetTest() { bench.Window().Run("mnuThermowell"); }

  void EnterWell() {
    TypeAll({{"txt保護管密度", "7930"},
             {"txtヤング率", "19700"},
             {"txt許容応力", "13.2"},
             {"txt保護管長", "300"},
             {"txt挿入長", "100"},
             {"txt先端外径", "16"},
             {"txt根元外径", "16"},
             {"txt保護管内径", "9"},
             {"txtWellT", "6"},
             {"txt臨界減衰率", "0.0005"},
             {"txt応力集中係数", "2"}});
  }
  /// 60 m3/h of water in a pipe of 100 mm round a straight well of 16 mm.
  void EnterWater() {
    Pick("cbo流量単位L", 1);
    TypeAll({{"txt流量", "60"},
             {"txt配管内径", "100"},
             {"txt圧力", "500"},
             {"txt温度", "20"},
             {"txt密度", "1000"},
             {"txt粘性係数", "1"}});
    EnterWell();
  }
};

// Velocity, drag and frequency are worked out by hand in the tests of the analysis.
TEST_F(ThermowellSheetTest, ShowsTheWholeAnalysis) {
  EnterWater();
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts());
  EXPECT_EQ(Find("lbl固有振動数").ToolTip(), "JSME S 012で計算");
  EXPECT_EQ(Text("lbl同期振動判定"), "同期振動発生の回避･抑制条件は満足されません。");
  EXPECT_EQ(Color("lbl同期振動判定"), forms::kRed);
  EXPECT_EQ(Text("lbl定常抗力判定"), "曲げ応力は許容応力以下です。");
  EXPECT_EQ(Text("lbl励振力判定"), "応力振幅は許容応力の1/2を越えています。");
  EXPECT_EQ(Color("lbl励振力判定"), forms::kRed);
  EXPECT_EQ(Find("lbl励振力判定").ToolTip(), "抗力方向応力と仮定して曲げ応力を判定");
  EXPECT_EQ(Find("lbl定常抗力判定").ToolTip(),
            "抗力方向応力と仮定して曲げ応力を判定\n\n抗力係数Cd\n"
            "Re =33,953，　挿入長/外径 = 6の場合、【Cd = 0.77】程度になりますが、\n"
            "ZEPHAでの定常抗力の計算には、\n"
            "日本機械学会基準(JSME S 012)に従って、【Cd = 1.2】を使用します。");
  Pick("cbo許容応力単位", 2);
  EXPECT_EQ(Text("txt許容応力"), "13.2");  // units never convert what stands in the box
  EXPECT_EQ(Text("lbl流速R"), "");
  EXPECT_EQ(Color("lbl励振力判定"), forms::kBlack);
  Click("cmd計算");
  EXPECT_EQ(Text("lbl定常抗力"), "2.987");
  EXPECT_EQ(Text("lbl定常抗力判定"), "曲げ応力は許容応力を超えています。");

  TypeAll({{"txt根元外径", "22"}, {"txt挿入長", "0"}});
  Click("cmd計算");
  EXPECT_EQ(Find("lbl固有振動数").ToolTip(), "ASME PTCで計算");
  EXPECT_EQ(Text("lbl励振力"), "0");
  EXPECT_EQ(Text("lbl定常抗力判定"), "定常抗力は許容応力以下です。");
  EXPECT_EQ(Text("lbl励振力判定"), "応力振幅はゼロです｡疲労破壊はありません｡ ");
}

TEST_F(ThermowellSheetTest, FromVr5OnThereIsNoFatigue) {
  EnterWater();
  Type("txt流量", "360");
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts{"ﾗﾝﾀﾞﾑ励振力の計算は、\nＶr＞５ 以上の領域に対応していません。"});
  EXPECT_EQ(Text("lbl励振力"), "xxxx ");
  EXPECT_EQ(Text("lbl励振力判定"), "Vr>5のため疲労評価が出来ません。");
  EXPECT_EQ(Color("lbl励振力判定"), forms::kMagenta);
  EXPECT_EQ(Find("lbl励振力判定").ToolTip(), "");
}

TEST_F(ThermowellSheetTest, RefusesFaultyEntries) {
  const std::string reread = "\nデータを見直してください。";
  const struct {
    const char *name, *text;
    std::string message;
    const char *shown, *blank;  // last result that stands, first that does not
  } rows[] = {
      {"txt密度", "0", "データが変ですょ。 入力データを修正して下さい。", "", "lbl流速R"},
      {"txt挿入長", "301",
       "保護管の挿入長が、保護管の全長を越えています\n                データを見直してください", "",
       "lbl流速R"},
      {"txt保護管内径", "16", "保護管の内径が大きすぎます\n　データを見直してください", "",
       "lbl流速R"},
      {"txt配管内径", "", "0 で除算しました。" + reread, "", "lbl流速R"},
      {"txt粘性係数", "", "0 で除算しました。" + reread, "lbl流速R", "lblレイノルズ数R"},
      {"txtヤング率", "", "0 で除算しました。" + reread, "lbl固有振動数", "lblVr"},
      {"txt流量", "", "プロシージャの呼び出し、または引数が不正です。" + reread, "lbl同期振動判定",
       "lbl定常抗力"},
      {"txt臨界減衰率", "", "0 で除算しました。" + reread, "lbl定常抗力", "lbl励振力"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EnterWater();
    Type(row.name, row.text);
    Click("cmd計算");
    EXPECT_EQ(TakeTexts(), Texts{row.message});
    EXPECT_TRUE(row.shown[0] == '\0' || !Text(row.shown).empty());
    EXPECT_EQ(Text(row.blank), "");
    EXPECT_EQ(Text("lbl励振力判定"), "");
    EXPECT_FALSE(bench.Space().calcDone);
  }
}

TEST_F(ThermowellSheetTest, InstallationChangesCaptionsAndEmptiesItsRows) {
  EnterWater();
  Pick("cbo設置形式", kTank);
  EXPECT_EQ(Text("lbl流量"), "攪拌機 回転数");
  EXPECT_EQ(Text("lbl配管内径"), "インペラー直径");
  EXPECT_TRUE(Find("txt攪拌槽内径").Visible());
  EXPECT_FALSE(Find("cbo流量単位L").Visible());
  EXPECT_TRUE(Find("lbl流量単位").Visible());
  EXPECT_EQ(Text("txt流量"), "");
  EXPECT_EQ(Text("txt配管内径"), "");
  Pick("cbo流体", kGas);
  EXPECT_FALSE(Find("cbo流量単位G").Visible());
  Pick("cbo流体", 0);
  DblClick("txt配管内径");
  EXPECT_EQ(bench.Forms().Active()->Name(), "frmTW");
  TypeAll({{"txt流量", "120"}, {"txt配管内径", "500"}, {"txt攪拌槽内径", "700"}});
  Click("cmd計算");
  EXPECT_EQ(Text("lbl流速R"), "1.96");
  Type("txt攪拌槽内径", "199");
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts{"保護管挿入部先端が、攪拌槽の中心を越えているので\n"
                               "                    計算できません"});
  Pick("cbo設置形式", kPipe);
  EXPECT_FALSE(Find("txt攪拌槽内径").Visible());
  DblClick("txt配管内径");
  EXPECT_EQ(bench.Forms().Active()->Name(), "frmPipeDia");
  Click("cmdSet");
  EXPECT_EQ(Text("txt配管内径"), "102.3");
}

// Type 316 at room temperature: 195 GPa = 19880 kgf/mm2, allowable 20 ksi = 138 MPa = 14.1 kgf/mm2
// (ASME II-D).
TEST_F(ThermowellSheetTest, MaterialFollowsUnitAndTemperature) {
  const auto focus = [this](const char* name) { Find(name).Owner().SetFocus(Find(name)); };
  Type("txt温度", "20");
  Pick("cbo保護管材質", kSus316);
  const double modulus = Number("txtヤング率");
  EXPECT_NEAR(modulus, 19860, 60);
  EXPECT_EQ(Text("txt許容応力"), "14.1");
  Pick("cboヤング率単位", 1);
  EXPECT_EQ(Number("txtヤング率"), modulus);
  DblClick("txtヤング率");
  EXPECT_NEAR(Number("txtヤング率"), modulus * 9.80665, 5);
  EXPECT_NEAR(Number("txt許容応力"), 14.1, 0.01);

  focus("txt温度");
  Type("txt温度", "400");
  EXPECT_EQ(Text("txt許容応力"), "14.1");  // half-typed temperatures look nothing up
  focus("txt密度");
  EXPECT_LT(Number("txt許容応力"), 12.5);
  EXPECT_EQ(TakeTexts(), Texts());
  Type("txt許容応力", "10");
  focus("txt温度");
  focus("txt密度");
  EXPECT_EQ(Text("txt許容応力"), "10");  // and an unchanged one nothing either
}

TEST_F(ThermowellSheetTest, IsFreeOfWhatOtherSheetsLeave) {
  const auto velocity = [this] {
    Pick("cbo流体", kGas);
    Pick("cbo流量単位G", 5);  // Nm3/h
    TypeAll({{"txt流量", "3000"},
             {"txt配管内径", "202.7"},
             {"txt圧力", "500"},
             {"txt温度", "80"},
             {"txt密度", "1.293"},
             {"txt粘性係数", "0.021"}});
    EnterWell();
    Click("cmd計算");
    EXPECT_EQ(TakeTexts(), Texts());
    return Text("lbl流速R") + " " + Text("lblレイノルズ数R");
  };
  const std::string alone = velocity();
  // 3000 Nm3/h at 601.3 kPa and 353.15 K: 653.5 m3/h through 202.7 mm.
  EXPECT_EQ(alone.substr(0, 4), "5.63");
  bench.Window().Run("mnuOrifice");
  Pick("cbo流体", kGas);
  TypeAll({{"txt圧力", "10"}, {"txt温度", "80"}, {"txt偏差係数", "0.5"}, {"txt相対湿度", "100"}});
  Type("txt飽和水蒸気圧", "40");
  Choose("optDryBase");
  EXPECT_EQ(bench.Space().process.flowBasis, data::kDryBase);
  bench.Window().Run("mnuThermowell");
  EXPECT_EQ(velocity(), alone);
}

TEST_F(ThermowellSheetTest, RecallsOldAndForeignRecords) {
  Type("txtTagNo", "TW-1");
  EnterWater();
  Click("cmd計算");
  shell::RegisterTag(bench.Space());
  shell::TagStore& tags = bench.Space().tags;
  auto& sheet = dynamic_cast<shell::Sheet&>(*bench.Forms().Active());
  // A record of an older version, as reading its file leaves it.
  for (int column = 28; column < 50; ++column) tags.SetText(1, column, " ");
  sheet.GetFrom(1);
  EXPECT_EQ(Color("lbl同期振動判定"), forms::kBlack);
  EXPECT_FALSE(bench.Space().calcDone);
  EXPECT_EQ(TakeTexts(), Texts());

  // A selection that does not exist: no result of the tag before stays, and the captions fit.
  EnterWater();
  Click("cmd計算");
  tags.SetText(1, 11, "1");
  tags.SetText(1, 4, "99");
  EXPECT_THROW(sheet.GetFrom(1), common::RuntimeFault);
  EXPECT_EQ(Text("lbl励振力"), "");
  EXPECT_EQ(Text("lbl流量"), "攪拌機 回転数");
  EXPECT_FALSE(bench.Space().calcDone);
}

// Kt of the notch: x = 2 x 1.1 / 22 = 0.1 gives 1 / (0.0013035 - 0.025204 + 0.18512 + 0.286).
TEST_F(ThermowellSheetTest, NotchDialogueFillsKt) {
  Type("txt根元外径", "22");
  DblClick("txt応力集中係数");
  EXPECT_EQ(bench.Forms().Active()->Name(), "frm形状係数");
  EXPECT_EQ(Text("lblRootDia"), "22");
  Type("txt切欠き", "11.1");
  Click("Command1");
  EXPECT_EQ(TakeTexts(), Texts{"面取り半径/保護管直径が0.5以上は計算できません。"});
  Find<forms::ScrollBar>("VScroll1").SetValue(300 - 11);
  EXPECT_EQ(Text("txt切欠き"), "1.1");
  EXPECT_EQ(Text("lbl係数R"), "2.24");
  Click("Command1");
  EXPECT_EQ(Text("txt応力集中係数"), "2.24");
}

TEST_F(ThermowellSheetTest, ShowsTheHigherModes) {
  EnterWater();
  Click("cmd計算");
  Click("lblVr");
  EXPECT_EQ(bench.Forms().Active()->Name(), "frm振動数判定");
  const auto rows = Find<forms::Grid>("grd振動数").Rows();
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0][1], "129.4");
  EXPECT_NEAR(common::Val(rows[1][1]), 129.4 * 6.267, 1);  // (4.694 / 1.875)^2
  EXPECT_EQ(rows[2][3], rows[0][3]);
  Click("cmdOK");
  Click("lbl同期振動判定");
  EXPECT_EQ(Text("lbl条件c"), "(c) Ｖr＜３.３ かつ Ｃn＞２.５");
}

}  // namespace
}  // namespace sheets
