#include "sheets/chart.h"

#include <algorithm>

#include "common/number.h"

namespace sheets {

namespace {

// Twips.
constexpr double kMargin = 90;
constexpr double kTickLength = 60;
constexpr double kHatchPitch = 110;
constexpr double kStripHeight = 75;
constexpr double kDotRadius = 65;

constexpr double kFontSize = 8;  // points

// Labels at most along an axis.
constexpr int kTicksX = 6;
constexpr int kTicksY = 5;

void SetChartFont(forms::DrawSurface& surface) { surface.SetFont("IPAGothic", kFontSize); }

/// Steps of 1, 2 or 5 times a power of ten that divide a range into at most `most` parts. The range
/// is above 0.
double TickStep(double range, int most) {
  double power = 1;
  while (power * most > range && power > 1e-9) power /= 10;
  while (power * most * 10 <= range && power < 1e12) power *= 10;
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (power * factor * most >= range) return power * factor;
  }
  return power * 10;
}

/// Ticks from the first multiple of the step within an axis on.
std::vector<double> Ticks(const Chart::Axis& axis, int most) {
  std::vector<double> ticks;
  const double step = TickStep(axis.high - axis.low, most);
  const double first = common::Int(axis.low / step);
  for (int i = 0; i <= most + 1; ++i) {
    const double tick = (first + i) * step;
    const double slack = step * 1e-6;
    if (tick >= axis.low - slack && tick <= axis.high + slack) ticks.push_back(tick);
  }
  return ticks;
}

std::string TickText(double tick) { return common::NumberText(common::RoundDigits(tick, 9)); }

}  // namespace

void DrawEmptyChart(forms::DrawSurface& surface, double width, double height,
                    const std::string& text) {
  SetChartFont(surface);
  surface.SetColor(forms::kBlack);
  surface.SetLineWidth(0.5);
  surface.Rectangle(kMargin, kMargin, width - kMargin, height - kMargin);
  surface.Text((width - surface.TextWidth(text)) / 2, (height - surface.TextHeight()) / 2, text);
}

Chart::Chart(forms::DrawSurface& surface, double width, double height, Axis x, Axis y)
    : surface_(surface), x_(std::move(x)), y_(std::move(y)) {
  SetChartFont(surface_);
  double labels = 0;
  for (const double tick : Ticks(y_, kTicksY)) {
    labels = std::max(labels, surface_.TextWidth(TickText(tick)));
  }
  const double line = surface_.TextHeight();
  left_ = kMargin + labels + 1.5 * kTickLength;
  right_ = width - 3 * kMargin;
  // Legend and title of the upright axis, clear of a label at its very top.
  top_ = kMargin + 2.7 * line;
  bottom_ = height - kMargin - 2.2 * line;
  legendAt_ = kMargin;
  DrawAxisX();
  DrawAxisY();
  surface_.SetColor(forms::kBlack);
  surface_.SetLineWidth(1);
  surface_.Rectangle(left_, top_, right_, bottom_);
}

void Chart::DrawAxisX() {
  surface_.SetColor(forms::kBlack);
  surface_.SetLineWidth(0.5);
  const double line = surface_.TextHeight();
  for (const double tick : Ticks(x_, kTicksX)) {
    const std::string text = TickText(tick);
    surface_.Line(X(tick), bottom_, X(tick), bottom_ + kTickLength);
    surface_.Text(X(tick) - surface_.TextWidth(text) / 2, bottom_ + kTickLength, text);
  }
  surface_.Text((left_ + right_ - surface_.TextWidth(x_.title)) / 2, bottom_ + kTickLength + line,
                x_.title);
}

void Chart::DrawAxisY() {
  surface_.SetLineWidth(0.5);
  const double line = surface_.TextHeight();
  for (const double tick : Ticks(y_, kTicksY)) {
    const std::string text = TickText(tick);
    surface_.Line(left_ - kTickLength, Y(tick), left_, Y(tick));
    surface_.Text(left_ - 1.5 * kTickLength - surface_.TextWidth(text), Y(tick) - line / 2, text);
  }
  surface_.Text(kMargin, top_ - 1.6 * line, y_.title);
}

double Chart::X(double value) const {
  const double x = left_ + (value - x_.low) / (x_.high - x_.low) * (right_ - left_);
  return std::clamp(x, left_, right_);
}

double Chart::Y(double value) const {
  const double y = bottom_ - (value - y_.low) / (y_.high - y_.low) * (bottom_ - top_);
  return std::clamp(y, top_, bottom_);
}

