// The printed page of the vortex meter sheet.

#include <algorithm>

#include "common/text.h"
#include "sheets/calculation_page.h"
#include "sheets/frm_vortex.h"
#include "sheets/list_texts.h"

namespace sheets {

namespace {

using common::PadLeftToBytes;
using common::PadToBytes;

constexpr const char* kTableHead1 =
    "サイズ         測定範囲        圧力損失   公称周波数　 　備  考  ";
constexpr const char* kTableHead2 =
    "                (%FS)           (kPa)       (Hz)                ";
constexpr double kKgfCm2PerKpa = 0.0101972;  // rounded, and meant so
constexpr double kPictureGap = 200;          // twips

/// The longest labels of this page set the column of all values.
constexpr int kLabelBytes = 24;

}  // namespace

bool frmVortex::PrintVortex(shell::PrintSurface& target) {
  CalculationPage page(target);
  page.Title("ＶＯＲＴＥＸ　ＭＥＴＥＲ　ＣＡＬＣＵＬＡＴＩＯＮ　ＳＨＥＥＴ");
  page.Section("入 力 デ ー タ");
  PrintEntries(page);
  page.Gap();
  page.Section("計 算 結 果");
  page.Line(PadToBytes("メーカー   ", kLabelBytes), cboMaker.Text());
  page.Text(kTableHead1);
  page.Text(kTableHead2);
  for (int i = 0; i < kSizes; ++i) {
    if (!lblMeterSize[i].Text().empty()) page.Text(PageLine(i));
  }
  page.Remarks(lbl注意.Text());
  page.Gap();
  const double height = std::min(page.Room() - kPictureGap, Picture4.Height());
  page.Picture(Picture4, height * Picture4.Width() / Picture4.Height());
  return true;
}

void frmVortex::PrintEntries(CalculationPage& page) {
  const auto line = [&page](const char* label, const std::string& value,
                            const std::string& unit = {}) {
    page.Line(PadToBytes(label, kLabelBytes), value, unit);
  };
  const std::string flowUnit = FlowUnitBox().Text();
  const std::string& vapourPressure = vapour.txt飽和蒸気圧.Text();
  line("Ｔａｇ  Ｎo．  ", txtTagNo.Text());
  line("使  用  場  所 ", txt用途.Text());
  line("流　   　　　　体", cbo流体.Text());
  line("目 　盛　 流 　量", txt目盛流量.Text(), flowUnit);
  line("最 少 流 量          　 ", txt最少流量.Text(), flowUnit);
  line("流  体  圧  力 ", txt圧力.Text(), cbo圧力単位.Text());
  line("温　　　   　　度", txt温度.Text(), cbo温度単位.Text());
  line("密  度（比  重） ", txt密度.Text(), DensityUnitBox().Text());
  line("粘性係数", txt粘性係数.Text(), cbo粘性係数単位.Text());
  if (vapourPressure.empty()) {
    line("飽和蒸気圧力            ", "(未入力)");
  } else {
    line("飽和蒸気圧力            ", vapourPressure, vapour.cbo飽和蒸気圧単位.Text());
  }
}

/// Below the heads of the table: size, range, loss, frequency, remark.
std::string frmVortex::PageLine(int i) const {
  const std::string& range = lblRange[i].Text();
  const std::string mark = "～";
  const auto middle = range.find(mark);
  std::string line = PadLeftToBytes(lblMeterSize[i].Text(), 5) +
                     PadLeftToBytes(range.substr(0, middle), 13) + mark +
                     PadToBytes(range.substr(middle + mark.size()), 7) +
                     PadLeftToBytes(lblDPkpa[i].Text(), 11) + PadLeftToBytes(lblHz[i].Text(), 11);
  std::string remark = lblRemarks[i].Text();
  if (GroupedNumber(lblDPkpa[i].Text()) * kKgfCm2PerKpa > Process().pressureAbs) {
    remark += (remark.empty() ? "" : " ") + std::string("(Excessive ⊿P)");
  }
  return line + (remark.empty() ? "" : "      " + remark);
}

}  // namespace sheets
