#include "data/unit_table.h"

#include "tests/data/shipped_data.h"

namespace data {
namespace {

UnitTable Shipped() { return tests::Shipped(ReadUnitTable, "単位変換.dat"); }

std::string Converted(const UnitTable& table, const std::string& category, const std::string& from,
                      const std::string& to, double value) {
  for (const UnitCategory& candidate : table.categories) {
    if (candidate.categoryName != category) continue;
    std::vector<std::string> names;
    for (const UnitEntry& unit : candidate.units) names.push_back(unit.unitName);
    return ConvertUnit(candidate, tests::IndexOf(names, from), tests::IndexOf(names, to), value)
        .value_or("does not fit");
  }
  return "no such category";
}

// NIST SP 811, appendix B, and the definitions of the units.
TEST(UnitTable, ShippedFactorsAgreeWithPublishedOnes) {
  const struct {
    const char *category, *from, *to;
    double value;
    const char* result;
  } rows[] = {{"長さ", "in", "mm", 1, "25.4"},
              {"長さ", "mile", "km", 1, "1.60934"},
              {"体積", "bbl", "L", 1, "158.987"},
              {"質量", "lb", "kg", 10, "4.53592"},
              {"密度", "lb/ft3", "kg/m3", 1, "16.0185"},
              {"圧力", "kgf/cm2", "kPa", 1, "98.0665"},
              {"圧力", "atm", "mmHg", 1, "760"},
              {"圧力", "MPa", "psi", 1, "145.038"},
              {"圧力", "inH2O", "Pa", 1, "249.089"},
              {"温度", "℃", "°F", 100, "212"},
              {"温度", "°F", "℃", -40, "-40"},
              {"温度", "K", "°F", 273.15, "32"},
              {"温度", "℃", "K", -273.15, "0"},
              {"流量(体積)", "US gal/min", "m3/h", 100, "22.7125"},
              {"流量(質量)", "lb/h", "kg/h", 1000, "453.592"},
              {"流量(気体標準)", "Sm3/h(15℃)", "Nm3/h", 1000, "947.944"},
              {"粘度", "P", "Pa･s", 1, "0.1"},
              {"動粘度", "ft2/s", "m2/s", 1, "0.092903"},
              {"エネルギー", "Btu", "kJ", 1, "1.05506"},
              {"動力", "HP", "W", 1, "745.7"},
              {"動力", "USRT", "kW", 1, "3.51685"},
              {"熱伝導率", "Btu/(ft･h･°F)", "W/(m･K)", 1, "1.73073"},
              {"力", "lbf", "N", 1, "4.44822"},
              {"応力", "ksi", "MPa", 1, "6.89476"},
              {"トルク", "lbf･ft", "N･m", 1, "1.35582"},
              {"速度", "knot", "km/h", 1, "1.852"},
              {"角度", "rad", "度", 1, "57.2958"},
              {"弁容量係数", "Kv", "Cv", 1, "1.1561"},
              {"面積", "acre", "m2", 1, "4,046.86"},
              {"面積", "ft2", "m2", 1, "0.092903"},
              {"比熱", "Btu/(lb･°F)", "kJ/(kg･K)", 1, "4.1868"},
              {"時間", "年(365日)", "s", 1, "31,536,000"},
              {"計装信号", "mA(4-20)", "%", 12, "50"},
              {"計装信号", "V(1-5)", "mA(4-20)", 3, "12"}};
  const UnitTable table = Shipped();
  EXPECT_EQ(table.categories.size(), 24U);
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.category) + row.from);
    EXPECT_EQ(Converted(table, row.category, row.from, row.to, row.value), row.result);
  }
}

UnitCategory Letters(const char* names) {
  UnitCategory category{"c", 0, {}};
  double factor = 1;
  for (const char* name = names; *name != 0; ++name) {
    category.units.push_back({std::string(1, *name), factor, 0});
    factor *= 10;
  }
  return category;
}

/// Names in order, and the base's.
std::string Names(const UnitCategory& category) {
  std::string names;
  for (const UnitEntry& unit : category.units) names += unit.unitName;
  return names + " " + common::At(category.units, category.baseUnitIndex).unitName;
}

TEST(UnitEdits, KeepTheBase) {
  UnitCategory category = Letters("cabD");
  category.baseUnitIndex = 1;
  InsertUnit(category, 0, {"x", 5, 6});
  EXPECT_EQ(Names(category), "xcabD a");
  InsertUnit(category, 5, {"y", 5, 6});
  EXPECT_EQ(Names(category), "xcabDy a");
  RemoveUnit(category, 0);
  EXPECT_EQ(Names(category), "cabDy a");
  ExchangeUnits(category, 1, 0);
  EXPECT_EQ(Names(category), "acbDy a");
  ExchangeUnits(category, 3, 0);
  EXPECT_EQ(Names(category), "Dcbay a");
  EXPECT_TRUE(SortUnits(category));
  EXPECT_EQ(Names(category), "abcDy a");  // capitals make no difference
  EXPECT_EQ(category.units[0].factor, 10);
  EXPECT_EQ(category.units[3].factor, 1000);
  InsertUnit(category, 0, {"a", 7, 0});  // of two units with the base's name the first one is it
  EXPECT_EQ(category.baseUnitIndex, 0);

  EXPECT_THROW(InsertUnit(category, 8, {}), common::RuntimeFault);
  while (category.units.size() < UnitTable::kMaxUnits) InsertUnit(category, 1, {"v", 2, 0});
  EXPECT_THROW(InsertUnit(category, 1, {"v", 2, 0}), common::RuntimeFault);
  EXPECT_THROW(RemoveUnit(category, 51), common::RuntimeFault);

  UnitCategory two = Letters("ba");
  EXPECT_FALSE(SortUnits(two));
  EXPECT_EQ(Names(two), "ba b");
  UnitCategory mixed{"c", 0, {{"m", 1, 0}, {"ｋ", 1, 0}, {"μ", 1, 0}, {"Ｊ", 1, 0}, {"M", 2, 0}}};
  EXPECT_TRUE(SortUnits(mixed));
  EXPECT_EQ(Names(mixed), "mMμＪｋ m");  // equal names keep their order
}

