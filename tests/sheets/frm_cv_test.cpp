#include "sheets/frm_cv.h"

#include <sstream>

#include "shell/tag_commands.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

class CvTest : public SheetTest {
 protected:
  CvTest() { bench.Window().Run("mnuControlValve"); }

  /// Entries "name=value": texts are typed, lists picked by index.
  void Enter(const std::string& entries) {
    std::istringstream words(entries);
    for (std::string word; words >> word;) {
      const auto equals = word.find('=');
      const std::string name = word.substr(0, equals);
      const std::string value = word.substr(equals + 1);
      if (dynamic_cast<forms::TextBox*>(&Find(name)) != nullptr) {
        Type(name, value);
      } else {
        Pick(name, std::stoi(value));
      }
    }
  }
  bool Visible(const std::string& name) { return Find(name).Visible(); }
  shell::Workspace& Space() { return bench.Space(); }
  frmCV& Sheet() { return dynamic_cast<frmCV&>(*bench.Forms().Active()); }

  /// 50 m3/h of water from 10 to 8 kgf/cm2 absolute (mmHg, 4, has no atmosphere to lose).
  void EnterWater() {
    Enter(
        "cbo流体=0 cbo流量単位L=1 cbo圧力単位=4 cbo差圧単位=2 cbo飽和蒸気圧単位=2 "
        "cbo臨界圧力単位=2 txt流量=50 txt圧力=7357.2 txt差圧=2 txt温度=20 txt密度=1000 "
        "txt粘性係数= txt飽和蒸気圧=0.024 txt臨界圧力=225.6");
  }
  void EnterAir() {
    EnterWater();
    Enter("cbo流体=1 cbo流量単位G=5 txt流量=1000 txt密度=1.2928");
  }
  void EnterSteam() {
    EnterWater();
    Enter("cbo流体=2 cbo流量単位S=0 txt流量=5000 txt温度=200 txt密度=4.75 txt比熱比=1.3");
  }
  void EnterService(int phase) {
    phase == kLiquid ? EnterWater() : phase == kGas ? EnterAir() : EnterSteam();
  }
  /// A valve of 3 in without a catalogue, in pipes of its bore.
  void EnterValve() {
    Enter(
        "txtFL=0.9 txt弁Fd=1.0 txtN係数=1.4 txtValveSize=3 txtCvv=99 txtRangeability=50 "
        "txt弁口径=76.2 txt上流配管外径=89.1 txt上流配管厚=5.5 txt下流配管外径=89.1 "
        "txt下流配管厚=5.5 txtWallWeight=43 cboCharact=0");
  }
  void Rate() {
    Click("cmdCv計算");
    EnterValve();
    Click("cmdSizing");
  }
  Texts Results() {
    Texts texts;
    for (const char* name : {"lblSizingCv", "lblOpening", "lblVelocity", "lblNoise"}) {
      texts.push_back(Text(name));
    }
    return texts;
  }
};

const Texts kMissing = {"データ不足のようです。\n確認してください。"};
const Texts kWrong = {"データが異常です。\n確認してください。"};
const Texts kEmpty = {"", "", "", ""};

// 50 m3/h at 2 kgf/cm2: Cv = 1.167 * 50 / sqrt(2) = 41.26 and 50 / 0.857 / sqrt(2) = 41.25.
TEST_F(CvTest, SizesWater) {
  EnterWater();
  Click("cmdCv計算");
  EXPECT_EQ(Text("lblFCI計算Cv"), "41.26");
  EXPECT_EQ(Text("lblISA計算Cv"), "41.25");
  EXPECT_FALSE(Visible("lblCritical") || Visible("lblFlash"));
  EnterValve();
  Click("cmdSizing");
  EXPECT_EQ(TakeTexts(), Texts());
  EXPECT_EQ(Text("lblOpening"), "78");  // 1 + ln(41.26 / 99) / ln 50
  EXPECT_EQ(Text("lblVelocity"), "3");  // 354 * 50 / 76.2^2
  EXPECT_EQ(Text("lblNoise"), "計算式適用不能  ");
  EXPECT_EQ(Text("cboBodySize"), "3");    // follows the trim of its size
  Enter("cboCharact=5 txt弁口径=54.13");  // 6.04 m/s: judged before it is rounded
  Click("cmdSizing");
  EXPECT_EQ(Text("lblOpening"), "----");
  EXPECT_EQ(Text("lblVelocity"), "6");
  EXPECT_EQ(Find("lblVelocity").ForeColor(), forms::kRed);
  Type("txt弁口径", "76.2");
  EXPECT_EQ(Find("lblVelocity").ForeColor(), forms::kBlack);
}

