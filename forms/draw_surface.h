#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/color.h"

namespace forms {

/// What pictures and reports are drawn on: screen, paper or a recording. Positions and sizes are in
/// twips (56.7 a millimetre) from the top left corner, y downwards.
class DrawSurface {
 public:
  using Points = std::vector<std::pair<double, double>>;

  DrawSurface() = default;
  DrawSurface(const DrawSurface&) = delete;
  DrawSurface& operator=(const DrawSurface&) = delete;
  virtual ~DrawSurface() = default;

  /// size: points.
  virtual void SetFont(const std::string& name, double size, bool bold = false) = 0;
  virtual void SetColor(Color color) = 0;
  /// Line width in device-independent pixels of 15 twips.
  virtual void SetLineWidth(double width) = 0;

  virtual void Line(double x1, double y1, double x2, double y2) = 0;
  virtual void DashedLine(double x1, double y1, double x2, double y2) = 0;
  virtual void Polyline(const Points& points) = 0;
  virtual void FilledPolygon(const Points& points) = 0;
  virtual void Rectangle(double x1, double y1, double x2, double y2) = 0;
  virtual void FilledRectangle(double x1, double y1, double x2, double y2) = 0;
  virtual void Ellipse(double centreX, double centreY, double radiusX, double radiusY) = 0;

  /// Text with its top left corner at (x, y).
  virtual void Text(double x, double y, const std::string& text) = 0;
  virtual double TextWidth(const std::string& text) = 0;
  virtual double TextHeight() = 0;
};

}  // namespace forms
