#pragma once

#include <array>
#include <string>

#include "flow/vortex_meter.h"
#include "forms/draw_surface.h"

namespace sheets {

/// What the range chart of the vortex meters shows.
struct VortexChart {
  flow::VortexRatings ratings;
  std::array<std::string, flow::VortexTable::kSizes> sizes;
  double minimumShare = 0;  // minimum flow in per cent of scale
  bool calculated = false;
};

/// Draws the range of every size in per cent of scale, one row a size, rows 10 units apart with
/// bars of 6 units: a bar from the lowest to the highest flow that the meter measures, where the
/// lowest is below scale. The scale ends at 120 %; a bar that goes on beyond has an arrow head
/// there. Sizes that are listed stand in bold, sizes that the maker has not are faint; lines mark
/// the minimum flow and full scale.
void DrawVortexChart(const VortexChart& chart, forms::DrawSurface& surface, double width,
                     double height);

}  // namespace sheets
