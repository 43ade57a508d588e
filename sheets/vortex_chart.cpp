#include "sheets/vortex_chart.h"

#include <algorithm>

#include "shell/print_surface.h"

namespace sheets {

namespace {

constexpr double kLetterSize = 9;          // points
constexpr forms::Color kFaint = 0xA8A8A8;  // lines of the chart
constexpr double kLeft = 620;              // room for the sizes, twips
constexpr double kRight = 520;
constexpr double kHead = 100;  // of a bar that goes on
constexpr double kTop = 330;
constexpr double kBottom = 300;
constexpr double kEnd = 120;      // per cent
constexpr double kRowUnits = 10;  // units from row to row
constexpr double kFirstTop = 2;   // top of the first bar
constexpr double kBarUnits = 6;

class Drawing {
 public:
  Drawing(const VortexChart& chart, forms::DrawSurface& surface, double width, double height)
      : chart_(chart), surface_(surface), width_(width), height_(height) {}

  void Draw() {
    surface_.SetFont(shell::kGothic, kLetterSize);
    surface_.SetLineWidth(1);
    DrawScale();
    for (std::size_t i = 0; i < chart_.ratings.size(); ++i) DrawRow(i);
    DrawMarks();
  }

 private:
  double X(double percent) const {
    return kLeft + (width_ - kLeft - kRight) * std::clamp(percent, 0.0, kEnd) / kEnd;
  }
  double Y(double units) const {
    const double rows = kRowUnits * static_cast<double>(chart_.ratings.size());
    return kTop + (height_ - kTop - kBottom) * units / rows;
  }

  void DrawScale() {
    const double end = height_ - kBottom;
    surface_.SetColor(kFaint);
    surface_.SetLineWidth(0.5);
    surface_.Rectangle(X(0), kTop, X(kEnd), end);
    for (int percent = 0; percent <= kEnd; percent += 20) {
      surface_.SetColor(kFaint);
      surface_.Line(X(percent), kTop, X(percent), end);
      const std::string text = std::to_string(percent);
      surface_.SetColor(forms::kBlack);
      surface_.Text(X(percent) - surface_.TextWidth(text) / 2, end + 40, text);
    }
    const std::string unit = "%FS";
    surface_.Text(width_ - surface_.TextWidth(unit) - 10, end + 40, unit);
    const std::string size = "mm";
    surface_.Text(kLeft - surface_.TextWidth(size) - 80, kTop - surface_.TextHeight() - 40, size);
  }

  void DrawRow(std::size_t i) {
    const flow::VortexRating& rating = chart_.ratings[i];
    const double top = Y(kRowUnits * static_cast<double>(i) + kFirstTop);
    const double bottom = Y(kRowUnits * static_cast<double>(i) + kFirstTop + kBarUnits);
    const bool missing = chart_.calculated && !rating.made;
    surface_.SetColor(missing ? kFaint : forms::kBlack);
    surface_.SetFont(shell::kGothic, kLetterSize, rating.listed);
    surface_.Text(kLeft - surface_.TextWidth(chart_.sizes[i]) - 80,
                  (top + bottom - surface_.TextHeight()) / 2, chart_.sizes[i]);
    surface_.SetFont(shell::kGothic, kLetterSize, false);
    if (!rating.made || rating.rangeLow >= 100) return;
    surface_.SetColor(forms::kBlue);
    surface_.FilledRectangle(X(rating.rangeLow), top, X(rating.rangeHigh), bottom);
    if (rating.rangeHigh <= kEnd) return;
    const double middle = (top + bottom) / 2;
    surface_.FilledPolygon(
        {{X(kEnd), top - 20}, {X(kEnd) + kHead, middle}, {X(kEnd), bottom + 20}});
  }

  /// Full scale, and the minimum flow where there is one below it.
  void DrawMarks() {
    const double end = height_ - kBottom;
    surface_.SetColor(forms::kRed);
    surface_.SetLineWidth(1.5);
    surface_.Line(X(100), kTop, X(100), end);
    const double minimum = chart_.minimumShare;
    if (!chart_.calculated || minimum <= 0 || minimum > 100) return;
    surface_.DashedLine(X(minimum), kTop - 60, X(minimum), end);
    const std::string text = "最少流量";
    const double x = X(minimum) - surface_.TextWidth(text) / 2;
    surface_.Text(std::max(x, kLeft), kTop - surface_.TextHeight() - 60, text);
  }

  const VortexChart& chart_;
  forms::DrawSurface& surface_;
  double width_;
  double height_;
};

}  // namespace

void DrawVortexChart(const VortexChart& chart, forms::DrawSurface& surface, double width,
                     double height) {
  Drawing(chart, surface, width, height).Draw();
}

}  // namespace sheets
