#include "ducts/cable_table.h"

#include <cmath>

#include "tests/data/shipped_data.h"

namespace ducts {
namespace {

// Three-core PVC cable, 2 and 3.5 mm2, to JIS C 3342: 11.0 mm 160 kg/km, 12.5 mm 220 kg/km; the
// derived figures meet it within 0.1 mm and 5 kg/km.
TEST(CableTable, MeetsAPublishedThreeCoreCable) {
  const CableTable table = tests::Shipped(ReadCableTable, "CableData.dat");
  EXPECT_NEAR(table.controlCableDia[0][1][2], 11.0, 0.11);
  EXPECT_NEAR(table.controlCableWeight[0][1][2], 160, 5.1);
  EXPECT_NEAR(table.controlCableDia[0][1][3], 12.5, 0.11);
  EXPECT_NEAR(table.controlCableWeight[0][1][3], 220, 5.1);
}

TEST(CableTable, GrowsWithCoresAndConductors) {
  const CableTable table = tests::Shipped(ReadCableTable, "CableData.dat");
  for (const CableTable::ByCable* values : {&table.controlCableDia, &table.controlCableWeight,
                                            &table.leadCableDia, &table.leadCableWeight}) {
    for (std::size_t type = 0; type < 3; ++type) {
      const auto& rows = (*values)[type];
      const std::size_t counts = rows[11][0] == 0 ? 11 : 12;  // the paired kinds have eleven
      for (std::size_t i = 0; i < counts * 4; ++i) {
        SCOPED_TRACE(testing::Message() << type << " " << i);
        const std::size_t cores = i / 4, size = i % 4;
        EXPECT_GT(rows[cores][size], 0);
        EXPECT_GE(rows[cores][size], size > 0 ? rows[cores][size - 1] : 0);
        EXPECT_GE(rows[cores][size], cores > 0 ? rows[cores - 1][size] : 0);
      }
    }
  }
  for (std::size_t i = 1; i < 7; ++i) {
    EXPECT_GT(table.copperTubeDia[i], table.copperTubeDia[i - 1]);
    EXPECT_GT(table.copperTubeWeight[i], table.copperTubeWeight[i - 1]);
  }
}

// The clear section of a duct: (W - 2t)(H - 2t), for the wide ones (W - 2t)(H - 3t), with the plate
// of 1.6, 2.3 or 3.2 mm that goes with W + 2H.
TEST(DuctCatalogue, HasTheClearSectionInRisingOrder) {
  const DuctCatalogue catalogue = tests::Shipped(ReadDuctCatalogue, "CableDuct.dat");
  double last = 0;
  for (const DuctCatalogue::Row& row : catalogue.rows) {
    SCOPED_TRACE(row.width);
    const double girth = row.width + 2 * row.depth;
    const double t = girth < 250 ? 1.6 : girth < 1200 ? 2.3 : 3.2;
    const double area = (row.width - 2 * t) * (row.depth - (girth < 1200 ? 2 : 3) * t);
    EXPECT_NEAR(row.area, std::floor(area), 1);
    EXPECT_LE(row.area, area);
    EXPECT_GT(row.area, last);
    last = row.area;
  }
}

TEST(DuctTables, RefuseDamagedFilesAndAreLeftEmpty) {
  const std::string cables = tests::ShippedFile("CableData.dat");
  const std::string ducts = tests::ShippedFile("CableDuct.dat");
  tests::ExpectRefusals(ReadCableTable, cables, {"\"x\"," + cables});
  tests::ExpectRefusals(ReadDuctCatalogue, ducts, {cables, "\"x\"," + ducts});
}

}  // namespace
}  // namespace ducts