TEST_F(CvTest, WritesDefaultsAndKeepsTheResults) {
  EnterAir();
  Enter("txt偏差係数= txt比熱比=");
  Rate();
  EXPECT_EQ(Text("txt偏差係数"), "1.0");
  EXPECT_EQ(Text("txt比熱比"), "1.4");
  EXPECT_NE(Text("lblISA計算Cv"), "");
  Enter("txtFL= txt弁Fd= txtN係数=0");
  Click("cmdSizing");
  EXPECT_EQ(Text("txtFL"), "0.9");
  EXPECT_EQ(Text("txt弁Fd"), "1.0");
  EXPECT_EQ(Text("txtN係数"), "1.4");
  EXPECT_NE(Text("lblNoise"), "");
  EXPECT_EQ(TakeTexts(), Texts());
}

// A humid gas on another sheet must not change the gas of this one.
TEST_F(CvTest, KnowsNoHumidity) {
  EnterAir();
  Click("cmdCv計算");
  const std::string cv = Text("lblISA計算Cv");
  Space().process.relativeHumidity = 60;
  Space().process.saturationPressure = 1;
  Space().process.waterVapourDensity = 1;
  Space().process.flowBasis = data::kDryBase;
  Space().process.compressibilityZ = 0;
  Click("cmdCv計算");
  EXPECT_EQ(Text("lblISA計算Cv"), cv);
}

TEST_F(CvTest, SecondaryPressureTakesThePlaceOfTheDifferential) {
  EnterWater();
  Click("cmdCv計算");
  const std::string cv = Text("lblISA計算Cv");
  Click("lbl差圧");
  EXPECT_EQ(Text("lbl差圧"), "二次圧力");
  EXPECT_FALSE(Visible("cbo差圧単位"));
  EXPECT_EQ(Text("lblISA計算Cv"), "");
  EXPECT_EQ(Text("txt差圧"), "2");
  Pick("cbo圧力単位", 2);
  EXPECT_EQ(Text("lbl二次圧単位"), Text("cbo圧力単位"));
  Enter("txt圧力=2 txt差圧=");  // nothing entered is the atmosphere
  Click("cmdCv計算");
  EXPECT_EQ(Text("lblISA計算Cv"), cv);
  Click("lbl差圧");
  EXPECT_EQ(Text("lbl二次圧単位"), "");
}

TEST_F(CvTest, MarksFlashingAndChokedFlow) {
  EnterWater();
  Type("txt飽和蒸気圧", "9.5");
  Click("cmdCv計算");
  EXPECT_TRUE(Visible("lblFlash"));
  EXPECT_TRUE(Visible("lblCritical"));
  Type("txtTagNo", "LV-1");
  shell::RegisterTag(Space());
  Type("txt差圧", "1");
  EXPECT_FALSE(Visible("lblFlash") || Visible("lblCritical"));
  EnterAir();
  Pick("cbo差圧単位", 4);
  Type("txt差圧", "3678.6");  // just half of the inlet pressure
  Click("cmdCv計算");
  EXPECT_TRUE(Visible("lblCritical"));
  EXPECT_FALSE(Visible("lblFlash"));
  Type("txt差圧", "3163.6");  // 4.3 kgf/cm2
  Rate();
  EXPECT_TRUE(Visible("lblCritical"));  // 0.5 FL^2 p1 = 4.05
  Click("cmdSizingData消去");
  EXPECT_FALSE(Visible("lblCritical"));  // the Cv stage knows no FL
  Sheet().GetCV(1);
  EXPECT_TRUE(Visible("lblFlash") && Visible("lblCritical"));  // not stored, but known
}

