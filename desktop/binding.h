#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "desktop/scale.h"
#include "forms/controls.h"

class QLabel;

namespace desktop {

/// A control and the widget that shows it.
struct Bound {
  QWidget* widget = nullptr;
  /// Brings the widget to the control's state.
  std::function<void()> show;
  /// Brings the widget to a letter height, where its contents do not give its size alone.
  /// characters: the width that the layout asks for, 0 for the kind's own.
  std::function<void(const Scale& scale, int characters)> resize = [](const Scale&, int) {};
};

/// The widget for one control of each kind, in both directions: it shows the control's state, and
/// what the user does in it becomes a verb of the control.
Bound Bind(forms::TextBox& box, QWidget& parent);
Bound Bind(forms::ComboBox& box, QWidget& parent);
Bound Bind(forms::ListBox& list, QWidget& parent);
Bound Bind(forms::CheckList& list, QWidget& parent);
Bound Bind(forms::TabStrip& tabs, QWidget& parent);
Bound Bind(forms::OptionButton& option, QWidget& parent);
Bound Bind(forms::CheckBox& check, QWidget& parent);
Bound Bind(forms::Label& label, QWidget& parent);
Bound Bind(forms::Button& button, QWidget& parent);
Bound Bind(forms::Frame& frame, QWidget& parent);
Bound Bind(forms::Picture& picture, QWidget& parent);
Bound Bind(forms::Viewport& viewport, QWidget& parent);
Bound Bind(forms::ScrollBar& bar, QWidget& parent);
Bound Bind(forms::Grid& grid, QWidget& parent);
Bound Bind(forms::ProgressBar& bar, QWidget& parent);

/// The same for a control whose kind shows only at run time.
Bound BindAny(forms::Control& control, QWidget& parent);

/// Tool tips of ours are plain text, whatever they look like.
QString PlainToolTip(const std::string& text);

/// Shows what every kind of control has: enabled, visible and colours.
/// ground: the colour behind the letters; plain: the back colour that asks for nothing special.
void ShowCommon(const forms::Control& control, QWidget& widget, const QColor& ground,
                forms::Color plain);

/// A text for where Qt would take an ampersand for the mark of a key: tabs, menus, labels with a
/// buddy.
QString CaptionOf(const std::string& text);
/// Gives the focus to the field that a caption belongs to.
void FocusBuddy(const QLabel& caption);

/// Marks a widget for the style sheet.
void SetLook(QWidget& widget, const char* look);

}  // namespace desktop
