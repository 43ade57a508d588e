#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/controls.h"

namespace sheets {

/// A property of one fluid over temperature, as a small picture shows it.
struct PropertyCurve {
  /// Name and unit of the property.
  std::string title;
  /// Points at rising temperatures in degC; empty where there is nothing to draw.
  std::vector<std::pair<double, double>> points;
  /// What to say where there is no curve.
  std::string hint;
  /// The values span powers of ten: their logarithms are drawn, where all are positive.
  bool logarithmic = false;
};

/// Draws a curve in a diagram that fills the picture.
void DrawPropertyCurve(forms::DrawSurface& surface, const forms::Picture& picture,
                       const PropertyCurve& curve);

}  // namespace sheets
