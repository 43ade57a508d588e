#include "flow/vortex_meter.h"

#include <cmath>
#include <functional>

#include "common/fault.h"
#include "tests/data/shipped_data.h"

namespace flow {
namespace {

const VortexTable& Table() {
  static const VortexTable kTable = tests::Shipped(ReadVortexTable, "Vortex.dat");
  return kTable;
}

VortexInputs Service(int maker, int phase, double scaleFlow) {
  VortexInputs inputs;
  inputs.maker = maker;
  inputs.fluidPhase = phase;
  inputs.p = 6;
  inputs.t = 15;
  inputs.rho = phase == kLiquid ? 999.1 : 7.0;
  inputs.mu = phase == kLiquid ? 1.14 : 0.018;
  inputs.scaleFlow = scaleFlow;
  return inputs;
}

double Bore(int maker, int i) {
  return Table().meterBore[static_cast<std::size_t>(maker)][static_cast<std::size_t>(i)];
}

/// Calls a check for every size that a maker has.
void ForEachMeter(const std::function<void(int maker, int i, double bore)>& check) {
  for (int maker = 0; maker < 4; ++maker) {
    for (int i = 0; i < 10; ++i) {
      SCOPED_TRACE(testing::Message() << maker << " " << i);
      if (Bore(maker, i) > 0) check(maker, i, Bore(maker, i));
    }
  }
}

double Velocity(double flow, double bore) { return flow / 3600 / (M_PI / 4 * bore * bore / 1e6); }

// Velocity heads lost: 2.40 by the first two makers from 40 mm on, 2.16 by the others.
TEST(MeterPressureLoss, IsAMultipleOfTheVelocityHead) {
  ForEachMeter([](int maker, int i, double bore) {
    if (maker < 2 && i < 2) return;
    const VortexInputs inputs = Service(maker, kLiquid, 50);
    const double v = Velocity(50, bore);
    const double head = inputs.rho * v * v / 2 / 98066.5;
    EXPECT_NEAR(MeterPressureLoss(Table(), inputs, i) / head, maker < 2 ? 2.40 : 2.16, 0.01);
  });
}

// Strouhal number f w / v of a bluff body of 0.28 D: 0.24 to 0.265 by the makers' figures.
TEST(MeterFrequency, FollowsTheStrouhalNumber) {
  ForEachMeter([](int maker, int i, double bore) {
    const double size = Table().meterSize[static_cast<std::size_t>(i)];
    EXPECT_NEAR(bore, size, 0.12 * size);
    const double flow = 0.0028274 * bore * bore * 5;  // 5 m/s
    const double hertz = MeterFrequency(Table(), Service(maker, kLiquid, flow), i, 200);
    const double strouhal = hertz * 0.28 * bore / 1000 / 5;
    EXPECT_GT(strouhal, 0.235);
    EXPECT_LT(strouhal, 0.268);
  });
  const VortexInputs inputs = Service(0, kLiquid, 10);
  EXPECT_EQ(MeterFrequency(Table(), inputs, 2, 94.9), 0);
  EXPECT_GT(MeterFrequency(Table(), inputs, 2, 95), 0);
  // The body grows by three times the expansion of stainless steel, 16e-6 per degree.
  EXPECT_NEAR(KFactorAtTemperature(1, 115), 1 - 3 * 16e-6 * 100, 2e-5);
}

TEST(MeterFlowLimits, LargestVelocity) {
  for (int maker = 0; maker < 4; ++maker) {
    for (const int phase : {kLiquid, kGas, kSteam}) {
      SCOPED_TRACE(testing::Message() << maker << " " << phase);
      const double expected = phase == kLiquid ? 10 : maker < 2 ? 60 : 80;
      const MeterRange range = MeterFlowLimits(Table(), Service(maker, phase, 50), 3);
      EXPECT_NEAR(Velocity(range.qMax, Bore(maker, 3)), expected, 0.001 * expected);
    }
  }
}

// Pipe Reynolds number that bounds a viscous liquid: 2e4 (the last makers' from 150 mm on: 4e4).
TEST(MeterFlowLimits, LowestReynoldsNumber) {
  ForEachMeter([](int maker, int i, double bore) {
    VortexInputs inputs = Service(maker, kLiquid, 50);
    inputs.mu = 60;
    const double flow = MeterFlowLimits(Table(), inputs, i).qMin;
    const double re = Velocity(flow, bore) * bore / 1000 * inputs.rho / 0.060;
    const double expected = maker < 2 || i < 6 ? 2e4 : 4e4;
    EXPECT_NEAR(re, expected, 2e-3 * expected);
  });
  // A gas of the first makers is capped at 1e8.
  VortexInputs thin = Service(0, kGas, 50);
  thin.mu = 1e-5;
  const double re = Velocity(MeterFlowLimits(Table(), thin, 3).qMax, 52.7) * 0.0527 * 7 / 1e-8;
  EXPECT_NEAR(re, 1e8, 2e5);
}

// Velocity bounds worked out by hand at both sides of each step.
TEST(MeterFlowLimits, LowestVelocity) {
  const struct {
    int maker, phase, i;
    double rho, v;
  } rows[] = {
      {0, kGas, 0, 4, 9.6 / std::cbrt(4)},  // 15 mm
      {0, kGas, 1, 1.19, 7 / std::sqrt(1.19)},
      {0, kGas, 1, 1.2, 7 / std::cbrt(1.2)},
      {0, kGas, 8, 8, 3.5},
      {0, kLiquid, 1, 900, 11.0 / 30},
      {0, kLiquid, 9, 900, 19.0 / 30},
      {2, kGas, 0, 8.8, std::sqrt(80 / 8.8)},
      {2, kGas, 0, 8.9, 3},
      {2, kGas, 2, 3.3, std::sqrt(31 / 3.3)},
      {2, kGas, 5, 3.4, std::pow(875 / 3.4, 0.2)},
      {2, kGas, 2, 36.9, std::pow(875 / 36.9, 0.2)},
      {2, kGas, 2, 37, 2},
      {2, kGas, 3, 7.7, std::sqrt(31 / 7.7)},
      {2, kGas, 4, 7.8, 2},
      {2, kGas, 6, 1.5, std::pow(2840 / 1.5, 0.2)},
      {2, kGas, 7, 41, 3},
      {2, kSteam, 9, 21, std::pow(1000, 0.2)},
      {2, kGas, 9, 0.6, 0},
      {3, kSteam, 5, 0.59, 0},
      {2, kLiquid, 0, 1000, 0.5},
      {2, kLiquid, 5, 1000, 0.3},
      {2, kLiquid, 6, 2.4, 1},
      {2, kLiquid, 8, 10, 1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message()
                 << row.maker << " " << row.phase << " " << row.i << " " << row.rho);
    VortexInputs inputs = Service(row.maker, row.phase, 50);
    inputs.rho = row.rho;
    inputs.mu = 1e-3;
    // The frequency bound of the first makers must not be the higher one here.
    const double v = Velocity(MeterFlowLimits(Table(), inputs, row.i).qMin, Bore(row.maker, row.i));
    EXPECT_NEAR(v, row.v, 1e-3 * row.v);
  }
  // Hot or light flow is bounded by 10 Hz (gas), 3 Hz or 1 Hz (liquid) of the first makers.
  VortexInputs heavy = Service(0, kLiquid, 50);
  heavy.rho = 20000;
  EXPECT_NEAR(MeterFlowLimits(Table(), heavy, 6).qMin, 3.6 * 3 / 0.33, 1e-9);
  heavy.rho = 200000;
  EXPECT_NEAR(MeterFlowLimits(Table(), heavy, 7).qMin, 3.6 * 1 / 0.142, 1e-9);
}

TEST(RateVortexMeters, ListsWhatFits) {
  for (int maker = 0; maker < 4; ++maker) {
    SCOPED_TRACE(maker);
    const VortexRatings ratings = RateVortexMeters(Table(), Service(maker, kLiquid, 50));
    for (std::size_t i = 0; i < 10; ++i) {
      EXPECT_EQ(ratings[i].made, Bore(maker, static_cast<int>(i)) > 0);
      EXPECT_LE(ratings[i].listed, ratings[i].made);
    }
    // 50 m3/h need 42.1 mm at 10 m/s; 0.25 m/s of the lowest velocity are kept up to 250 mm.
    EXPECT_EQ(RecommendedSize(ratings), 3);
  }
  EXPECT_EQ(RecommendedSize(RateVortexMeters(Table(), Service(0, kLiquid, 1e6))), -1);
}

// A size that reaches 90 % of scale is listed, one that misses 95 % has no frequency.
TEST(RateVortexMeters, NinetyPerCentIsEnough) {
  const double full = 0.028274334669113155 * 52.7 * 52.7;
  const struct {
    double share;
    bool listed, frequency;
  } rows[] = {{0.899, false, false}, {0.9, true, false}, {0.949, true, false}, {0.95, true, true}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.share);
    const VortexRatings ratings = RateVortexMeters(Table(), Service(0, kLiquid, full / row.share));
    EXPECT_EQ(ratings[3].listed, row.listed);
    EXPECT_EQ(ratings[3].frequency > 0, row.frequency);
    EXPECT_GT(ratings[3].rangeHigh, 0);  // its bar is drawn all the same
  }
  // The smallest one that reaches full scale is recommended before one that does not.
  EXPECT_EQ(RecommendedSize(RateVortexMeters(Table(), Service(0, kLiquid, full / 0.9))), 4);
}

TEST(RateVortexMeters, LossAndCavitation) {
  VortexInputs inputs = Service(0, kLiquid, 70);
  inputs.vapourPressure = 0.02;
  const VortexRatings ratings = RateVortexMeters(Table(), inputs);
  // 50 mm at 70 m3/h: 0.00199 rho Q2 / 10000 = 0.974 kgf/cm2; needs 2.66 kgf/cm2 to stay liquid.
  EXPECT_NEAR(ratings[3].pressureLoss, 0.00199 * 999.1 * 4900, 1);
  EXPECT_NEAR(ratings[3].backPressure, 2.7 * 0.9742 + 0.026, 1e-3);
  EXPECT_FALSE(ratings[3].cavitates);
  inputs.p = 2.6;
  EXPECT_TRUE(RateVortexMeters(Table(), inputs)[3].cavitates);
  inputs.p = 0.97;  // the loss is not below the pressure any more
  EXPECT_FALSE(RateVortexMeters(Table(), inputs)[3].listed);
}

TEST(RateVortexMeters, LightGases) {
  VortexInputs inputs = Service(3, kGas, 500);
  inputs.rho = 0.59;
  EXPECT_TRUE(IsGasTooLight(inputs));
  inputs.maker = 2;
  EXPECT_FALSE(IsGasTooLight(inputs));
  inputs.maker = 3;
  inputs.fluidPhase = kSteam;
  EXPECT_FALSE(IsGasTooLight(inputs));
  // Without a viscosity the Reynolds cap of the first makers leaves nothing.
  inputs = Service(1, kGas, 500);
  inputs.mu = 0;
  EXPECT_EQ(RecommendedSize(RateVortexMeters(Table(), inputs)), -1);
  inputs.scaleFlow = 0;
  EXPECT_THROW(RateVortexMeters(Table(), inputs), common::RuntimeFault);
}

}  // namespace
}  // namespace flow
