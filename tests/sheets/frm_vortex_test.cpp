#include "sheets/frm_vortex.h"

#include "tests/sheets/flow_sheet_test.h"

namespace sheets {
namespace {

class VortexTest : public FlowSheetTest {
 protected:
  VortexTest() { bench.Window().Run("mnuVortex"); }

  /// 70 m3/h of water at 300 kPa.
  void EnterWater() {
    Pick("cbo流体", kLiquid);
    Pick("cbo流量単位L", 1);
    TypeAll({{"txt目盛流量", "70"},
             {"txt最少流量", "12"},
             {"txt圧力", "300"},
             {"txt温度", "20"},
             {"txt密度", "998.2"},
             {"txt粘性係数", "1.002"}});
  }
  std::string Row(int i) {
    std::string row;
    for (const char* name : {"lblMeterSize", "lblRange", "lblDPmm", "lblHz", "lblRemarks"}) {
      row += Text(Element(name, i));
      row += '|';
    }
    return row;
  }
};

// 50 mm (bore 52.7): loss 0.00199 rho Q2 = 9734 mmH2O; 0.028274 D2 = 78.53 m3/h at 10 m/s are
// 112.2 % of scale; f = 7.77 * 0.99976 * 70 / 3.6 = 151.047 Hz, rounded to 151.05 and shown so.
TEST_F(VortexTest, ListsTheSizesThatFit) {
  EnterWater();
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts());
  EXPECT_EQ(Text("lblScale"), "17.1");
  EXPECT_EQ(Text("lblMeterSize(3)"), "50");
  EXPECT_NEAR(Number("lblDPmm(3)"), 9734, 2);
  EXPECT_NEAR(Number("lblDPkpa(3)"), 95.46, 0.02);
  EXPECT_EQ(Text("lblHz(3)"), "151.1");
  for (const int i : {0, 1, 2, 8, 9}) EXPECT_EQ(Row(i), "|||||") << i;
  EXPECT_EQ(Text("lblRemarks(3)"), "");

  // Hot water boils behind the meter: 2.7 dP + 1.3 Pv = 2.6 + 1.9 kgf/cm2 against 4.1.
  Type("txt飽和蒸気圧", "143.3");
  EXPECT_EQ(Text("lblMeterSize(3)"), "");
  Click("cmd計算");
  EXPECT_EQ(Text("lblRemarks(3)"), "Cavitation");
  EXPECT_EQ(Color("lblRemarks(3)"), forms::kMagenta);
  EXPECT_EQ(Text("lblRemarks(4)"), "");
}

TEST_F(VortexTest, MakersDifferInTheirSizes) {
  EnterWater();
  Type("txt目盛流量", "1500");
  for (int maker = 0; maker < 4; ++maker) {
    SCOPED_TRACE(maker);
    Pick("cboMaker", maker);
    EXPECT_EQ(Text("lblScale"), "");
    Click("cmd計算");
    EXPECT_EQ(Text("lblMeterSize(8)").empty(), maker == 3);  // 250 mm; maker 3 ends at 200
    EXPECT_EQ(Text("lbl注意").empty(), maker != 3);
  }
}

TEST_F(VortexTest, RefusesALightGasOfOneMaker) {
  Pick("cbo流体", kGas);
  Pick("cbo流量単位G", 1);
  Pick("cbo密度単位G", 1);
  TypeAll({{"txt目盛流量", "500"},
           {"txt最少流量", "50"},
           {"txt圧力", "0"},
           {"txt温度", "20"},
           {"txt密度", "0.59"},
           {"txt粘性係数", "0.01"}});
  Pick("cboMaker", 3);
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts({"偏差係数が入力されていないので\n1として計算します",
                                "使用状態での密度が低すぎます"}));
  EXPECT_EQ(Text("txt偏差係数"), "1");
  EXPECT_EQ(Text("lblScale"), "");
  Pick("cboMaker", 2);
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts());
  EXPECT_EQ(Text("lblScale"), "10");
  EXPECT_NE(Text("lbl注意"), "");  // no lower limit at all below 0.6 kg/m3
  EXPECT_EQ(bench.Space().process.waterVapourDensity, 1);
  Type("txt目盛流量", "");
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts({"0 で除算しました。"}));
}

TEST_F(VortexTest, RecordHoldsTheRecommendedSize) {
  EnterWater();
  const shell::TagRow before = RegisterAndRecall("FT-0");
  EXPECT_EQ(before[18] + before[19], "");
  Click("cmd計算");
  const shell::TagRow row = RegisterAndRecall("FT-1");
  EXPECT_EQ(row[18], "50");
  // Re 2e4 at 2.99 m3/h, 10 m/s at 78.53 m3/h.
  EXPECT_EQ(row[19].substr(0, 10), "4.3;112.2;");
  EXPECT_EQ(Text("lblMeterSize(3)"), "");  // the results are calculated anew
}

// Water at 20 degC: 2.34 kPa, 0.0239 kgf/cm2.
TEST_F(VortexTest, FluidListFillsTheVapourPressure) {
  TypeAll({{"txt温度", "20"}, {"txt圧力", "300"}});
  Pick("cbo飽和蒸気圧単位", 0);
  Click("lbl飽和蒸気圧");
  Pick("lst物性推算", 0);
  Click("cmd単独物性");
  EXPECT_NEAR(Number("txt飽和蒸気圧"), 2.34, 0.02);
  Pick("cbo飽和蒸気圧単位", 2);
  DblClick("txt飽和蒸気圧");
  Pick("lst物性推算", 0);
  Click("cmd全物性");
  EXPECT_NEAR(Number("txt飽和蒸気圧"), 0.0239, 6e-4);
  EXPECT_NEAR(Number("txt密度"), 998.2, 0.3);
  Pick("cbo流体", kGas);
  DblClick("txt飽和蒸気圧");
  EXPECT_EQ(bench.Forms().Find("frm流体名表示"), nullptr);
}

}  // namespace
}  // namespace sheets
