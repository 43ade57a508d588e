#pragma once

#include <QColor>
#include <QPainter>
#include <functional>

#include "forms/draw_surface.h"

namespace desktop {

/// Of a device-independent pixel.
inline constexpr int kTwipsPerPixel = 15;
inline constexpr double kTwipsPerInch = 1440;

/// The drawing surface on a painter, on screen or on paper. The caller owns the painter; its state
/// is restored when the surface goes.
class QtDrawSurface : public forms::DrawSurface {
 public:
  using ColorRule = std::function<QColor(forms::Color)>;

  /// unitsPerTwip: painter units of one twip, 1.0 / kTwipsPerPixel for device-independent pixels,
  /// resolution / kTwipsPerInch for a printer. rule: how a colour number looks; PaperColor unless
  /// told.
  QtDrawSurface(QPainter& painter, double unitsPerTwip, ColorRule rule = {});
  ~QtDrawSurface() override;

  void SetFont(const std::string& name, double size, bool bold) override;
  void SetColor(forms::Color color) override;
  void SetLineWidth(double width) override;
  void Line(double x1, double y1, double x2, double y2) override;
  void DashedLine(double x1, double y1, double x2, double y2) override;
  void Polyline(const std::vector<std::pair<double, double>>& points) override;
  void FilledPolygon(const std::vector<std::pair<double, double>>& points) override;
  void Rectangle(double x1, double y1, double x2, double y2) override;
  void FilledRectangle(double x1, double y1, double x2, double y2) override;
  void Ellipse(double centreX, double centreY, double radiusX, double radiusY) override;
  void Text(double x, double y, const std::string& text) override;
  double TextWidth(const std::string& text) override;
  double TextHeight() override;

 private:
  QPen Pen() const;
  void FillNothing();
  void FillWithColor();
  void DrawLetters(double x, double baseline, const QString& letters);
  void DrawOnGrid(double x, double baseline, const std::string& text);

  QPainter& painter_;
  ColorRule rule_;
  QColor color_ = Qt::black;
  double lineWidthTwips_ = kTwipsPerPixel;
  /// Width of a half-width letter where texts are set in columns, else 0.
  double columnWidth_ = 0;
};

}  // namespace desktop
