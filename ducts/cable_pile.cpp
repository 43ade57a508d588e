#include "ducts/cable_pile.h"

#include <algorithm>

namespace ducts {

namespace {

constexpr int kMostCables = 1500;
constexpr int kMostStrips = 400;

/// Cables by the strip of the section in which their centres lie, so that only near ones are asked.
class PileBuilder {
 public:
  PileBuilder(double width, double height, double thickest)
      : width_(width), height_(height), strip_(std::max(thickest, width / kMostStrips)) {
    strips_.resize(static_cast<std::size_t>(width / strip_) + 1);
  }

  /// Lays a cable at the lowest free place; false when there is none.
  bool Lay(double radius) {
    constexpr int kPlaces = 160;
    constexpr double kLower = 1e-9;  // mm; of places that are as low the first one counts
    if (2 * radius > width_) return false;
    PlacedCable best{0, height_, radius};
    for (int i = 0; i <= kPlaces; ++i) {
      const double x = radius + (width_ - 2 * radius) * i / kPlaces;
      const double y = RestingHeight(x, radius);
      if (y < best.y - kLower) best = {x, y, radius};
    }
    if (best.y + radius > height_) return false;
    strips_[StripOf(best.x)].push_back(best);
    cables_.push_back(best);
    return true;
  }

  std::vector<PlacedCable> Take() { return std::move(cables_); }

 private:
  std::size_t StripOf(double x) const {
    return std::min(static_cast<std::size_t>(x / strip_), strips_.size() - 1);
  }

  /// Height of the centre of a cable that comes down at x.
  double RestingHeight(double x, double radius) const {
    double y = radius;
    const std::size_t strip = StripOf(x);
    const std::size_t last = std::min(strip + 1, strips_.size() - 1);
    for (std::size_t i = strip == 0 ? 0 : strip - 1; i <= last; ++i) {
      for (const PlacedCable& cable : strips_[i]) {
        const Real reach = cable.radius + radius;
        const Real dx = cable.x - x;
        if (abs(dx) < reach) y = std::max<double>(y, cable.y + sqrt(reach * reach - dx * dx));
      }
    }
    return y;
  }

  double width_;
  double height_;
  double strip_;
  std::vector<std::vector<PlacedCable>> strips_;
  std::vector<PlacedCable> cables_;
};

}  // namespace

CablePile PileCables(const std::vector<CableRun>& cables, double width, double height) {
  CablePile pile;
  std::vector<CableRun> byDiameter = cables;
  std::stable_sort(byDiameter.begin(), byDiameter.end(),
                   [](const auto& a, const auto& b) { return a.diameter > b.diameter; });
  if (byDiameter.empty() || width <= 0 || height <= 0) return pile;
  PileBuilder builder(width, height, byDiameter.front().diameter);
  int laid = 0;
  for (const CableRun& run : byDiameter) {
    const Real count = Int(run.quantity);  // a part of a cable is none
    const int before = laid;
    while (run.diameter > 0 && laid - before < count && laid < kMostCables &&
           builder.Lay(run.diameter / 2)) {
      ++laid;
    }
    pile.left += count - (laid - before);
  }
  pile.cables = builder.Take();
  return pile;
}

}  // namespace ducts
