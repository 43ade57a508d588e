#pragma once

#include <string>

#include "forms/draw_surface.h"

namespace forms {

/// A part of a surface: what is drawn at (0, 0) appears at (x, y) of the target, all lengths times
/// scale, letters times letterScale besides.
class PlacedSurface : public DrawSurface {
 public:
  PlacedSurface(DrawSurface& target, double x, double y, double scale, double letterScale)
      : target_(target), x_(x), y_(y), scale_(scale), letterScale_(scale * letterScale) {}

  void SetFont(const std::string& name, double size, bool bold) override {
    target_.SetFont(name, size * letterScale_, bold);
  }
  void SetColor(Color color) override { target_.SetColor(color); }
  void SetLineWidth(double width) override { target_.SetLineWidth(width * scale_); }
  void Line(double x1, double y1, double x2, double y2) override {
    target_.Line(X(x1), Y(y1), X(x2), Y(y2));
  }
  void DashedLine(double x1, double y1, double x2, double y2) override {
    target_.DashedLine(X(x1), Y(y1), X(x2), Y(y2));
  }
  void Polyline(const Points& points) override { target_.Polyline(Placed(points)); }
  void FilledPolygon(const Points& points) override { target_.FilledPolygon(Placed(points)); }
  void Rectangle(double x1, double y1, double x2, double y2) override {
    target_.Rectangle(X(x1), Y(y1), X(x2), Y(y2));
  }
  void FilledRectangle(double x1, double y1, double x2, double y2) override {
    target_.FilledRectangle(X(x1), Y(y1), X(x2), Y(y2));
  }
  void Ellipse(double centreX, double centreY, double radiusX, double radiusY) override {
    target_.Ellipse(X(centreX), Y(centreY), radiusX * scale_, radiusY * scale_);
  }
  void Text(double x, double y, const std::string& text) override {
    target_.Text(X(x), Y(y), text);
  }
  double TextWidth(const std::string& text) override {
    return target_.TextWidth(text) / letterScale_;
  }
  double TextHeight() override { return target_.TextHeight() / letterScale_; }

 private:
  double X(double x) const { return x_ + x * scale_; }
  double Y(double y) const { return y_ + y * scale_; }
  Points Placed(const Points& points) const {
    Points placed;
    placed.reserve(points.size());
    for (const auto& [x, y] : points) placed.emplace_back(X(x), Y(y));
    return placed;
  }

  DrawSurface& target_;
  double x_;
  double y_;
  double scale_;
  double letterScale_;
};

}  // namespace forms