TEST_F(CvTest, ALiquidWithoutVapourDataShowsTheFciResult) {
  EnterWater();
  Type("txt臨界圧力", "");
  Click("cmdCv計算");
  EXPECT_EQ(Text("lblISA計算Cv"), Text("lblFCI計算Cv"));
  EnterValve();
  Click("cmdSizing");
  ASSERT_EQ(presenter.messages.shown.size(), 1U);
  EXPECT_EQ(presenter.messages.shown[0].title, "CV Sizing");
  EXPECT_EQ(TakeTexts(),
            Texts{"液体の飽和蒸気圧力または臨界圧力が未入力のようです。\n確認してください。"});
  // The bore is missed before.
  Type("txt弁口径", "");
  Click("cmdSizing");
  EXPECT_EQ(TakeTexts(), kMissing);
}

TEST_F(CvTest, FaultsOfTheCvStage) {
  const struct {
    int phase;
    const char *entries, *text;
  } rows[] = {
      {kLiquid, "txt差圧=", "0 で除算しました。"},
      {kLiquid, "txt密度=", "オーバーフローしました。"},  // no mass and no density
      {kLiquid, "txt流量=", "プロシージャの呼び出し、または引数が不正です。"},
      {kLiquid, "txt差圧=-1", "プロシージャの呼び出し、または引数が不正です。"},
      {kLiquid, "txt飽和蒸気圧=10.1", "飽和蒸気圧力が流体圧力より高いので液体では存在できません。"},
      {kGas, "txt温度=-273.15", "0 で除算しました。"},
      {kSteam, "cbo圧力単位=1 txt圧力=2000", "オーバーフローしました。"},  // no saturation
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.entries);
    EnterService(row.phase);
    Enter(row.entries);
    Click("cmdCv計算");
    ASSERT_EQ(presenter.messages.shown.size(), 1U);
    EXPECT_EQ(presenter.messages.shown[0].title, "Cv計算");
    EXPECT_EQ(TakeTexts(), Texts{row.text});
    EXPECT_EQ(Text("lblISA計算Cv"), "");
    Click("cmdSizing");
    EXPECT_EQ(presenter.messages.shown[0].title, "Cvサイジング");
    EXPECT_EQ(TakeTexts(), Texts{"Cv値が計算されていません。"});
  }
}

// What has been written before the fault stays.
TEST_F(CvTest, FaultsOfTheSizingStage) {
  const struct {
    int phase;
    const char *service, *valve;
    Texts texts;
    std::size_t written;  // of Cv, opening, velocity, noise
  } rows[] = {{kLiquid, "", "txt弁口径=", kMissing, 0},
              {kLiquid, "", "txt下流配管外径=11", kMissing, 0},
              {kLiquid, "", "txt上流配管外径=45 txtCvv=400", kWrong, 0},
              {kLiquid, "", "txtCvv=", kMissing, 1},
              {kLiquid, "", "txtCvv= cboCharact=5", {}, 4},
              {kLiquid, "", "txtCvv= txtRangeability=", kMissing, 1},
              {kLiquid, "", "txt弁口径= txtCvv=", kMissing, 0},  // 0/0
              {kLiquid, "", "txtCvv=41.26 txtRangeability=1", kMissing, 1},
              {kLiquid, "", "txtRangeability=", kWrong, 1},
              {kLiquid, "", "txtRangeability= cboCharact=1", kMissing, 1},
              {kLiquid, "", "txtRangeability= cboCharact=2", {}, 4},
              {kLiquid, "", "txtRangeability=1", kMissing, 1},
              {kGas, "txt差圧=10", "", kMissing, 2},
              {kSteam, "txt差圧=10", "", kWrong, 2},
              {kGas, "txt差圧=11", "", {}, 4},
              {kLiquid, "txt差圧=11", "", {}, 4}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.service) + row.valve);
    EnterService(row.phase);
    Enter(row.service);
    Click("cmdCv計算");
    EnterValve();
    Enter(row.valve);
    Click("cmdSizing");
    EXPECT_EQ(TakeTexts(), row.texts);
    const Texts results = Results();
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(results[i].empty(), i >= row.written) << i;
  }
  // Negative pressures: the numbers are those of the rules, and the sheet says what they are worth.
  EXPECT_NE(Text("lbl注意").find("絶対圧0以下"), std::string::npos);
}