TEST(UnitEdits, CutACategoryName) {
  const struct {
    const char *name, *cut;
  } rows[] = {{"一二三四五六七八九十", "一二三四五六七八九十"},        // 20 bytes
              {"一二三四五六七八九十一", "一二三四五六七八九十一"},    // 22
              {"一二三四五六七八九十一二", "一二三四五六七八九十一"},  // 24
              {"a一二三四五六七八九十二", "a一二三四五六七八九十"},    // 21
              {"abcdefghijklmnopqrstuvwx", "abcdefghijklmnopqrstu"},
              {"ｱｲｳｴｵｶｷｸｹｺｱｲｳｴｵｶｷｸｹｺｱｲ", "ｱｲｳｴｵｶｷｸｹｺｱｲｳｴｵｶｷｸｹｺｱ"}};
  for (const auto& row : rows) EXPECT_EQ(CutCategoryName(row.name), row.cut);
}

TEST(UnitTable, WritesWhatItReads) {
  const std::string bytes = tests::ShippedFile("単位変換.dat");
  EXPECT_EQ(WriteUnitTable(Shipped()), bytes);
  UnitTable table;
  ASSERT_TRUE(ReadUnitTable("\"a\",1,0\n\"b\",1,0\n\"c\",.5,-1E-3", table));  // no last line end
  EXPECT_EQ(WriteUnitTable(table), "\"a\",1,0\r\n\"b\",1,0\r\n\"c\",0.5,-0.001\r\n");
}

std::string Category(std::size_t units) {
  std::string text = "\"c\"," + std::to_string(units - 1) + ",0\r\n";
  for (std::size_t i = 0; i < units; ++i) text += "\"u\",1,0\r\n";
  return text;
}

TEST(UnitTable, RefusesWhatExceedsItsLimits) {
  std::string thirty;
  for (int i = 0; i < 30; ++i) thirty += Category(1);
  const struct {
    const char* what;
    std::string bytes;
    bool accepted;
  } rows[] = {{"30 categories", thirty, true},
              {"31 categories", thirty + Category(1), false},
              {"51 units", Category(51), true},
              {"52 units", Category(52), false},
              {"base index outside", "\"c\",0,1\r\n\"u\",1,0", false},
              {"negative count", "\"c\",-1,0\r\n", false},
              {"huge count", "\"c\",2147483647,0\r\n", false},
              {"broken count", "\"c\",0.5,0\r\n\"u\",1,0", false},
              {"factor no number", "\"c\",0,0\r\n\"u\",one,0", false},
              {"factor with more behind it", "\"c\",0,0\r\n\"u\",1-2,0", false},
              {"factor beyond range", "\"c\",0,0\r\n\"u\",1e999,0", false},
              {"category cut", Category(2) + "\"d\"", false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    UnitTable table;
    EXPECT_EQ(ReadUnitTable(row.bytes, table), row.accepted);
    EXPECT_EQ(table.Empty(), !row.accepted);
  }
  tests::ExpectStrictRefusals(ReadUnitTable, tests::ShippedFile("単位変換.dat"));
}

TEST(ConvertUnit, CombinesOffsetsRoundsAndFormats) {
  const UnitCategory category{"c", 0, {{"base", 1, 0}, {"a", 2, 3}, {"b", 4, 5}, {"0", 0, 0}}};
  const struct {
    int before, after;
    double value;
    const char* text;
  } rows[] = {{1, 2, 10, "4.5"},  // (10*2 - 5 + 3) / 4
              {2, 1, 10, "21"},   // (10*4 - 3 + 5) / 2
              {0, 0, 0, "0"},
              {0, 0, 100, "100"},
              {0, 0, 1234567.891, "1,234,570"},
              {0, 0, 1.2345678, "1.23457"},
              {0, 0, 0.00012345678, "0.000123457"},
              {0, 0, -1234567.891234, "-1,234,567.89123"},
              {0, 0, -0.000001, "0"},
              {0, 0, -0.5, "-0.5"},
              {0, 0, 123456789012.0, "123,457,000,000"},
              {0, 0, 999999999999.0, nullptr},
              {0, 0, 1e13, nullptr},
              {0, 0, -12345678.891234, nullptr}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    const auto text = ConvertUnit(category, row.before, row.after, row.value);
    ASSERT_EQ(text.has_value(), row.text != nullptr);
    if (text) {
      EXPECT_EQ(*text, row.text);
    }
  }
  EXPECT_THROW(ConvertUnit(category, 0, 3, 1), common::RuntimeFault);
  EXPECT_THROW(ConvertUnit(category, 0, 4, 1), common::RuntimeFault);
  EXPECT_THROW(ConvertUnit(category, -1, 0, 1), common::RuntimeFault);
}

}  // namespace
}  // namespace data
