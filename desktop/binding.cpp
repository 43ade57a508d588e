#include "desktop/binding.h"

#include <QLabel>
#include <QTextDocument>
#include <QVariant>
#include <stdexcept>

namespace desktop {

namespace {

template <class Kind>
bool BindIf(forms::Control& control, QWidget& parent, Bound& bound) {
  auto* const kind = dynamic_cast<Kind*>(&control);
  if (kind == nullptr) return false;
  bound = Bind(*kind, parent);
  return true;
}

template <class... Kinds>
Bound BindFirstOf(forms::Control& control, QWidget& parent) {
  Bound bound;
  if (!(BindIf<Kinds>(control, parent, bound) || ...)) {
    throw std::logic_error("no widget shows a " + std::string(control.Kind()));
  }
  return bound;
}

QString ColorStyle(const forms::Control& control, const QColor& ground, forms::Color plain) {
  const Theme& theme = Theme::Current();
  QString style;
  QColor behind = ground;
  if (control.BackColor() != plain) {
    behind = Ground(control.BackColor(), theme);
    style += QStringLiteral("background-color: %1;").arg(behind.name());
  }
  if (control.ForeColor() != forms::kBlack || behind != ground) {
    style += QStringLiteral("color: %1;").arg(Ink(control.ForeColor(), theme, behind).name());
  }
  // Only the widget itself: a bare rule would colour its tool tip, too.
  return style.isEmpty() ? style : QStringLiteral("*[look], *[look] QLineEdit { %1 }").arg(style);
}

}  // namespace

QString PlainToolTip(const std::string& text) {
  const QString tip = QString::fromStdString(text);
  return Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip;
}

Bound BindAny(forms::Control& control, QWidget& parent) {
  using namespace forms;
  Bound bound =
      BindFirstOf<TextBox, ComboBox, ListBox, CheckList, TabStrip, OptionButton, CheckBox, Label,
                  Button, Frame, Viewport, Picture, ScrollBar, Grid, ProgressBar>(control, parent);
  if (!bound.widget->property("look").isValid()) SetLook(*bound.widget, "field");
  return bound;
}

void ShowCommon(const forms::Control& control, QWidget& widget, const QColor& ground,
                forms::Color plain) {
  widget.setEnabled(control.Enabled());
  widget.setHidden(!control.Visible());
  const QString style = ColorStyle(control, ground, plain);
  if (widget.styleSheet() != style) widget.setStyleSheet(style);
}

QString CaptionOf(const std::string& text) {
  return QString::fromStdString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void FocusBuddy(const QLabel& caption) {
  QWidget* const field = caption.buddy();
  if (field == nullptr || !field->isEnabled() || field->focusPolicy() == Qt::NoFocus) return;
  field->setFocus(Qt::ShortcutFocusReason);
}

void SetLook(QWidget& widget, const char* look) { widget.setProperty("look", look); }

}  // namespace desktop
