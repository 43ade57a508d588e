// Forward and backward through the sheets of the flow elements, in all phases and units.

#include <cctype>

#include "flow/discharge.h"
#include "flow/integral_table.h"
#include "flow/restriction_orifice.h"
#include "tests/sheets/there_and_back.h"

namespace sheets {
namespace {

class OrificeThereAndBack : public ThereAndBack {
 protected:
  OrificeThereAndBack() : ThereAndBack("mnuOrifice") {}

  /// Pipe, element, differential and flows of a bore of this beta.
  void EnterElement(Random& random, int type, FluidState& fluid) {
    const flow::OrificeTable& table = bench.Space().tables.orifice;
    const auto limit = [type](const auto& row) { return static_cast<double>(row.at(type)); };
    Select("cbo絞り機構種類", type);
    const double D = Rounded(random.Spread(limit(table.pipeMin), limit(table.pipeMax)), 4);
    const double beta =
        random.Between(std::max(limit(table.betaMin), 15 / D), limit(table.betaMax));
    Enter("txt配管内径", D);
    Enter("txt絞り部膨張率", random.Between(8, 18), 3);
    Enter("txt配管線膨張率", random.Between(8, 18), 3);
    const bool liquid = fluid.phase == kLiquid;
    const double dP = random.Spread(100, std::min(liquid ? 7000 * fluid.p : 2400 * fluid.p, 5e4));
    const double c = type <= flow::kVenaContractaTapOrifice ? 0.61 : 0.95;
    const double eps = liquid ? 1 : 1 - 0.4 * dP / 1e4 / fluid.p;
    w_ = Rounded(c * eps / std::sqrt(1 - std::pow(beta, 4)) * 0.01252 * std::pow(beta * D, 2) *
                     std::sqrt(fluid.FlowDensity() * dP),
                 5);
    unit_ = SelectAny("cbo設計差圧単位", random);
    dP_ = Rounded(dP * kDifferentialUnits[unit_], 4);
    Mark("opt差圧→絞り径");
    Enter("txt設計差圧", dP_, 4);
    SelectFlowUnit(random, fluid.phase);
    EnterFlow("txt目盛流量", fluid, w_);
    const double normal = w_ * random.Between(0.5, 0.99);
    EnterFlow("txt常用流量", fluid, normal);
    // A viscosity that the limits of the Reynolds number allow.
    const auto limits = flow::ReynoldsLimits(table, static_cast<flow::ElementType>(type), beta,
                                             static_cast<float>(D));
    const double reynolds = random.Spread(std::max<double>(1.1 * limits.reLow, 3000),
                                          std::min<double>(0.9 * limits.reHigh, 1e7));
    fluid.mu = 353.6777 * normal / D / reynolds;
    EnterViscosity(random, fluid);
  }
  bool Calculate() {
    Click("cmd計算");
    return !Text("lbl表示β").empty();
  }
  /// Half of the last shown digit of a differential, in its unit: four figures by the rough
  /// exponent, and no more decimals than the unit has.
  double ShownDifferential(double shown) const {
    constexpr int kDecimals[] = {3, 1, 5, 3, 4, 2};
    const double before = 1.001 * shown;  // it may have been above the step, and rounded below it
    const int rough = 3 - static_cast<int>(std::floor(std::log(before) / 2.3));
    return HalfStep(std::min(rough, kDecimals[unit_]));
  }
  void GoThereAndBack(int type, int phase);