TEST_F(CvTest, CautionsBesideImpossibleResults) {
  EnterSteam();
  Enter("txt圧力=44143.2 txt差圧=10");  // 60 to 50 kgf/cm2 at 200 degC: water
  Rate();
  EXPECT_EQ(Text("lblVelocity"), "0.1 以下");
  EXPECT_EQ(Find("lblVelocity").ForeColor(), forms::kBlack);
  EXPECT_NE(Text("lbl注意").find("下流の蒸気密度が負です"), std::string::npos);
  EXPECT_NE(Text("lbl注意").find("飽和温度より低温です"), std::string::npos);
  EXPECT_NE(Find("lblVelocity").ToolTip(), "");
  EXPECT_EQ(Find("lbl注意").ForeColor(), forms::kMagenta);
  Type("txtWallWeight", "0");
  EXPECT_EQ(Text("lbl注意"), "");
  EXPECT_EQ(Find("lblVelocity").ToolTip(), "");

  EnterAir();
  Rate();
  EXPECT_EQ(Text("lbl注意"), "");
  Type("txtWallWeight", "");
  Click("cmdSizing");
  EXPECT_NE(Text("lbl注意").find("管壁重量"), std::string::npos);
}

TEST_F(CvTest, WhatClearsWhat) {
  const std::pair<const char*, bool> changes[] = {
      {"txt流量=51", true},     {"cbo差圧単位=5", true},  {"cbo臨界圧力単位=0", true},
      {"cmdCvData消去", true},  {"cmdAllData消去", true}, {"cmdSizingData消去", false},
      {"txtFL=0.8", false},     {"cboMaker=1", false},    {"cboCharact=1", false},
      {"cboBodySize=1", false}, {"cbo配管材質=2", false}, {"txtWallWeight=10", false}};
  for (const auto& [change, both] : changes) {
    SCOPED_TRACE(change);
    EnterWater();
    Rate();
    ASSERT_NE(Results(), kEmpty);
    std::string(change).starts_with("cmd") ? Click(change) : Enter(change);
    EXPECT_EQ(Results(), kEmpty);
    EXPECT_EQ(Text("lblISA計算Cv").empty(), both);
  }
  EnterWater();
  Pick("cbo圧力単位", 5);
  Click("cmdAllData消去");
  EXPECT_EQ(Text("txt密度") + Text("txtCvv") + Text("cboMaker"), "");
  EXPECT_EQ(Find<forms::ComboBox>("cbo圧力単位").Index(), 5);
}

TEST_F(CvTest, TypingIsNeverInterrupted) {
  Enter("cbo圧力単位=1 txt圧力=1E308 txt温度=1E308 cbo温度単位=2 txt密度=1E308 txt流量=1E308");
  EXPECT_EQ(TakeTexts(), Texts());
}

TEST_F(CvTest, AGasHasNoVapourData) {
  EnterWater();
  Pick("cbo流体", kGas);
  EXPECT_EQ(Text("txt飽和蒸気圧") + Text("txt臨界圧力"), "");
  EXPECT_FALSE(Find("txt飽和蒸気圧").Enabled());
}

TEST_F(CvTest, CatalogueFillsTheValve) {
  Pick("cboMaker", 0);
  EXPECT_EQ(Find<forms::ComboBox>("cboValveModel").Index(), 0);
  EXPECT_EQ(Text("txtFL"), "0.9");
  EXPECT_EQ(Text("txt弁Fd"), "1.0");
  EXPECT_EQ(Text("cboCharact"), "Equal Percent");
  DblClick("txtValveSize");
  EXPECT_EQ(Text("lblModel"), "単座グローブ弁 等百分率");
  EXPECT_EQ(Find<forms::ListBox>("lstCv").Items()[5], "1x1/2     2.8");
  Click("cmdCvSet");  // nothing selected
  EXPECT_EQ(bench.Forms().Active()->Name(), "frmCvSet");
  Pick("lstCv", 5);
  Find<forms::ListBox>("lstCv").PressEnter();
  bench.Forms().CollectClosed();
  EXPECT_EQ(Text("txtValveSize") + " " + Text("txtCvv") + " " + Text("txtRangeability"),
            "1x1/2 2.8 50");
  // Another model takes the size away.
  Pick("cboValveModel", 8);
  EXPECT_EQ(Text("txtCvv"), "");
  DblClick("txtValveSize");
  const auto& trims = Find<forms::ListBox>("lstCv").Items();
  ASSERT_EQ(trims.size(), 22U);
  Pick("lstCv", 0);  // the smallest trim of "81 " is linear
  Click("cmdCvSet");
  ASSERT_LE(Number("txtCvv"), 0.056);
  EXPECT_EQ(Text("txtRangeability"), "10");
  EXPECT_EQ(Text("cboCharact"), "Linear");
  Pick("cboValveModel", -1);
  EXPECT_EQ(Text("txtFL"), "");
  EXPECT_EQ(Text("cboCharact"), "Modified Parabolic");
}

