// The printed page of the differential-pressure sheet.

#include "common/number.h"
#include "data/units.h"
#include "flow/discharge.h"
#include "sheets/calculation_page.h"
#include "sheets/frm_orifice.h"

namespace sheets {

namespace {

using common::Val;

constexpr const char* kBoreLabel = "絞　 　り　  　径";
constexpr const char* kDifferentialLabel = "計 　算 　差 　圧";

const char* TitleOf(flow::ElementFamily family) {
  switch (family) {
    case flow::ElementFamily::kOrificePlate:
      return "ＯＲＩＦＩＣＥ　ＰＬＡＴＥ　ＣＡＬＣＵＬＡＴＩＯＮ ＳＨＥＥＴ";
    case flow::ElementFamily::kNozzle:
      return "ＦＬＯＷ　ＮＯＺＺＬＥ　ＣＡＬＣＵＬＡＴＩＯＮ ＳＨＥＥＴ";
    case flow::ElementFamily::kVenturi:
      break;
  }
  return "ＶＥＮＴＵＲＩ　ＴＵＢＥ　ＣＡＬＣＵＬＡＴＩＯＮ ＳＨＥＥＴ";
}

}  // namespace

bool frmOrifice::PrintOrifice(shell::PrintSurface& target) {
  const auto type = static_cast<flow::ElementType>(cbo絞り機構種類.Index());
  CalculationPage page(target);
  page.Title(TitleOf(flow::FamilyOf(type)));
  page.Section("入 力 デ ー タ");
  PrintConditions(page);
  PrintElement(page);
  page.Gap();
  page.Section("計 算 結 果");
  PrintResults(page);
  return true;
}

void frmOrifice::PrintConditions(CalculationPage& page) {
  const std::string flowUnit = FlowUnitBox().Text();
  const bool quarterCircle = cbo絞り機構種類.Index() == flow::kQuarterCircleOrifice;
  page.Line("準　拠　規　格　 ",
            quarterCircle ? "ROYAL DUTCH/SHELL-LABORATORY, Delft Report 1312M" : "JIS Z 8762-2007");
  page.Line("Ｔａｇ．　Ｎｏ． ", txtTagNo.Text());
  page.Line("用　   　　　　途", txt用途.Text());
  page.Line("絞り機構 の 種類 ", cbo絞り機構種類.Text() + context_.extrapolationMark);
  page.Line("流　   　　　　体", cbo流体.Text());
  page.Line("目 　盛　 流 　量", txt目盛流量.Text(), flowUnit);
  page.Line("常 　用 　流 　量", txt常用流量.Text(), flowUnit);
  page.Line("圧　　   　　　力", txt圧力.Text(), cbo圧力単位.Text());
  page.Line("温　　　   　　度", txt温度.Text(), cbo温度単位.Text());
  PrintDensities(page, normalDensity_, context_.rho);
  PrintGas(page, "偏差係数");
}

void frmOrifice::PrintElement(CalculationPage& page) {
  const std::string expansionUnit = "    ×1E-6";
  page.Line("絞り機構 の 材質", cbo絞り部材質.Text());
  page.Line("絞り部の線膨張率", txt絞り部膨張率.Text(), expansionUnit);
  std::string pipe = cbo配管種類.Text();
  for (const ComboBox* box : {&cbo配管呼称径, &cboSchedule}) {
    if (!box->Text().empty()) pipe += (pipe.empty() ? "" : " ") + box->Text();
  }
  page.Line("配　 管　 種　 類", pipe);
  page.Line("配 　管 　内 　径", txt配管内径.Text(), "    mm");
  page.Line("配 管 線 膨 張 率", txt配管線膨張率.Text(), expansionUnit);
  if (opt絞り径_差圧.Checked()) {
    page.Line(kBoreLabel, txt絞り径.Text(), "    mm");
  } else {
    page.Line(kDifferentialLabel, txt設計差圧.Text(), cbo設計差圧単位.Text());
  }
}

void frmOrifice::PrintResults(CalculationPage& page) {
  if (IsGas() && Val(humidity.txt相対湿度.Text()) != 0) {
    page.Line("計  算  基  準   ",
              (base.optDryBase.Checked() ? base.optDryBase : base.optWetBase).Text());
  }
  page.Line("レイノルズ数(最大)", lblMaxReynolds.Text());
  page.Line("レイノルズ数(常用)", lblNorReynolds.Text());
  page.Line("流 出 係 数　(Ｃ)", lbl流出係数R.Text());
  page.Line("流 量 係 数　(α)", lbl流量係数R.Text());
  page.Line("膨張補正係数 (ε)", lbl膨張補正係数R.Text());
  page.Line("絞  り  比   (β)", lbl表示β.Text());
  if (opt絞り径_差圧.Checked()) {
    page.Line(kDifferentialLabel, lbl差圧結果R.Text(), lbl差圧結果単位.Text());
  } else {
    page.Line(kBoreLabel, lbl絞り径結果R.Text(), "    mm");
  }
  page.Line("上流 タップ 位 置 ", lbl上流Tap位置.Text(), "    mm");
  page.Line("下流 タップ 位 置 ", lbl下流Tap位置.Text(), "    mm");
  if (cbo絞り機構種類.Index() == flow::kQuarterCircleOrifice) {
    page.Line("四　分　円　半　径", lbl四分円半径R.Text(), "    mm");
  }
  page.Line("永 久 圧 力 損 失", lbl永久圧損R.Text(), lbl永久圧損単位.Text());
  const bool hasRange = !lbl使用下限.Text().empty() || !lbl使用上限.Text().empty();
  page.Line("使 用 流 量 範 囲",
            hasRange ? lbl使用下限.Text() + " ～ " + lbl使用上限.Text() : std::string(), " ％FS");
}

}  // namespace sheets
