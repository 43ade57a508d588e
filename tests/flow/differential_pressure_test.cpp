#include "flow/differential_pressure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "common/fault.h"
#include "tests/flow/sizing_fixture.h"
#include "tests/support/scripted_messages.h"

namespace flow {
namespace {

using common::Buttons;
using common::Fault;
using common::Icon;
using common::RuntimeFault;
using tests::ScriptedMessages;

constexpr double kPascalPerMmH2O = 9.80665;
constexpr int kPhases[] = {kLiquid, kGas, kSteam};

ElementType Type(int index) { return static_cast<ElementType>(index); }

/// The number of the fault that a calculation ends with, or nothing.
std::optional<Fault> FaultOf(Context context) {
  ScriptedMessages messages;
  try {
    Calculate(context, ShippedTable(), messages);
  } catch (const RuntimeFault& fault) {
    return fault.Number();
  }
  return std::nullopt;
}

// "fluids" library of C. Bell (MIT licence), tests/test_flow_meter.py: mass flow in kg/s for a pipe
// of 73.66 mm, a bore of 50 mm, 2 bar upstream, 17 kPa, 999.1 kg/m3, 1.1 mPa s, exponent 1.33. The
// rounded constant 0.01252 of the flow equation lies 0.013 % below the exact one.
TEST(SolveDifferentialPressure, AgreesWithAnIndependentImplementation) {
  const struct {
    ElementType type;
    double kgPerSecond;
  } rows[] = {{kDAndHalfDTapOrifice, 7.702338035732167}, {kLongRadiusNozzle, 11.86828167015467},
              {kIsaNozzle, 11.370262314304702},          {kAsCastVenturi, 11.867774156238344},
              {kMachinedVenturi, 12.000442363269464},    {kWeldedVenturi, 11.879834902332082}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.type);
    Context context;
    context.elementType = row.type;
    context.fluidPhase = kGas;  // the example counts the expansion factor
    context.boreToDifferential = true;
    context.p = 200000 / 98066.5;
    context.t = 20;
    context.rho = 999.1;
    context.mu = 1.1;
    context.kappa = 1.33;
    context.pipeBore20 = 73.66;
    context.pipeBore = 73.66f;
    context.bore = 50;
    context.qMax = row.kgPerSecond * 3600;
    context.qNor = context.qMax;
    ScriptedMessages messages;
    const auto result = Calculate(context, ShippedTable(), messages);
    // Venturi tubes are used outside their pipes and Reynolds numbers here.
    if (!result) {
      EXPECT_EQ(FamilyOf(row.type), ElementFamily::kVenturi);
      context.mu = 0.1;
    }
    const auto solved = result ? result : Calculate(context, ShippedTable(), messages);
    ASSERT_TRUE(solved);
    EXPECT_NEAR(solved->dP * kPascalPerMmH2O, 17000, 17000 * 4e-4);
  }
}

TEST(Sizing, BoreAndDifferentialAreInverseForAllElementsAndPhases) {
  for (int type = 0; type < kElementTypes; ++type) {
    for (const int phase : kPhases) {
      for (const double temperature : {20.0, 200.0}) {
        SCOPED_TRACE(testing::Message() << type << " " << phase << " " << temperature);
        Context context = Service(Type(type), phase);
        context.t = temperature;
        context.aElem = 17.3e-6;
        context.pipeBore = PipeBoreAtTemperature(context.pipeBore20, 11.8e-6, context.t);
        ScriptedMessages messages;
        const auto sized = Calculate(context, ShippedTable(), messages);
        ASSERT_TRUE(sized);
        ASSERT_TRUE(sized->d20);
        EXPECT_NEAR(*sized->d20 * (1 + 17.3e-6 * (temperature - 20)),
                    sized->beta * 200 * (1 + 11.8e-6 * (temperature - 20)), 1e-4);

        context.boreToDifferential = true;
        context.bore = BoreAtTemperature(*sized->d20, context.aElem, context.t);
        const auto found = Calculate(context, ShippedTable(), messages);
        ASSERT_TRUE(found);
        // Beta is known to 1e-5 of itself, and the differential goes with its fourth power.
        EXPECT_NEAR(found->dP, 1000, 0.1);
        EXPECT_NEAR(found->alpha, sized->alpha, 2e-5);
        EXPECT_NEAR(found->eps, sized->eps, 2e-5);
        EXPECT_FALSE(found->d20);
        EXPECT_EQ(found->radius.has_value(), type == kQuarterCircleOrifice);
        EXPECT_EQ(found->c.has_value(), type != 3 && type != 4);
        EXPECT_TRUE(messages.shown.empty()) << messages.shown.front().text;
        EXPECT_EQ(context.extrapolationMark, "");
      }
    }
  }
}

// The results, put into the SI form of the flow equation, give the flow back; alpha is that of the
// normal flow's Reynolds number, eps that of the differential at normal flow.
TEST(Sizing, ResultsSatisfyTheFlowEquationInSi) {
  for (int type = 0; type < kElementTypes; ++type) {
    for (const int phase : kPhases) {
      SCOPED_TRACE(testing::Message() << type << " " << phase);
      Context context = Service(Type(type), phase);
      context.boreToDifferential = true;
      ScriptedMessages messages;
      const auto result = Calculate(context, ShippedTable(), messages);
      ASSERT_TRUE(result);
      const double pascal = result->dP * kPascalPerMmH2O;
      const double flow = result->alpha * result->eps * std::numbers::pi / 4 * 0.1 * 0.1 *
                          std::sqrt(2 * context.rho * pascal) * 3600;
      EXPECT_NEAR(flow, context.qMax, 2e-4 * context.qMax);
      EXPECT_NEAR(result->reNor / result->reMax, 0.8, 1e-12);
      EXPECT_NEAR(result->reMax,
                  4 * context.qMax / 3600 / (std::numbers::pi * 0.2 * context.mu * 1e-3),
                  1e-6 * result->reMax);
      if (phase == kLiquid) {
        EXPECT_EQ(result->eps, 1);
      } else {
        const double x = result->dP * 0.64 / (10000 * context.p);
        const double eps = type == kQuarterCircleOrifice
                               ? QuarterCircleExpansion(0.5, x, context.kappa)
                               : ExpansionFactor(Type(type), 0.5, x, context.kappa);
        EXPECT_NEAR(result->eps, eps, 1e-6);
      }
      if (type <= kCornerTapOrifice) {
        EXPECT_EQ(result->alpha,
                  OrificeDischarge(Type(type), result->reNor, result->beta, 200).alpha);
      }
    }
  }
}

TEST(Sizing, GivesTapsRadiusAndUseLimitsByType) {
  for (int type = 0; type < kElementTypes; ++type) {
    SCOPED_TRACE(type);
    Context context = Service(Type(type), kLiquid);
    context.boreToDifferential = true;
    context.pipeBore20 = 199.9;
    ScriptedMessages messages;
    const auto result = Calculate(context, ShippedTable(), messages);
    EXPECT_EQ(messages.shown.size(), type == kWeldedVenturi ? 1u : 0u);  // its pipe begins at 200
    ASSERT_TRUE(result);
    EXPECT_EQ(result->upstreamTap.has_value(), type <= 3);
    EXPECT_EQ(result->downstreamTap.has_value(), type <= 3);
    EXPECT_EQ(result->useHigh.has_value(), type >= 3);
    EXPECT_NEAR(result->useLow, result->reLow / result->reMax, 0.005 + 1e-12);
    const double hundredfold = result->useLow * 100;
    EXPECT_NEAR(hundredfold, std::round(hundredfold), 1e-9);
    const double upstream[] = {25.4, 199.9, 0, 199.9};
    const double downstream[] = {25.4, 100.0, 0, 127.9};  // 199.95/2; 0.64 * 199.9 = 127.936
    if (type <= 3) {
      EXPECT_EQ(*result->upstreamTap, upstream[type]);
      EXPECT_EQ(*result->downstreamTap, downstream[type]);
    }
  }
}

TEST(Sizing, VenaContractaLossReadsTheCoefficientOfAnEarlierCalculation) {
  ScriptedMessages messages;
  Context context = Service(kVenaContractaTapOrifice, kLiquid);
  context.boreToDifferential = true;
  const auto fresh = Calculate(context, ShippedTable(), messages);
  ASSERT_TRUE(fresh);
  EXPECT_EQ(fresh->loss, fresh->dP);
  context.elementType = kFlangeTapOrifice;
  const auto flange = Calculate(context, ShippedTable(), messages);
  ASSERT_TRUE(flange);
  context.elementType = kVenaContractaTapOrifice;
  const auto later = Calculate(context, ShippedTable(), messages);
  ASSERT_TRUE(later);
  EXPECT_EQ(context.c, *flange->c);
  EXPECT_LT(later->loss, 0.8 * later->dP);
  EXPECT_FALSE(later->c);
}

TEST(BoreAtTemperature, ExpandsFromTwentyDegrees) {
  EXPECT_NEAR(BoreAtTemperature(100, 16e-6, 220), 100.32, 1e-12);
  EXPECT_EQ(BoreAtTemperature(100, 0, 220), 100);
  EXPECT_EQ(PipeBoreAtTemperature(52.9, 11.7e-6, 120), 52.961893f);
  Context context;
  context.pipeBore = 100;
  context.aElem = 16e-6;
  context.t = 220;
  EXPECT_NEAR(BoreAtReference(context, 0.5), 50 / 1.0032, 1e-12);
}

struct Box {
  const char* text;
  Icon icon = Icon::kNone;
  Buttons buttons = Buttons::kOk;
};

constexpr Box kOutside{"規格範囲外で計算しますか", Icon::kQuestion, Buttons::kYesNo};
constexpr Box kPipe{"配管径が規格\n（50～1000㎜）の範囲外です。\n規格範囲外で計算しますか",
                    Icon::kCritical, Buttons::kYesNo};
constexpr Box kBeta{"βが、（0.1～0.75）の範囲外です。\n規格範囲外で計算しますか", Icon::kWarning,
                    Buttons::kYesNo};

/// A service with a change, the answers, and the boxes that must come, in order.
struct Case {
  const char* name;
  ElementType type;
  int phase;
  bool boreToDifferential;
  void (*change)(Context&);
  std::initializer_list<bool> answers;
  std::vector<Box> boxes;
  bool result;
  const char* mark = "";
};

void Check(const Case& row) {
  SCOPED_TRACE(row.name);
  Context context = Service(row.type, row.phase);
  context.boreToDifferential = row.boreToDifferential;
  context.extrapolationMark = "left over";
  context.calcFailed = true;
  row.change(context);
  ScriptedMessages messages(row.answers);
  const auto result = Calculate(context, ShippedTable(), messages);
  EXPECT_EQ(result.has_value(), row.result);
  EXPECT_EQ(context.calcFailed, !row.result);
  EXPECT_EQ(context.extrapolationMark, row.mark);
  ASSERT_EQ(messages.shown.size(), row.boxes.size());
  for (std::size_t i = 0; i < row.boxes.size(); ++i) {
    EXPECT_EQ(messages.shown[i].text, row.boxes[i].text);
    EXPECT_EQ(messages.shown[i].icon, row.boxes[i].icon);
    EXPECT_EQ(messages.shown[i].buttons, row.boxes[i].buttons);
    EXPECT_EQ(messages.shown[i].title, "");
  }
}

constexpr const char* kMark = "（外挿計算）";

TEST(Messages, OfTheChecksBeforeTheSolver) {
  const Case rows[] = {
      {"equal flows pass",
       kFlangeTapOrifice,
       kLiquid,
       false,
       [](Context& c) { c.qNor = c.qMax; },
       {},
       {},
       true},
      {"normal flow above scale speaks first of all",
       kFlangeTapOrifice,
       kLiquid,
       false,
       [](Context& c) {
         c.qNor = c.qMax + 1;
         c.pipeBore20 = 30;
         c.dP = 1e9;
       },
       {},
       {{"常用流量が最大目盛流量を超えています"}},
       false},
      {"pipe too small, no",
       kFlangeTapOrifice,
       kLiquid,
       false,
       [](Context& c) {
         c.pipeBore20 = 49.9;
         c.dP = 1e9;
       },
       {false},
       {kPipe},
       false},
      {"pipe too large, yes",
       kFlangeTapOrifice,
       kLiquid,
       false,
       [](Context& c) { c.pipeBore20 = 1000.1; },
       {true},
       {kPipe},
       true,
       kMark},
      {"pipe at its limits",
       kFlangeTapOrifice,
       kLiquid,
       false,
       [](Context& c) { c.pipeBore20 = 1000; },
       {},
       {},
       true},
      {"pipe, yes, then the differential of a liquid",
       kFlangeTapOrifice,
       kLiquid,
       false,
       [](Context& c) {
         c.pipeBore20 = 49;
         c.dP = 100000;
       },
       {true},
       {kPipe, {"流体の圧力より差圧の方が大きいですよ。 ", Icon::kWarning}},
       false,
       kMark},
      {"differential of a gas",
       kFlangeTapOrifice,
       kGas,
       false,
       [](Context& c) {
         c.p = 6.03;
         c.dP = 15076;
       },
       {},
       {{"差圧が大き過ぎます。 \n147.7kPa 以下に して下さい。", Icon::kCritical}},
       false},
      {"differential of steam without pressure",
       kFlangeTapOrifice,
       kSteam,
       false,
       [](Context& c) { c.p = 0; },
       {},
       {{"差圧が大き過ぎます。 \n0kPa 以下に して下さい。", Icon::kCritical}},
       false},
  };
  for (const Case& row : rows) Check(row);
}

TEST(Messages, OfBetaWithAKnownBore) {
  const Case rows[] = {
      {"beta too large, no",
       kFlangeTapOrifice,
       kLiquid,
       true,
       [](Context& c) { c.bore = 151; },
       {false},
       {kBeta},
       false},
      {"beta too large, yes",
       kFlangeTapOrifice,
       kLiquid,
       true,
       [](Context& c) { c.bore = 151; },
       {true},
       {kBeta},
       true,
       kMark},
      {"beta at its limit",
       kFlangeTapOrifice,
       kLiquid,
       true,
       [](Context& c) { c.bore = 150; },
       {},
       {},
       true},
      {"pipe and beta asked, second answer no",
       kFlangeTapOrifice,
       kLiquid,
       true,
       [](Context& c) {
         c.bore = 151;
         c.pipeBore20 = 49;
       },
       {true, false},
       {kPipe, kBeta},
       false,
       kMark},
      {"quarter circle is refused without a question",
       kQuarterCircleOrifice,
       kLiquid,
       true,
       [](Context& c) { c.bore = 39; },
       {},
       {{"β =0.195\n!! βが規格外になるので計算できません。"}},
       false},
      {"quarter circle without a bore",
       kQuarterCircleOrifice,
       kLiquid,
       true,
       [](Context& c) { c.bore = 0; },
       {},
       {{"β =0\n!! βが規格外になるので計算できません。"}},
       false},
      {"differential of a gas runs away",
       kFlangeTapOrifice,
       kGas,
       true,
       [](Context& c) {
         c.qMax *= 3;
         c.qNor *= 3;
         c.p = 2;
       },
       {},
       {{" !!! 発生差圧が大き過ぎます。設計デ－タを  見直して下さい "}},
       false},
      {"differential of a gas without a power in its expansion",
       kVenaContractaTapOrifice,
       kGas,
       true,
       [](Context& c) {
         c.qMax *= 20;
         c.qNor *= 20;
         c.p = 2;
       },
       {},
       {{" !!! 発生差圧が大き過ぎます。設計デ－タを  見直して下さい "}},
       false},
      {"differential of a liquid, after the calculation",
       kFlangeTapOrifice,
       kLiquid,
       true,
       [](Context& c) { c.p = 0.05; },
       {},
       {{"差圧が大き過ぎます。絞り径を変更して下さい。"}},
       false},
  };
  for (const Case& row : rows) Check(row);
}

TEST(Messages, OfTheBoreThatIsFound) {
  const Case rows[] = {
      // By hand: S = 2900 / (500.8 sqrt(998000)) = 0.0057965, C at Re 17094 0.59815, beta^2 = S/C.
      {"beta too small",
       kFlangeTapOrifice,
       kLiquid,
       false,
       [](Context& c) {
         c.qMax = 2900;
         c.qNor = 2900;
       },
       {},
       {{"β(=0.0984)が小さすぎます。\n配管径又は差圧を小さくして下さい。"}},
       false},
      // beta^4 / (1 - beta^4) = (S/C)^2 with S = 128000 / (500.8 sqrt(99800)) = 0.80906, C 0.995.
      {"venturi tube, beta too large",
       kMachinedVenturi,
       kLiquid,
       false,
       [](Context& c) { c.dP = 100; },
       {},
       {{"β(=0.7943)が大きすぎます。\n配管径又は差圧を大きくして下さい。"}},
       false},
      {"quarter circle, S too small",
       kQuarterCircleOrifice,
       kLiquid,
       false,
       [](Context& c) {
         c.qMax = 15009.34;
         c.qNor = 15000;
       },
       {},
       {{"Ｓ(=0.03)が小さすぎます。\n配管径又は差圧を小さくして下さい。"}},
       false},
      {"quarter circle, expansion factor negative",
       kQuarterCircleOrifice,
       kGas,
       false,
       [](Context& c) {
         c.kappa = 0.04;
         c.dP = 24000;
         c.qMax = 40000;
         c.qNor = 40000;
       },
       {},
       {{"データが異常のようです。確認してください。"}, {"データが不適当です。"}},
       false},
      {"quarter circle, S out in the loop",
       kQuarterCircleOrifice,
       kGas,
       false,
       [](Context& c) {
         c.dP = 24900;
         c.qMax = 0.5 * 0.01252 * 40000 * std::sqrt(11.65 * 24900);
         c.qNor = c.qMax;
       },
       {},
       {{"Ｓ(=0.5569)が大きすぎます。\n配管径又は差圧を大きくして下さい。"},
        {"β(=0)が小さすぎます。\n配管径又は差圧を小さくして下さい。"}},
       false},
  };
  for (const Case& row : rows) Check(row);
}

// The least bores come before the limits of beta.
TEST(Messages, OfTheLeastBore) {
  const struct {
    ElementType type;
    float pipeBore;
    double flow;
    const char* tail;
  } rows[] = {
      {kFlangeTapOrifice, 50, 2000 * 0.0625,
       "mm）になりました。\n12.5mm以上になるようにデータを変更してください。"},
      {kVenaContractaTapOrifice, 50, 2000 * 0.0625,
       "mm）になりました。\n12.5mm以上になるようにデータを変更してください。"},
      {kVenturiNozzle, 70, 1500,
       "mm）になりました。\n50mm以上になるようにデータを変更してください。"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.type);
    Context context = Service(row.type, kLiquid);
    context.pipeBore20 = row.pipeBore;
    context.pipeBore = row.pipeBore;
    context.qMax = row.flow;
    context.qNor = row.flow;
    context.mu = 0.01;
    ScriptedMessages messages;
    EXPECT_FALSE(Calculate(context, ShippedTable(), messages));
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_TRUE(messages.shown[0].text.starts_with("絞り径が（")) << messages.shown[0].text;
    EXPECT_TRUE(messages.shown[0].text.ends_with(row.tail)) << messages.shown[0].text;
  }
}

constexpr Box kTooHigh{
    "常用流量でのレイノルズ数（ =3000001）が 大き過ぎます。\n"
    "絞り機構のタイプを変更するか、データを見直して下さい。"};
constexpr Box kTooLow{
    "常用流量でのレイノルズ数（ =10）が 小さ過ぎます。\n"
    "絞り機構のタイプを変更するか、データを見直して下さい。"};

// Each type against its limits, first too high and then too low; false answers are No.
TEST(Messages, OfTheReynoldsNumber) {
  const struct {
    ElementType type;
    double reNor;
    bool answer;
    std::vector<Box> boxes;
    bool passes;
  } rows[] = {
      {kFlangeTapOrifice, 3000000.5, true, {}, true},
      {kCornerTapOrifice, 3000000.5, true, {}, true},
      {kVenaContractaTapOrifice, 3000000.5, true, {kTooHigh, kOutside}, true},
      {kVenaContractaTapOrifice, 3000000.5, false, {kTooHigh, kOutside}, false},
      {kQuarterCircleOrifice, 3000000.5, true, {kTooHigh}, false},
      {kVenturiNozzle, 3000000.5, true, {kTooHigh, kOutside}, true},
      {kFlangeTapOrifice, 10.2, true, {kTooLow}, false},
      {kVenaContractaTapOrifice, 10.2, true, {kTooLow}, false},
      {kQuarterCircleOrifice, 10.2, true, {kTooLow, kOutside}, true},
      {kQuarterCircleOrifice, 10.2, false, {kTooLow, kOutside}, false},
      {kVenturiNozzle, 10.2, true, {kTooLow}, false},
      {kQuarterCircleOrifice, 2000000, true, {}, true},  // at the limits
      {kQuarterCircleOrifice, 100, true, {}, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.type << " " << row.reNor << " " << row.answer);
    Context context;
    context.elementType = row.type;
    ScriptedMessages messages({row.answer});
    EXPECT_EQ(CheckReynolds(context, row.reNor, {100, 2000000}, messages), row.passes);
    EXPECT_EQ(context.calcFailed, !row.passes);
    EXPECT_EQ(context.extrapolationMark, row.passes && !row.boxes.empty() ? kMark : "");
    ASSERT_EQ(messages.shown.size(), row.boxes.size());
    for (std::size_t i = 0; i < row.boxes.size(); ++i) {
      EXPECT_EQ(messages.shown[i].text, row.boxes[i].text);
      EXPECT_EQ(messages.shown[i].buttons, row.boxes[i].buttons);
    }
  }
}

// A liquid may have a calculated differential as large as its pressure, but not an entered one.
TEST(Messages, OfADifferentialJustAtThePressure) {
  Context context = Service(kFlangeTapOrifice, kLiquid);
  context.dP = 10000 * context.p;
  ScriptedMessages messages;
  EXPECT_FALSE(CheckPipeAndDifferential(context, ShippedTable(), messages));
  context.calcFailed = false;
  EXPECT_TRUE(CheckCalculatedDifferential(context, context.dP, messages));
  EXPECT_FALSE(CheckCalculatedDifferential(context, context.dP * 1.000001, messages));
  context.fluidPhase = kGas;
  EXPECT_TRUE(CheckCalculatedDifferential(context, 2500 * context.p, messages));
  EXPECT_FALSE(CheckCalculatedDifferential(context, 2501 * context.p, messages));
  EXPECT_EQ(messages.shown.size(), 3u);
}

// Within a band of S the iteration for a nozzle swings between two values for ever, and for a
// venturi tube it does at S = C; a tiny normal flow keeps the expansion factor of a gas in noise.
TEST(Sizing, AnIterationThatDoesNotSettleEndsInAFault) {
  Context nozzle = Service(kIsaNozzle, kLiquid);
  nozzle.pipeBore20 = 100;
  nozzle.pipeBore = 100;
  nozzle.qMax = 28274;
  nozzle.qNor = 28274;
  nozzle.mu = 1;
  nozzle.dP = 53.2;
  EXPECT_EQ(FaultOf(nozzle), Fault::kOverflow);
  Context venturi = Service(kMachinedVenturi, kLiquid);
  venturi.qMax = 0.995 * 0.01252 * 40000 * std::sqrt(998.0 * 1000);
  venturi.qNor = venturi.qMax;
  EXPECT_EQ(FaultOf(venturi), Fault::kOverflow);
  Context gas = Service(kLongRadiusNozzle, kGas);
  gas.boreToDifferential = true;
  gas.p = 6.03323;
  gas.rho = 7.03;
  gas.pipeBore20 = 100;
  gas.pipeBore = 100;
  gas.bore = 60;
  gas.qMax = 2000;
  gas.qNor = 0.02;
  EXPECT_EQ(FaultOf(gas), Fault::kOverflow);
}

// Without a normal flow the Reynolds number is 0: a fault where the coefficient depends on it, and
// for a gas also where the expansion factor has the pressure ratio as a divisor.
TEST(Sizing, WithoutANormalFlowEndsAsTheEquationOfTheTypeDoes) {
  for (int type = 0; type < kElementTypes; ++type) {
    for (const int phase : kPhases) {
      for (const bool boreToDifferential : {false, true}) {
        SCOPED_TRACE(testing::Message() << type << " " << phase << " " << boreToDifferential);
        Context context = Service(Type(type), phase);
        context.boreToDifferential = boreToDifferential;
        context.qNor = 0;
        std::optional<Fault> expected;
        if (type <= 3 || type == 5 || type == 6) {
          expected = Fault::kDivisionByZero;
        } else if (type >= 7 && phase != kLiquid) {
          expected = Fault::kOverflow;
        }
        EXPECT_EQ(FaultOf(context), expected);
        if (expected) continue;
        ScriptedMessages messages;
        EXPECT_EQ(Calculate(context, ShippedTable(), messages).has_value(), type == 4);
        ASSERT_FALSE(messages.shown.empty());
        EXPECT_TRUE(messages.shown[0].text.starts_with("常用流量でのレイノルズ数（ =0）が 小さ"));
      }
    }
  }
}

TEST(Sizing, EmptyEntriesEndInFaultsAndNotInNumbers) {
  const struct {
    const char* name;
    void (*change)(Context&);
    bool differentialToBore, boreToDifferential;  // whether that way must end in a fault
  } rows[] = {
      {"viscosity", [](Context& c) { c.mu = 0; }, true, true},
      {"density", [](Context& c) { c.rho = 0; }, true, true},
      {"differential", [](Context& c) { c.dP = 0; }, true, false},
      {"pipe bore",
       [](Context& c) {
         c.pipeBore = 0;
         c.pipeBore20 = 0;
       },
       true, true},
      {"bore", [](Context& c) { c.bore = 0; }, false, true},
      {"bore as large as the pipe", [](Context& c) { c.bore = c.pipeBore; }, false, true},
      {"both flows",
       [](Context& c) {
         c.qMax = 0;
         c.qNor = 0;
       },
       true, true},
  };
  for (const auto& row : rows) {
    for (int type = 0; type < kElementTypes; ++type) {
      if (type == kQuarterCircleOrifice || type == kVenaContractaTapOrifice) continue;
      SCOPED_TRACE(testing::Message() << row.name << " " << type);
      Context context = Service(Type(type), kGas);
      row.change(context);
      EXPECT_EQ(FaultOf(context).has_value(), row.differentialToBore);
      context.boreToDifferential = true;
      EXPECT_EQ(FaultOf(context).has_value(), row.boreToDifferential);
    }
  }
  for (const ElementType type : {kIsaNozzle, kAsCastVenturi, kVenturiNozzle}) {
    Context context = Service(type, kGas);
    context.kappa = 1;
    EXPECT_EQ(FaultOf(context), Fault::kDivisionByZero);
  }
  for (const ElementType type : {kVenaContractaTapOrifice, kQuarterCircleOrifice}) {
    Context context = Service(type, kLiquid);
    context.mu = 0;
    EXPECT_EQ(FaultOf(context), Fault::kDivisionByZero);
  }
  Context wrongElement = Service(Type(-1), kLiquid);
  EXPECT_EQ(FaultOf(wrongElement), Fault::kIndexOutOfRange);
}

}  // namespace
}  // namespace flow
