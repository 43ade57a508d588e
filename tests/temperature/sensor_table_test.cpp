#include "temperature/sensor_table.h"

#include <gtest/gtest.h>

#include <cmath>

#include "common/file.h"

namespace temperature {
namespace {

constexpr std::size_t kTypeK = 4;
constexpr std::size_t kPt100 = 8;

std::string Shipped() { return common::ReadFile(common::JoinPath(ZEPHA_BUILD_DIR, "TE.dat")); }

/// Output as the file's numbers mean it: the range whose upper limit lies above t (the last one
/// that is in use at the top), powers of t, for type K the exponential term, and for Pt100 the
/// factor t - 100 at the third power.
double Output(const SensorTable& table, std::size_t kind, double t) {
  std::size_t range = 0;
  while (range < 2 && t >= table.rangeHigh[kind][range]) ++range;
  if (range == 2 && table.rangeHigh[kind][1] == table.rangeHigh[kind][2]) range = 1;
  double sum = 0;
  for (std::size_t power = 15; power-- > 0;) {
    const double coefficient = table.coef[kind][range][power];
    sum = sum * t + (kind == kPt100 && power == 3 ? coefficient * (t - 100) : coefficient);
  }
  if (kind == kTypeK) sum += 118.5976 * std::exp(-0.0001183432 * std::pow(t - 126.9886, 2));
  return kind >= kPt100 ? sum * 100 : sum;
}

// Thermocouples: NIST Monograph 175 / IEC 60584-1:1995 reference tables, uV, whole numbers. Pt100:
// IEC 60751:1995, ohm, two decimals. JPt100 (JIS C 1604-1989): ohm at 0 and the ratio 1.3916.
TEST(SensorTable, GivesTheReferenceTables) {
  SensorTable table;
  ASSERT_TRUE(ReadSensorTable(Shipped(), table));
  EXPECT_FALSE(table.Empty());
  const struct {
    const char* name;
    double t, output, tolerance;
  } rows[] = {
      {"B", 600, 1792, 0.51},         {"B", 1000, 4834, 0.51},
      {"B", 1820, 13820, 0.51},       {"R", -50, -226, 0.51},
      {"R", 100, 647, 0.51},          {"R", 1000, 10506, 0.51},
      {"R", 1700, 20222, 0.51},       {"S", 100, 646, 0.51},
      {"S", 1000, 9587, 0.51},        {"S", 1700, 17947, 0.51},
      {"N", -200, -3990, 0.51},       {"N", 100, 2774, 0.51},
      {"N", 1000, 36256, 0.51},       {"K", -200, -5891, 0.51},
      {"K", -100, -3554, 0.51},       {"K", 0, 0, 0.01},
      {"K", 100, 4096, 0.51},         {"K", 400, 16397, 0.51},
      {"K", 500, 20644, 0.51},        {"K", 1000, 41276, 0.51},
      {"K", 1372, 54886, 0.51},       {"E", -200, -8825, 0.51},
      {"E", 100, 6319, 0.51},         {"E", 1000, 76373, 0.51},
      {"J", -200, -7890, 0.51},       {"J", 100, 5269, 0.51},
      {"J", 1000, 57953, 0.51},       {"T", -200, -5603, 0.51},
      {"T", 100, 4279, 0.51},         {"T", 400, 20872, 0.51},
      {"Pt100", -200, 18.52, 0.0051}, {"Pt100", -100, 60.26, 0.0051},
      {"Pt100", 100, 138.51, 0.0051}, {"Pt100", 850, 390.48, 0.0051},
      {"JPt100", 0, 100, 0.0051},     {"JPt100", 100, 139.16, 0.0051},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.name << " " << row.t);
    std::size_t kind = 0;
    while (kind < 10 && table.sensorName[kind] != row.name) ++kind;
    ASSERT_LT(kind, 10u);
    EXPECT_NEAR(Output(table, kind, row.t), row.output, row.tolerance);
  }
}

TEST(SensorTable, RangesMeetWithoutAStep) {
  SensorTable table;
  ASSERT_TRUE(ReadSensorTable(Shipped(), table));
  for (std::size_t kind = 0; kind < 10; ++kind) {
    SCOPED_TRACE(table.sensorName[kind]);
    const double scale = kind >= kPt100 ? 0.002 : 0.1;  // ohm, uV
    EXPECT_EQ(table.rangeHigh[kind][0], table.rangeLow[kind][1]);
    for (std::size_t range = 0; range < 2; ++range) {
      const double limit = table.rangeHigh[kind][range];
      if (limit == table.rangeHigh[kind][2]) continue;
      EXPECT_NEAR(Output(table, kind, std::nextafter(limit, -1e9)), Output(table, kind, limit),
                  scale);
    }
  }
}

TEST(SensorTable, RefusesDamagedFilesAndIsLeftEmpty) {
  const std::string good = Shipped();
  SensorTable table;
  for (const std::string& bytes :
       {std::string(), good.substr(0, 4000), good.substr(good.find('\n') + 1), "\"x\"," + good,
        good.substr(0, good.size() - 5), std::string(30000, '\x80')}) {
    ReadSensorTable(good, table);
    EXPECT_FALSE(ReadSensorTable(bytes, table));
    EXPECT_TRUE(table.Empty());
  }
}

}  // namespace
}  // namespace temperature
