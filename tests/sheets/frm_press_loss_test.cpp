#include <algorithm>

#include "common/number.h"
#include "shell/tag_commands.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

class PressLossTest : public SheetTest {
 protected:
  static constexpr const char* kReview = "データを見直してください。";
  static constexpr const char* kTooMuch = "圧力損失が流体圧力を超えるので\n計算を中止します。";

  PressLossTest() { bench.Window().Run("mnuPressLoss"); }

  /// The water line of Cengel and Cimbala, Fluid Mechanics, example 8-4: 0.2 ft3/s at 62.36 lbm/ft3
  /// through 200 ft of 2 in pipe, which lose 1700 lbf/ft2 (81.4 kPa).
  void EnterWater() {
    Pick("cbo流量単位L", 1);
    TypeAll({{"txt流量", "20.3881"},
             {"txt圧力", "300"},
             {"txt温度", "15.6"},
             {"txt密度", "998.91"},
             {"txt粘性係数", "1.1215"},
             {"txt配管内径", "50.8"},
             {"txtPipeRoughness", "0.0021"},
             {"txtPipeLength", "60.96"},
             {"txtInletType", "0"}});
  }

  /// Air at 5 kgf/cm2 gauge in 4 in pipe.
  void EnterAir() {
    Pick("cbo流体", kGas);
    Pick("cbo圧力単位", 2);
    TypeAll({{"txt流量", "2500"},
             {"txt圧力", "5"},
             {"txt温度", "20"},
             {"txt密度", "1.293"},
             {"txt粘性係数", "0.0182"},
             {"txt偏差係数", "1"},
             {"txt配管内径", "102.3"},
             {"txtPipeLength", "300"},
             {"txt付属品数(1)", "6"},
             {"txtInletType", "1"},
             {"txt管径比率(0)", "0.01"},
             {"txt円錐角度(0)", "180"},
             {"txt管径比率(1)", "2"},
             {"txt円錐角度(1)", "180"}});
  }

  bool DiagramSays(const std::string& wanted) {
    shell::PageRecorder surface;
    Find<forms::Picture>("pic圧力").onPaint(surface);
    const auto texts = ItemsOf<shell::PageRecorder::TextItem>(surface);
    return std::any_of(texts.begin(), texts.end(),
                       [&](const auto& item) { return item.text == wanted; });
  }
};

TEST_F(PressLossTest, LossFollowsTheUnitOfThePressure) {
  const std::pair<const char*, std::size_t> units[] = {
      {"kPa", 3}, {"MPa", 5}, {"kgf/cm2", 4}, {"mmH2O", 0}, {"mmHg", 3}, {"bar", 4}, {"psi", 3}};
  EnterWater();
  Type("txt圧力", "30600");
  int index = 0;
  for (const auto& [unit, decimals] : units) {
    SCOPED_TRACE(unit);
    Pick("cbo圧力単位", index++);
    EXPECT_EQ(Text("lblTotalLoss"), "");
    EXPECT_EQ(Text("lbl圧損単位(0)"), unit);
    Click("cmd計算");
    const std::string loss = Text("lblTotalLoss");
    EXPECT_EQ(loss.size() - std::min(loss.find('.'), loss.size() - 1) - 1, decimals) << loss;
  }
}

TEST_F(PressLossTest, TellsWhatItCorrectsAndWritesItIntoTheBoxes) {
  EnterAir();
  Type("txt偏差係数", "");
  Type("txtInletType", "4");
  Type("txt管径比率(0)", "0.5");
  Type("txt管径比率(1)", "0");
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(),
            Texts({"偏差係数が入力されていないので\n1として計算します",
                   "流入部配管形状が４型（レデューサー）なので、\n角度３０度に変更します。",
                   "流出配管径の比率がゼロでは閉塞です。配管径の比率を１に変更します"}));
  EXPECT_EQ(Text("txt偏差係数"), "1");
  EXPECT_EQ(Text("txt円錐角度(0)"), "30");
  EXPECT_EQ(Text("txt管径比率(1)"), "1");
  EXPECT_EQ(Text("txt円錐角度(1)"), "0");
  EXPECT_NE(Text("lblTotalLoss"), "");
  Click("cmd計算");
  EXPECT_EQ(TakeTexts(), Texts());
}

