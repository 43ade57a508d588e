#include "data/material_table.h"

#include "common/number.h"
#include "tests/data/shipped_data.h"
#include "tests/support/scripted_messages.h"

namespace data {
namespace {

MaterialTable Shipped() { return tests::Shipped(ReadMaterialTable, "Material.dat"); }

struct Estimate {
  Real value;
  std::vector<common::Message> shown;
};

Estimate At(const MaterialTable& table, MaterialRow property, int material, double celsius) {
  tests::ScriptedMessages messages;
  ProcessState state;
  state.temperatureC = celsius;
  if (property == kDensityRow) {
    const Real density = MaterialDensity(table, material, celsius, messages);
    return {density, messages.shown};
  }
  const auto estimate = property == kYoungsModulusRow ? MaterialYoungsModulus
                        : property == kStressRow      ? MaterialAllowableStress
                                                      : MaterialLinearExpansion;
  const Real value = estimate(table, material, state, messages);
  return {value, messages.shown};
}

// ASME BPVC II-D: TM-1 for the modulus (carbon steel 202 GPa and austenitic 195 GPa at 20 degC, 183
// at 200; in kgf/mm2 of 9.80665 MPa), table 1A for the stress (type 304: 20.0 ksi at 100 degF, 13.8
// at 400; type 316L 16.7 at 100), TE-1 for the mean expansion (carbon steel 12.1 at 100 degC, group
// 3 austenitic 16.2 at 100, 17.0 at 200). Densities of JIS G 3454 and G 3459. 2.25Cr-1Mo: TM-1
// 30.6 Msi, table 1A 16.6 ksi from 200 degF on. Alloy 400: its maker's 8.80 g/cm3, 26.0 Msi, 14.2
// at 93 degC and 15.7 at 316; table 1B 16.7 ksi. Alloy C-276: its maker's 8.89 g/cm3, 29.8 Msi,
// 11.2 at 93 degC and 12.8 at 316; table 1B 27.3 ksi.
TEST(MaterialTable, ShippedValuesAgreeWithTheCode) {
  const struct {
    MaterialRow property;
    const char* material;
    double celsius, value, tolerance;
  } rows[] = {{kDensityRow, "炭素鋼(STPG370)", 20, 7850, 5},
              {kDensityRow, "SUS304", 20, 7930, 5},
              {kDensityRow, "SUS316", 20, 7980, 5},
              {kDensityRow, "モネル400", 20, 8800, 10},
              {kYoungsModulusRow, "炭素鋼(STPG370)", 20, 20600, 100},
              {kYoungsModulusRow, "炭素鋼(STPG370)", 200, 19600, 150},
              {kYoungsModulusRow, "SUS316", 20, 19880, 100},
              {kYoungsModulusRow, "SUS316", 200, 18660, 150},
              {kStressRow, "SUS304", 40, 14.1, 0.1},
              {kStressRow, "SUS304", 200, 9.75, 0.2},
              {kStressRow, "SUS316L", 40, 11.75, 0.1},
              {kExpansionRow, "炭素鋼(STPG370)", 100, 12.1, 0.1},
              {kExpansionRow, "SUS304", 100, 16.2, 0.2},
              {kExpansionRow, "SUS316", 200, 17.0, 0.2},
              {kDensityRow, "低合金鋼(STPA24)", 20, 7850, 5},
              {kYoungsModulusRow, "低合金鋼(STPA24)", 20, 21510, 100},
              {kStressRow, "低合金鋼(STPA24)", 300, 11.7, 0.1},
              {kExpansionRow, "低合金鋼(STPA24)", 100, 12.1, 0.1},
              {kYoungsModulusRow, "モネル400", 20, 18280, 100},
              {kStressRow, "モネル400", 38, 11.7, 0.1},
              {kExpansionRow, "モネル400", 93, 14.2, 0.2},
              {kExpansionRow, "モネル400", 316, 15.7, 0.2},
              {kDensityRow, "ハステロイC-276", 20, 8890, 10},
              {kYoungsModulusRow, "ハステロイC-276", 20, 20950, 100},
              {kStressRow, "ハステロイC-276", 38, 19.2, 0.1},
              {kExpansionRow, "ハステロイC-276", 93, 11.2, 0.25},
              {kExpansionRow, "ハステロイC-276", 316, 12.8, 0.25},
              {kStressRow, "SUS321", 38, 14.1, 0.1},
              {kYoungsModulusRow, "SUS316L", 20, 19880, 100}};
  const MaterialTable table = Shipped();
  const std::vector<std::string> names(table.names.begin(), table.names.end());
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.material) + " " + std::to_string(row.property));
    const Estimate estimate =
        At(table, row.property, tests::IndexOf(names, row.material), row.celsius);
    EXPECT_NEAR(estimate.value, row.value, row.tolerance);
    EXPECT_TRUE(estimate.shown.empty());
  }
}

TEST(MaterialTable, ShippedRangesMeetAndCover20Degrees) {
  const MaterialTable table = Shipped();
  for (int material = 0; material < MaterialTable::kMaterials; ++material) {
    SCOPED_TRACE(table.names[static_cast<std::size_t>(material)]);
    for (const MaterialRow property : {kDensityRow, kYoungsModulusRow, kStressRow, kExpansionRow}) {
      SCOPED_TRACE(property);
      EXPECT_GT(At(table, property, material, 20).value, 0);
      const auto& cells = common::At(table.cells, material);
      const auto& low = common::At(cells, property);
      const auto& high = common::At(cells, property + 1);
      EXPECT_LT(common::Val(low[0]), common::Val(low[1]));
      if (high[1].empty()) continue;
      EXPECT_EQ(high[0], low[1]);
      // No step beyond the 2 % of the fits where the ranges meet.
      const double limit = common::Val(low[1]);
      const double below = At(table, property, material, limit).value;
      EXPECT_NEAR(At(table, property, material, limit + 1e-6).value, below, 0.02 * below + 0.1);
    }
  }
}

