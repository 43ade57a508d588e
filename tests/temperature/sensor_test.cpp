#include "temperature/sensor.h"

#include <cmath>

#include "common/number.h"
#include "tests/data/shipped_data.h"
#include "tests/support/scripted_messages.h"

namespace temperature {
namespace {

enum Kind { kB, kR, kS, kN, kK, kE, kJ, kT, kPt, kJPt };

class SensorTest : public testing::Test {
 protected:
  double Output(int kind, double t) {
    const auto output = CalcSensorOutput(table, kind, t, messages, "");
    EXPECT_TRUE(output) << kind << " " << t;
    return output.value_or(0);
  }

  const SensorTable table = tests::Shipped(ReadSensorTable, "TE.dat");
  tests::ScriptedMessages messages;
};

// Values of the reference tables as printed: NIST ITS-90 Thermocouple Database (= IEC 60584-1,
// JIS C 1602-1995) in uV, IEC 60751 = JIS C 1604-1997 in ohm, JIS C 1604-1989. What is shown has
// their digits. Of type K, also where a sum that is 0.02 uV off would show another digit.
TEST_F(SensorTest, AgreesWithThePublishedTables) {
  const struct {
    int kind;
    double t, output;
  } rows[] = {
      {kB, 600, 1792},     {kB, 1000, 4834},   {kB, 1820, 13820},  {kR, -50, -226},
      {kR, 100, 647},      {kR, 1000, 10506},  {kR, 1700, 20222},  {kS, -50, -236},
      {kS, -23, -117},     {kS, 37, 216},      {kS, 255, 1918},    {kS, 630, 5546},
      {kS, 1064, 10332},   {kS, 1065, 10344},  {kS, 1333, 13559},  {kN, -270, -4345},
      {kN, -200, -3990},   {kN, 100, 2774},    {kN, 1000, 36256},  {kK, -200, -5891},
      {kK, -100, -3554},   {kK, 0, 0},         {kK, 33, 1326},     {kK, 100, 4096},
      {kK, 127, 5206},     {kK, 155, 6339},    {kK, 173, 7060},    {kK, 186, 7579},
      {kK, 208, 8458},     {kK, 499, 20602},   {kK, 500, 20644},   {kK, 501, 20687},
      {kK, 777, 32330},    {kK, 1234, 50070},  {kK, 1372, 54886},  {kE, -200, -8825},
      {kE, 100, 6319},     {kE, 1000, 76373},  {kJ, -210, -8095},  {kJ, 100, 5269},
      {kJ, 760, 42919},    {kJ, 1200, 69553},  {kT, -200, -5603},  {kT, 100, 4279},
      {kT, 400, 20872},    {kPt, -200, 18.52}, {kPt, -100, 60.26}, {kPt, 0, 100},
      {kPt, 100, 138.51},  {kPt, 300, 212.05}, {kPt, 850, 390.48}, {kJPt, 0, 100},
      {kJPt, 100, 139.16},
  };
  for (const auto& row : rows) {
    const int digits = IsResistance(row.kind) ? 2 : 0;
    EXPECT_EQ(common::RoundDigits(Output(row.kind, row.t), digits), row.output)
        << table.sensorName[static_cast<std::size_t>(row.kind)] << " " << row.t;
  }
}

TEST_F(SensorTest, LimitsAreInsideAndBeyondThemItSaysSo) {
  for (int kind = 0; kind < SensorTable::kKinds; ++kind) {
    const Real low = common::At(table.rangeLow, kind)[0];
    const Real high = common::At(table.rangeHigh, kind)[2];
    Output(kind, low);
    EXPECT_GT(Output(kind, high), 1);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_FALSE(CalcSensorOutput(table, kind, low - 0.001, messages, "計器目盛較正"));
    EXPECT_FALSE(CalcSensorOutput(table, kind, high + 0.001, messages, "計器目盛較正"));
    EXPECT_EQ(messages.Texts(),
              (std::vector<std::string>{"温度が低すぎます。", "温度が高すぎます。"}));
    EXPECT_EQ(messages.shown[0].title, "計器目盛較正");
    messages.shown.clear();
  }
}

TEST_F(SensorTest, OutputBeyondTheTableGivesItsLimit) {
  EXPECT_NEAR(CalcTemperature(table, kK, 99999), 1372, 0.005);
  EXPECT_NEAR(CalcTemperature(table, kK, -7000), -270, 0.005);
  // The upper one of the two temperatures of type B.
  EXPECT_NEAR(CalcTemperature(table, kB, -1), 37.5, 0.1);
}

// IPTS-68 (text of 1975, equation 11): the correction vanishes at its four fixed points and is at
// most 0.047 K between.
TEST_F(SensorTest, OldScaleMeetsTheNewOneAtItsFixedPoints) {
  for (const double t : {0.0, 100.0, 419.58, 630.74}) EXPECT_NEAR(OldScaleTemperature(t), t, 1e-9);
  EXPECT_NEAR(OldScaleTemperature(300) + ScaleDifference(OldScaleTemperature(300)), 300, 1e-3);
  EXPECT_NE(OldScaleTemperature(300), 300);
}

// To 0.1 uV or 0.002 ohm.
TEST_F(SensorTest, RangesMeetWithoutAStep) {
  for (int kind = 0; kind < SensorTable::kKinds; ++kind) {
    const auto& high = common::At(table.rangeHigh, kind);
    EXPECT_EQ(high[0], common::At(table.rangeLow, kind)[1]);
    for (const double limit : {high[0], high[1]}) {
      if (limit == high[2]) continue;
      EXPECT_NEAR(Output(kind, std::nextafter(limit, -1e9)), Output(kind, limit),
                  IsResistance(kind) ? 0.002 : 0.1)
          << kind << " " << limit;
    }
  }
}

// Two kinds that give the number of their range, and two with nothing but their own terms. A limit
// belongs to the range above, the top one to its own; type K has 118.5976 uV at 126.9886 degC and
// e^-1.183432 of it 100 K away; the bulb of the old scale has the old temperature above 0 degC.
TEST(SensorFormula, HasItsRangesAndTerms) {
  SensorTable table;
  for (const Kind kind : {kB, kR, kK, kJPt}) {
    table.rangeLow[kind] = {-100, 10, 20};
    table.rangeHigh[kind] = {10, 20, kind == kR ? 20 : 300};  // type R has two ranges
    for (const int range : {0, 1, 2}) {
      auto& coefficients = common::At(table.coef[kind], range);
      if (kind == kB || kind == kR) coefficients[0] = range;
      if (kind == kJPt) coefficients[1] = 0.01;
    }
  }
  const struct {
    Kind kind;
    double t, output;
  } rows[] = {{kB, 9.999, 0},
              {kB, 10, 1},
              {kB, 19.999, 1},
              {kB, 20, 2},
              {kB, 300, 2},
              {kR, 10, 1},
              {kR, 20, 1},
              {kK, 126.9886, 118.5976},
              {kK, 226.9886, 36.3176646},
              {kJPt, -50, -50},
              {kJPt, 0, 0},
              {kJPt, 50, 50.00912}};
  tests::ScriptedMessages messages;
  for (const auto& [kind, t, output] : rows) {
    EXPECT_NEAR(*CalcSensorOutput(table, kind, t, messages, ""), output, kind == kJPt ? 1e-5 : 1e-6)
        << t;
  }
  for (const double t : {-50.0, 50.0}) {
    EXPECT_NEAR(CalcTemperature(table, kJPt, t > 0 ? 50.00912 : t), t, 0.002);
  }
}

TEST(SensorTable, RefusesDamagedFiles) {
  const std::string good = tests::ShippedFile("TE.dat");
  tests::ExpectRefusals(ReadSensorTable, good, {"\"x\"," + good});
}

}  // namespace
}  // namespace temperature
