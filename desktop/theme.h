#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

#include "desktop/paper/fonts.h"
#include "forms/color.h"

namespace desktop {

/// Letter height that the forms are laid out for, the smallest readable one and the largest, in
/// device-independent pixels.
inline constexpr int kBaseLetterPixels = 13;
inline constexpr int kLeastLetterPixels = 11;
inline constexpr int kLargestLetterPixels = 44;

/// The colours of a desktop, light or dark.
struct Theme {
  bool dark = false;
  QColor window;
  QColor card;
  QColor border;
  QColor field;
  QColor fieldBorder;
  QColor fieldOff;
  QColor text;
  QColor caption;
  QColor faint;
  QColor result;
  QColor resultBorder;
  QColor accent;
  QColor onAccent;
  QColor hover;
  QColor warning;
  QColor critical;

  static const Theme& Light();
  static const Theme& Dark();
  /// The one that goes with a palette.
  static const Theme& Of(const QPalette& palette);
  /// The one of the running program.
  static const Theme& Current();
};

/// The palette that Qt's own parts use beside the forms.
QPalette PaletteOf(const Theme& theme);

/// Contrast of two colours from 1 to 21. Source: WCAG 2.1, "contrast ratio" and "relative
/// luminance".
double Contrast(const QColor& one, const QColor& other);

/// A colour of a form as letters on a ground: black is the theme's text colour, any other colour
/// keeps its hue and becomes as much lighter or darker as it takes to be read (contrast 4.5).
QColor Ink(forms::Color color, const Theme& theme, const QColor& ground);
/// A colour of a form as the ground of a field.
QColor Ground(forms::Color color, const Theme& theme);
QFont UiFont(int pixels);
/// Letters whose columns stand below each other.
QFont FixedFont(int pixels);
/// Pixels of so many columns of it.
int FixedWidth(const QFont& font, int columns);

/// The style sheet of a form for letters of that height.
QString FormStyle(const Theme& theme, int letterPixels);
/// The style sheet of the main window round the forms.
QString WindowStyle(const Theme& theme);

}  // namespace desktop