/// Material 0 with rows of every kind: two ranges to 100 and 200 degC.
MaterialTable TwoRanges(const std::string& highLimit) {
  MaterialTable table;
  table.names.fill("m");
  for (const std::size_t row : {0U, 2U, 4U, 6U}) {
    table.cells[0][row] = {"-10", "100", "1", "2", "", ""};
    table.cells[0][row + 1] = {"999", highLimit, "1000", "0", "0.1", "1e-3"};
  }
  return table;
}

TEST(MaterialTable, ChoosesTheRangeAndRounds) {
  const struct {
    const char* highLimit;
    double celsius, value;
    bool inRange;
  } rows[] = {{"200", 100, 201, true},     // T1 belongs to the low row
              {"200", 100.1, 3005, true},  // 1000 + 1002.001 + 1003.003 = 3005.004
              {"200", 200, 13000, true},   // 1000 + 4000 + 8000
              {"200", 200.1, 0, false},   {"", 100, 201, true},    {"", 100.1, 0, false},
              {"   ", 100.1, 0, false},   {"50", 75, 151, true},   {"50", 100.1, 0, false},
              {"200", -10, -19, true},    {"200", -10.1, 0, false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.highLimit) + " at " + std::to_string(row.celsius));
    const Estimate estimate = At(TwoRanges(row.highLimit), kYoungsModulusRow, 0, row.celsius);
    EXPECT_NEAR(estimate.value, row.value, 1e-9);
    EXPECT_EQ(estimate.shown.empty(), row.inRange);
  }
  EXPECT_NEAR(At(TwoRanges("200"), kStressRow, 0, 33.33).value, 67.7, 1e-9);
  EXPECT_NEAR(At(TwoRanges("200"), kDensityRow, 0, 33.33).value, 68, 1e-9);
}

TEST(MaterialTable, ShowsItsRangeUnderTheTitleOfTheProperty) {
  MaterialTable blankLow = TwoRanges("");
  blankLow.cells[0][kStressRow][0] = "";
  blankLow.cells[0][kStressRow][1] = "0.5";
  const struct {
    MaterialTable table;
    MaterialRow property;
    double celsius;
    const char *title, *range;
  } rows[] = {{TwoRanges("200"), kDensityRow, 500, "材料密度", "-10～ 200"},
              {TwoRanges("200"), kYoungsModulusRow, 500, "ヤング率", "-10～ 200"},
              {TwoRanges("200"), kStressRow, 500, "許容応力", "-10～ 200"},
              {TwoRanges("200"), kExpansionRow, 500, "線膨張係数", "-10～ 200"},
              {blankLow, kStressRow, -1, "許容応力", " 0～ .5"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.title);
    const Estimate estimate = At(row.table, row.property, 0, row.celsius);
    EXPECT_EQ(estimate.value, 0);
    ASSERT_EQ(estimate.shown.size(), 1U);
    EXPECT_EQ(estimate.shown[0].text, std::string("推算式適用温度は") + row.range + "℃です。");
    EXPECT_EQ(estimate.shown[0].title, row.title);
  }
}

TEST(MaterialTable, BlankRowsGiveZeroAndFaultsAreShown) {
  MaterialTable table;
  EXPECT_EQ(At(table, kDensityRow, 0, 20).value, 0);
  EXPECT_TRUE(At(table, kDensityRow, 0, 20).shown.empty());
  EXPECT_EQ(At(table, kYoungsModulusRow, 0, 20).shown.size(), 1U);  // 20 is beyond 0 to 0
  EXPECT_EQ(At(table, kYoungsModulusRow, 0, 0).value, 0);
  EXPECT_TRUE(At(table, kYoungsModulusRow, 0, 0).shown.empty());
  table = TwoRanges("200");
  table.cells[0][0][2] = "1";
  table.cells[0][0][3] = "-1";  // adds up to 0
  EXPECT_EQ(At(table, kDensityRow, 0, 500).value, 0);
  EXPECT_TRUE(At(table, kDensityRow, 0, 500).shown.empty());
  const Estimate estimate = At(table, kStressRow, 8, 20);
  ASSERT_EQ(estimate.shown.size(), 1U);
  EXPECT_EQ(estimate.shown[0].text, "インデックスが有効範囲にありません。");
}

TEST(MaterialTable, WritesWhatItReadsAndKeepsAShortFile) {
  const std::string good = tests::ShippedFile("Material.dat");
  EXPECT_EQ(WriteMaterialTable(Shipped()), good);
  MaterialTable table;
  EXPECT_FALSE(ReadMaterialTable(good + "\"x\"", table));
  // The names and the first row alone.
  const std::size_t secondRow = good.find("\r\n", good.find("\r\n") + 2) + 2;
  EXPECT_FALSE(ReadMaterialTable(good.substr(0, secondRow), table));
  EXPECT_FALSE(table.Empty());
  EXPECT_EQ(table.names, Shipped().names);
  EXPECT_EQ(table.cells[0][0], Shipped().cells[0][0]);
  EXPECT_EQ(table.cells[0][2][2], "");
  for (const std::string& bytes : tests::DamagedFiles(good)) {
    SCOPED_TRACE(bytes.substr(0, 20));
    EXPECT_FALSE(ReadMaterialTable(bytes, table));
  }
}

}  // namespace
}  // namespace data
