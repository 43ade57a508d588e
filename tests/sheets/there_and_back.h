#pragma once

#include <cmath>
#include <cstdint>
#include <map>
#include <random>
#include <string>

#include "data/steam.h"
#include "data/units.h"
#include "tests/sheets/flow_sheet_test.h"

namespace sheets {

/// Random numbers of a case. They are the same on every machine, which those of the library's
/// distributions are not, and each case has a seed of its own, so that it can be run by itself.
class Random {
 public:
  explicit Random(int seed) : engine_(static_cast<std::uint64_t>(seed)) {}

  double Between(double low, double high) {
    constexpr int kSpareBits = 11;
    return low + (high - low) * std::ldexp(static_cast<double>(engine_() >> kSpareBits), -53);
  }
  /// Even in the logarithm.
  double Spread(double low, double high) {
    return low * std::exp(Between(0, std::log(high / low)));
  }
  int Below(int n) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(n)); }

 private:
  std::mt19937_64 engine_;
};

/// A number as text, with so many significant digits.
inline std::string Digits(double value, int digits) {
  if (value == 0) return "0";
  const int decimals = digits - 1 - static_cast<int>(std::floor(std::log10(std::fabs(value))));
  return common::NumberText(common::RoundDigits(value, decimals));
}
inline double Rounded(double value, int digits) { return common::Val(Digits(value, digits)); }
/// Half of the last of so many decimals: what a shown number may hide.
inline double HalfStep(int decimals) { return 0.5 * std::pow(10, -decimals); }

/// A fluid in the working units: kgf/cm2 absolute, degC, kg/m3, cP.
struct FluidState {
  int phase = data::kLiquid;
  double p = 1, t = 20, z = 1, kappa = 1.4;
  double humidity = 0, saturation = 0;  // per cent; of water vapour
  bool dryBase = false;
  double rho = 1000;  // gas: at 0 degC and 1 atm
  double mu = 1;

  double Kelvin() const { return t + 273.15; }
  /// Normal volume of a volume at flow conditions, without regard to moisture.
  double NormalVolume() const { return p / 1.03323 * 273.15 / Kelvin() / z; }
  double DryDensity() const { return rho * (p - humidity / 100 * saturation) / p * NormalVolume(); }
  double Moisture() const {
    if (humidity == 0) return 0;
    data::ProcessState state;
    state.temperatureC = t;
    return humidity / 100 * data::SaturatedWaterVapourDensity(state);
  }
  double FlowDensity() const { return phase == data::kGas ? DryDensity() + Moisture() : rho; }
};

/// Random conditions through the controls of a sheet, and what comes back from them. The units are
/// written down here once more, as the reverse of the sheets' conversions.
class ThereAndBack : public FlowSheetTest {
 protected:
  static constexpr int kDigits = 7;  // of a typed number

  explicit ThereAndBack(const char* menu) { bench.Window().Run(menu); }

  void TearDown() override {
    RecordProperty("cases", cases_);
    RecordProperty("compared", compared_);
    RecordProperty("worst difference over allowed", Digits(worst_, 3));
    RecordProperty("worst case", worstCase_);
  }