TEST_F(CvTest, DialoguesFillPipeAndWall) {
  DblClick("txt上流配管外径");
  EXPECT_EQ(Text("lstNominal"), "2in");
  Click("cmdCancel");
  Pick("cboBodySize", 26);  // 30 in, for which there is no pipe
  DblClick("txt下流配管外径");
  EXPECT_EQ(Text("lstNominal"), "2in");
  Click("cmdCancel");
  Pick("cboBodySize", 12);  // 4 in
  DblClick("txt弁口径");
  Pick("lstRating", 9);
  Click("cmdOK");
  EXPECT_EQ(Text("lblフランジ規格"), " JPI 150#");
  DblClick("txt下流配管外径");
  EXPECT_EQ(Text("lstNominal"), "4in");
  Pick("lstSchedule", 7);
  Click("cmdSet");
  EXPECT_EQ(Text("txt下流配管外径"), "114.3");
  EXPECT_EQ(Text("txt下流配管厚"), "6");
  EXPECT_EQ(Text("txt上流配管外径"), "");
  Type("txt温度", "20");
  Pick("cbo配管材質", 0);
  EXPECT_NEAR(Number("txtWallWeight"), 7850 * 6.0 / 1000, 0.1);
  EXPECT_EQ(TakeTexts(), Texts());
  Type("txt温度", "2000");  // beyond the equation, which is told once
  Pick("cbo配管材質", 0);
  ASSERT_EQ(presenter.messages.shown.size(), 1U);
  EXPECT_EQ(presenter.messages.shown[0].title, "材料密度");
  EXPECT_EQ(Text("txtWallWeight"), "0");
}

TEST_F(CvTest, HelpListsGiveTheirValues) {
  Click("lblFL");
  EXPECT_TRUE(Visible("lstFL"));
  EXPECT_FALSE(Visible("pic特性"));
  DblClick("txtN係数");
  EXPECT_FALSE(Visible("lstFL"));
  EXPECT_TRUE(Visible("lstN係数"));
  bench.Forms().Active()->SetFocus(Find("lstN係数"));  // into the list, not away from it
  EXPECT_TRUE(Visible("lstN係数"));
  Pick("lstN係数", 2);
  EXPECT_EQ(Text("txtN係数"), "2.2");
  EXPECT_FALSE(Visible("lstN係数"));
  Click("lblFd");
  bench.Forms().Active()->SetFocus(Find("txt圧力"));
  EXPECT_FALSE(Visible("lstFd"));
  EXPECT_TRUE(Visible("pic特性"));
  const Texts values = {"0.55", "0.68", "0.7", "0.8", "0.85", "0.9", "0.95"};
  for (int i = 0; i < 7; ++i) {
    Click("lblFL");
    Pick("lstFL", i);
    EXPECT_EQ(Text("txtFL"), values[static_cast<std::size_t>(i)]);
  }
}

TEST_F(CvTest, NoiseLabelExplainsTheLimits) {
  EnterWater();
  Click("lblNoise");
  EXPECT_EQ(TakeTexts(), Texts());  // no sizing yet
  Rate();
  Click("lblNoise");
  ASSERT_EQ(presenter.messages.shown.size(), 1U);
  TakeTexts();
  Type("txt差圧", "9");  // cavitating: P2 1 below Pvc 1.92
  Rate();
  EXPECT_NE(Text("lblNoise"), "計算式適用不能  ");
  Click("lblNoise");
  EXPECT_EQ(TakeTexts(), Texts());
}

