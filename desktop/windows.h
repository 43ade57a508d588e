#pragma once

#include <QMdiSubWindow>
#include <QWidget>
#include <functional>

#include "desktop/form_view.h"

namespace desktop {

/// The window of a sheet inside the main window.
class SheetWindow : public QMdiSubWindow {
 public:
  explicit SheetWindow(FormView& view);
  /// The user closes it; it stays until it is destroyed.
  std::function<void()> onClose;

 protected:
  void closeEvent(QCloseEvent* event) override;
};

/// The window of a tool or a dialogue.
class OwnWindow : public QWidget {
 public:
  /// owner: in front of which it stands.
  OwnWindow(FormView& view, QWidget& owner);
  /// The user closes it.
  std::function<void()> onClose;
  /// It has come to the front.
  std::function<void()> onActivate;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Escape();
  /// Its frame, too, whose size the window manager tells only after the window is shown.
  void StayOnScreen();

  FormView& view_;
};

}  // namespace desktop
