#pragma once

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QEnterEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <concepts>

#include "forms/controls.h"
#include "forms/form.h"

namespace desktop {

/// A widget that reports what the user does in it to its control.
template <class Widget, class ControlKind>
class Reporting : public Widget {
 public:
  Reporting(ControlKind& control, QWidget& parent) : Widget(&parent), control_(control) {
    this->setObjectName(QString::fromStdString(control.Name()));
  }

 protected:
  ControlKind& Shown() const { return control_; }

  /// Enter walks to the next field, unless the kind has a use for it.
  virtual void PressEnter() {
    if constexpr (std::derived_from<ControlKind, forms::ListControl>) {
      control_.PressEnter();
    } else {
      control_.Owner().FocusNext(control_);
    }
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      PressEnter();
      event->accept();
    } else {
      Widget::keyPressEvent(event);
    }
  }

  void focusInEvent(QFocusEvent* event) override {
    Widget::focusInEvent(event);
    control_.Owner().SetFocus(control_);
  }

  void enterEvent(QEnterEvent* event) override {
    Widget::enterEvent(event);
    control_.Hover();
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    Widget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) control_.DblClick();
  }

  /// A file is for the main window; a field would take its path as text.
  void dragEnterEvent(QDragEnterEvent* event) override {
    if (event->mimeData()->hasUrls()) {
      event->ignore();
    } else {
      Widget::dragEnterEvent(event);
    }
  }

  void contextMenuEvent(QContextMenuEvent* event) override {
    if (!control_.onRightClick) {
      Widget::contextMenuEvent(event);
      return;
    }
    event->accept();
    control_.RightClick();
  }

 private:
  ControlKind& control_;
};

}  // namespace desktop
