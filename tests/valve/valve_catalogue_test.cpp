#include "valve/valve_catalogue.h"

#include <algorithm>

#include "common/number.h"
#include "tests/data/shipped_data.h"

namespace valve {
namespace {

TEST(ValveCatalogue, WritesWhatItReads) {
  const std::string bytes = tests::ShippedFile("ValveSpec.dat");
  ValveCatalogue catalogue;
  ASSERT_TRUE(ReadValveCatalogue(bytes, catalogue));
  EXPECT_EQ(WriteValveCatalogue(catalogue), bytes);

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
  const ValveCatalogue catalogue = tests::Shipped(ReadValveCatalogue, "ValveSpec.dat");
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
  const ValveDiaTable table = tests::Shipped(ReadValveDiaTable, "ValveDia.dat");
  for (const auto& row : rows) {
    EXPECT_NEAR(common::Val(table.valveDia[row.rating][row.size]), row.bore, 0.1)
        << row.rating << " " << row.size;
  }
}

TEST(ValveTables, RefuseDamagedFilesAndAreLeftEmpty) {
  tests::ExpectRefusals(ReadValveCatalogue, tests::ShippedFile("ValveSpec.dat"));
  tests::ExpectRefusals(ReadValveDiaTable, tests::ShippedFile("ValveDia.dat"));
}

}  // namespace
}  // namespace valve