TEST_F(PressLossTest, EndsFaultsWithOneSentence) {
  const struct {
    const char *field, *text, *told;
  } rows[] = {{"txt流量", "", kReview},           {"txt密度", "", kReview},
              {"txt粘性係数", "", kReview},       {"txt配管内径", "", kReview},
              {"txt流量", "1e999", kReview},      {"txt圧力", "-101.325", kTooMuch},
              {"txtPipeLength", "6096", kTooMuch}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.field);
    EnterWater();
    Click("cmd計算");
    EXPECT_TRUE(bench.Space().calcDone);
    Type(row.field, row.text);
    Click("cmd計算");
    EXPECT_EQ(TakeTexts(), Texts({row.told}));
    EXPECT_EQ(Text("lblTotalLoss"), "");
    EXPECT_FALSE(bench.Space().calcDone);
    Click("cmdInitialize");
  }
}

TEST_F(PressLossTest, PhaseBringsItsFieldsAndForgetsTheFluid) {
  EnterWater();
  Pick("cbo粘性係数単位", 2);
  const char* kGasFields[] = {"txt相対湿度", "txt飽和水蒸気圧", "cbo飽和水蒸気圧単位",
                              "txt偏差係数"};
  for (const int phase : {kGas, kSteam, kLiquid}) {
    SCOPED_TRACE(phase);
    Pick("cbo流体", phase);
    for (const char* name : {"txt密度", "txt粘性係数", "txt偏差係数", "txt相対湿度"}) {
      EXPECT_EQ(Text(name), "");
      Type(name, "2");
    }
    EXPECT_EQ(Text("txt圧力"), "300");
    for (const char* name : kGasFields) EXPECT_EQ(Find(name).Visible(), phase == kGas) << name;
  }
  // cSt stays from the liquid until it is selected for the gas.
  Pick("cbo流体", kGas);
  EXPECT_EQ(Find<forms::ComboBox>("cbo粘性係数単位").Index(), 2);
  Pick("cbo粘性係数単位", 2);
  EXPECT_EQ(Find<forms::ComboBox>("cbo粘性係数単位").Index(), 1);
  EXPECT_EQ(Find("cbo粘性係数単位").ToolTip(), "[cst]はサポートしていません");
}

TEST_F(PressLossTest, RoughnessComesFromTheList) {
  EXPECT_EQ(Text("txtPipeRoughness"), "0.05");
  DblClick("txtPipeRoughness");
  EXPECT_EQ(Find<forms::ListBox>("lstRoughness").Index(), 1);
  EXPECT_EQ(Text("lblRoughness"), "0.05");
  Pick("lstRoughness", 3);
  Click("cmdRoughness");
  EXPECT_EQ(Text("txtPipeRoughness"), "0.26");
  DblClick("txtPipeRoughness");
  Pick("lstRoughness", 0);
  Find("lstRoughness").DblClick();
  bench.Forms().CollectClosed();
  EXPECT_EQ(Text("txtPipeRoughness"), "0.0015");
  bench.Space().tables.pressLoss = {};
  DblClick("txtPipeRoughness");
  Click("cmdRoughness");
  EXPECT_EQ(Text("txtPipeRoughness"), "0.0015");
}

TEST_F(PressLossTest, InletShapeBringsItsRatioAndAngle) {
  const char* expected[5][2] = {
      {"1", "0"}, {"0.01", "180"}, {"0.01", "180"}, {"0.01", "180"}, {"", ""}};
  for (int type = 0; type < 5; ++type) {
    SCOPED_TRACE(type);
    Find("txtInletType").RightClick();
    shell::PageRecorder surface;
    Find<forms::Picture>(Element("picInlet", type)).onPaint(surface);
    EXPECT_GT(surface.Items().size(), 3U);
    Click(Element("picInlet", type));
    EXPECT_EQ(Text("txtInletType"), std::to_string(type));
    EXPECT_EQ(Text("txt管径比率(0)"), expected[type][0]);
    EXPECT_EQ(Text("txt円錐角度(0)"), expected[type][1]);
  }
  Click("Label29");
  Click("cmdCancel");
  EXPECT_EQ(Text("txtInletType"), "4");
  auto& box = Find<forms::TextBox>("txtInletType");
  EXPECT_TRUE(box.PressKey(U'4'));
  EXPECT_FALSE(box.PressKey(U'5'));
}

