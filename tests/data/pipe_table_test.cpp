#include "data/pipe_table.h"

#include "tests/data/shipped_data.h"

namespace data {
namespace {

PipeTable Shipped() { return tests::Shipped(ReadPipeTable, "PipeThickness.dat"); }

enum Schedule { kSgp = 0, k10S = 2, k20 = 5, k40 = 7, k80 = 9, k120 = 11, k160 = 13 };

// Outside diameters and walls of JIS G 3452, G 3454, G 3455 and G 3459.
TEST(PipeTable, InnerDiametersFollowFromTheStandards) {
  const struct {
    int size, schedule;
    double innerDiameter;
  } rows[] = {{3, k40, 16.1},    // 1/2: 21.7 - 2 * 2.8
              {5, k80, 25},      // 1: 34.0 - 2 * 4.5
              {8, k40, 52.7},    // 2: 60.5 - 2 * 3.9
              {8, kSgp, 52.9},   // 2: 60.5 - 2 * 3.8
              {12, k40, 102.3},  // 4: 114.3 - 2 * 6.0
              {12, k160, 87.3},  // 4: 114.3 - 2 * 13.5
              {14, k80, 143.2},  // 6: 165.2 - 2 * 11.0
              {15, k40, 199.9},  // 8: 216.3 - 2 * 8.2
              {15, k10S, 208.3}, {17, k120, 267.7}, {23, k20, 590.6}};
  const PipeTable table = Shipped();
  for (const auto& row : rows) {
    SCOPED_TRACE(row.size);
    const auto diameter = table.InnerDiameter(row.size, row.schedule);
    ASSERT_TRUE(diameter);
    EXPECT_NEAR(*diameter, row.innerDiameter, 1e-9);
  }
  EXPECT_EQ(table.OutsideDiameter(12), 114.3F);
  EXPECT_EQ(table.WallThickness(12, k40), 6.0F);
}

TEST(PipeTable, HasNoPipeOutsideTheStandards) {
  const PipeTable table = Shipped();
  const struct {
    int size, schedule;
  } rows[] = {{22, kSgp}, {0, k160}, {3, k20}, {-1, k40}, {25, k40}, {8, -1}, {8, 14}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.size);
    EXPECT_FALSE(table.InnerDiameter(row.size, row.schedule));
  }
  EXPECT_FALSE(PipeTable().InnerDiameter(0, 0));
  EXPECT_THROW(table.WallThickness(25, 0), common::RuntimeFault);
  EXPECT_THROW(table.WallThickness(0, -1), common::RuntimeFault);
  EXPECT_THROW(table.WallThickness(0, 14), common::RuntimeFault);
}

// Within a series (the stainless 5S to 20S, the schedules 10 to 160) walls grow with the schedule,
// and no pipe is closed.
TEST(PipeTable, ShippedWallsGrow) {
  const PipeTable table = Shipped();
  for (int size = 0; size < PipeTable::kSizes; ++size) {
    SCOPED_TRACE(size);
    if (size > 0) {
      EXPECT_GT(table.OutsideDiameter(size), table.OutsideDiameter(size - 1));
    }
    float thinner = 0;
    for (int schedule = 1; schedule < PipeTable::kSchedules; ++schedule) {
      if (schedule == 4) thinner = 0;
      const float wall = table.WallThickness(size, schedule);
      if (wall == 0) continue;
      EXPECT_GT(wall, thinner) << schedule;
      EXPECT_GT(*table.InnerDiameter(size, schedule), 0) << schedule;
      thinner = wall;
    }
  }
}

TEST(PipeTable, RefusesDamagedFiles) {
  const std::string good = tests::ShippedFile("PipeThickness.dat");
  tests::ExpectStrictRefusals(ReadPipeTable, good, {"mm" + good});
}

}  // namespace
}  // namespace data
