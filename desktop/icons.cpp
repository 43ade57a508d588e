#include "desktop/icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "desktop/theme.h"

namespace desktop {

namespace {

QColor LineColor(QIcon::Mode mode) {
  const Theme& theme = Theme::Current();
  if (mode == QIcon::Selected) return theme.onAccent;
  return mode == QIcon::Disabled ? theme.fieldBorder : theme.text;
}

/// Draws an SVG text whose lines are in "currentColor".
class LineIcon : public QIconEngine {
 public:
  LineIcon(QByteArray svg, const QColor& color) : svg_(std::move(svg)), color_(color) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    QByteArray colored = svg_;
    const QColor color = color_.isValid() ? color_ : LineColor(mode);
    colored.replace("currentColor", color.name().toLatin1());
    QSvgRenderer(colored).render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new LineIcon(*this); }

 private:
  QByteArray svg_;
  QColor color_;
};

/// The menu bar places the icon of a maximised sheet by the pixels of its picture, which would cut
/// off one that has two for each of the window's.
class SheetIcon : public LineIcon {
 public:
  using LineIcon::LineIcon;

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                       qreal scale) override {
    return pixmap(size / scale, mode, state);
  }

  QIconEngine* clone() const override { return new SheetIcon(*this); }
};

template <class Engine>
QIcon Load(const std::string& name, const QColor& color) {
  QFile file(QStringLiteral(":/icons/%1.svg").arg(QString::fromStdString(name)));
  if (name.empty() || !file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new Engine(file.readAll(), color));
}

}  // namespace

QIcon IconNamed(const std::string& name, const QColor& color) {
  return Load<LineIcon>(name, color);
}

QIcon IconOfSheets() { return Load<SheetIcon>("app", {}); }

}  // namespace desktop
