#include "flow/differential_pressure.h"

#include <string>

#include "common/number.h"
#include "data/units.h"
#include "flow/rounds.h"

namespace flow {

using common::At;
using common::Icon;
using common::Messages;
using common::NumberText;
using common::RoundDigits;
using data::kMmH2OPerKgfCm2;

namespace {

// Mass flow in kg/h from mm, kg/m3 and mmH2O: pi/4 sqrt(2 * 9.80665) * 3600e-6 = 0.0125217,
// rounded.
constexpr double kFlowConstant = 0.01252;
// A quarter of the pressure, the bound for gas and steam.
constexpr double kQuarterColumn = kMmH2OPerKgfCm2 / 4;
constexpr const char* kExtrapolationMark = "（外挿計算）";
constexpr const char* kOutsideStandard = "規格範囲外で計算しますか";

/// Sets the failure flag; the value says what the caller returns.
bool Fail(Context& context) {
  context.calcFailed = true;
  return false;
}

/// Asks whether to go on outside the limits of use and notes the answer.
bool AskToExtrapolate(Context& context, const std::string& text, Icon icon, Messages& messages) {
  if (!messages.Ask(text, {}, icon)) return Fail(context);
  context.extrapolationMark = kExtrapolationMark;
  return true;
}

/// Pressure ratio at normal flow: differential over absolute pressure.
Real PressureRatio(const Context& context, Real dP) {
  return dP * pow(context.qNor / context.qMax, 2) / (kMmH2OPerKgfCm2 * context.p);
}

Real Expansion(const Context& context, Real beta, Real x) {
  return context.elementType == kQuarterCircleOrifice
             ? QuarterCircleExpansion(beta, x, context.kappa)
             : ExpansionFactor(context.elementType, beta, x, context.kappa);
}

Real Coefficient(Context& context, const DischargeEquation& equation, Real beta) {
  const Coefficients coefficients = equation.At(beta);
  if (coefficients.c) context.c = *coefficients.c;
  return coefficients.alpha;
}

/// The limits of use for beta on the way from bore to differential.
bool CheckEnteredBeta(Context& context, const OrificeTable& table, Real beta, Messages& messages) {
  const Real betaMin = At(table.betaMin, context.elementType);
  const Real betaMax = At(table.betaMax, context.elementType);
  if (beta >= betaMin && beta <= betaMax) return true;
  if (context.elementType == kQuarterCircleOrifice) {
    messages.Show("β =" + NumberText(RoundDigits(beta, 4)) +
                  "\n!! βが規格外になるので計算できません。");
    return Fail(context);
  }
  return AskToExtrapolate(context,
                          "βが、（" + NumberText(betaMin) + "～" + NumberText(betaMax) +
                              "）の範囲外です。\n" + kOutsideStandard,
                          Icon::kWarning, messages);
}

/// The differential of a gas or steam, whose expansion factor depends on it.
bool SolveExpansion(Context& context, Solution& solution, Messages& messages) {
  const Real dP0 = solution.dP;
  Rounds rounds;
  Real prev = 0;
  while (abs(prev / solution.dP - 1) > kRelativeStep) {
    rounds.Next();
    prev = solution.dP;
    solution.eps = Expansion(context, solution.beta, PressureRatio(context, solution.dP));
    if (solution.eps < 0 || solution.dP > kQuarterColumn * context.p) {
      messages.Show(" !!! 発生差圧が大き過ぎます。設計デ－タを  見直して下さい ");
      return Fail(context);
    }
    solution.dP = dP0 / (solution.eps * solution.eps);
  }
  return true;
}

/// The iteration for beta of all types but the quarter circle. Ends early, with what it has, where
/// the coefficients or beta leave their sense; the checks behind it tell that.
void IterateBeta(Context& context, Real s, Real x, Real reNor, Solution& solution) {
  const ElementType type = context.elementType;
  const DischargeEquation equation(type, reNor, context.pipeBore);
  Rounds rounds;
  Real prev = 0;
  solution.beta = 0.67;
  while (abs(prev / solution.beta - 1) > kRelativeStep) {
    rounds.Next();
    prev = solution.beta;
    solution.alpha = Coefficient(context, equation, solution.beta);
    if (type <= kVenaContractaTapOrifice) {
      if (solution.alpha <= 0 || solution.alpha > 1) return;
    } else if (context.c <= 0) {
      return;
    }
    if (!context.Liquid()) solution.eps = ExpansionFactor(type, solution.beta, x, context.kappa);
    if (solution.eps <= 0) return;
    solution.beta = sqrt(s / (solution.alpha * solution.eps));
    if (solution.beta > 1 || solution.beta <= 0) return;
  }
}

/// The smallest bore that the element may have, in mm; 0 where none is set.
double LeastBore(ElementType type) {
  if (type <= kVenaContractaTapOrifice) return 12.5;
  return type == kVenturiNozzle ? 50 : 0;
}

bool CheckFoundBeta(Context& context, const OrificeTable& table, const Solution& solution,
                    Messages& messages) {
  const Real bore = Real(context.pipeBore) * solution.beta;
  const double leastBore = LeastBore(context.elementType);
  const auto betaText = [&] { return "β(=" + NumberText(RoundDigits(solution.beta, 4)); };
  if (leastBore > 0 && bore < leastBore) {
    messages.Show("絞り径が（" + NumberText(RoundDigits(bore, 2)) + "mm）になりました。\n" +
                  NumberText(leastBore) + "mm以上になるようにデータを変更してください。");
  } else if (solution.alpha < 0 || solution.eps < 0) {
    messages.Show("データが不適当です。");
  } else if (solution.beta < At(table.betaMin, context.elementType)) {
    messages.Show(betaText() + ")が小さすぎます。\n配管径又は差圧を小さくして下さい。");
  } else if (solution.beta > At(table.betaMax, context.elementType)) {
    messages.Show(betaText() + ")が大きすぎます。\n配管径又は差圧を大きくして下さい。");
  } else {
    return true;
  }
  return Fail(context);
}

}  // namespace

float PipeBoreAtTemperature(Real pipeBore20, Real aPipe, Real t) {
  return static_cast<float>(
      static_cast<double>(common::Single(pipeBore20 * (1 + aPipe * (t - 20)))));
}

Real BoreAtTemperature(Real bore20, Real aElem, Real t) { return bore20 * (1 + aElem * (t - 20)); }

bool CheckPipeAndDifferential(Context& context, const OrificeTable& table, Messages& messages) {
  const Real pipeMin = At(table.pipeMin, context.elementType);
  const Real pipeMax = At(table.pipeMax, context.elementType);
  if (context.pipeBore20 < pipeMin || context.pipeBore20 > pipeMax) {
    const std::string text = "配管径が規格\n（" + NumberText(pipeMin) + "～" + NumberText(pipeMax) +
                             "㎜）の範囲外です。\n" + kOutsideStandard;
    if (!AskToExtrapolate(context, text, Icon::kCritical, messages)) return false;
  }
  if (context.boreToDifferential) return true;
  if (!context.Liquid() && context.dP > kQuarterColumn * context.p) {
    // 24.5 kPa per kgf/cm2 is a quarter of 98.
    messages.Show("差圧が大き過ぎます。 \n" + NumberText(RoundDigits(24.5 * context.p, 1)) +
                      "kPa 以下に して下さい。",
                  {}, Icon::kCritical);
    return Fail(context);
  }
  if (context.Liquid() && context.dP >= kMmH2OPerKgfCm2 * context.p) {
    messages.Show("流体の圧力より差圧の方が大きいですよ。 ", {}, Icon::kWarning);
    return Fail(context);
  }
  return true;
}

std::optional<Solution> SolveDifferentialPressure(Context& context, const OrificeTable& table,
                                                  Real reNor, Messages& messages) {
  Solution solution;
  solution.beta = context.Beta();
  if (!CheckEnteredBeta(context, table, solution.beta, messages)) return std::nullopt;
  if (context.elementType == kQuarterCircleOrifice) {
    const QuarterCircle plate = QuarterCircleFromBeta(table, solution.beta, context.pipeBore);
    solution.alpha = plate.alpha;
    solution.radius = plate.radius;
  } else {
    const DischargeEquation equation(context.elementType, reNor, context.pipeBore);
    solution.alpha = Coefficient(context, equation, solution.beta);
  }
  const Real D = context.pipeBore;
  solution.dP =
      pow(context.qMax / (kFlowConstant * solution.alpha * pow(solution.beta, 2) * D * D), 2) /
      context.rho;
  if (!context.Liquid() && !SolveExpansion(context, solution, messages)) return std::nullopt;
  return solution;
}

std::optional<Solution> SolveBore(Context& context, const OrificeTable& table, Real reNor,
                                  Messages& messages) {
  const Real D = context.pipeBore;
  const Real s = context.qMax / (kFlowConstant * D * D * sqrt(context.rho * context.dP));
  const Real x = context.Liquid() ? Real(0) : PressureRatio(context, context.dP);
  Solution solution;
  solution.dP = context.dP;
  if (context.elementType == kQuarterCircleOrifice) {
    const auto plate = QuarterCircleFromS(context, table, s, x, messages);
    if (!plate) return std::nullopt;
    solution.alpha = plate->alpha;
    solution.beta = plate->beta;
    solution.eps = plate->eps;
    solution.radius = plate->radius;
  } else {
    IterateBeta(context, s, x, reNor, solution);
  }
  if (!CheckFoundBeta(context, table, solution, messages)) return std::nullopt;
  return solution;
}

bool CheckReynolds(Context& context, Real reNor, const ReynoldsRange& limits, Messages& messages) {
  const bool quarterCircle = context.elementType == kQuarterCircleOrifice;
  const auto tell = [&](const char* finding) {
    messages.Show("常用流量でのレイノルズ数（ =" + NumberText(RoundDigits(reNor, 0)) + finding +
                  "\n絞り機構のタイプを変更するか、データを見直して下さい。");
  };
  const auto ask = [&] {
    return AskToExtrapolate(context, kOutsideStandard, Icon::kQuestion, messages);
  };
  if (context.elementType >= kVenaContractaTapOrifice && reNor > limits.reHigh) {
    tell("）が 大き過ぎます。");
    if (quarterCircle) return Fail(context);
    if (!ask()) return false;
  }
  if (reNor < limits.reLow) {
    tell("）が 小さ過ぎます。");
    // The other way round than above: only the quarter circle may be used below its limit.
    if (!quarterCircle) return Fail(context);
    if (!ask()) return false;
  }
  return true;
}

Real BoreAtReference(const Context& context, Real beta) {
  const Real bore = Real(context.pipeBore) * beta;
  return bore / (1 + context.aElem * (context.t - 20));
}

bool CheckCalculatedDifferential(Context& context, Real dP, Messages& messages) {
  const Real limit = (context.Liquid() ? kMmH2OPerKgfCm2 : kQuarterColumn) * context.p;
  if (dP <= limit) return true;
  messages.Show("差圧が大き過ぎます。絞り径を変更して下さい。");
  return Fail(context);
}

namespace {

void AddTaps(const Context& context, const OrificeTable& table, SizingResult& result) {
  switch (context.elementType) {
    case kFlangeTapOrifice:
      result.upstreamTap = 25.4;
      result.downstreamTap = 25.4;
      break;
    case kDAndHalfDTapOrifice:
      result.upstreamTap = context.pipeBore20;
      result.downstreamTap = RoundDigits(context.pipeBore20 / 2, 1);
      break;
    case kCornerTapOrifice:
      result.upstreamTap = 0;
      result.downstreamTap = 0;
      break;
    case kVenaContractaTapOrifice:
      result.upstreamTap = context.pipeBore20;
      result.downstreamTap =
          RoundDigits(DownstreamTapDistance(table, result.beta, context.pipeBore20), 1);
      break;
    default:
      break;
  }
}

/// Everything behind the solver that cannot be refused.
SizingResult Collect(const Context& context, const OrificeTable& table, const Solution& solution,
                     const ReynoldsRange& limits, Real reMax, Real reNor) {
  SizingResult result;
  result.reMax = reMax;
  result.reNor = reNor;
  if (HasDischargeCoefficient(context.elementType)) result.c = context.c;
  result.alpha = solution.alpha;
  result.eps = solution.eps;
  result.beta = solution.beta;
  result.dP = solution.dP;
  if (!context.boreToDifferential) result.d20 = BoreAtReference(context, solution.beta);
  result.radius = solution.radius;
  result.loss =
      PermanentLoss(context.elementType, solution.dP, solution.alpha, solution.beta, context.c);
  result.reLow = limits.reLow;
  result.reHigh = limits.reHigh;
  AddTaps(context, table, result);
  result.useLow = RoundDigits(limits.reLow / reMax, 2);
  if (context.elementType >= kVenaContractaTapOrifice) {
    result.useHigh = RoundDigits(limits.reHigh / reMax, 2);
  }
  return result;
}

}  // namespace

std::optional<SizingResult> Calculate(Context& context, const OrificeTable& table,
                                      Messages& messages) {
  context.calcFailed = false;
  context.extrapolationMark.clear();
  context.Beta();  // formed with the inputs: an empty pipe bore ends here, before all questions
  if (context.qMax < context.qNor) {
    messages.Show("常用流量が最大目盛流量を超えています");
    Fail(context);
    return std::nullopt;
  }
  if (!CheckPipeAndDifferential(context, table, messages)) return std::nullopt;
  const Real reNor = common::ReynoldsNumber(context.qNor, context.pipeBore, context.mu);
  const Real reMax = common::ReynoldsNumber(context.qMax, context.pipeBore, context.mu);
  const std::optional<Solution> solution =
      context.boreToDifferential ? SolveDifferentialPressure(context, table, reNor, messages)
                                 : SolveBore(context, table, reNor, messages);
  if (!solution) return std::nullopt;
  const ReynoldsRange limits =
      ReynoldsLimits(table, context.elementType, solution->beta, context.pipeBore);
  if (!CheckReynolds(context, reNor, limits, messages)) return std::nullopt;
  if (context.boreToDifferential && !CheckCalculatedDifferential(context, solution->dP, messages)) {
    return std::nullopt;
  }
  return Collect(context, table, *solution, limits, reMax, reNor);
}

}  // namespace flow
