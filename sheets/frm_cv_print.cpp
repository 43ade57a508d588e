// The printed page of the valve sheet.

#include "common/number.h"
#include "sheets/calculation_page.h"
#include "sheets/frm_cv.h"

namespace sheets {

namespace {

/// A pressure that a liquid's equations need; its absence is said on paper, too.
void PrintPressure(CalculationPage& page, const char* label, const TextBox& box,
                   const ComboBox& unit) {
  if (common::Val(box.Text()) == 0) {
    page.Line(label, "(未入力)");
  } else {
    page.Line(label, box.Text(), unit.Text());
  }
}

/// Diameter and wall of a pipe in one value; nothing when neither has been entered.
std::string PipeText(const TextBox& diameter, const TextBox& wall) {
  if (diameter.Text().empty() && wall.Text().empty()) return {};
  return diameter.Text() + " × " + wall.Text();
}

/// A result with its unit, which only a number has.
void PrintResult(CalculationPage& page, const char* label, const Label& result, const char* unit) {
  const bool isNumber = common::Val(result.Text()) != 0;
  page.Line(label, result.Text(), isNumber ? unit : "");
}

}  // namespace

bool frmCV::PrintCV(shell::PrintSurface& target) {
  CalculationPage page(target);
  page.Title("ＣＯＮＴＲＯＬ　ＶＡＬＶＥ　ＣＡＬＣＵＬＡＴＩＯＮ ＳＨＥＥＴ");
  page.Section("入 力 デ ー タ");
  PrintConditions(page);
  PrintValve(page);
  page.Gap();
  page.Section("計 算 結 果");
  PrintResults(page);
  return true;
}

void frmCV::PrintConditions(CalculationPage& page) {
  page.Line("Ｔａｇ．　Ｎｏ． ", txtTagNo.Text());
  page.Line("用　　　　　　　途", txt用途.Text());
  page.Line("流　　　　　　　体", cbo流体.Text());
  page.Line("流　　　　　　　量", txt流量.Text(), FlowUnitBox().Text());
  page.Line("圧　　　　　　　力", txt圧力.Text(), cbo圧力単位.Text());
  if (secondaryPressure_) {
    page.Line("二　　次　 圧　 力", txt差圧.Text(), lbl二次圧単位.Text());
  } else {
    page.Line("差　　　　　　　圧", txt差圧.Text(), cbo差圧単位.Text());
  }
  page.Line("温　　　　　　　度", txt温度.Text(), cbo温度単位.Text());
  page.Line("密　　　　　　　度", txt密度.Text(), DensityUnitBox().Text());
  page.Line("粘　　性　 係　 数", txt粘性係数.Text(), cbo粘性係数単位.Text());
  if (IsLiquid()) {
    PrintPressure(page, "飽　和　蒸　気　圧", vapour.txt飽和蒸気圧, vapour.cbo飽和蒸気圧単位);
    PrintPressure(page, "臨　　界　 圧　 力", critical.txt臨界圧力, critical.cbo臨界圧力単位);
  }
  if (IsGas()) page.Line("偏　　差　 係　 数", txt偏差係数.Text());
  if (!IsLiquid()) page.Line("比　　　熱　　　比", txt比熱比.Text());
}

void frmCV::PrintValve(CalculationPage& page) {
  page.Line("メ　　ー　 カ　 ー", cboMaker.Text());
  page.Line("弁　　モ　 デ　 ル", cboValveModel.Text());
  page.Line("Ｆ　　　　　　　Ｌ", txtFL.Text());
  page.Line("弁　　　Ｆ　　　ｄ", txt弁Fd.Text());
  page.Line("Ｎ　　　係　　　数", txtN係数.Text());
  page.Line("内　弁　サ　イ　ズ", txtValveSize.Text());
  page.Line("弁　　　Ｃ　　　ｖ", txtCvv.Text());
  page.Line("レ ン ジアビリティ", txtRangeability.Text());
  page.Line("弁　　　特　　　性", cboCharact.Text());
  page.Line("弁　本 体 呼 称 径", cboBodySize.Text() + flangeRating_);
  page.Line("弁　　　口　　　径", txt弁口径.Text(), "mm");
  page.Line("上 流 配管外径×厚", PipeText(txt上流配管外径, txt上流配管厚), "mm");
  page.Line("下 流 配管外径×厚", PipeText(txt下流配管外径, txt下流配管厚), "mm");
  page.Line("配　　管　 材　 質", cbo配管材質.Text());
  page.Line("管　壁 単 位 重 量", txtWallWeight.Text(), "kg/m2");
}

void frmCV::PrintResults(CalculationPage& page) {
  page.Line("Ｆ Ｃ Ｉ 計 算Ｃｖ", lblFCI計算Cv.Text());
  page.Line("Ｉ Ｓ Ａ 計 算Ｃｖ", lblISA計算Cv.Text());
  page.Line("サ イ ジ ン グＣｖ", lblSizingCv.Text());
  PrintResult(page, "弁　　　開　　　度", lblOpening, "%");
  PrintResult(page, "下　　流　 流　 速", lblVelocity, "m/s");
  PrintResult(page, "騒　　　　　　　音", lblNoise, "dB(A)");
  for (const Label* mark : {&lblFlash, &lblCritical}) {
    if (mark->Visible()) page.Remarks(mark->Text());
  }
  page.Remarks(lbl注意.Text());
}

}  // namespace sheets