TEST_F(PressLossTest, DiagramShowsThePressuresOfTheResults) {
  EXPECT_TRUE(DiagramSays("計算すると圧力線図を表示します。"));
  EnterAir();
  Click("cmd計算");
  EXPECT_TRUE(DiagramSays("圧力 (kgf/cm2G)"));
  EXPECT_TRUE(DiagramSays("配管長さ (m)"));
  EXPECT_TRUE(DiagramSays("5.0000"));
  EXPECT_TRUE(DiagramSays(common::Format(5 - Number("lblTotalLoss"), "0.0000")));
  Type("txtPipeLength", "301");
  EXPECT_TRUE(DiagramSays("計算すると圧力線図を表示します。"));
  // The fittings of a line without a length still lose pressure, but there is nothing to draw.
  Type("txtPipeLength", "0");
  Click("cmd計算");
  EXPECT_NE(Text("lblTotalLoss"), "");
  EXPECT_TRUE(DiagramSays("計算すると圧力線図を表示します。"));
}

TEST_F(PressLossTest, MarksAVelocityThatNoPipeCarries) {
  EnterAir();
  Click("cmd計算");
  EXPECT_EQ(Find("lblVelosityOut").ForeColor(), forms::kBlack);
  TypeAll({{"txtPipeLength", "0.1"},
           {"txt付属品数(1)", ""},
           {"txtInletType", "0"},
           {"txt管径比率(0)", "1"},
           {"txt円錐角度(0)", "0"},
           {"txt管径比率(1)", "1"},
           {"txt円錐角度(1)", "0"},
           {"txt流量", "70000"}});
  Click("cmd計算");
  EXPECT_GT(Number("lblVelosityOut"), 290);
  EXPECT_EQ(Find("lblVelosityOut").ForeColor(), forms::kMagenta);
  EXPECT_NE(Find("lblVelosityOut").ToolTip(), "");
  Type("txt流量", "2500");
  EXPECT_EQ(Find("lblVelosityOut").ForeColor(), forms::kBlack);
}

// Old files may hold what the sheet would not take today, or nothing at all.
TEST_F(PressLossTest, RecallsForeignRecords) {
  shell::TagStore& tags = bench.Space().tags;
  EnterAir();
  Type("txtTagNo", "PL-1");
  Click("cmd計算");
  shell::RegisterTag(bench.Space());
  TakeTexts();
  tags.SetText(1, 12, "2");   // cSt for a gas
  tags.SetText(1, 17, "-1");  // no size
  tags.SetText(1, 47, "9.9999");
  shell::RecallTag(bench.Space(), 1);
  EXPECT_EQ(TakeTexts(), Texts());
  EXPECT_EQ(Find<forms::ComboBox>("cbo粘性係数単位").Index(), 2);
  EXPECT_EQ(Text("cbo配管呼称径"), "");
  EXPECT_EQ(Text("lblTotalLoss"), "9.9999");
  EXPECT_TRUE(DiagramSays("計算すると圧力線図を表示します。"));
  tags.SetText(1, 6, "99");
  EXPECT_THROW(shell::RecallTag(bench.Space(), 1), common::RuntimeFault);
  EXPECT_EQ(Text("lblTotalLoss"), "");
  for (int column = 2; column < 50; ++column) tags.SetText(1, column, "");
  shell::RecallTag(bench.Space(), 1);
  EXPECT_EQ(TakeTexts(), Texts());
  EXPECT_FALSE(bench.Space().calcDone);
}

}  // namespace
}  // namespace sheets
