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
  /// What to say instead of an empty curve.
  std::string hint;
  /// The values stand on a logarithmic scale, where all are positive.
  bool logarithmic = false;
};

/// Draws a curve in a frame that fills the picture, with the ends of the temperature and the least
/// and the largest value.
void DrawPropertyCurve(forms::DrawSurface& surface, const forms::Picture& picture,
                       const PropertyCurve& curve);

}  // namespace sheets
