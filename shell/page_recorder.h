#pragma once

#include <string>
#include <variant>
#include <vector>

#include "forms/draw_surface.h"

namespace shell {

/// A surface that remembers what is drawn on it: the preview paints it again and again, the driver
/// and the tests look at it. Widths and heights of texts are those of the fixed-pitch fonts.
class PageRecorder : public forms::DrawSurface {
 public:
  struct Pen {
    forms::Color color = forms::kBlack;
    double width = 1;
  };
  struct TextItem {
    double x;
    double y;
    std::string text;
    std::string font;
    double size;
    bool bold;
    forms::Color color;
  };
  struct LineItem {
    Points points;
    bool dashed;
    Pen pen;
  };
  struct PolygonItem {
    Points points;
    Pen pen;
  };
  struct BoxItem {
    double x1, y1, x2, y2;
    bool filled;
    Pen pen;
  };
  struct EllipseItem {
    double x, y, radiusX, radiusY;
    Pen pen;
  };
  using Item = std::variant<TextItem, LineItem, PolygonItem, BoxItem, EllipseItem>;

  const std::vector<Item>& Items() const { return items_; }

  /// Draws everything on another surface.
  void Replay(forms::DrawSurface& target) const;

  void SetFont(const std::string& name, double size, bool bold) override;
  void SetColor(forms::Color color) override { pen_.color = color; }
  void SetLineWidth(double width) override { pen_.width = width; }
  void Line(double x1, double y1, double x2, double y2) override;
  void DashedLine(double x1, double y1, double x2, double y2) override;
  void Polyline(const Points& points) override;
  void FilledPolygon(const Points& points) override;
  void Rectangle(double x1, double y1, double x2, double y2) override;
  void FilledRectangle(double x1, double y1, double x2, double y2) override;
  void Ellipse(double centreX, double centreY, double radiusX, double radiusY) override;
  void Text(double x, double y, const std::string& text) override;
  double TextWidth(const std::string& text) override;
  double TextHeight() override;

 private:
  std::vector<Item> items_;
  Pen pen_;
  std::string font_;
  double size_ = 9;
  bool bold_ = false;
};

}  // namespace shell
