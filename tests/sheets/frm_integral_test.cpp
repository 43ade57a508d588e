#include "tests/sheets/flow_sheet_test.h"

namespace sheets {
namespace {

class IntegralTest : public FlowSheetTest {
 protected:
  IntegralTest() { bench.Window().Run("mnuIntegral"); }

  /// 6 l/min of water at 500 kPa through the wide model of group 0.
  void EnterWater() {
    Pick("cbo計器型式", 2);
    Pick("cbo流量単位L", 3);
    TypeAll({{"txt目盛流量", "6"},
             {"txt常用流量", "4.5"},
             {"txt圧力", "500"},
             {"txt温度", "20"},
             {"txt密度", "998.2"},
             {"txt粘性係数", "1.002"}});
  }
};

// dP = rho/2 (Q / (alpha A))2: 4663 mmH2O for 4.039 mm, 696 for 6.35 mm.
TEST_F(IntegralTest, RatesAllBoresAtOnce) {
  EXPECT_FALSE(Find("cboOrificeNo").Enabled());
  EnterWater();
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts());
  const char* const notes[] = {"差圧過大", "差圧過大", "差圧過大", "Range外"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(Text(Element("lblDPmm", i)), notes[i]);
    EXPECT_EQ(Text(Element("lblDPkpa", i)), notes[i]);
    EXPECT_EQ(Color(Element("lblDPmm", i)), forms::kRed);
  }
  EXPECT_NEAR(Number("lblDPmm(4)"), 4663, 15);
  EXPECT_NEAR(Number("lblDPkpa(4)"), 45.73, 0.15);
  EXPECT_NEAR(Number("lblDPmm(5)"), 696, 3);
  EXPECT_EQ(Color("lblDPmm(5)"), forms::kBlack);
  EXPECT_EQ(Text("lblDPmm(6)"), "");
  EXPECT_EQ(Text("lblOrificeDia(6)"), "");
  EXPECT_TRUE(Find("cboOrificeNo").Enabled());
  EXPECT_EQ(Text("lblNorReynolds"), "");  // nothing is picked yet

  // Re = 4 Q / (pi d nu) at 4.5 l/min.
  Pick("cboOrificeNo", 4);
  EXPECT_NEAR(Number("lblNorReynolds"), 23550, 60);
  EXPECT_EQ(Text("lblReynoldsKind"), "(Red)");
  EXPECT_EQ(Text("lblKaf"), "1.000");
  EXPECT_EQ(Text("lblα"), "");
  EXPECT_NEAR(Number("lbl水相当流量"), 6, 0.01);
  EXPECT_EQ(Text("lbl空気相当流量"), "");
  EXPECT_NEAR(Number("lbl永久圧損(0)"), Number("lbl差圧結果(0)") * (1 - 4.039 / 14), 1);
  EXPECT_EQ(Color("lbl差圧結果(0)"), forms::kBlack);
  Pick("cboOrificeNo", 0);
  EXPECT_EQ(Color("lbl差圧結果(0)"), forms::kRed);
  EXPECT_NE(Text("lbl差圧結果(0)"), "差圧過大");  // the number stays
  EXPECT_EQ(Color("lbl永久圧損(0)"), forms::kBlack);
  Pick("cboOrificeNo", 6);
  EXPECT_EQ(Text("lblNorReynolds"), "");

  Type("txt常用流量", "4");
  EXPECT_EQ(Text("lblDPmm(4)"), "");
  EXPECT_FALSE(Find("cboOrificeNo").Enabled());
  Pick("cboOrificeNo", 4);
  EXPECT_EQ(Text("lblNorReynolds"), "");
}

TEST_F(IntegralTest, ModelsDifferInTheirBores) {
  EnterWater();
  Type("txt目盛流量", "20");
  Type("txt常用流量", "15");
  Pick("cbo計器型式", 4);
  EXPECT_EQ(Text("lblOrificeDia(6)"), "8.636");
  EXPECT_EQ(Text("lbl空気相当流量単位"), "Sl/min");
  Click("cmd計算");
  EXPECT_NE(Text("lblDPmm(6)"), "");
  Pick("cboOrificeNo", 6);
  EXPECT_EQ(Text("lblReynoldsKind"), "(ReD)");
  Pick("cbo計器型式", 3);
  EXPECT_EQ(Text("lblDPmm(5)"), "");
  EXPECT_EQ(Text("lbl空気相当流量単位"), "Nl/min");
  Click("cmd計算");
  Pick("cboOrificeNo", 5);
  EXPECT_EQ(Text("lblα"), "0.8544329");
  EXPECT_EQ(Text("lbl膨張補正係数"), "1.0000");
  EXPECT_EQ(Text("lblKaf"), "");
  EXPECT_EQ(Text("lbl水相当流量"), "");
}

TEST_F(IntegralTest, RefusesSteamAndTooMuchNormalFlow) {
  EnterWater();
  Pick("cbo流体", kSteam);
  TypeAll(
      {{"txt目盛流量", "40"}, {"txt常用流量", "41"}, {"txt密度", "4"}, {"txt粘性係数", "0.015"}});
  Click("cmd計算");
  ASSERT_EQ(presenter.messages.shown.size(), 2U);
  EXPECT_EQ(presenter.messages.shown[1].title, "Integral Orifice");
  EXPECT_EQ(presenter.messages.shown[1].icon, common::Icon::kWarning);
  EXPECT_EQ(TakeTexts(), Texts({"ｱｲｾﾞﾝﾄﾛﾋﾟｯｸ指数が入力されていないので\n1.4として計算します",
                                "選択した伝送器型式はスチームに適用できません。"}));
  Pick("cbo計器型式", 3);
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts({"常用流量が最大目盛流量を超えています"}));
  EXPECT_FALSE(Find("cboOrificeNo").Enabled());
  Type("txt常用流量", "40");
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts());
  EXPECT_TRUE(Find("cboOrificeNo").Enabled());
  Type("txt密度", "");
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts({"0 で除算しました。"}));
  EXPECT_EQ(Text("lblDPmm(5)"), "");
}

TEST_F(IntegralTest, ARecallIsNoCalculation) {
  EnterWater();
  Click("cmd計算");
  Pick("cboOrificeNo", 0);
  const std::string differential = Text("lbl差圧結果(0)");
  const shell::TagRow row = RegisterAndRecall("FE-1");
  EXPECT_EQ(row[24], "差圧過大");
  EXPECT_EQ(row[30], "");
  EXPECT_NEAR(static_cast<double>(common::Val(row[42])), Number("lbl差圧結果(0)"), 0.5);
  EXPECT_EQ(Text("lblDPkpa(0)"), "差圧過大");
  EXPECT_EQ(Color("lblDPkpa(0)"), forms::kRed);
  EXPECT_EQ(Color("lblDPmm(4)"), forms::kBlack);
  EXPECT_EQ(Color("lbl差圧結果(0)"), forms::kRed);
  // The detail of another bore waits for one.
  Pick("cboOrificeNo", 4);
  EXPECT_EQ(Text("lbl差圧結果(0)"), differential);
  EXPECT_FALSE(bench.Space().calcDone);
}

}  // namespace
}  // namespace sheets
