#pragma once

#include <vector>

#include "ducts/duct_sizing.h"

namespace ducts {

/// A cable as a circle in the clear section, mm from its lower left corner.
struct PlacedCable {
  double x;
  double y;
  double radius;
};

/// Cables that have been laid into a duct.
struct CablePile {
  std::vector<PlacedCable> cables;
  /// Cables that found no room, or are too many to draw.
  Real left;
};

/// Lays cables into a section that wide and high (mm), thick ones first, each at the lowest place
/// that is free. An image of how they may lie, not a plan.
CablePile PileCables(const std::vector<CableRun>& cables, double width, double height);

}  // namespace ducts