TEST_F(CvTest, CorrectionOpensTheFormOfTheValve) {
  EnterWater();
  Type("txt粘性係数", "200");
  Click("lblSizingCv");
  EXPECT_EQ(bench.Forms().Active()->Name(), "frmCV");
  Rate();
  EXPECT_LT(Number("lblISA計算Cv"), Number("lblSizingCv"));
  const valve::CorrectionDetail detail = Sheet().Correction();
  EXPECT_NEAR(Number("lblISA計算Cv") / *detail.fr, Number("lblSizingCv"), 0.02);
  EXPECT_NE(Text("lbl注意").find("危険側"), std::string::npos);
  Click("lblSizingCv");
  EXPECT_EQ(bench.Forms().Active()->Name(), "frmCv計算補正");
  bench.Forms().Unload(*bench.Forms().Active());

  // A maker of micro-flow trims has rules of its own, and a trim that they do not list stops.
  Pick("cboMaker", 3);
  Pick("cboValveModel", 0);
  ASSERT_EQ(Text("cboValveModel"), "06-M 微少流量弁");
  Enter("txtCvv=0.10 txtRangeability=20");
  Type("txt流量", "0.01");
  Click("cmdCv計算");
  Click("cmdSizing");
  EXPECT_EQ(TakeTexts(), Texts());
  Click("lblSizingCv");
  EXPECT_EQ(bench.Forms().Active()->Name(), "frm本山微少弁");
  bench.Forms().Unload(*bench.Forms().Active());
  EXPECT_EQ(Text("txtN係数"), "1.0");  // nM of the rule stays inside
  Type("txtCvv", "0.2");
  Click("cmdSizing");
  EXPECT_EQ(TakeTexts(), kMissing);
  EXPECT_EQ(Text("lblSizingCv"), "");
}

// Only a record can have a Cv without a flow. 0/0 counts as missing data in every rule.
TEST_F(CvTest, RecalledTagWithoutAFlowMissesData) {
  EnterWater();
  Enter("txtTagNo=FV-1 txt粘性係数=200");
  Rate();
  shell::RegisterTag(Space());
  Space().tags.SetText(1, 3, "");
  for (const char* model : {"", "06-M 微少流量弁"}) {
    SCOPED_TRACE(model);
    Space().tags.SetText(1, 25, "本山（標準値）");
    Space().tags.SetText(1, 27, model);
    Sheet().GetCV(1);
    Click("cmdSizing");
    EXPECT_EQ(TakeTexts(), kMissing);
  }
}

TEST_F(CvTest, RecallOfAValveThatIsNoLongerListed) {
  EnterWater();
  Type("txtTagNo", "FV-1");
  Pick("cboMaker", 0);
  Rate();
  shell::RegisterTag(Space());
  shell::TagStore& tags = Space().tags;
  tags.SetText(1, 25, "廃業メーカー");
  tags.SetText(1, 27, "旧形弁");
  tags.SetText(1, 7, "0");
  tags.SetText(1, 28, "");
  Click("cmdAllData消去");
  Sheet().GetCV(1);
  EXPECT_EQ(Text("cboMaker") + Text("cboValveModel"), "廃業メーカー旧形弁");
  EXPECT_EQ(Sheet().MakerIndex(), -1);
  EXPECT_EQ(Text("txtFL"), "0.9");
  EXPECT_EQ(Text("txtCvv"), "99");
  EXPECT_EQ(Text("lblSizingCv"), "41.26");
  Click("cmdCv計算");
  Click("cmdSizing");
  EXPECT_EQ(Text("lblSizingCv"), "41.26");
  tags.SetText(1, 29, "");  // an entry that a calculation would fill with its default
  Sheet().GetCV(1);
  EXPECT_EQ(Text("txtFL"), "");
  Sheet().AddCV(1);
  EXPECT_EQ(tags.Text(1, 25), "廃業メーカー");
  // A maker typed by hand brings his models.
  Find<forms::ComboBox>("cboMaker").SetText(Find<forms::ComboBox>("cboMaker").Items()[4]);
  EXPECT_EQ(Find<forms::ComboBox>("cboValveModel").Items()[0], "VSM 微少流量弁");
  EXPECT_EQ(Text("cboValveModel"), "旧形弁");
}

}  // namespace
}  // namespace sheets
