// The characteristic of the chosen valve with its operating point.

#include <algorithm>

#include "common/number.h"
#include "sheets/frm_cv.h"
#include "valve/opening.h"

namespace sheets {

namespace {

using common::NumberText;
using common::RoundDigits;
using common::Val;
using Points = std::vector<std::pair<double, double>>;

/// The field of a diagram over 0 to 1 in both directions, twips.
struct Diagram {
  double left, top, right, bottom;

  double X(double share) const { return left + share * (right - left); }
  double Y(double share) const { return bottom - share * (bottom - top); }
};

/// Opening over the share of the rated Cv, from the smallest Cv that the valve controls on.
Points CurveOf(int characteristic, Real rangeability, const Diagram& diagram) {
  constexpr int kSteps = 100;
  const Real least = rangeability > 1 ? 1 / rangeability : Real(0.01);
  Points curve;
  for (int i = 0; i <= kSteps; ++i) {
    const Real share = least + (1 - least) * i / kSteps;
    const Real opening = valve::Opening(characteristic, share, 1, rangeability);
    if (opening >= 0 && opening <= 1) curve.emplace_back(diagram.X(opening), diagram.Y(share));
  }
  return curve;
}

void DrawCentred(forms::DrawSurface& surface, double x, double y, const std::string& text) {
  surface.Text(x - surface.TextWidth(text) / 2, y, text);
}

void DrawAxes(forms::DrawSurface& surface, const Diagram& diagram) {
  constexpr int kStep = 20;  // %
  const double height = surface.TextHeight();
  surface.SetColor(forms::kBlack);
  surface.SetLineWidth(0.5);
  for (int percent = kStep; percent < 100; percent += kStep) {
    const double share = percent / 100.0;
    surface.DashedLine(diagram.X(share), diagram.top, diagram.X(share), diagram.bottom);
    surface.DashedLine(diagram.left, diagram.Y(share), diagram.right, diagram.Y(share));
  }
  surface.SetLineWidth(1);
  surface.Rectangle(diagram.left, diagram.top, diagram.right, diagram.bottom);
  for (int percent = 0; percent <= 100; percent += kStep) {
    const double share = percent / 100.0;
    const std::string text = std::to_string(percent);
    DrawCentred(surface, diagram.X(share), diagram.bottom + height / 4, text);
    surface.Text(diagram.left - surface.TextWidth(text) - height / 3, diagram.Y(share) - height / 2,
                 text);
  }
  DrawCentred(surface, diagram.X(0.5), diagram.bottom + 1.3 * height, "弁開度 %");
  surface.Text(diagram.left - 2 * height, diagram.top - 1.5 * height, "Cv / 弁Cv %");
}

void DrawPoint(forms::DrawSurface& surface, const Diagram& diagram, double opening, double share) {
  constexpr double kRadius = 55;
  const double x = diagram.X(std::clamp(opening, 0.0, 1.0));
  const double y = diagram.Y(std::clamp(share, 0.0, 1.0));
  const bool controls = opening > 0 && opening <= 1;
  surface.SetColor(controls ? forms::kBlue : forms::kRed);
  surface.SetLineWidth(1);
  surface.DashedLine(x, y, x, diagram.bottom);
  surface.DashedLine(diagram.left, y, x, y);
  surface.FilledPolygon({{x - kRadius, y}, {x, y - kRadius}, {x + kRadius, y}, {x, y + kRadius}});
  const std::string text = controls ? NumberText(RoundDigits(100 * opening, 0)) + " %" : "範囲外";
  // The curve rises, so left of the point and above it there is room.
  const double textX = std::max(x - kRadius - surface.TextWidth(text), diagram.left);
  surface.Text(textX, std::max(y - kRadius / 2 - surface.TextHeight(), diagram.top), text);
}

void DrawHint(forms::DrawSurface& surface, const forms::Picture& picture,
              const std::vector<std::string>& lines) {
  double y = picture.Height() / 2 - surface.TextHeight() * static_cast<double>(lines.size()) / 2;
  surface.SetColor(forms::kBlack);
  for (const std::string& line : lines) {
    DrawCentred(surface, picture.Width() / 2, y, line);
    y += surface.TextHeight() * 1.2;
  }
}

}  // namespace

void frmCV::DrawCharacteristic(forms::DrawSurface& surface) {
  if (lblSizingCv.Text().empty()) {
    DrawHint(surface, pic特性, {"サイジングを行うと、", "弁特性と運転点を表示します。"});
    return;
  }
  const double letter = surface.TextHeight();
  const Diagram diagram = {2.4 * letter, 1.7 * letter, pic特性.Width() - letter,
                           pic特性.Height() - 2.6 * letter};
  const int characteristic = cboCharact.Index();
  try {
    const Real rangeability = Val(txtRangeability.Text());
    const Real share = Val(lblSizingCv.Text()) / Val(txtCvv.Text());
    const Real opening = valve::Opening(characteristic, share, 1, rangeability);
    const Points curve = CurveOf(characteristic, rangeability, diagram);
    if (!curve.empty()) {
      DrawAxes(surface, diagram);
      surface.SetLineWidth(2);
      surface.Polyline(curve);
      DrawPoint(surface, diagram, opening, share);
      return;
    }
  } catch (const common::RuntimeFault&) {
    // Entries are missing that the opening needs; the sizing has told so.
  }
  DrawHint(surface, pic特性,
           {"この弁の特性曲線は描けません。", "弁特性と弁Cvを確認してください。"});
}

}  // namespace sheets
