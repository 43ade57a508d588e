#include "valve/valve_catalogue.h"

#include <gtest/gtest.h>

#include "common/file.h"
#include "common/number.h"

namespace valve {
namespace {

std::string Shipped(const char* name) {
  return common::ReadFile(common::JoinPath(ZEPHA_BUILD_DIR, name));
}

TEST(ValveCatalogue, WritesWhatItReads) {
  const std::string bytes = Shipped("ValveSpec.dat");
  ValveCatalogue catalogue;
  ASSERT_TRUE(ReadValveCatalogue(bytes, catalogue));
  EXPECT_EQ(WriteValveCatalogue(catalogue), bytes);
  EXPECT_EQ(catalogue.valveMaker[0], "標準グローブ弁カタログ");
  EXPECT_EQ(catalogue.valveFL[0][0], "0.9");
  EXPECT_EQ(catalogue.valveSize[4][0][0], "1/4");

  // As the editor leaves a maker that was deleted, and an entry of any words.
  catalogue.valveMaker[1] = "";
  catalogue.valveModel[1][0] = "";
  catalogue.valveChar[1][0] = "-1";
  catalogue.valveFL[0][0] = "1.2.3";
  catalogue.valveModel[0][9] = "ソ表, 能①";  // trail bytes 5C, and a comma
  ValveCatalogue again;
  ASSERT_TRUE(ReadValveCatalogue(WriteValveCatalogue(catalogue), again));
  EXPECT_EQ(again.valveModel, catalogue.valveModel);
  EXPECT_EQ(again.valveChar, catalogue.valveChar);
  EXPECT_EQ(again.valveFL, catalogue.valveFL);
  EXPECT_EQ(again.valveCv, catalogue.valveCv);

  ASSERT_TRUE(ReadValveCatalogue(WriteValveCatalogue({}), again));
  EXPECT_TRUE(again.Empty());
}

// Rated Cv of one style lies near a constant times the square of the seat in inches; the constants
// of published style tables run from 7 to 35 (small-flow trims have no such law).
TEST(ValveCatalogue, CapacitiesGrowWithTheSeat) {
  ValveCatalogue catalogue;
  ASSERT_TRUE(ReadValveCatalogue(Shipped("ValveSpec.dat"), catalogue));
  int trims = 0;
  for (std::size_t maker = 0; maker < 5; ++maker) {
    for (std::size_t model = 0; model < 10; ++model) {
      SCOPED_TRACE(catalogue.valveModel[maker][model]);
      EXPECT_EQ(catalogue.valveModel[maker][model].empty(),
                catalogue.valveFL[maker][model].empty());
      if (catalogue.valveModel[maker][model].empty()) continue;
      const double fl = common::Val(catalogue.valveFL[maker][model]);
      EXPECT_TRUE(fl >= 0.5 && fl <= 1) << fl;
      for (std::size_t trim = 0; trim < 22; ++trim) {
        const std::string& size = catalogue.valveSize[maker][model][trim];
        const double cv = common::Val(catalogue.valveCv[maker][model][trim]);
        EXPECT_EQ(size.empty(), cv == 0);
        if (size.find_first_of("/-x") != std::string::npos || cv < 7) continue;
        const double seat = common::Val(size);
        EXPECT_GT(cv, 6.5 * seat * seat) << size;
        EXPECT_LT(cv, 35 * seat * seat) << size;
        ++trims;
      }
    }
  }
  EXPECT_GT(trims, 150);
}

TEST(ValveDiaTable, BoresGrowWithTheSizeAndStayNearIt) {
  ValveDiaTable table;
  ASSERT_TRUE(ReadValveDiaTable(Shipped("ValveDia.dat"), table));
  EXPECT_FALSE(table.Empty());
  const double inches[] = {0.125, 0.25, 0.375, 0.5, 0.75, 1,  1.25, 1.5, 2,  2.5, 3,  3.5, 4, 5,
                           6,     8,    10,    12,  14,   16, 18,   20,  22, 24,  26, 28,  30};
  for (std::size_t rating = 0; rating < 16; ++rating) {
    double last = 0;
    for (std::size_t size = 0; size < 27; ++size) {
      SCOPED_TRACE(testing::Message() << rating << " " << size);
      const double bore = common::Val(table.valveDia[rating][size]);
      EXPECT_EQ(bore == 0, table.valveDia[rating][size].empty());
      if (bore == 0) continue;
      EXPECT_GT(bore, last);
      EXPECT_GT(bore, 0.65 * 25.4 * inches[size]);
      EXPECT_LT(bore, 1.25 * 25.4 * inches[size]);
      last = bore;
    }
  }
}

TEST(ValveTables, RefuseShortFilesAndAreLeftEmpty) {
  const std::string spec = Shipped("ValveSpec.dat");
  const std::string dia = Shipped("ValveDia.dat");
  ValveCatalogue catalogue;
  ValveDiaTable table;
  for (const std::string& bytes :
       {std::string(), std::string(90000, '\0'), std::string(90000, '"'), spec.substr(0, 5000),
        spec.substr(0, spec.rfind(',')), std::string("\xff\xfe\x81")}) {
    ReadValveCatalogue(spec, catalogue);
    EXPECT_FALSE(ReadValveCatalogue(bytes, catalogue));
    EXPECT_TRUE(catalogue.Empty());
  }
  for (const std::string& bytes : {std::string(), dia.substr(0, dia.size() - 4)}) {
    ReadValveDiaTable(dia, table);
    EXPECT_FALSE(ReadValveDiaTable(bytes, table));
    EXPECT_TRUE(table.Empty());
  }
}

}  // namespace
}  // namespace valve
