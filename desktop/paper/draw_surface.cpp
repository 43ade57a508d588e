#include "desktop/paper/draw_surface.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <utility>

#include "common/text.h"
#include "desktop/paper/fonts.h"
#include "shell/print_surface.h"

namespace desktop {

namespace {

constexpr double kTwipsPerPoint = 20;

QPolygonF PolygonOf(const std::vector<std::pair<double, double>>& points) {
  QPolygonF polygon;
  for (const auto& [x, y] : points) polygon.append({x, y});
  return polygon;
}

}  // namespace

QtDrawSurface::QtDrawSurface(QPainter& painter, double unitsPerTwip, ColorRule rule)
    : painter_(painter), rule_(rule ? std::move(rule) : ColorRule(PaperColor)) {
  constexpr double kOwnSize = 9;
  painter_.save();
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter_.scale(unitsPerTwip, unitsPerTwip);
  color_ = rule_(forms::kBlack);
  QtDrawSurface::SetFont(UiFamily().toStdString(), kOwnSize, false);
}

QtDrawSurface::~QtDrawSurface() { painter_.restore(); }

void QtDrawSurface::SetFont(const std::string& name, double size, bool bold) {
  QFont font;
  font.setFamilies({PaperFamily(name), FixedFamily()});
  // In twips, so that the metrics are the same at every resolution.
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(size * kTwipsPerPoint))));
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  painter_.setFont(font);
  const bool onGrid = name == shell::kMincho || name == shell::kGothic;
  columnWidth_ = onGrid ? font.pixelSize() / 2.0 : 0;
}

void QtDrawSurface::SetColor(forms::Color color) { color_ = rule_(color); }

void QtDrawSurface::SetLineWidth(double width) { lineWidthTwips_ = width * kTwipsPerPixel; }

QPen QtDrawSurface::Pen() const {
  return QPen(color_, lineWidthTwips_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void QtDrawSurface::FillNothing() {
  painter_.setPen(Pen());
  painter_.setBrush(Qt::NoBrush);
}

void QtDrawSurface::FillWithColor() {
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(color_);
}

void QtDrawSurface::Line(double x1, double y1, double x2, double y2) {
  FillNothing();
  painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void QtDrawSurface::DashedLine(double x1, double y1, double x2, double y2) {
  QPen pen = Pen();
  pen.setStyle(Qt::DashLine);
  pen.setCapStyle(Qt::FlatCap);
  painter_.setPen(pen);
  painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void QtDrawSurface::Polyline(const std::vector<std::pair<double, double>>& points) {
  FillNothing();
  painter_.drawPolyline(PolygonOf(points));
}

void QtDrawSurface::FilledPolygon(const std::vector<std::pair<double, double>>& points) {
  FillWithColor();
  painter_.drawPolygon(PolygonOf(points));
}

void QtDrawSurface::Rectangle(double x1, double y1, double x2, double y2) {
  FillNothing();
  painter_.drawRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
}

void QtDrawSurface::FilledRectangle(double x1, double y1, double x2, double y2) {
  FillWithColor();
  painter_.drawRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
}

void QtDrawSurface::Ellipse(double centreX, double centreY, double radiusX, double radiusY) {
  FillNothing();
  painter_.drawEllipse(QPointF(centreX, centreY), radiusX, radiusY);
}

void QtDrawSurface::Text(double x, double y, const std::string& text) {
  painter_.setPen(color_);
  const QFontMetricsF metrics(painter_.font());
  const QString letters = QString::fromStdString(text);
  const double baseline = y + metrics.ascent();
  constexpr double kTolerance = 0.02;  // of a column
  const double columns = columnWidth_ * common::Cp932Length(text);
  if (columnWidth_ == 0 ||
      std::abs(metrics.horizontalAdvance(letters) - columns) < kTolerance * columnWidth_) {
    DrawLetters(x, baseline, letters);
  } else {
    DrawOnGrid(x, baseline, text);
  }
}

/// The families have no bold letters of their own; paper gets them stroked, but the screen draws
/// large letters as plain outlines.
void QtDrawSurface::DrawLetters(double x, double baseline, const QString& letters) {
  painter_.drawText(QPointF(x, baseline), letters);
  constexpr double kStroke = 0.04;  // of the letter height
  if (painter_.font().bold() && painter_.paintEngine()->type() == QPaintEngine::Raster) {
    painter_.drawText(QPointF(x + kStroke * painter_.font().pixelSize(), baseline), letters);
  }
}

/// A font whose letters are not exactly one or two columns wide is set letter by letter.
void QtDrawSurface::DrawOnGrid(double x, double baseline, const std::string& text) {
  for (const char32_t letter : common::CodePoints(text)) {
    const std::u32string_view one(&letter, 1);
    if (letter != U' ') DrawLetters(x, baseline, QString::fromUcs4(one.data(), 1));
    x += columnWidth_ * common::Cp932Length(common::Utf8(one));
  }
}

double QtDrawSurface::TextWidth(const std::string& text) {
  return QFontMetricsF(painter_.font()).horizontalAdvance(QString::fromStdString(text));
}

double QtDrawSurface::TextHeight() { return QFontMetricsF(painter_.font()).height(); }

}  // namespace desktop
