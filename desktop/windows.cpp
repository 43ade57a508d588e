#include "desktop/windows.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/icons.h"
#include "desktop/main_window.h"
#include "desktop/paper/draw_surface.h"
#include "forms/controls.h"

namespace desktop {

namespace {

Qt::WindowFlags FlagsOf(forms::FormRole role) {
  constexpr Qt::WindowFlags kFrame = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                     Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  return kFrame | (role == forms::FormRole::kTool ? Qt::Tool : Qt::Dialog);
}

/// Left edge of a tool: right of its owner, else left of it, where the screen has the room; else
/// over the owner's right end, where sheets have their results.
int LeftOfTool(int width, const QRect& owner) {
  constexpr int kGap = 8;
  constexpr int kInside = 24;
  const QRect room = ScreenOf(owner)->availableGeometry();
  if (owner.right() + kGap + width <= room.right()) return owner.right() + kGap;
  if (owner.left() - kGap - width >= room.left()) return owner.left() - kGap - width;
  return owner.right() - kInside - width;
}

int Pixels(double twips) { return qRound(twips / kTwipsPerPixel); }

/// A form stands where it wishes to; without a wish tools stand beside their owner, dialogues in
/// its middle.
QRect PlaceOf(const forms::Form& form, const QSize& size, const QRect& owner) {
  constexpr int kFromTop = 90;
  QRect place(QPoint(0, 0), size);
  if (const auto& wish = form.WantedPlace()) {
    place.setSize({Pixels(wish->width), Pixels(wish->height)});
    place.moveTopLeft(owner.topLeft() + QPoint(Pixels(wish->fromLeft), Pixels(wish->fromTop)));
  } else if (form.Role() == forms::FormRole::kTool) {
    place.moveTopLeft({LeftOfTool(size.width(), owner), owner.top() + kFromTop});
  } else {
    place.moveCenter(owner.center());
  }
  return OnScreen(place);
}

}  // namespace

SheetWindow::SheetWindow(FormView& view) {
  setWidget(&view);
  setWindowIcon(IconOfSheets());
  setAttribute(Qt::WA_DeleteOnClose, false);
}

void SheetWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (onClose) onClose();
}

OwnWindow::OwnWindow(FormView& view, QWidget& owner)
    : QWidget(&owner, FlagsOf(view.Shown().Role())), view_(view) {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&view);
  setWindowIcon(IconNamed("app"));
  if (view.Shown().Role() == forms::FormRole::kDialog) setWindowModality(Qt::WindowModal);
  const QRect place = PlaceOf(view.Shown(), view.NaturalSize(), owner.frameGeometry());
  move(place.topLeft());
  resize(place.size());
}

void OwnWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  if (onClose) onClose();
}

void OwnWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && onActivate) onActivate();
}

void OwnWindow::showEvent(QShowEvent* event) {
  constexpr int kFramedMs = 100;
  QWidget::showEvent(event);
  QTimer::singleShot(kFramedMs, this, [this] { StayOnScreen(); });
}

void OwnWindow::StayOnScreen() {
  const QRect frame = frameGeometry();
  const QRect place = OnScreen(frame);
  if (place == frame) return;
  resize(size() - (frame.size() - place.size()));
  move(place.topLeft());
}

void OwnWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    Escape();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void OwnWindow::Escape() {
  for (forms::Control* control : view_.Shown().Controls()) {
    auto* const button = dynamic_cast<forms::Button*>(control);
    if (button != nullptr && button->Role() == forms::ButtonRole::kCancel && button->Usable()) {
      button->Click();
      return;
    }
  }
  close();
}

}  // namespace desktop
