#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <cmath>

#include "desktop/paper/draw_surface.h"
#include "desktop/theme.h"

namespace desktop {

/// The sizes that follow from a letter height.
class Scale {
 public:
  explicit Scale(int letterPixels)
      : letterPixels_(letterPixels), digit_(DigitWidth(UiFont(letterPixels))) {}

  int LetterPixels() const { return letterPixels_; }
  /// So many letter heights.
  int Em(double share) const { return static_cast<int>(std::lround(share * letterPixels_)); }
  /// The width of so many digits.
  int Digits(int count) const { return static_cast<int>(std::ceil(digit_ * count)); }
  /// Pixels of a length that was told for the base letter height.
  int Pixels(double base) const { return Em(base / kBaseLetterPixels); }
  /// Pixels of a length in twips at the base letter height.
  int Twips(double twips) const { return Pixels(twips / kTwipsPerPixel); }

 private:
  static double DigitWidth(const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(QLatin1Char('0'));
  }

  int letterPixels_;
  double digit_;
};

}  // namespace desktop