  void Begin(int seed) {
    ++cases_;
    seed_ = seed;
    entries_.clear();
    presenter.changed.clear();
    presenter.events.clear();
    TakeTexts();
  }
  void Note(std::initializer_list<std::string_view> words) {
    entries_ += "  ";
    for (const std::string_view word : words) entries_ += word;
    entries_ += '\n';
  }
  bool Has(const std::string& name) { return bench.Forms().Active()->Find(name) != nullptr; }
  void Enter(const std::string& name, const std::string& text) {
    Note({name, " = ", text});
    Type(name, text);
  }
  void Enter(const std::string& name, double value, int digits = kDigits) {
    Enter(name, Digits(value, digits));
  }
  /// The unit that stands there then: a sheet may refuse one.
  int Select(const std::string& name, int index) {
    Pick(name, index);
    Note({name, " = ", Text(name)});
    return Find<forms::ListControl>(name).Index();
  }
  int SelectAny(const std::string& name, Random& random) {
    return Select(name, random.Below(Find<forms::ListControl>(name).Count()));
  }
  void Mark(const std::string& name) {
    Note({name});
    Choose(name);
  }
  /// Another case with a result, of these sorts and of the units selected.
  void Count(int phase, std::initializer_list<std::pair<const char*, int>> sorts = {}) {
    for (const auto& [name, index] : sorts) ++counted_[{name, index}];
    for (const auto& [name, index] : {std::pair("flow unit", flowUnit_),
                                      {"pressure unit", pressureUnit_},
                                      {"temperature unit", temperatureUnit_},
                                      {"density unit", densityUnit_},
                                      {"viscosity unit", viscosityUnit_}}) {
      ++counted_[{name, 10 * phase + index}];
    }
  }
  /// That each of `size` of a sort has been met so often, so that no test passes on nothing.
  void ExpectEach(const char* sort, int size, int least, int first = 0) {
    for (int i = first; i < first + size; ++i) {
      EXPECT_GE((counted_[{sort, i}]), least) << sort << " " << i;
    }
  }
  void ExpectEachUnit(int least, int gasViscosityUnits = 3) {
    constexpr int kFlowUnits[] = {5, 7, 2};
    constexpr int kDensityUnits[] = {2, 5, 1};
    for (const int phase : {kLiquid, kGas, kSteam}) {
      ExpectEach("flow unit", kFlowUnits[phase], least, 10 * phase);
      ExpectEach("pressure unit", 7, least, 10 * phase);
      ExpectEach("temperature unit", 3, least, 10 * phase);
      ExpectEach("density unit", kDensityUnits[phase], least, 10 * phase);
      ExpectEach("viscosity unit", phase == kGas ? gasViscosityUnits : 3, least, 10 * phase);
    }
  }
  void Compare(const std::string& what, double found, double expected, double allowed) {
    ++compared_;
    const double share = std::fabs(found - expected) / allowed;
    if (share > worst_ || !(share <= 1)) {
      worst_ = share;
      worstCase_ = what;
      worstCase_ += ", seed ";
      worstCase_ += std::to_string(seed_);
    }
    if (share <= 1 || ++failures_ > kShownFailures) return;
    ADD_FAILURE() << what << ": " << found << " where " << expected << " is due within " << allowed
                  << "; seed " << seed_ << ":\n"
                  << entries_;
  }

