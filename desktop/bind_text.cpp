#include <QLineEdit>
#include <QSignalBlocker>

#include "common/text.h"
#include "desktop/binding.h"
#include "desktop/reporting.h"

namespace desktop {

namespace {

std::optional<forms::Arrow> ArrowOf(int key) {
  switch (key) {
    case Qt::Key_Up:
      return forms::Arrow::kUp;
    case Qt::Key_Down:
      return forms::Arrow::kDown;
    case Qt::Key_Left:
      return forms::Arrow::kLeft;
    case Qt::Key_Right:
      return forms::Arrow::kRight;
    default:
      return std::nullopt;
  }
}

class FieldEdit : public Reporting<QLineEdit, forms::TextBox> {
 public:
  using Reporting::Reporting;

 protected:
  bool event(QEvent* event) override {
    // Keys that are shortcuts elsewhere, such as undo, belong to the field while it has the focus.
    if (event->type() == QEvent::ShortcutOverride && IsUndo(*static_cast<QKeyEvent*>(event))) {
      event->accept();
      return true;
    }
    return Reporting::event(event);
  }

  void PressEnter() override { Shown().PressKey(U'\r'); }

  void keyPressEvent(QKeyEvent* event) override {
    if (IsUndo(*event)) {
      Shown().Undo();
    } else if (!UsedByForm(*event)) {
      Reporting::keyPressEvent(event);
      return;
    }
    event->accept();
  }

 private:
  static bool IsUndo(const QKeyEvent& event) {
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
  }

  /// Control keys are no characters; Control with Alt is the key for the third level.
  static bool IsShortcut(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return held.testFlag(Qt::MetaModifier) ||
           (held.testFlag(Qt::ControlModifier) && !held.testFlag(Qt::AltModifier));
  }

  /// Whether the form takes the key for itself or refuses it.
  bool UsedByForm(const QKeyEvent& event) {
    if (event.key() == Qt::Key_F4 && Shown().onDblClick) {
      Shown().DblClick();
      return true;
    }
    if (const auto arrow = ArrowOf(event.key())) return Shown().PressArrow(*arrow);
    if (event.text().isEmpty() || !event.text().front().isPrint() || IsShortcut(event)) {
      return false;
    }
    bool taken = true;
    for (const char32_t key : event.text().toStdU32String()) {
      taken = taken && Shown().PressKey(key);
    }
    return !taken;
  }
};

void ShowText(const forms::TextBox& box, QLineEdit& edit) {
  const QString text = QString::fromStdString(box.Text());
  if (edit.text() != text) {
    const QSignalBlocker quiet(edit);
    const int cursor = edit.cursorPosition();
    const bool atEnd = cursor == edit.text().size();
    edit.setText(text);
    if (edit.hasFocus() && !atEnd) edit.setCursorPosition(cursor);
    if (!edit.hasFocus()) edit.setCursorPosition(0);
  }
  ShowCommon(box, edit, Theme::Current().field, forms::kWhite);
}

}  // namespace

Bound Bind(forms::TextBox& box, QWidget& parent) {
  constexpr int kNumberWidth = 10;
  constexpr int kTextWidth = 18;
  auto* const edit = new FieldEdit(box, parent);
  edit->setAlignment(Qt::AlignVCenter | (box.IsNumeric() ? Qt::AlignRight : Qt::AlignLeft));
  QObject::connect(edit, &QLineEdit::textEdited, edit, [&box, edit](const QString& typed) {
    box.Type(typed.toStdString());
    ShowText(box, *edit);
  });
  const int own = box.IsNumeric() ? kNumberWidth : kTextWidth;
  return {edit, [&box, edit] { ShowText(box, *edit); },
          [edit, own](const Scale& scale, int characters) {
            edit->setMinimumWidth(scale.Digits(characters > 0 ? characters : own) + scale.Em(1));
          }};
}

}  // namespace desktop
