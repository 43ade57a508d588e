#include "ducts/cable_table.h"

#include <gtest/gtest.h>

#include <cmath>

#include "common/file.h"

namespace ducts {
namespace {

std::string Shipped(const char* name) {
  return common::ReadFile(common::JoinPath(ZEPHA_BUILD_DIR, name));
}

// Three-core PVC cable, 2 and 3.5 mm2, to JIS C 3342: 11.0 mm 160 kg/km, 12.5 mm 220 kg/km; the
// derived figures meet it within 0.1 mm and 5 kg/km.
TEST(CableTable, MeetsAPublishedThreeCoreCable) {
  CableTable table;
  ASSERT_TRUE(ReadCableTable(Shipped("CableData.dat"), table));
  EXPECT_FALSE(table.Empty());
  EXPECT_NEAR(table.controlCableDia[0][1][2], 11.0, 0.11);
  EXPECT_NEAR(table.controlCableWeight[0][1][2], 160, 5.1);
  EXPECT_NEAR(table.controlCableDia[0][1][3], 12.5, 0.11);
  EXPECT_NEAR(table.controlCableWeight[0][1][3], 220, 5.1);
}

TEST(CableTable, GrowsWithCoresAndConductors) {
  CableTable table;
  ASSERT_TRUE(ReadCableTable(Shipped("CableData.dat"), table));
  const auto check = [](const CableTable::ByCable& values, bool lead) {
    for (std::size_t type = 0; type < 3; ++type) {
      const std::size_t counts = type == 0 && !lead ? 12 : 11;  // the paired kinds have eleven
      for (std::size_t cores = 0; cores < counts; ++cores) {
        for (std::size_t size = 0; size < 4; ++size) {
          SCOPED_TRACE(testing::Message() << type << " " << cores << " " << size);
          EXPECT_GT(values[type][cores][size], 0);
          if (size > 0) {
            EXPECT_GE(values[type][cores][size], values[type][cores][size - 1]);
          }
          if (cores > 0) {
            EXPECT_GE(values[type][cores][size], values[type][cores - 1][size]);
          }
        }
      }
      if (counts == 11) {
        EXPECT_EQ(values[type][11][0], 0);
      }
    }
  };
  check(table.controlCableDia, false);
  check(table.controlCableWeight, false);
  check(table.leadCableDia, true);
  check(table.leadCableWeight, true);
  for (std::size_t i = 1; i < 7; ++i) {
    EXPECT_GT(table.copperTubeDia[i], table.copperTubeDia[i - 1]);
    EXPECT_GT(table.copperTubeWeight[i], table.copperTubeWeight[i - 1]);
  }
}

// The clear section of a duct: (W - 2t)(H - 2t), for the wide ones (W - 2t)(H - 3t), with the plate
// of 1.6, 2.3 or 3.2 mm that goes with W + 2H.
TEST(DuctCatalogue, HasTheClearSectionInRisingOrder) {
  DuctCatalogue catalogue;
  ASSERT_TRUE(ReadDuctCatalogue(Shipped("CableDuct.dat"), catalogue));
  EXPECT_FALSE(catalogue.Empty());
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
  const std::string cables = Shipped("CableData.dat");
  const std::string ducts = Shipped("CableDuct.dat");
  CableTable table;
  DuctCatalogue catalogue;
  for (const std::string& bytes : {std::string(), cables.substr(0, 3000), "\"x\"," + cables,
                                   cables.substr(0, cables.rfind(',')), std::string(40000, '1')}) {
    ReadCableTable(cables, table);
    EXPECT_FALSE(ReadCableTable(bytes, table));
    EXPECT_TRUE(table.Empty());
  }
  for (const std::string& bytes :
       {std::string(), ducts.substr(0, ducts.rfind(',')), "\"x\"," + ducts, cables}) {
    ReadDuctCatalogue(ducts, catalogue);
    EXPECT_FALSE(ReadDuctCatalogue(bytes, catalogue));
    EXPECT_TRUE(catalogue.Empty());
  }
}

}  // namespace
}  // namespace ducts