  /// Conditions that the phase can have, typed in random units.
  FluidState EnterFluid(Random& random, int phase) {
    FluidState fluid;
    fluid.phase = Select("cbo流体", phase);
    fluid.p = random.Spread(1.2, phase == data::kLiquid ? 100 : 60);
    fluid.t = random.Between(phase == data::kSteam ? 150 : 0, phase == data::kSteam ? 450 : 200);
    fluid.z = Rounded(random.Between(0.8, 1.1), 3);
    fluid.kappa = Rounded(random.Between(1.1, 1.67), 3);
    if (phase != data::kGas) fluid.z = 1;
    fluid.rho = phase == data::kLiquid ? random.Between(500, 1600)
                : phase == data::kGas  ? random.Spread(0.09, 4)
                                       : random.Spread(0.5, 30);
    fluid.mu = phase == data::kLiquid ? random.Spread(0.1, 50) : random.Between(0.008, 0.04);
    pressureUnit_ = SelectAny("cbo圧力単位", random);
    Enter("txt圧力", PressureInUnit(fluid.p, pressureUnit_));
    temperatureUnit_ = SelectAny("cbo温度単位", random);
    const double temperatures[] = {fluid.t, fluid.Kelvin(), fluid.t * 9 / 5 + 32};
    Enter("txt温度", temperatures[temperatureUnit_]);
    if (phase == data::kGas) EnterGas(random, fluid);
    if (Has("txt比熱比") && phase != data::kLiquid) Enter("txt比熱比", fluid.kappa);
    EnterDensity(random, fluid);
    EnterViscosity(random, fluid);
    return fluid;
  }
  void EnterGas(Random& random, FluidState& fluid) {
    Enter(Has("txt偏差係数") ? "txt偏差係数" : "txt圧縮係数", fluid.z);
    if (!Has("txt相対湿度")) return;
    const bool humid = random.Below(3) == 0;
    Enter("txt相対湿度", humid ? Digits(random.Between(5, 100), 2) : "");
    if (!humid) return;
    fluid.humidity = common::Val(Text("txt相対湿度"));
    // Some part of the pressure, so that the gas has one of its own at any temperature.
    fluid.saturation = random.Between(0.01, 0.5) * fluid.p;
    Enter("txt飽和水蒸気圧",
          fluid.saturation * kVapourUnits[SelectAny("cbo飽和水蒸気圧単位", random)]);
    if (!Has("optDryBase")) return;
    fluid.dryBase = random.Below(2) == 0;
    Mark(fluid.dryBase ? "optDryBase" : "optWetBase");
  }
  void EnterDensity(Random& random, const FluidState& fluid) {
    const double gas[] = {fluid.rho, fluid.rho * fluid.NormalVolume(), fluid.rho * 22.415,
                          fluid.rho * 273.15 / 288.75, fluid.rho / 1.2928};
    const double liquid[] = {fluid.rho, fluid.rho / 1000};
    densityUnit_ = SelectAny(OfPhase("cbo密度単位", fluid.phase), random);
    Enter("txt密度", fluid.phase == data::kGas ? gas[densityUnit_] : liquid[densityUnit_]);
  }
  void EnterViscosity(Random& random, const FluidState& fluid) {
    viscosityUnit_ = SelectAny("cbo粘性係数単位", random);
    Enter("txt粘性係数", viscosityUnit_ == 2 ? fluid.mu / fluid.FlowDensity() * 1000 : fluid.mu);
  }
  /// A flow of kg/h in the unit that stands selected; of a gas on the dry base that of its dry part
  /// with the moisture left out.
  void EnterFlow(const std::string& name, const FluidState& fluid, double w, int digits = kDigits) {
    Enter(name, FlowInUnit(fluid, w, flowUnit_), digits);
  }
  static double FlowInUnit(const FluidState& fluid, double w, int unit) {
    double volume = w / fluid.FlowDensity();  // m3/h at flow conditions
    double normal = volume * fluid.NormalVolume();
    if (fluid.dryBase) {
      w = volume * fluid.DryDensity();
      normal = w / fluid.rho;
      volume = normal / fluid.NormalVolume();
    }
    if (fluid.phase == data::kSteam) return unit == 0 ? w : w / 1000;
    const double values[] = {w,        volume, volume * 1000,           volume * 1000 / 60,
                             w / 1000, normal, normal * 288.15 / 273.15};
    return values[unit];
  }
  void SelectFlowUnit(Random& random, int phase) {
    flowUnit_ = SelectAny(OfPhase("cbo流量単位", phase), random);
  }
  static double PressureInUnit(double p, int unit) {
    constexpr int kMmHgAbsolute = 4;
    return (unit == kMmHgAbsolute ? p : p - 1.03323) * kPressureUnits[unit];
  }
  static std::string OfPhase(std::string name, int phase) {
    constexpr char kLetters[] = {'L', 'G', 'S'};
    return name += kLetters[phase];
  }
  /// That the sheet has understood what was meant: each entry has seven digits, and not more than
  /// six of them enter one value.
  void CompareState(const FluidState& fluid, const std::string& flow, double w) {
    constexpr double kSixRoundings = 6 * 5e-7;
    data::ProcessState state = bench.Space().process;
    const double allowed =
        kSixRoundings * fluid.p / (fluid.p - fluid.humidity / 100 * fluid.saturation);
    const auto same = [&](const char* what, double found, double due) {
      Compare(what, found, due, allowed * std::fabs(due));
    };
    same("pressure", state.pressureAbs, fluid.p);
    same("temperature", state.temperatureK, fluid.Kelvin());
    same("density", state.densityBase, fluid.rho);
    same("density of flow", state.densityFlow, fluid.FlowDensity());
    same("viscosity", state.viscosityCp, fluid.mu);
    same("mass flow", data::FlowToMass(state, common::Val(Text(flow))), w);
  }

  static constexpr double kPressureUnits[] = {98.0665, 0.0980665, 1,    10000,
                                              735.72,  0.980665,  14.22};
  static constexpr double kVapourUnits[] = {98.0665, 0.0980665, 1,    1 / 1.03323,
                                            735.72,  0.980665,  14.22};
  static constexpr double kDifferentialUnits[] = {98.0665e-4, 1,        1e-4,
                                                  735.72e-4,  14.22e-4, 0.09807};

  std::string entries_;
  int cases_ = 0;
  int flowUnit_ = 0, pressureUnit_ = 0, temperatureUnit_ = 0, densityUnit_ = 0;
  int viscosityUnit_ = 0;

 private:
  static constexpr int kShownFailures = 5;

  std::map<std::pair<std::string, int>, int> counted_;
  std::string worstCase_;
  double worst_ = 0;
  int seed_ = 0, compared_ = 0, failures_ = 0;
};

}  // namespace sheets
