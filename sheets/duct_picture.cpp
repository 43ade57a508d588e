#include "sheets/duct_picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "common/number.h"
#include "shell/print_surface.h"

namespace sheets {

namespace {

constexpr forms::Color kCableColor = 0xE8CFA8;
constexpr double kLetterSize = 9;

void FilledCircle(forms::DrawSurface& surface, double x, double y, double radius) {
  constexpr int kCorners = 24;
  std::vector<std::pair<double, double>> points;
  for (int i = 0; i < kCorners; ++i) {
    const double angle = 2 * std::numbers::pi * i / kCorners;
    points.emplace_back(x + radius * std::cos(angle), y + radius * std::sin(angle));
  }
  surface.FilledPolygon(points);
}

/// A duct's section in twips, from its outer lower left corner upwards.
class SectionDrawing {
 public:
  SectionDrawing(forms::DrawSurface& surface, const ducts::DuctSection& section, double left,
                 double bottom, double scale)
      : surface_(surface), section_(section), left_(left), bottom_(bottom), scale_(scale) {}

  /// A rectangle in mm from the corner.
  void Fill(double x, double y, double width, double height) const {
    surface_.FilledRectangle(left_ + x * scale_, bottom_ - (y + height) * scale_,
                             left_ + (x + width) * scale_, bottom_ - y * scale_);
  }

  void DrawPlates() const {
    const double W = section_.width;
    const double H = section_.height;
    const double F = section_.foldIn;
    constexpr double kLeastTwips = 22;  // thin plates shall be seen
    const double t = std::max<double>(section_.thickness, kLeastTwips / scale_);
    const bool separate = section_.Class() == ducts::DuctClass::kSeparate;
    surface_.SetColor(forms::kBlack);
    Fill(0, 0, t, H);
    Fill(W - t, 0, t, H);
    Fill(0, H - t, F, t);
    Fill(W - F, H - t, F, t);
    if (separate) {
      Fill(0, 0, F, t);
      Fill(W - F, 0, F, t);
      Fill(t, 1.5 * t, W - 2 * t, t);  // the bottom plate lies on the flanges
    } else {
      Fill(0, 0, W, t);
    }
  }

  void DrawCables(const ducts::CablePile& pile) const {
    const double t = section_.thickness;
    const double floor = section_.Class() == ducts::DuctClass::kSeparate ? 2 * t : t;
    surface_.SetLineWidth(1);
    for (const ducts::PlacedCable& cable : pile.cables) {
      const double x = left_ + (t + cable.x) * scale_;
      const double y = bottom_ - (floor + cable.y) * scale_;
      const double radius = cable.radius * scale_;
      surface_.SetColor(kCableColor);
      FilledCircle(surface_, x, y, radius);
      surface_.SetColor(forms::kBlack);
      surface_.Ellipse(x, y, radius, radius);
    }
  }

 private:
  forms::DrawSurface& surface_;
  const ducts::DuctSection& section_;
  double left_;
  double bottom_;
  double scale_;
};

void CentredText(forms::DrawSurface& surface, double x, double y, const std::string& text) {
  surface.Text(x - surface.TextWidth(text) / 2, y, text);
}

/// The fill as a bar with a mark at its limit.
void DrawFill(forms::DrawSurface& surface, double left, double top, double width, double height,
              const std::optional<ducts::Real>& fill) {
  const double share = std::clamp<double>(fill.value_or(0) / 100, 0, 1);
  const bool tooFull = fill && *fill > 100 * ducts::kFillLimit;
  surface.SetColor(tooFull ? forms::kRed : forms::kBlue);
  surface.FilledRectangle(left, top + height * (1 - share), left + width, top + height);
  surface.SetColor(forms::kBlack);
  surface.SetLineWidth(1);
  surface.Rectangle(left, top, left + width, top + height);
  const double limit = top + height * (1 - ducts::kFillLimit);
  surface.DashedLine(left - width / 2, limit, left + width * 1.5, limit);
  surface.Text(left + width * 1.6, limit - surface.TextHeight() / 2,
               common::NumberText(100 * ducts::kFillLimit) + "%");
  CentredText(surface, left + width / 2, top + height + 60,
              fill ? common::Format(*fill, "##0.0") + "%" : "");
}

}  // namespace

void DuctPicture::Set(const ducts::DuctSection& section, const std::vector<ducts::CableRun>& cables,
                      const std::optional<ducts::Real>& fill) {
  section_ = section;
  fill_ = fill;
  pile_ = {};
  if (!CanBeMade()) return;
  const int plates = section.Class() == ducts::DuctClass::kSeparate ? 3 : 2;
  pile_ = ducts::PileCables(cables, section.width - 2 * section.thickness,
                            section.height - plates * section.thickness);
}

bool DuctPicture::CanBeMade() const {
  constexpr double kLargest = 10000;  // mm
  const auto& [W, H, F, t] = section_;
  return W > 0 && H > 0 && t > 0 && F >= t && W <= kLargest && H <= kLargest && 2 * F <= W &&
         3 * t < H && ducts::ClearArea(section_) > 0;
}

void DuctPicture::Draw(forms::DrawSurface& surface, double width, double height,
                       bool dimensions) const {
  constexpr double kMargin = 120;
  surface.SetFont(shell::kGothic, kLetterSize);
  const double letter = surface.TextHeight();
  const double barWidth = 1.6 * letter;
  const double barRoom = 6.5 * letter;
  const double leftMargin = dimensions ? 3 * letter : kMargin;
  const double foot = 1.5 * letter + 60;
  const double room = width - leftMargin - barRoom - kMargin;
  const double bottom = height - foot - kMargin;
  DrawFill(surface, width - barRoom + letter, kMargin, barWidth, bottom - kMargin, fill_);
  if (!CanBeMade()) return;
  const double W = section_.width;
  const double H = section_.height;
  const double scale = std::min(room / W, (bottom - kMargin) / H);
  const double left = leftMargin + (room - W * scale) / 2;
  const SectionDrawing drawing(surface, section_, left, bottom, scale);
  drawing.DrawCables(pile_);
  drawing.DrawPlates();
  surface.SetColor(forms::kBlack);
  const auto text = [](const ducts::Real& mm) { return common::NumberText(mm); };
  if (dimensions) {
    CentredText(surface, left + W * scale / 2, bottom + 60,
                text(section_.width) + "（板厚 " + text(section_.thickness) + "、折込 " +
                    text(section_.foldIn) + "）");
    surface.Text(left - 2.4 * letter, bottom - H * scale / 2 - letter / 2, text(section_.height));
  }
  if (pile_.left > 0) {
    surface.SetColor(forms::kRed);
    surface.Text(left + letter, bottom - H * scale + letter,
                 "描かれていないケーブル " + common::Format(pile_.left, "#,##0") + "本");
  }
}

}  // namespace sheets
