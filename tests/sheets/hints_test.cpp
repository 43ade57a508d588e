#include <map>

#include "common/text.h"
#include "tests/sheets/sheet_test.h"

namespace sheets {
namespace {

class Hints : public SheetTest {};

bool IsResult(const forms::Control& control) {
  const auto* const label = dynamic_cast<const forms::Label*>(&control);
  return label != nullptr && label->Style() == forms::LabelStyle::kResult;
}

/// Fields, buttons, results and pictures have names, captions and headings are some.
bool IsNamed(const forms::Control& control) {
  return control.TakesFocus() || IsResult(control) ||
         dynamic_cast<const forms::Picture*>(&control) != nullptr;
}

void CheckHint(const std::string& hint) {
  constexpr std::size_t kLines = 2, kLetters = 60;
  std::size_t lines = 1;
  std::size_t letters = 0;
  for (const char32_t letter : common::CodePoints(hint)) {
    letters = letter == U'\n' ? 0 : letters + 1;
    if (letter == U'\n') ++lines;
    EXPECT_LE(letters, kLetters) << hint;
  }
  EXPECT_LE(lines, kLines) << hint;
}

TEST_F(Hints, EveryControlIsNamedAndEveryFieldTellsWhatItWants) {
  for (const std::string& name : bench.Forms().KnownNames()) {
    bench.Forms().Show("frmCV");  // its dialogues have captions by the sheet on top
    const forms::Form& form = bench.Forms().Show(name);
    std::map<std::string, std::string> named;
    for (const forms::Control* control : form.TabOrder()) {
      if (!control->Visible() || !IsNamed(*control)) continue;
      SCOPED_TRACE(name + "." + control->Name());
      const forms::Narration& told = form.Told();
      const std::string spoken = told.NameOf(*control);
      EXPECT_NE(spoken, "");
      const auto [other, isNew] = named.try_emplace(spoken, control->Name());
      EXPECT_TRUE(isNew) << spoken << " is also " << other->second;
      const std::string hint = told.HintOf(*control);
      CheckHint(hint);
      if (IsResult(*control)) continue;
      EXPECT_NE(hint, "") << "It has no line in sheets/hints_*.cpp.";
      const std::string unit = told.UnitOf(*control);
      EXPECT_TRUE(unit.empty() || hint.find("［" + unit + "］") != std::string::npos)
          << hint << "\ndoes not tell the unit " << unit;
    }
    bench.Forms().CollectClosed();
  }
}

// What the eye reads beside, over and behind a field.
TEST_F(Hints, NamesFollowThePlaceInTheLayout) {
  const struct {
    const char *form, *control, *spoken;
  } rows[] = {{"frmOrifice", "txt目盛流量", "目盛流量 kg/h"},
              {"frmOrifice", "cbo圧力単位", "圧力の単位"},
              {"frmOrifice", "opt絞り径→差圧", "計算モード 絞り径→差圧"},
              {"frmTW", "txt挿入長", "挿入長 Le mm"},
              {"frmTW", "txt応力集中係数", "応力集中係数 Kt"},
              {"frmCV", "txt上流配管厚", "上流配管 厚さ mm"},
              {"frmCV", "txtRangeability", "ﾚﾝｼﾞｱﾋﾞﾘﾃｨ"},
              {"frmPressLoss", "lblVelosityIn", "流速（流入） m/s"},
              {"frmPressLoss", "lblTerminalLoss(1)", "流出部損失 kPa"},
              {"frmPressLoss", "txt付属品数(4)", "ｸﾞﾛｰﾌﾞ弁"},
              {"frmTE", "txtScale(0)", "計器目盛の下限 ℃"},
              {"frmTE", "lblTE出力(10)", "100 起電力(μV)"},
              {"frmVortex", "lblRange(2)", "測定範囲 (%FS) 3"},
              {"frmCable", "lblUnitWeight(3)", "概算重量 kg/km 4"},
              {"frmCable", "txtHeight", "深さ mm"},
              {"frmCable", "lblSumWeight", "合計 重量 kg"},
              {"frmEditCVspec", "txt弁Cv(1)", "2 定格Cv"},
              {"frm物性", "opt気体", "流体の種類 気体"}};
  for (const auto& row : rows) {
    const forms::Form& form = bench.Forms().Show(row.form);
    EXPECT_EQ(form.Told().SpokenNameOf(Find(row.control)), row.spoken) << row.form;
  }
  bench.Forms().Show("frmPressLoss");
  Find("lblTotalLoss").SetText("12.5");
  EXPECT_EQ(bench.Forms().Active()->Told().SpokenNameOf(Find("lblTotalLoss")),
            "全圧力損失 12.5 kPa");
}

// A gesture that nothing on the sheet shows stands in the tip of what takes it.
TEST_F(Hints, TellHiddenGestures) {
  int gestures = 0;
  for (const std::string& name : bench.Forms().KnownNames()) {
    const forms::Form& form = bench.Forms().Show(name);
    for (const forms::Control* control : form.TabOrder()) {
      const std::string tip = form.Told().TipOf(*control);
      const auto tells = [&](bool takes, const char* word) {
        if (!takes) return;
        ++gestures;
        EXPECT_NE(tip.find(word), std::string::npos) << name << "." << control->Name() << tip;
      };
      tells(bool(control->onDblClick), "ダブルクリック");
      tells(bool(control->onRightClick), "右クリック");
      tells(bool(control->onClick) && !control->TakesFocus(), "クリック");
    }
    bench.Forms().CollectClosed();
  }
  EXPECT_GT(gestures, 150);
}

TEST_F(Hints, FollowUnitAndMode) {
  const forms::Form& valve = bench.Forms().Show("frmCV");
  const auto tip = [&](const char* name) { return valve.Told().TipOf(Find(name)); };
  EXPECT_NE(tip("txt差圧").find("差圧［kPa］"), std::string::npos);
  Click("lbl差圧");
  Pick("cbo圧力単位", 1);
  EXPECT_NE(tip("txt差圧").find("圧力［MPaG］"), std::string::npos);
  EXPECT_EQ(valve.Told().SpokenNameOf(Find("txt差圧")), "二次圧力 MPaG");
  // A caution comes first, and a caption speaks for its field.
  Find("txt流量").SetToolTip("注意");
  EXPECT_TRUE(tip("txt流量").starts_with("注意\n弁を通る"));
  EXPECT_EQ(tip("lbl流量"), tip("txt流量"));
}

}  // namespace
}  // namespace sheets
