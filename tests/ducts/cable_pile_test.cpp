#include "ducts/cable_pile.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace ducts {
namespace {

// Nothing overlaps, nothing leaves the section, and what is drawn is the cables' area.
TEST(CablePile, LiesInTheSectionWithoutOverlap) {
  const std::vector<CableRun> cables = {{10.5, 0, 60}, {31, 0, 12}, {19.5, 0, 20}};
  const CablePile pile = PileCables(cables, 295, 195);
  EXPECT_EQ(pile.left, 0);
  ASSERT_EQ(pile.cables.size(), 92U);
  double area = 0;
  for (std::size_t i = 0; i < pile.cables.size(); ++i) {
    const PlacedCable& a = pile.cables[i];
    EXPECT_GE(a.x - a.radius, -1e-9);
    EXPECT_LE(a.x + a.radius, 295 + 1e-9);
    EXPECT_GE(a.y - a.radius, -1e-9);
    EXPECT_LE(a.y + a.radius, 195 + 1e-9);
    for (std::size_t j = 0; j < i; ++j) {
      const PlacedCable& b = pile.cables[j];
      EXPECT_GE(std::hypot(a.x - b.x, a.y - b.y), a.radius + b.radius - 1e-6);
    }
    area += std::numbers::pi * a.radius * a.radius;
  }
  double expected = 0;
  for (const CableRun& run : cables) {
    expected += static_cast<double>(LoadOf(run, 1).area);
  }
  EXPECT_NEAR(area, expected, 1e-3 * expected);
}

TEST(CablePile, BearsWhatFitsNowhere) {
  EXPECT_EQ(PileCables({{300, 0, 2}}, 200, 100).left, 2);
  EXPECT_EQ(PileCables({{0, 0, 5}}, 200, 100).left, 5);
  EXPECT_EQ(PileCables({{20, 0, 5}}, 0, 100).cables.size(), 0U);
  const CablePile crowd = PileCables({{10, 0, 1e12}}, 1000, 400);
  EXPECT_EQ(crowd.cables.size(), 1500U);
  EXPECT_EQ(crowd.left, 1e12 - 1500);
}

}  // namespace
}  // namespace ducts