void Chart::Grid() {
  surface_.SetColor(forms::kBlack);
  surface_.SetLineWidth(0.5);
  for (const double tick : Ticks(x_, kTicksX)) surface_.DashedLine(X(tick), top_, X(tick), bottom_);
  for (const double tick : Ticks(y_, kTicksY)) surface_.DashedLine(left_, Y(tick), right_, Y(tick));
}

void Chart::Curve(const Points& points, forms::Color color, double lineWidth) {
  std::vector<std::pair<double, double>> line;
  for (const auto& [x, y] : points) line.emplace_back(X(x), Y(y));
  surface_.SetColor(color);
  surface_.SetLineWidth(lineWidth);
  surface_.Polyline(line);
}

void Chart::DashedLine(std::pair<double, double> from, std::pair<double, double> to,
                       forms::Color color) {
  surface_.SetColor(color);
  surface_.SetLineWidth(0.7);
  surface_.DashedLine(X(from.first), Y(from.second), X(to.first), Y(to.second));
}

void Chart::Level(double y, forms::Color color) {
  surface_.SetColor(color);
  surface_.SetLineWidth(1.5);
  surface_.Line(left_, Y(y), right_, Y(y));
}

void Chart::Upright(double x, forms::Color color, const std::string& name, int row) {
  if (x <= x_.low || x >= x_.high) return;
  DashedLine({x, y_.low}, {x, y_.high}, color);
  const double width = surface_.TextWidth(name);
  const double at = X(x) + kTickLength / 2;
  surface_.Text(at + width > right_ ? X(x) - width - kTickLength / 2 : at,
                top_ + kTickLength / 2 + row * surface_.TextHeight(), name);
}

void Chart::HatchLevels(double from, double to, forms::Color color) {
  const double top = Y(to);
  const double bottom = Y(from);
  if (bottom - top <= 0) return;
  surface_.SetColor(color);
  surface_.SetLineWidth(0.4);
  // Strokes at 45 degrees, cut at the sides.
  const double height = bottom - top;
  const int strokes = common::IntIndex((right_ - left_ + height) / kHatchPitch);
  for (int i = 0; i <= strokes; ++i) {
    const double x = left_ - height + i * kHatchPitch;
    const double x1 = std::max(x, left_);
    const double x2 = std::min(x + height, right_);
    if (x1 < x2) surface_.Line(x1, bottom - (x1 - x), x2, bottom - (x2 - x));
  }
  surface_.DashedLine(left_, top, right_, top);
  surface_.DashedLine(left_, bottom, right_, bottom);
}

void Chart::Strip(double from, double to, forms::Color color) {
  if (X(to) <= X(from)) return;
  surface_.SetColor(color);
  surface_.FilledRectangle(X(from), bottom_ - kStripHeight, X(to), bottom_);
}

void Chart::Dot(double x, double y, forms::Color color) {
  surface_.SetColor(color);
  surface_.FilledPolygon({{X(x) - kDotRadius, Y(y)},
                          {X(x), Y(y) - kDotRadius},
                          {X(x) + kDotRadius, Y(y)},
                          {X(x), Y(y) + kDotRadius}});
}

void Chart::Note(double x, double y, const std::string& text, forms::Color color, Side side) {
  const double width = surface_.TextWidth(text);
  const double line = surface_.TextHeight();
  double atX = X(x) + kTickLength;
  if (side == Side::kLeft || atX + width > right_) atX = X(x) - width - kTickLength;
  const double above = Y(y) - line - kTickLength;
  const double below = Y(y) + kTickLength;
  const bool goesBelow =
      side == Side::kBelow ? below + line < bottom_ - kStripHeight : above < top_;
  surface_.SetColor(color);
  surface_.Text(std::max(atX, left_ + kTickLength), goesBelow ? below : above, text);
}

void Chart::Legend(const std::string& text, forms::Color color) {
  constexpr double kSample = 240;
  surface_.SetColor(color);
  surface_.SetLineWidth(2);
  const double line = surface_.TextHeight();
  surface_.Line(legendAt_, kMargin + line / 2, legendAt_ + kSample, kMargin + line / 2);
  surface_.Text(legendAt_ + kSample + kTickLength, kMargin, text);
  legendAt_ += kSample + surface_.TextWidth(text) + 4 * kTickLength;
}

}  // namespace sheets
