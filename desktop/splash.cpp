#include "desktop/splash.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include "desktop/icons.h"
#include "desktop/theme.h"

namespace desktop {

namespace {

constexpr QSize kSize(420, 180);
constexpr int kIconSize = 84;
constexpr int kMargin = 44;
constexpr int kNamePixels = 38;
constexpr int kShownMs = 1000;

}  // namespace

Splash::Splash(const QString& version)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), version_(version) {
  setObjectName(QStringLiteral("frmSplash"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFixedSize(kSize);
  QRect place(QPoint(0, 0), kSize);
  place.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
  move(place.topLeft());
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, [this] { End(); });
}

void Splash::paintEvent(QPaintEvent*) {
  const Theme& theme = Theme::Current();
  QPainter painter(this);
  painter.fillRect(rect(), theme.card);
  painter.setPen(theme.border);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.fillRect(QRect(0, 0, width(), 4), theme.accent);
  const QRect icon(kMargin, (height() - kIconSize) / 2, kIconSize, kIconSize);
  IconNamed("app").paint(&painter, icon);
  const QRect words(icon.right() + kMargin * 3 / 4, icon.top(), width(), kIconSize);
  QFont name = UiFont(kNamePixels);
  name.setBold(true);
  name.setLetterSpacing(QFont::AbsoluteSpacing, 3);
  painter.setFont(name);
  painter.setPen(theme.text);
  painter.drawText(words, Qt::AlignLeft | Qt::AlignTop, QStringLiteral("ZEPHA"));
  painter.setFont(UiFont(kBaseLetterPixels));
  painter.setPen(theme.caption);
  painter.drawText(words, Qt::AlignLeft | Qt::AlignBottom, version_);
}

void Splash::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  timer_.start(kShownMs);
  activateWindow();
}

void Splash::closeEvent(QCloseEvent* event) {
  End();
  event->accept();
}

void Splash::keyPressEvent(QKeyEvent* event) {
  event->accept();
  End();
}

void Splash::mousePressEvent(QMouseEvent*) { End(); }

/// The timer, a key and a click may all arrive.
void Splash::End() {
  if (ended_) return;
  ended_ = true;
  timer_.stop();
  // The main window comes first, so that the program is never without a window and ends. What it
  // asks at its start is not asked behind the splash.
  QTimer::singleShot(0, this, &QWidget::hide);
  if (onEnd) onEnd();
}

}  // namespace desktop
