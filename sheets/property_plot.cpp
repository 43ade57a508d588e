#include "sheets/property_plot.h"

#include <algorithm>

#include "common/number.h"

namespace sheets {

namespace {

using common::Real;

/// A scale between two values, over a stretch of the picture.
class Scale {
 public:
  Scale(Real first, Real last, double from, double to, bool logarithmic = false)
      : logarithmic_(logarithmic), first_(Place(first)), last_(Place(last)), from_(from), to_(to) {}

  double At(Real value) const {
    const Real length = last_ - first_;
    // A constant stands in the middle.
    const Real share = length > 0 ? (Place(value) - first_) / length : Real(0.5);
    return from_ + share * (to_ - from_);
  }

 private:
  Real Place(Real value) const { return logarithmic_ ? common::log(value) : value; }

  bool logarithmic_;
  Real first_, last_;
  double from_, to_;
};

/// A number with about four digits.
std::string ScaleText(Real value) {
  constexpr int kDigits = 4;
  int decimals = kDigits - 1;
  for (Real limit = 10; limit <= common::abs(value) && decimals > 0; limit *= 10) --decimals;
  if (common::abs(value) < 0.1) decimals = kDigits + 1;
  return common::NumberText(common::RoundDigits(value, decimals));
}

void DrawCurve(forms::DrawSurface& surface, const PropertyCurve& curve, double width,
               double height) {
  const auto& points = curve.points;
  const auto [least, largest] = std::minmax_element(
      points.begin(), points.end(),
      [](const auto& one, const auto& other) { return one.second < other.second; });
  const std::string leastText = ScaleText(least->second);
  const std::string largestText = ScaleText(largest->second);
  const std::string lowText = ScaleText(points.front().first) + "℃";
  const std::string highText = ScaleText(points.back().first) + "℃";
  const double letter = surface.TextHeight();
  const double gap = 0.4 * letter;
  const double top = 1.5 * letter;
  const double bottom = height - 1.3 * letter;
  const double left =
      std::max(surface.TextWidth(leastText), surface.TextWidth(largestText)) + 2 * gap;
  const double right = width - gap;
  const bool logarithmic = curve.logarithmic && least->second > 0;
  const Scale temperatures(points.front().first, points.back().first, left, right);
  const Scale values(least->second, largest->second, bottom - letter, top + letter, logarithmic);

  surface.SetLineWidth(1);
  surface.Rectangle(left, top, right, bottom);
  surface.Text(left, bottom + gap / 2, lowText);
  surface.Text(right - surface.TextWidth(highText), bottom + gap / 2, highText);
  surface.SetLineWidth(0.5);
  for (const auto& [value, text] :
       {std::pair(least->second, leastText), std::pair(largest->second, largestText)}) {
    const double y = values.At(value);
    surface.Text(left - surface.TextWidth(text) - gap, y - letter / 2, text);
    surface.DashedLine(left, y, right, y);
  }

  std::vector<std::pair<double, double>> line;
  for (const auto& [x, y] : points) line.emplace_back(temperatures.At(x), values.At(y));
  surface.SetColor(forms::kBlue);
  surface.SetLineWidth(1.5);
  surface.Polyline(line);
}

}  // namespace

void DrawPropertyCurve(forms::DrawSurface& surface, const forms::Picture& picture,
                       const PropertyCurve& curve) {
  surface.SetColor(forms::kBlack);
  surface.Text(0, 0, curve.logarithmic ? curve.title + "（対数目盛）" : curve.title);
  const bool drawable =
      curve.points.size() > 1 && curve.points.front().first < curve.points.back().first;
  if (drawable) {
    DrawCurve(surface, curve, picture.Width(), picture.Height());
    return;
  }
  surface.Text((picture.Width() - surface.TextWidth(curve.hint)) / 2,
               (picture.Height() - surface.TextHeight()) / 2, curve.hint);
}

}  // namespace sheets
