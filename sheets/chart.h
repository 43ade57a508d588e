#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/draw_surface.h"

namespace sheets {

/// A diagram with labelled axes, on the surface that screen and paper share. What lies outside the
/// axes is cut off. Bands are hatched, because the desktop keeps every colour dark enough to read.
/// Places and levels are values on the axes.
class Chart {
 public:
  struct Axis {
    std::string title;  // with the unit
    double low = 0;
    double high = 1;  // above low
  };
  using Points = std::vector<std::pair<double, double>>;

  /// Draws the axes in a picture of width by height twips.
  Chart(forms::DrawSurface& surface, double width, double height, Axis x, Axis y);

  /// Dashed lines at the labels of both axes.
  void Grid();
  void Curve(const Points& points, forms::Color color, double lineWidth = 2);
  void DashedLine(std::pair<double, double> from, std::pair<double, double> to, forms::Color color);
  /// A level over the whole width.
  void Level(double y, forms::Color color);
  /// A dashed upright over the whole height, with its name in a row from the top (from 0).
  void Upright(double x, forms::Color color, const std::string& name, int row = 0);
  /// Hatches the levels from one to the other.
  void HatchLevels(double from, double to, forms::Color color);
  /// A bar along the lower axis.
  void Strip(double from, double to, forms::Color color);
  void Dot(double x, double y, forms::Color color);
  /// A text beside a point, kept within the axes: right above it, right below it, or left above it.
  enum class Side { kAbove, kBelow, kLeft };
  void Note(double x, double y, const std::string& text, forms::Color color,
            Side side = Side::kAbove);
  /// An entry of the legend above the axes, from left to right.
  void Legend(const std::string& text, forms::Color color);

 private:
  void DrawAxisX();
  void DrawAxisY();
  double X(double value) const;
  double Y(double value) const;

  forms::DrawSurface& surface_;
  Axis x_;
  Axis y_;
  double left_;
  double right_;
  double top_;
  double bottom_;
  double legendAt_;
};

/// Says in the middle of an empty picture when there will be something to see.
void DrawEmptyChart(forms::DrawSurface& surface, double width, double height,
                    const std::string& text);

}  // namespace sheets
