// The characteristic of the chosen valve with its operating point.

#include "common/number.h"
#include "sheets/chart.h"
#include "sheets/frm_cv.h"
#include "valve/opening.h"

namespace sheets {

namespace {

using common::NumberText;
using common::RoundDigits;
using common::Val;

/// Opening over the share of the rated Cv, in %, from the smallest Cv that the valve controls on.
Chart::Points CurveOf(int characteristic, Real rangeability) {
  constexpr int kSteps = 100;
  Chart::Points curve;
  const Real least = rangeability > 1 ? 1 / rangeability : Real(0.01);
  for (int i = 0; i <= kSteps; ++i) {
    const Real share = least + (1 - least) * i / kSteps;
    const Real opening = valve::Opening(characteristic, share, 1, rangeability);
    if (opening >= 0 && opening <= 1) curve.emplace_back(100 * opening, 100 * share);
  }
  return curve;
}

void DrawPoint(Chart& chart, Real opening, Real share) {
  const bool controls = opening > 0 && opening <= 100;
  const forms::Color color = controls ? forms::kBlue : forms::kRed;
  chart.DashedLine({opening, 0}, {opening, share}, color);
  chart.DashedLine({0, share}, {opening, share}, color);
  chart.Dot(opening, share, color);
  // The curve rises, so left of the point and above it there is room.
  chart.Note(opening, share, controls ? NumberText(RoundDigits(opening, 0)) + " %" : "範囲外",
             color, Chart::Side::kLeft);
}

}  // namespace

void frmCV::DrawCharacteristic(forms::DrawSurface& surface) {
  const double width = pic特性.Width();
  const double height = pic特性.Height();
  if (lblSizingCv.Text().empty()) {
    DrawEmptyChart(surface, width, height, "サイジングを行うと、弁特性と運転点を表示します。");
    return;
  }
  const int characteristic = cboCharact.Index();
  try {
    const Real rangeability = Val(txtRangeability.Text());
    const Real share = Val(lblSizingCv.Text()) / Val(txtCvv.Text());
    const Real opening = valve::Opening(characteristic, share, 1, rangeability);
    const Chart::Points curve = CurveOf(characteristic, rangeability);
    if (!curve.empty()) {
      Chart chart(surface, width, height, {"弁開度 (%)", 0, 100}, {"Cv / 弁Cv (%)", 0, 100});
      chart.Grid();
      chart.Curve(curve, forms::kBlack);
      DrawPoint(chart, 100 * opening, 100 * share);
      return;
    }
  } catch (const common::RuntimeFault&) {
    // Entries are missing that the opening needs; the sizing has told so.
  }
  DrawEmptyChart(surface, width, height, "この弁特性と弁Cvでは線図を描けません。");
}

}  // namespace sheets
