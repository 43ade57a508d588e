#include "valve/valve_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>

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

// FL and capacity per square inch of bore by style: ISA S75.01-1985, table of representative
// values; FL of the last three IEC 60534-2-1, table of typical values.
TEST(ValveCatalogue, AgreesWithThePublishedStyles) {
  const struct {
    std::size_t maker, model;
    const char* name;
    double fl, capacity;
  } rows[] = {
      {0, 0, "単座グローブ弁 等百分率", 0.90, 11}, {0, 2, "複座グローブ弁 等百分率", 0.85, 13},
      {0, 4, "ケージ弁 等百分率", 0.90, 14},       {1, 0, "バタフライ弁 60度", 0.68, 17.5},
      {1, 1, "バタフライ弁 フルート形", 0.70, 25}, {1, 2, "偏心バタフライ弁 90度", 0.60, 29},
      {1, 3, "ボール弁 標準口径", 0.55, 30},       {1, 5, "偏心プラグ弁 流開", 0.85, 12},
      {1, 6, "偏心プラグ弁 流閉", 0.68, 13.5},     {2, 0, "アングル弁 流開", 0.90, 17},
      {2, 1, "アングル弁 流閉", 0.80, 20},         {2, 3, "アングルケージ弁 流閉", 0.80, 12},
      {2, 4, "アングル弁 ベンチュリ形", 0.50, 22}, {1, 4, "セグメントボール弁", 0.60, 25},
      {3, 0, "06-M 微少流量弁", 0.98, 0},          {4, 0, "VSM 微少流量弁", 0.95, 0}};
  ValveCatalogue catalogue;
  ASSERT_TRUE(ReadValveCatalogue(Shipped("ValveSpec.dat"), catalogue));
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(catalogue.valveModel[row.maker][row.model], row.name);
    EXPECT_EQ(common::Val(catalogue.valveFL[row.maker][row.model]), row.fl);
    if (row.capacity == 0) continue;
    const auto& sizes = catalogue.valveSize[row.maker][row.model];
    const auto four = std::find(sizes.begin(), sizes.end(), "4") - sizes.begin();
    ASSERT_LT(four, 22);
    EXPECT_NEAR(
        common::Val(catalogue.valveCv[row.maker][row.model][static_cast<std::size_t>(four)]),
        16 * row.capacity, 0.4 * row.capacity);  // two significant figures
  }
}

// Inside diameters by class of ASME B16.34, table A-1, inches; for JIS 30K and 40K those of Sch80
// (JIS G 3454), for 63K those of Sch160 (JIS G 3456), mm.
TEST(ValveDiaTable, AgreesWithPublishedDiameters) {
  constexpr double kInch = 25.4;
  const struct {
    std::size_t rating, size;
    double bore;
  } rows[] = {{9, 3, 0.50 * kInch},    {9, 18, 13.25 * kInch},    {9, 26, 29.25 * kInch},
              {10, 20, 17.00 * kInch}, {10, 23, 23.00 * kInch},   {12, 15, 7.87 * kInch},
              {12, 17, 11.75 * kInch}, {12, 23, 22.00 * kInch},   {13, 5, 0.87 * kInch},
              {13, 14, 5.75 * kInch},  {13, 26, 26.25 * kInch},   {14, 10, 2.75 * kInch},
              {14, 12, 3.62 * kInch},  {14, 16, 8.75 * kInch},    {14, 23, 19.62 * kInch},
              {15, 3, 0.44 * kInch},   {15, 8, 1.50 * kInch},     {15, 17, 8.62 * kInch},
              {5, 8, 60.5 - 2 * 5.5},  {5, 19, 406.4 - 2 * 21.4}, {6, 12, 114.3 - 2 * 8.6},
              {7, 3, 21.7 - 2 * 4.7},  {7, 12, 114.3 - 2 * 13.5}, {7, 15, 216.3 - 2 * 23.0}};
  ValveDiaTable table;
  ASSERT_TRUE(ReadValveDiaTable(Shipped("ValveDia.dat"), table));
  for (const auto& row : rows) {
    EXPECT_NEAR(common::Val(table.valveDia[row.rating][row.size]), row.bore, 0.1)
        << row.rating << " " << row.size;
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