  double w_ = 0, dP_ = 0;
  int unit_ = 0, refusedBack_ = 0;
};

void OrificeThereAndBack::GoThereAndBack(int type, int phase) {
  constexpr double kSettled = 1e-5;     // relative step at which the iterations end
  constexpr double kBoreStep = 0.0005;  // half of the third decimal, mm
  // The slope of C with beta, which the formula leaves out, moves the sensitivity by up to a fifth:
  // quarter circle plates at 0.6 (+), plates at their lowest Reynolds numbers (+), ISA nozzles (-).
  constexpr double kSlopeOfC = 1.2;
  if (!Calculate()) return;
  const double bore = Number("txt絞り径");
  const double beta = Number("lbl表示β");
  const double eps = Number("lbl膨張補正係数R");
  Mark("opt絞り径→差圧");
  if (!Calculate()) {
    ++refusedBack_;
    return;
  }
  const double dP = Number("txt設計差圧");
  // d ln dP / d ln d; eps is a straight line in dP, which makes a gas more sensitive.
  const double sensitivity = 4 / (1 - std::pow(beta, 4));
  const double gas = eps / (3 * eps - 2);
  Compare("differential", dP, dP_,
          dP_ * gas * (kSlopeOfC * sensitivity * (kBoreStep / bore + kSettled) + kSettled) +
              ShownDifferential(dP));
  Mark("opt差圧→絞り径");
  if (!Calculate()) {
    ++refusedBack_;
    return;
  }
  Compare(
      "bore", Number("txt絞り径"), bore,
      bore * (kSlopeOfC / sensitivity * (ShownDifferential(dP) / dP + gas * kSettled) + kSettled) +
          kBoreStep);
  Count(phase, {{"element in phase", 10 * type + phase}, {"differential", 10 * phase + unit_}});
}

TEST_F(OrificeThereAndBack, DifferentialAndBore) {
  constexpr int kCases = 33 * 240;
  for (int seed = 0; seed < kCases; ++seed) {
    Begin(seed);
    Random random(seed);
    const int type = seed % 11;
    const int phase = seed / 11 % 3;
    FluidState fluid = EnterFluid(random, phase);
    EnterElement(random, type, fluid);
    GoThereAndBack(type, phase);
    CompareState(fluid, "txt目盛流量", w_);
  }
  for (int type = 0; type < 11; ++type) ExpectEach("element in phase", 3, 180, 10 * type);
  for (const int phase : {kLiquid, kGas, kSteam}) ExpectEach("differential", 6, 300, 10 * phase);
  ExpectEachUnit(200);
  EXPECT_LE(refusedBack_, kCases / 200);  // at the edge of the limits alone
}

/// Ideal mass flux of a nozzle over that of the choked one, by the isentropic flow function.
double FluxRatio(double r, double kappa) {
  const double critical = std::pow(2 / (kappa + 1), kappa / (kappa - 1));
  const auto flux = [kappa](double ratio) {
    return std::sqrt(std::pow(ratio, 2 / kappa) - std::pow(ratio, (kappa + 1) / kappa));
  };
  return flux(r) / flux(critical);
}

class RestrictionThereAndBack : public ThereAndBack {
 protected:
  RestrictionThereAndBack() : ThereAndBack("mnuRO") {}

  void EnterPlate(Random& random, const FluidState& fluid) {
    Enter("txt配管内径", random.Spread(20, 600), 4);
    w_ = Rounded(random.Spread(100, 1e5), 5);
    dP_ = fluid.p * random.Between(0.02, 0.95);
    thickness_ = Rounded(random.Spread(0.5, 20), 3);
    Enter("txtThickness", thickness_);
    unit_ = SelectAny("cbo差圧単位", random);
    Enter("txt差圧", dP_ * kPressureUnits[unit_]);
    Enter("txtヤング率", "19700");
    Enter("txt許容応力", "13.2");
    SelectFlowUnit(random, fluid.phase);
    EnterFlow("txt流量", fluid, w_);
  }

