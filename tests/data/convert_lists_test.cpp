#include "data/convert_lists.h"

#include "common/text.h"
#include "tests/data/shipped_data.h"

namespace data {
namespace {

TEST(ConvertLists, EveryListStandsInItsPlace) {
  const ConvertLists lists = tests::Shipped(ReadConvertLists, "ZephaConvertData.dat");
  const struct {
    const char* name;
    const TextList& list;
    std::size_t size;
    const char *first, *last;
  } rows[] = {
      {"fluids", lists.fluids, 3, "液体", "蒸気"},
      {"liquid flow", lists.liquidFlowUnits, 5, "kg/h", "t/h"},
      {"gas flow", lists.gasFlowUnits, 7, "kg/h", "Sm3/h"},
      {"steam flow", lists.reportSteamFlowUnits, 2, "kg/h", "t/h"},
      {"pressure", lists.pressureUnits, 7, "kPaG", "psiG"},
      {"temperature", lists.temperatureUnits, 3, "℃", "ﾟＦ"},
      {"gas density", lists.gasDensityUnits, 5, "kg/Nm3", "比重(G)"},
      {"steam density", lists.reportSteamDensityUnits, 1, "kg/m3", "kg/m3"},
      {"viscosity", lists.viscosityUnits, 3, "mPa･s", "cSt"},
      {"vapour pressure", lists.vapourPressureUnits, 7, "kPaA", "psiA"},
      {"differential", lists.differentialUnits, 6, "kPa", "mbar"},
      {"sizes", lists.nominalSizes, 25, "1/8", "26"},
      {"schedules", lists.schedules, 15, "SGP", ""},
      {"elements", lists.elementKinds, 11, "フランジタップオリフィス", "ノズル型ベンチュリ管"},
      {"integral", lists.integralModels, 5, "14mm系 高レンジ（500～21000mmH2O）",
       "13mm系（100～40000mmH2O）"},
      {"mountings", lists.thermowellMountings, 3, "配管", ""},
      {"stress", lists.reportStressUnits, 3, "kgf/mm2", "MPa"},
      {"valve sizes", lists.valveSizes, 27, "1/8", "30"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    ASSERT_EQ(row.list.size(), row.size);
    EXPECT_EQ(row.list.front(), row.first);
    EXPECT_EQ(row.list.back(), row.last);
    for (const std::string& text : row.list) EXPECT_FALSE(common::FirstOutsideCp932(text)) << text;
  }
  // Records of valves use one index for the pipe table and the valve sizes.
  EXPECT_TRUE(
      std::equal(lists.nominalSizes.begin(), lists.nominalSizes.end(), lists.valveSizes.begin()));
  EXPECT_EQ(lists.nominalSizes[12], "4");
  EXPECT_EQ(lists.nominalSizes[8], "2");
  EXPECT_EQ(lists.schedules[7], "Sch40");
  EXPECT_EQ(ShownItems(lists.schedules).size(), 14U);
  EXPECT_EQ(ShownItems(lists.thermowellMountings), (TextList{"配管", "攪拌槽"}));
}

TEST(ConvertLists, RefusesFilesOfAnotherSize) {
  tests::ExpectStrictRefusals(ReadConvertLists, tests::ShippedFile("ZephaConvertData.dat"));
}

}  // namespace
}  // namespace data
