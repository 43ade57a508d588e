#include "sheets/property_plot.h"

#include <algorithm>
#include <cmath>

#include "common/real.h"
#include "sheets/chart.h"

namespace sheets {

namespace {

/// Beyond it the labels of an axis would be as long as the axis.
constexpr double kLargest = 1e9;

/// The values between the axis' ends with a little room; a constant stands in the middle.
Chart::Axis ValueAxis(const std::string& title, const Chart::Points& points) {
  constexpr double kRoom = 0.05;
  const auto [least, largest] = std::minmax_element(
      points.begin(), points.end(),
      [](const auto& one, const auto& other) { return one.second < other.second; });
  const double size = std::max(-least->second, largest->second);
  const double range = largest->second - least->second;
  const double room = range > 1e-6 * size ? kRoom * range : std::max(0.1 * size, 1e-6);
  return {title, least->second - room, largest->second + room};
}

bool IsDrawable(const Chart::Points& points) {
  return points.size() > 1 && points.front().first < points.back().first &&
         std::all_of(points.begin(), points.end(), [](const auto& point) {
           return std::abs(point.first) < kLargest && std::abs(point.second) < kLargest;
         });
}

}  // namespace

void DrawPropertyCurve(forms::DrawSurface& surface, const forms::Picture& picture,
                       const PropertyCurve& curve) {
  if (!IsDrawable(curve.points)) {
    DrawEmptyChart(surface, picture.Width(), picture.Height(), curve.hint);
    return;
  }
  Chart::Points points = curve.points;
  std::string title = curve.title;
  const bool logarithmic =
      curve.logarithmic &&
      std::all_of(points.begin(), points.end(), [](const auto& point) { return point.second > 0; });
  if (logarithmic) {
    title = "log10 " + title;
    for (auto& [x, y] : points) y = common::log(common::Real(y)) / common::log(common::Real(10));
  }
  Chart chart(surface, picture.Width(), picture.Height(),
              {"温度 ℃", points.front().first, points.back().first}, ValueAxis(title, points));
  chart.Grid();
  chart.Curve(points, forms::kBlue);
}

}  // namespace sheets
