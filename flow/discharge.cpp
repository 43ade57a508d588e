#include "flow/discharge.h"

#include <algorithm>
#include <array>

#include "common/number.h"
#include "flow/rounds.h"

namespace flow {

using common::At;
using common::Interpolate;

namespace {

constexpr double kMillion = 1000000;
constexpr double kInch = 25.4;  // mm

Real Alpha(Real c, Real beta) { return c / sqrt(1 - pow(beta, 4)); }

}  // namespace

DischargeEquation::DischargeEquation(ElementType type, Real reNor, float pipeBore)
    : type_(type), reNor_(reNor), pipeBore_(pipeBore) {
  switch (type) {
    case kFlangeTapOrifice:
    case kDAndHalfDTapOrifice:
    case kCornerTapOrifice: {
      Real upstreamTap = 0;  // L1 and L2: taps in pipe bores from the plate; corner taps 0
      if (type == kFlangeTapOrifice) {
        upstreamTap = kInch / pipeBore_;
        downstreamTap_ = upstreamTap;
      } else if (type == kDAndHalfDTapOrifice) {
        upstreamTap = 1;
        downstreamTap_ = 0.47;
      }
      reynoldsTerm_ = pow(kMillion / reNor, Real(0.3));
      upstreamTerm_ = 0.043 + 0.08 * exp(-10 * upstreamTap) - 0.123 * exp(-7 * upstreamTap);
      smallBore_ = pipeBore < 71.12f;
      smallBoreTerm_ = 2.8 - pipeBore_ / kInch;
      break;
    }
    case kVenaContractaTapOrifice:
      reynoldsTerm_ = sqrt(kMillion / reNor);
      break;
    case kIsaNozzle:
      reynoldsTerm_ = pow(kMillion / reNor, Real(1.15));
      break;
    default:
      break;
  }
}

Coefficients DischargeEquation::At(Real beta) const {
  if (type_ == kVenaContractaTapOrifice) return {std::nullopt, VenaContractaCoefficient(beta)};
  Real c;
  if (type_ <= kCornerTapOrifice) {
    c = OrificeDischarge(beta);
  } else if (type_ <= kLongRadiusNozzle) {
    c = NozzleDischarge(beta);
  } else {
    c = VenturiDischarge(beta);
  }
  return {c, Alpha(c, beta)};
}

Real DischargeEquation::OrificeDischarge(Real beta) const {
  const Real beta2 = beta * beta;
  const Real beta4 = beta2 * beta2;
  const Real beta8 = beta4 * beta4;
  const Real m2 = 2 * downstreamTap_ / (1 - beta);
  const Real a = pow(19000 * beta / reNor_, Real(0.8));
  Real c = 0.5961 + 0.0261 * beta2 - 0.216 * beta8 +
           0.000521 * pow(kMillion * beta / reNor_, Real(0.7)) +
           (0.0188 + 0.0063 * a) * pow(beta, Real(3.5)) * reynoldsTerm_ +
           upstreamTerm_ * (1 - 0.11 * a) * beta4 / (1 - beta4) -
           0.031 * (m2 - 0.8 * pow(m2, Real(1.1))) * pow(beta, Real(1.3));
  if (smallBore_) c = c + 0.011 * (0.75 - beta) * smallBoreTerm_;
  return c;
}

Real DischargeEquation::VenaContractaCoefficient(Real beta) const {
  const Real d2 = pipeBore_ * pipeBore_;
  const Real k0 = 0.5922 + 0.4252 * (0.3871 / (d2 * pow(beta, 2) + 0.254 * pipeBore_) +
                                     pow(beta, 4) + 1.25 * pow(beta, 16));
  const Real b = 0.00025 + 0.002325 * (beta + 1.75 * pow(beta, 4) + 10 * pow(beta, 12) +
                                       0.07874 * pipeBore_ * pow(beta, 16));
  return k0 + b * reynoldsTerm_;
}

Real DischargeEquation::NozzleDischarge(Real beta) const {
  if (type_ == kLongRadiusNozzle) return 0.9965 - 0.00653 * sqrt(kMillion * beta / reNor_);
  return 0.99 - 0.2262 * pow(beta, Real(4.1)) -
         (0.00175 * pow(beta, 2) - 0.0033 * pow(beta, Real(4.15))) * reynoldsTerm_;
}

Real DischargeEquation::VenturiDischarge(Real beta) const {
  switch (type_) {
    case kAsCastVenturi:
      return 0.984;
    case kMachinedVenturi:
      return 0.995;
    case kWeldedVenturi:
      return 0.985;
    default:
      return 0.9858 - 0.196 * pow(beta, Real(4.5));
  }
}

Real ExpansionFactor(ElementType type, Real beta, Real x, Real kappa) {
  const Real beta4 = pow(beta, 4);
  if (type <= kCornerTapOrifice) {
    return 1 - (0.351 + 0.256 * beta4 + 0.93 * pow(beta, 8)) * (1 - pow(1 - x, 1 / kappa));
  }
  if (type == kVenaContractaTapOrifice) return 1 - (0.41 + 0.35 * beta4) * x / kappa;
  const Real tau = 1 - x;
  const Real tau2 = pow(tau, 2 / kappa);
  return sqrt((kappa * tau2 / (kappa - 1)) * ((1 - beta4) / (1 - beta4 * tau2)) *
              ((1 - pow(tau, (kappa - 1) / kappa)) / x));
}

Real QuarterCircleExpansion(Real beta, Real x, Real kappa) {
  return 1 - (0.41 + 0.35 * pow(beta, 4)) * x / kappa -
         0.1 * pow(1 - pow(1 - x, 1 / kappa), Real(1.15));
}

namespace {

using QuarterCircleColumn = std::array<Real, OrificeTable::kQuarterCircleRows>;
constexpr int kLastRow = OrificeTable::kQuarterCircleRows - 1;

/// A column of the quarter circle table at x of another column, within the pair of rows from `row`
/// on; the last row belongs to the last pair.
Real Between(const QuarterCircleColumn& column, const QuarterCircleColumn& abscissa, Real x,
             int row) {
  const int pair = row == kLastRow ? kLastRow - 1 : row;
  return Interpolate(At(column, pair), At(column, pair + 1), At(abscissa, pair), x,
                     At(abscissa, pair + 1));
}

}  // namespace

QuarterCircle QuarterCircleFromBeta(const OrificeTable& table, Real beta, float pipeBore) {
  const int row = common::IntIndex(200 * beta - 40);
  const Real s = row == kLastRow ? At(table.tableS, kLastRow)
                                 : Between(table.tableS, table.tableBeta, beta, row);
  const Real radius = Between(table.tableRadius, table.tableBeta, beta, row);
  return {s, s / pow(beta, 2), Real(pipeBore) * radius};
}

namespace {

// The span of S that the quarter circle plate is calculated in.
constexpr double kSMin = 0.0305;
constexpr double kSMax = 0.503;

/// Row of the quarter circle table at or below S, from a guess that is a few rows too high. Ends
/// with an index fault should the table start above S.
int RowOf(const OrificeTable& table, Real s) {
  int row = std::min(common::IntIndex(220 * pow(s, Real(0.29)) - 76), kLastRow);
  while (s < At(table.tableS, row)) --row;
  return row;
}

/// Tells that S lies outside its span; true if it does.
bool TellSOutside(Real s, common::Messages& messages) {
  if (s >= kSMin && s <= kSMax) return false;
  const std::string number = common::NumberText(common::RoundDigits(s, 4));
  if (s < kSMin) {
    messages.Show("Ｓ(=" + number + ")が小さすぎます。\n配管径又は差圧を小さくして下さい。");
  } else {
    messages.Show("Ｓ(=" + number + ")が大きすぎます。\n配管径又は差圧を大きくして下さい。");
  }
  return true;
}

/// Corrects S for the expansion of gas and steam: S = s0 / eps, with eps at the beta of S. False
/// when eps or S leave their span; that is then told.
bool SolveS(const Context& context, const OrificeTable& table, Real s0, Real x, Real& s, Real& eps,
            common::Messages& messages) {
  Rounds rounds;
  Real prev = 0;
  while (abs(prev / s - 1) > kRelativeStep) {
    rounds.Next();
    prev = s;
    const Real beta = Between(table.tableBeta, table.tableS, s, RowOf(table, s));
    eps = QuarterCircleExpansion(beta, x, context.kappa);
    if (eps <= 0) {
      messages.Show("データが異常のようです。確認してください。");
      return false;
    }
    s = s0 / eps;
    if (TellSOutside(s, messages)) return false;
  }
  return true;
}

}  // namespace

std::optional<QuarterCircleSolution> QuarterCircleFromS(Context& context, const OrificeTable& table,
                                                        Real s0, Real x,
                                                        common::Messages& messages) {
  QuarterCircleSolution solution;
  if (TellSOutside(s0, messages)) {
    context.calcFailed = true;
    return std::nullopt;
  }
  Real s = s0;
  if (!context.Liquid() && !SolveS(context, table, s0, x, s, solution.eps, messages)) {
    return solution;
  }
  const int row = RowOf(table, s);
  solution.beta = Between(table.tableBeta, table.tableS, s, row);
  solution.alpha = s / pow(solution.beta, 2);
  solution.radius = Real(context.pipeBore) * Between(table.tableRadius, table.tableS, s, row);
  return solution;
}

namespace {

constexpr double kNoLimit = 1e+38;

/// One step of the lower Reynolds limit of vena contracta taps: up to this beta.
struct ReLowStep {
  double betaLimit;
  double reLow;
};

/// Steps of the lower Reynolds limit for pipes up to a bore in mm.
struct ReLowRow {
  float pipeLimit;
  std::array<ReLowStep, 7> steps;  // unused steps have the limit 0, which no beta here is below
};

constexpr ReLowRow kReLowRows[] = {
    {50,
     {{{0.375, 6000},
       {0.425, 8000},
       {0.5, 10000},
       {0.58, 15000},
       {0.68, 20000},
       {0.79, 25000},
       {0.8, 50000}}}},
    {75,
     {{{0.35, 9000}, {0.4, 10000}, {0.475, 15000}, {0.54, 20000}, {0.68, 25000}, {0.8, 50000}}}},
    {100,
     {{{0.35, 12000}, {0.4, 15000}, {0.5, 20000}, {0.6, 30000}, {0.79, 50000}, {0.8, 100000}}}},
    {150, {{{0.35, 20000}, {0.4, 25000}, {0.475, 30000}, {0.64, 50000}, {0.8, 100000}}}},
    {200, {{{0.375, 25000}, {0.425, 30000}, {0.56, 50000}, {0.78, 100000}, {0.8, 200000}}}},
    {250, {{{0.375, 30000}, {0.52, 50000}, {0.7, 100000}, {0.8, 200000}}}},
    {375, {{{0.45, 50000}, {0.6, 100000}, {0.8, 200000}}}},
    {750,
     {{{0.4, 100000},
       {0.45, 150000},
       {0.58, 200000},
       {0.68, 300000},
       {0.79, 400000},
       {0.8, 500000}}}},
};

Real VenaContractaReLow(Real beta, float pipeBore) {
  if (beta <= 0.325) return (90000.0 / 750) * Real(pipeBore);
  for (const ReLowRow& row : kReLowRows) {
    if (pipeBore > row.pipeLimit) continue;
    for (const ReLowStep& step : row.steps) {
      if (beta <= step.betaLimit) return step.reLow;
    }
    break;
  }
  return 0;
}

ReynoldsRange QuarterCircleLimits(const OrificeTable& table, Real beta) {
  const auto& high = table.quarterCircleReMax;
  const auto& low = table.quarterCircleReMin;
  const int i = common::IntIndex(5 * beta);
  if (i >= 5) return {At(low, 5), At(high, 5)};
  // The row steps by 0.2 of beta, the abscissa by 0.1: meant so, and the table is made for it.
  const Real b0 = Int(10 * beta) / 10;
  return {Interpolate(At(low, i), At(low, i + 1), b0, beta, b0 + 0.1),
          Interpolate(At(high, i), At(high, i + 1), b0, beta, b0 + 0.1)};
}

}  // namespace

ReynoldsRange ReynoldsLimits(const OrificeTable& table, ElementType type, Real beta,
                             float pipeBore) {
  const Real beta2 = pow(beta, 2);
  const Real pipeTerm = 170 * beta2 * Real(pipeBore);
  switch (type) {
    case kFlangeTapOrifice:
      return {std::max(pipeTerm, Real(5000)), kNoLimit};
    case kDAndHalfDTapOrifice:
    case kCornerTapOrifice:
      return {std::max(beta <= 0.56 ? Real(5000) : 16000 * beta2, pipeTerm), kNoLimit};
    case kVenaContractaTapOrifice:
      return {VenaContractaReLow(beta, pipeBore), pipeBore <= 125 ? 1000000 : 10000000};
    case kQuarterCircleOrifice:
      return QuarterCircleLimits(table, beta);
    case kIsaNozzle:
      return {beta < 0.44 ? 70000 : 20000, 10000000};
    case kLongRadiusNozzle:
      return {10000, 10000000};
    case kVenturiNozzle:
      return {150000, 2000000};
    default:
      return {200000, 2000000};
  }
}

Real PermanentLoss(ElementType type, Real dP, Real alpha, Real beta, Real c) {
  const Real beta2 = pow(beta, 2);
  if (type == kQuarterCircleOrifice) return dP * (1 - alpha * beta2) / (1 + alpha * beta2);
  if (type == kVenturiNozzle) {
    return dP * std::max(0.0924 * pow(beta, Real(-0.7422)), Real(0.11));
  }
  if (FamilyOf(type) == ElementFamily::kVenturi) {
    return dP * std::max(0.085 * pow(beta, Real(-0.3463)), Real(0.1));
  }
  const Real r = sqrt(1 - pow(beta, 4) * (1 - pow(c, 2)));
  const Real q = c * beta2;
  return dP * (r - q) / (r + q);
}

Real DownstreamTapDistance(const OrificeTable& table, Real beta, Real pipeBore20) {
  constexpr int kLastPair = OrificeTable::kTapFactors - 2;
  const int i = std::clamp(common::IntIndex((beta + 1e-06) * 20 - 2), 0, kLastPair);
  const Real x1 = i * Real(0.05) + 0.1;
  const Real x2 = (i + 1) * Real(0.05) + 0.1;
  return pipeBore20 * Interpolate(At(table.downstreamTapFactor, i),
                                  At(table.downstreamTapFactor, i + 1), x1, beta, x2);
}

}  // namespace flow
