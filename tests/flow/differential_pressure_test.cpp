#include "flow/differential_pressure.h"

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

Context Known(Context context) {
  context.boreToDifferential = true;
  return context;
}

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
    auto solved = Calculate(context, ShippedTable(), messages);
    if (FamilyOf(row.type) == ElementFamily::kVenturi) {
      EXPECT_FALSE(solved);  // used outside its Reynolds numbers here
      context.mu = 0.1;
      solved = Calculate(context, ShippedTable(), messages);
    }
    ASSERT_TRUE(solved);
    EXPECT_NEAR(solved->dP * kPascalPerMmH2O, 17000, 17000 * 4e-4);
  }
}

// The results, put into the SI form of the flow equation, give the flow back; alpha is that of the
// normal flow's Reynolds number, eps that of the differential at normal flow.
TEST(Sizing, ResultsSatisfyTheFlowEquationInSi) {
  for (int type = 0; type < kElementTypes; ++type) {
    for (const int phase : kPhases) {
      SCOPED_TRACE(testing::Message() << type << " " << phase);
      Context context = Known(Service(Type(type), phase));
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
                  DischargeEquation(Type(type), result->reNor, 200).At(result->beta).alpha);
      }
    }
  }
}

TEST(Sizing, GivesTapsRadiusAndUseLimitsByType) {
  for (int type = 0; type < kElementTypes; ++type) {
    SCOPED_TRACE(type);
    Context context = Known(Service(Type(type), kLiquid));
    context.pipeBore20 = 199.9;
    ScriptedMessages messages;
    const auto result = Calculate(context, ShippedTable(), messages);
    EXPECT_EQ(messages.shown.size(), type == kWeldedVenturi ? 1u : 0u);  // its pipe begins at 200
    ASSERT_TRUE(result);
    EXPECT_EQ(result->useHigh.has_value(), type >= 3);
    EXPECT_EQ(result->radius.has_value(), type == kQuarterCircleOrifice);
    EXPECT_EQ(result->c.has_value(), type != 3 && type != 4);
    // By hand: 170 * 0.25 * 200 / 471570 = 0.018, 1e7 / 471570 = 21.206.
    if (type == kFlangeTapOrifice) {
      EXPECT_EQ(result->useLow, 0.02);
    }
    if (type == kVenaContractaTapOrifice) {
      EXPECT_EQ(*result->useHigh, 21.21);
    }
    ASSERT_EQ(result->upstreamTap.has_value(), type <= 3);
    if (type > 3) continue;
    const double upstream[] = {25.4, 199.9, 0, 199.9};
    const double downstream[] = {25.4, 100.0, 0, 127.9};  // 199.95/2; 0.64 * 199.9 = 127.936
    EXPECT_EQ(*result->upstreamTap, upstream[type]);
    EXPECT_EQ(*result->downstreamTap, downstream[type]);
  }
}

TEST(Sizing, VenaContractaLossReadsTheCoefficientOfAnEarlierCalculation) {
  ScriptedMessages messages;
  Context context = Known(Service(kVenaContractaTapOrifice, kLiquid));
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
  std::string text;
  Icon icon = Icon::kNone;
  Buttons buttons = Buttons::kOk;
};

const Box kOutside{"規格範囲外で計算しますか", Icon::kQuestion, Buttons::kYesNo};
const Box kPipe{"配管径が規格\n（50～1000㎜）の範囲外です。\n規格範囲外で計算しますか",
                Icon::kCritical, Buttons::kYesNo};
const Box kBeta{"βが、（0.1～0.75）の範囲外です。\n規格範囲外で計算しますか", Icon::kWarning,
                Buttons::kYesNo};
const Box kRunsAway{" !!! 発生差圧が大き過ぎます。設計デ－タを  見直して下さい "};
const std::string kTooSmall = "が小さすぎます。\n配管径又は差圧を小さくして下さい。";
const std::string kTooLarge = "が大きすぎます。\n配管径又は差圧を大きくして下さい。";
const char* const kMark = "（外挿計算）";

