#include "shell/page_recorder.h"

#include "shell/print_surface.h"

namespace shell {

namespace {

/// Draws one recorded item.
class Player {
 public:
  explicit Player(forms::DrawSurface& target) : target_(target) {}

  void operator()(const PageRecorder::TextItem& item) const {
    target_.SetFont(item.font, item.size, item.bold);
    target_.SetColor(item.color);
    target_.Text(item.x, item.y, item.text);
  }
  void operator()(const PageRecorder::LineItem& item) const {
    Take(item.pen);
    if (item.points.size() != 2) {
      target_.Polyline(item.points);
      return;
    }
    const auto& [from, to] = std::pair(item.points.front(), item.points.back());
    if (item.dashed) {
      target_.DashedLine(from.first, from.second, to.first, to.second);
    } else {
      target_.Line(from.first, from.second, to.first, to.second);
    }
  }
  void operator()(const PageRecorder::PolygonItem& item) const {
    Take(item.pen);
    target_.FilledPolygon(item.points);
  }
  void operator()(const PageRecorder::BoxItem& item) const {
    Take(item.pen);
    if (item.filled) {
      target_.FilledRectangle(item.x1, item.y1, item.x2, item.y2);
    } else {
      target_.Rectangle(item.x1, item.y1, item.x2, item.y2);
    }
  }
  void operator()(const PageRecorder::EllipseItem& item) const {
    Take(item.pen);
    target_.Ellipse(item.x, item.y, item.radiusX, item.radiusY);
  }

 private:
  void Take(const PageRecorder::Pen& pen) const {
    target_.SetColor(pen.color);
    target_.SetLineWidth(pen.width);
  }

  forms::DrawSurface& target_;
};

}  // namespace

void PageRecorder::Replay(forms::DrawSurface& target) const {
  const Player player(target);
  for (const Item& item : items_) std::visit(player, item);
}

void PageRecorder::SetFont(const std::string& name, double size, bool bold) {
  font_ = name;
  size_ = size;
  bold_ = bold;
}

void PageRecorder::Line(double x1, double y1, double x2, double y2) {
  items_.emplace_back(LineItem{{{x1, y1}, {x2, y2}}, false, pen_});
}

void PageRecorder::DashedLine(double x1, double y1, double x2, double y2) {
  items_.emplace_back(LineItem{{{x1, y1}, {x2, y2}}, true, pen_});
}

void PageRecorder::Polyline(const Points& points) {
  items_.emplace_back(LineItem{points, false, pen_});
}

void PageRecorder::FilledPolygon(const Points& points) {
  items_.emplace_back(PolygonItem{points, pen_});
}

void PageRecorder::Rectangle(double x1, double y1, double x2, double y2) {
  items_.emplace_back(BoxItem{x1, y1, x2, y2, false, pen_});
}

void PageRecorder::FilledRectangle(double x1, double y1, double x2, double y2) {
  items_.emplace_back(BoxItem{x1, y1, x2, y2, true, pen_});
}

void PageRecorder::Ellipse(double centreX, double centreY, double radiusX, double radiusY) {
  items_.emplace_back(EllipseItem{centreX, centreY, radiusX, radiusY, pen_});
}

void PageRecorder::Text(double x, double y, const std::string& text) {
  items_.emplace_back(TextItem{x, y, text, font_, size_, bold_, pen_.color});
}

double PageRecorder::TextWidth(const std::string& text) { return FixedTextWidth(text, size_); }

double PageRecorder::TextHeight() { return FixedTextHeight(size_); }

}  // namespace shell