  double w_ = 0, dP_ = 0, thickness_ = 0;
  int unit_ = 0;
};

// The sheet has no way back; the flow through the bore that it finds, by the equations in SI, is
// the one that was entered.
TEST_F(RestrictionThereAndBack, FlowAndBore) {
  constexpr double kPascal = 98066.5;    // per kgf/cm2
  constexpr double kBoreStep = 0.005;    // half of the second decimal, mm
  constexpr double kFactorStep = 0.005;  // the same of the back pressure factor
  constexpr double kSettled = 1e-4;      // relative step at which a liquid's iteration ends
  constexpr int kCases = 3 * 1500;
  for (int seed = 0; seed < kCases; ++seed) {
    Begin(seed);
    Random random(seed);
    const FluidState fluid = EnterFluid(random, seed % 3);
    EnterPlate(random, fluid);
    Click("cmd計算");
    CompareState(fluid, "txt流量", w_);
    if (Text("lbl絞り径").empty()) continue;
    const double bore = Number("lbl絞り径");
    const double area = M_PI / 4e6 * bore * bore;
    if (fluid.phase == kLiquid) {
      const double ratio = thickness_ / bore;
      // The coefficient steps by 1 % at 0.1, which the digits of the bore cannot tell apart.
      if (std::fabs(ratio / 0.1 - 1) < 2 * kBoreStep / bore) continue;
      const double c = flow::ThicknessCoefficient(ratio);
      // 1.2649 for 1.2522.
      const double w = 1.01014 * c * area * std::sqrt(2 * fluid.rho * dP_ * kPascal) * 3600;
      Compare("flow", w, w_, w_ * (2 * kBoreStep / bore + 2 * kSettled));
    } else {
      // The molar mass is that of the entered density as at normal state, also for steam.
      const double flux =
          fluid.p * kPascal *
          std::sqrt(fluid.kappa * 0.022415 * fluid.rho / (fluid.z * 8.314462 * fluid.Kelvin())) *
          std::pow(2 / (fluid.kappa + 1), (fluid.kappa + 1) / (2 * (fluid.kappa - 1)));
      const double r = 1 - dP_ / fluid.p;
      const bool chokes = r < 0.528;  // of every gas
      const double share = chokes ? 1 : FluxRatio(r, fluid.kappa);
      // 2.8 rests on 0.921, given with three digits.
      Compare("flow", 0.921 * area * flux * share * 3600, w_,
              w_ * (2 * kBoreStep / bore + 0.0005 / 0.921 + 2e-4 +
                    (chokes ? 0 : 2.02 * kFactorStep * std::sqrt(share))));
    }
    Count(fluid.phase, {{"phase", fluid.phase}, {"differential", 10 * fluid.phase + unit_}});
  }
  ExpectEach("phase", 3, 1200);
  for (const int phase : {kLiquid, kGas, kSteam}) ExpectEach("differential", 7, 120, 10 * phase);
  ExpectEachUnit(120);
}

class IntegralThereAndBack : public ThereAndBack {
 protected:
  IntegralThereAndBack() : ThereAndBack("mnuIntegral") {}

  /// The flow in kg/h that makes the differential of a bore, by the law of its group, and how far
  /// the digits shown leave it open, as a share of it.
  std::pair<double, double> FlowOf(const FluidState& fluid, int model, int i, double dP) {
    const flow::IntegralTable& table = bench.Space().tables.integral;
    const auto p = fluid.phase == kLiquid ? 0u : 1u;
    const auto bore = static_cast<std::size_t>(i);
    const double rho = fluid.FlowDensity();
    const double step = 0.5 / (dP - 0.5);
    if (model == 3) {
      constexpr double kPipe = 0.014008;  // m
      constexpr double kSettled = 1e-4;   // at which the iteration ends
      constexpr double kPascalPerMmH2O = 9.80665;
      const double eps = Number("lbl膨張補正係数");
      const double a = (16.06 - 0.00177 * fluid.t + 8.2e-6 * fluid.t * fluid.t) * 1e-6;
      const double area = M_PI / 4 * kPipe * kPipe * std::pow(1 + a * (fluid.t - 20), 2);
      const double w =
          table.integralK[bore] * eps * area * std::sqrt(2 * rho * dP * kPascalPerMmH2O) * 3600;
      // 2.457 has four figures.
      return {w, step / 2 + HalfStep(4) / eps + kSettled + 0.0005 / 2.457};
    }
    // dP = a Q^b / Kaf^2; the wide group has a square law, turned round, and no Kaf.
    const bool wide = model == 4;
    const auto row = static_cast<std::size_t>(wide ? 3 : model);
    const double listed = table.integralA[row][p][bore];
    const double a = wide ? 1000 / listed : listed;
    const double b = wide ? 2 : static_cast<double>(table.integralB[row][p][bore]);
    const double kaf = wide ? 1 : Number("lblKaf");
    constexpr double kFactors[][2] = {{0.03162, 0.8794}, {0.03164, 0.9042}};
    const double equivalent = std::pow(dP * kaf * kaf / a, 1 / b);  // l/min of water or air
    const double volume = equivalent * 60 / 1000 / kFactors[wide ? 1 : 0][p] / std::sqrt(rho);
    return {volume * rho, step / b + (wide ? 0 : 2 / b * HalfStep(3) / kaf)};
  }