void ExpectShown(const ScriptedMessages& messages, const std::vector<Box>& boxes) {
  ASSERT_EQ(messages.shown.size(), boxes.size());
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    EXPECT_EQ(messages.shown[i].text, boxes[i].text);
    EXPECT_EQ(messages.shown[i].title, "");
    EXPECT_EQ(messages.shown[i].icon, boxes[i].icon);
    EXPECT_EQ(messages.shown[i].buttons, boxes[i].buttons);
  }
}

/// By hand: S = 0.5 with an expansion factor of 0.8979 at beta 0.6985.
Context QuarterCircleAtItsEnd() {
  Context context = Service(kQuarterCircleOrifice, kGas);
  context.dP = 24900;
  context.qMax = 0.5 * 0.01252 * 40000 * std::sqrt(11.65 * 24900);
  context.qNor = context.qMax;
  return context;
}

// The boxes that come for a service with some changes, in order, and whether there is a result.
TEST(Messages, OfACalculation) {
  const Context liquid = Service(kFlangeTapOrifice, kLiquid);
  const Context gas = Service(kFlangeTapOrifice, kGas);
  const Context contracta = Service(kVenaContractaTapOrifice, kGas);
  const Context machined = Service(kMachinedVenturi, kLiquid);
  const Context quarter = Service(kQuarterCircleOrifice, kLiquid);
  const Context quarterGas = Service(kQuarterCircleOrifice, kGas);
  constexpr auto kQ = &Context::qMax;
  constexpr auto kQn = &Context::qNor;
  constexpr auto kPipe20 = &Context::pipeBore20;
  constexpr auto kP = &Context::p;
  constexpr auto kDp = &Context::dP;
  constexpr auto kBore = &Context::bore;
  const struct {
    const char* name;
    Context context;
    std::vector<std::pair<common::Real Context::*, double>> changes;
    std::vector<bool> answers;
    std::vector<Box> boxes;
    bool result;
    const char* mark = "";
  } rows[] = {
      {"equal flows pass", liquid, {{kQn, 80000}}, {}, {}, true},
      {"normal flow above scale speaks first of all",
       liquid,
       {{kQn, 80001}, {kPipe20, 30}, {kDp, 1e9}},
       {},
       {{"常用流量が最大目盛流量を超えています"}},
       false},
      {"pipe too small, no", liquid, {{kPipe20, 49.9}, {kDp, 1e9}}, {false}, {kPipe}, false},
      {"pipe too large, yes", liquid, {{kPipe20, 1000.1}}, {true}, {kPipe}, true, kMark},
      {"pipe at its limit", liquid, {{kPipe20, 1000}}, {}, {}, true},
      {"pipe, yes, then the differential of a liquid",
       liquid,
       {{kPipe20, 49}, {kDp, 100000}},
       {true},
       {kPipe, {"流体の圧力より差圧の方が大きいですよ。 ", Icon::kWarning}},
       false,
       kMark},
      {"differential of a gas",
       gas,
       {{kP, 6.03}, {kDp, 15076}},
       {},
       {{"差圧が大き過ぎます。 \n147.7kPa 以下に して下さい。", Icon::kCritical}},
       false},
      {"beta too large, no", Known(liquid), {{kBore, 151}}, {false}, {kBeta}, false},
      {"beta too large, yes", Known(liquid), {{kBore, 151}}, {true}, {kBeta}, true, kMark},
      {"beta at its limit", Known(liquid), {{kBore, 150}}, {}, {}, true},
      {"pipe and beta asked, second answer no",
       Known(liquid),
       {{kBore, 151}, {kPipe20, 49}},
       {true, false},
       {kPipe, kBeta},
       false,
       kMark},
      {"quarter circle is refused without a question",
       Known(quarter),
       {{kBore, 39}},
       {},
       {{"β =0.195\n!! βが規格外になるので計算できません。"}},
       false},
      {"gas runs away", Known(gas), {{kQ, 25200}, {kQn, 20160}, {kP, 2}}, {}, {kRunsAway}, false},
      {"differential of a gas without a power in its expansion",
       Known(contracta),
       {{kQ, 168000}, {kQn, 134400}, {kP, 2}},
       {},
       {kRunsAway},
       false},
      {"differential of a liquid, after the calculation",
       Known(liquid),
       {{kP, 0.05}},
       {},
       {{"差圧が大き過ぎます。絞り径を変更して下さい。"}},
       false},
      // By hand: S = 2900 / (500.8 sqrt(998000)) = 0.0057965, C at Re 17094 0.59815, beta^2 = S/C.
      {"beta found too small",
       liquid,
       {{kQ, 2900}, {kQn, 2900}},
       {},
       {{"β(=0.0984)" + kTooSmall}},
       false},
      // beta^4 / (1 - beta^4) = (S/C)^2 with S = 128000 / (500.8 sqrt(99800)) = 0.80906, C 0.995.
      {"beta found too large", machined, {{kDp, 100}}, {}, {{"β(=0.7943)" + kTooLarge}}, false},
      {"S too small",
       quarter,
       {{kQ, 15009.34}, {kQn, 15000}},
       {},
       {{"Ｓ(=0.03)" + kTooSmall}},
       false},
      {"expansion factor negative",
       quarterGas,
       {{&Context::kappa, 0.04}, {kDp, 24000}, {kQ, 40000}, {kQn, 40000}},
       {},
       {{"データが異常のようです。確認してください。"}, {"データが不適当です。"}},
       false},
      {"S out in the loop",
       QuarterCircleAtItsEnd(),
       {},
       {},
       {{"Ｓ(=0.5569)" + kTooLarge}, {"β(=0)" + kTooSmall}},
       false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Context context = row.context;
    context.extrapolationMark = "left over";
    context.calcFailed = true;
    for (const auto& [field, value] : row.changes) context.*field = value;
    ScriptedMessages messages;
    for (const bool yes : row.answers) messages.Queue(yes);
    EXPECT_EQ(Calculate(context, ShippedTable(), messages).has_value(), row.result);
    EXPECT_EQ(context.calcFailed, !row.result);
    EXPECT_EQ(context.extrapolationMark, row.mark);
    ExpectShown(messages, row.boxes);
  }
}

// The least bores come before the limits of beta.
TEST(Messages, OfTheLeastBore) {
  const struct {
    ElementType type;
    float pipeBore;
    double flow;
    const char* tail;
  } rows[] = {
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

const Box kTooHigh{
    "常用流量でのレイノルズ数（ =3000001）が 大き過ぎます。\n"
    "絞り機構のタイプを変更するか、データを見直して下さい。"};
const Box kTooLow{
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
    ExpectShown(messages, row.boxes);
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

// Within a band of S the iteration for a nozzle swings between two values for ever; a tiny normal
// flow keeps the expansion factor of a gas in noise.
TEST(Sizing, AnIterationThatDoesNotSettleEndsInAFault) {
  Context nozzle = Service(kIsaNozzle, kLiquid);
  nozzle.pipeBore20 = nozzle.pipeBore = 100;
  nozzle.qMax = nozzle.qNor = 28274;
  nozzle.mu = 1;
  nozzle.dP = 53.2;
  EXPECT_EQ(FaultOf(nozzle), Fault::kOverflow);
  Context gas = Known(Service(kLongRadiusNozzle, kGas));
  gas.p = 6.03323;
  gas.rho = 7.03;
  gas.pipeBore20 = gas.pipeBore = 100;
  gas.bore = 60;
  gas.qMax = 2000;
  gas.qNor = 0.02;
  EXPECT_EQ(FaultOf(gas), Fault::kOverflow);
}

}  // namespace
}  // namespace flow
