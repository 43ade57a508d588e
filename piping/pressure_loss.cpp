#include "piping/pressure_loss.h"

#include "common/number.h"
#include "data/steam.h"

namespace piping {

namespace {

constexpr double kTwiceGravity = 19.6;     // m/s2; 2 x 9.8, not 9.80665
constexpr double kKgfM2PerKgfCm2 = 10000;  // kgf/m2 in 1 kgf/cm2

/// Loss of zeta velocity heads, kgf/cm2; velocity in m/s, density in kg/m3.
Real Loss(Real velocity, Real zeta, Real density) {
  return (pow(velocity, 2) / kTwiceGravity) * zeta * density / kKgfM2PerKgfCm2;
}

/// Beyond its pole the steam equation gives densities below 0, and so does a gas whose moisture is
/// above its pressure: their losses would be below 0, too.
void RefuseNegative(Real density) {
  if (density < 0) common::RaiseFault(common::Fault::kInvalidArgument);
}

/// Mean velocity, m/s.
Real Velocity(const Line& line, Real density) {
  const Real volumeFlow = line.massFlow / density;  // m3/h
  const Real D = line.innerDiameter / 1000;         // m
  return (volumeFlow * 4 / common::kSinglePi) / pow(D, 2) / 3600;
}

/// A contraction is rated by the velocity in the pipe, an enlargement by what the velocity changes.
Real InletLoss(const Line& line, Real velocity, Real zeta) {
  const Real r = line.inlet.ratio;
  if (r == 1) return 0;
  return Loss(r < 1 ? velocity : pow(r, 2) * velocity - velocity, zeta, line.densityFlow);
}

/// The velocity is that of the last step, the density that before the inlet, which is high for gas
/// and steam by the ratio of the pressures.
Real OutletLoss(const Line& line, Real velocity, Real zeta) {
  const Real r = line.outlet.ratio;
  if (r == 1) return 0;
  const Real behind = velocity / pow(r, 2);
  return Loss(r < 1 ? behind : velocity - behind, zeta, line.densityFlow);
}

/// Density in kg/m3 where the pressure has come down to p kgf/cm2.
Real DensityAt(const Line& line, Real p) {
  if (line.fluidPhase == data::kLiquid) return line.densityFlow;
  if (line.fluidPhase == data::kSteam) return data::SteamDensity(p, line.temperatureK);
  return line.densityFlow * p / line.pressureAbs;
}

/// Adds up the losses from the inlet to the outlet and keeps the pressure that is left.
class Descent {
 public:
  explicit Descent(const Line& line) : line_(line), pressure_(line.pressureAbs) {}

  /// False when the losses exceed the pressure.
  bool Lose(Real loss) {
    total_ += loss;
    pressure_ = line_.pressureAbs - total_;
    return total_ <= line_.pressureAbs;
  }
  Real Total() const { return total_; }
  Real Pressure() const { return pressure_; }

 private:
  const Line& line_;
  Real total_;
  Real pressure_;
};

/// Whether a gas of p kgf/cm2 is faster than sqrt(P/rho).
bool IsChoked(Real velocity, Real density, Real p) {
  const Real limit = (kTwiceGravity / 2) * (p * kKgfM2PerKgfCm2) / density;  // m2/s2
  return pow(velocity, 2) > limit;
}

/// Takes the pipe from behind its inlet to before its outlet. False when the losses exceed the
/// pressure.
bool FollowPipe(const Line& line, Descent& descent, LineLoss& result) {
  const int n = line.fluidPhase == data::kLiquid ? 1 : kLossStepCount;
  const Real D = line.innerDiameter / 1000;  // m
  const Real zeta = (result.frictionFactor * line.pipeLength / D + line.fittingLoss) / n;
  result.pressures.reserve(static_cast<std::size_t>(n) + 1);
  result.pressures.push_back(descent.Pressure());
  for (int i = 0; i < n; ++i) {
    const Real density = DensityAt(line, descent.Pressure());
    RefuseNegative(density);
    result.velocityOut = Velocity(line, density);
    result.choked = line.fluidPhase != data::kLiquid &&
                    IsChoked(result.velocityOut, density, descent.Pressure());
    if (!descent.Lose(Loss(result.velocityOut, zeta, density))) return false;
    result.pressures.push_back(descent.Pressure());
  }
  return true;
}

}  // namespace

Real FittingLoss(const PressLossTable& table,
                 const std::array<Real, PressLossTable::kFittings>& counts) {
  constexpr int kDigits = 2;
  Real sum;
  for (std::size_t i = 0; i < counts.size(); ++i) sum += table.fittingTable[i].zeta * counts[i];
  return common::RoundDigits(sum, kDigits);
}

Real FrictionFactor(Real reynolds, Real roughness, Real diameter) {
  constexpr double kLog10E = 0.43429;  // log10 e, rounded and meant so
  constexpr double kTolerance = 0.001;
  constexpr int kMaxRounds = 100;  // Newton's method needs four at most
  constexpr int kDigits = 4;
  if (reynolds < 3000) return common::RoundDigits(64 / reynolds, kDigits);
  const Real a = (roughness / diameter) / 3.71;
  const Real b = 2.52 / reynolds;
  // x = 1/sqrt(lambda); 1e-12 stands for the roughness of a smooth pipe.
  Real x = -2 * kLog10E * log(a + 1e-12);
  for (int round = 0; round < kMaxRounds; ++round) {
    const Real inner = a + b * x;
    const Real f = x + 2 * kLog10E * log(inner);
    const Real slope = 1 + 2 * kLog10E * b / inner;
    x -= f / slope;
    // The residual before the step decides, so that the last step is always taken.
    if (abs(f) <= kTolerance) return common::RoundDigits(1 / pow(x, 2), kDigits);
  }
  common::RaiseFault(common::Fault::kOverflow);
}

std::optional<LineLoss> CalculateLineLoss(const Line& line) {
  LineLoss result;
  Descent descent(line);
  result.inletZeta = InletZeta(line.inletType, line.inlet);
  result.outletZeta = OutletZeta(line.outlet);
  result.velocityIn = Velocity(line, line.densityFlow);
  result.inletLoss = InletLoss(line, result.velocityIn, result.inletZeta);
  // No loss fits into a pressure below 0, where a gas has a density below 0.
  if (!descent.Lose(result.inletLoss)) return std::nullopt;
  RefuseNegative(line.densityFlow);
  result.reynolds = common::ReynoldsNumber(line.massFlow, line.innerDiameter, line.viscosityCp);
  result.frictionFactor = FrictionFactor(result.reynolds, line.roughness, line.innerDiameter);
  if (!FollowPipe(line, descent, result)) return std::nullopt;
  result.outletLoss = OutletLoss(line, result.velocityOut, result.outletZeta);
  if (!descent.Lose(result.outletLoss)) return std::nullopt;
  result.totalLoss = descent.Total();
  return result;
}

}  // namespace piping