  double w_ = 0;
};

// The sheet gives the differential of a flow; the laws of its groups give the flow back.
TEST_F(IntegralThereAndBack, FlowAndDifferential) {
  constexpr int kCases = 3 * 1500;
  for (int seed = 0; seed < kCases; ++seed) {
    Begin(seed);
    Random random(seed);
    const int phase = seed % 3;
    const int model = Select("cbo計器型式", phase == kSteam ? 3 : random.Below(5));
    FluidState fluid = EnterFluid(random, phase);
    const double dP = random.Spread(200, std::min(7000 * fluid.p, 2e4));
    const double diameter = random.Between(1, 9);  // mm; of the six or seven bores some will fit
    w_ = 0.01 * diameter * diameter * std::sqrt(fluid.FlowDensity() * dP);
    SelectFlowUnit(random, phase);
    EnterFlow("txt目盛流量", fluid, w_);
    EnterFlow("txt常用流量", fluid, w_ * random.Between(0.5, 0.99));
    Click("cmd計算");
    CompareState(fluid, "txt目盛流量", w_);
    for (int i = 0; i < 7; ++i) {
      const std::string shown = Text(Element("lblDPmm", i));
      if (shown.empty() || !std::isdigit(static_cast<unsigned char>(shown[0]))) continue;
      Pick("cboOrificeNo", i);
      const auto [w, share] = FlowOf(fluid, model, i, common::Val(shown));
      Compare("flow", w, w_, w_ * (share + 1e-6));
      Count(phase, {{"model", model}, {"phase", phase}});
    }
  }
  ExpectEach("model", 5, 200);
  ExpectEach("phase", 3, 900);
  ExpectEachUnit(100);
}

class VortexThereAndBack : public ThereAndBack {
 protected:
  VortexThereAndBack() : ThereAndBack("mnuVortex") {}

  /// The two ends of a range, per cent of scale.
  std::pair<double, double> Range(int i) {
    const std::string text = Text(Element("lblRange", i));
    const auto middle = text.find("～");
    if (middle == std::string::npos) return {0, 0};
    return {common::Val(text.substr(0, middle)), common::Val(text.substr(middle + 3))};
  }
};

// The largest flow of a meter, entered as the scale, is 100 % of it; the lower limit and the
// frequency keep their place, the loss goes with the square.
TEST_F(VortexThereAndBack, ScaleAndLimits) {
  constexpr int kCases = 3 * 1500;
  for (int seed = 0; seed < kCases; ++seed) {
    Begin(seed);
    Random random(seed);
    const int phase = seed % 3;
    const int maker = SelectAny("cboMaker", random);
    const FluidState fluid = EnterFluid(random, phase);
    const double volume = random.Spread(2, phase == kLiquid ? 2000 : 20000);
    const double w = volume * fluid.FlowDensity();
    SelectFlowUnit(random, phase);
    EnterFlow("txt目盛流量", fluid, w);
    EnterFlow("txt最少流量", fluid, w / 4);
    Enter("txt飽和蒸気圧", "");
    Click("cmd計算");
    if (!Text("lblScale").empty()) CompareState(fluid, "txt目盛流量", w);
    int i = random.Below(10);
    for (int tried = 0; tried < 10 && Range(i).second == 0; ++tried) i = (i + 1) % 10;
    const auto [low, high] = Range(i);
    if (high == 0) continue;
    const double hertz = Number(Element("lblHz", i));
    const double loss = Number(Element("lblDPmm", i));
    EnterFlow("txt目盛流量", fluid, w * high / 100);
    Click("cmd計算");
    const auto [newLow, full] = Range(i);
    if (full == 0) continue;        // the loss at this flow is more than the pressure
    constexpr double kStep = 0.05;  // half of the only decimal
    const double share = kStep / high + 1e-6;
    Compare("upper limit", full, 100, 100 * share + kStep);
    Compare("lower limit", newLow, low * 100 / high, (kStep + low * share) * 100 / high + kStep);
    if (hertz > 0) {
      const double due = hertz * high / 100;
      Compare("frequency", Number(Element("lblHz", i)), due,
              due * share + 1.1 * kStep * high / 100 + 1.1 * kStep);
    }
    const double square = std::pow(high / 100, 2);
    Compare("loss", Number(Element("lblDPmm", i)), loss * square,
            square * (0.5 + loss * 2 * share) + 0.5);
    Count(phase, {{"maker", maker}, {"phase", phase}});
  }
  ExpectEach("maker", 4, 300);
  ExpectEach("phase", 3, 900);
  ExpectEachUnit(50);
}

}  // namespace
}  // namespace sheets
