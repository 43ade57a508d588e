#include "temperature/thermowell.h"

#include "common/number.h"

namespace temperature {

namespace {

using common::kSinglePi;
using common::RoundDigits;

constexpr double kTwoPi = 2 * kSinglePi;
constexpr double kGravity = 9.80665;  // m/s2, N per kgf
constexpr double kPascalSecondPerCp = 0.001;

/// Roots of the cantilever's frequency equation.
constexpr double kLambda[kModes] = {1.875, 4.694, 7.855};

/// Reduced velocity from which on the random force has no figure.
constexpr double kRandomForceVr = 5.0;

// Reduced velocities between the kinds of vibration.
constexpr double kSymmetricFrom = 1.25;
constexpr double kAlternateFrom = 2.5;
constexpr double kGapFrom = 3.8;
constexpr double kLiftFrom = 4.0;
constexpr double kLiftTo = 6.0;

bool CheckGeometry(const Thermowell& well, common::Messages& messages) {
  if (well.insertionLength > well.totalLength) {
    messages.Show(
        "保護管の挿入長が、保護管の全長を越えています\n                データを見直してください");
    return false;
  }
  if (well.tipDiameter <= well.bore || well.rootDiameter <= well.bore) {
    messages.Show("保護管の内径が大きすぎます\n　データを見直してください");
    return false;
  }
  return true;
}

std::optional<Real> FlowVelocity(const Thermowell& well) {
  if (well.installKind == kInTank) return TankVelocity(well);
  return PipeVelocity(well.volumeFlow, well.pipeBore);
}

void FindFrequencies(const Thermowell& well, Real velocity, ThermowellFindings& findings) {
  findings.reynolds = TipReynolds(well, velocity);
  findings.strouhal = SheddingStrouhal(*findings.reynolds);
  findings.vortexFrequency = *findings.strouhal * velocity / well.tipDiameter;
  findings.natural = CalcNaturalFrequencies(well);
  findings.margin = MarginOf(findings.natural->hertz[0], *findings.vortexFrequency);
  ByMode reduced;
  for (std::size_t i = 0; i < kModes; ++i) {
    reduced[i] = (velocity / findings.natural->hertz[i]) / well.MeanDiameter();
  }
  findings.reducedVelocity = reduced;
  const Real logarithmicDecrement = kTwoPi * well.dampingRatio;
  findings.dampingParameter = 2 * well.MassPerLength() * logarithmicDecrement /
                              (well.density * pow(well.MeanDiameter(), 2));
  findings.lockInAvoided = AvoidsLockIn(reduced[0], *findings.dampingParameter);
}

Fatigue JudgeFatigue(const Thermowell& well, Real randomStress) {
  if (randomStress == 0) return well.insertionLength == 0 ? Fatigue::kNoStress : Fatigue::kNotRated;
  return randomStress * well.stressConcentration > well.allowableStress / 2 ? Fatigue::kExceeded
                                                                            : Fatigue::kPassed;
}

void FindRandomStress(const Thermowell& well, Real velocity, Real reducedVelocity,
                      common::Messages& messages, ThermowellFindings& findings) {
  if (well.insertionLength == 0) {
    findings.randomStress = 0;
    return;
  }
  if (reducedVelocity >= kRandomForceVr) {
    findings.randomStress = 0;
    messages.Show("ﾗﾝﾀﾞﾑ励振力の計算は、\nＶr＞５ 以上の領域に対応していません。", "ﾗﾝﾀﾞﾑ励振力");
    findings.fatigue = Fatigue::kBeyondRange;
    return;
  }
  findings.randomStress =
      CalcRandomStress(well, velocity, findings.natural->hertz[0], reducedVelocity);
}

void FindStresses(const Thermowell& well, Real velocity, common::Messages& messages,
                  ThermowellFindings& findings) {
  const Real reducedVelocity = (*findings.reducedVelocity)[0];
  findings.drag = CylinderDrag(*findings.reynolds, well.insertionLength, well.WettedDiameter());
  findings.dragStress = CalcDragStress(well, velocity);
  FindRandomStress(well, velocity, reducedVelocity, messages, findings);
  const Real combined =
      CombinedStress(*findings.dragStress, *findings.randomStress, reducedVelocity);
  findings.bending = {*findings.randomStress != 0, combined <= well.allowableStress};
  findings.fatigue = JudgeFatigue(well, *findings.randomStress);
}

}  // namespace

Real Thermowell::MeanDiameter() const {
  return IsTapered() ? (tipDiameter + rootDiameter) / 2 : tipDiameter;
}

Real Thermowell::DiameterAtDepth() const {
  return tipDiameter + (rootDiameter - tipDiameter) * insertionLength / totalLength;
}

Real Thermowell::WettedDiameter() const { return (tipDiameter + DiameterAtDepth()) / 2; }

Real Thermowell::MassPerLength() const {
  const Real Dm = MeanDiameter();
  return (kSinglePi / 4) * (wellDensity * (pow(Dm, 2) - pow(bore, 2)) + density * pow(Dm, 2));
}

Real Thermowell::SecondMomentOfArea() const {
  return (kSinglePi / 64) * (pow(MeanDiameter(), 4) - pow(bore, 4));
}

Real Thermowell::SectionModulus() const {
  return (kSinglePi / 32) * (pow(rootDiameter, 4) - pow(bore, 4)) / rootDiameter;
}

bool AnalyseThermowell(const Thermowell& well, common::Messages& messages,
                       ThermowellFindings& findings) {
  findings = {};
  if (!CheckGeometry(well, messages)) return false;
  well.DiameterAtDepth();  // a well without a length ends here
  const std::optional<Real> velocity = FlowVelocity(well);
  if (!velocity) {
    messages.Show(
        "保護管挿入部先端が、攪拌槽の中心を越えているので\n                    計算できません");
    return false;
  }
  findings.velocity = velocity;
  FindFrequencies(well, *velocity, findings);
  FindStresses(well, *velocity, messages, findings);
  return true;
}

Real PipeVelocity(Real volumeFlow, Real pipeBore) {
  constexpr double kSecondsPerHour = 3600;
  return (volumeFlow * 4 / (kSinglePi * pow(pipeBore / 1000.0, 2))) / kSecondsPerHour;
}

std::optional<Real> TankVelocity(const Thermowell& well) {
  const Real N = well.impellerSpeed;
  const Real impellerReynolds =
      well.density * N * pow(well.impellerDiameter, 2) / (well.viscosity * kPascalSecondPerCp);
  const Real Ri = well.impellerDiameter / 2;
  const Real Rc = (impellerReynolds / (1000 + 1.6 * impellerReynolds)) * Ri;  // rotating core
  const Real Rt = well.tankDiameter / 2 - well.insertionLength;               // of the tip
  if (Rt < 0) return std::nullopt;
  const Real coreVelocity = kTwoPi * Rc * N;
  return Rt <= Ri ? coreVelocity : coreVelocity * pow(Rc / Rt, Real(0.8));
}

Real TipReynolds(const Thermowell& well, Real velocity) {
  return well.tipDiameter * velocity * well.density / (well.viscosity * kPascalSecondPerCp);
}

Real GetStrouhal(Real reynolds) {
  const Real l = log(reynolds);
  Real St = 0.46;
  if (reynolds <= 300000) {
    St = 0.001 * pow(l, 3) - 0.0276 * pow(l, 2) + 0.2406 * l - 0.4605;
  } else if (reynolds >= 2000000) {
    St = 0.28;
  }
  return RoundDigits(St < 0 ? Real(0) : St, 2);
}

Real SheddingStrouhal(Real reynolds) { return reynolds < 50 ? Real(0) : GetStrouhal(reynolds); }

NaturalFrequencies CalcNaturalFrequencies(const Thermowell& well) {
  NaturalFrequencies found;
  const Real stiffness = well.youngsModulus * kGravity * well.SecondMomentOfArea();  // N m2
  for (std::size_t i = 0; i < kModes; ++i) {
    found.hertz[i] = (pow(Real(kLambda[i]), 2) / (kTwoPi * pow(well.totalLength, 2))) *
                     sqrt(stiffness / well.MassPerLength());
  }
  if (well.IsTapered()) {
    found.hertz[0] = (1 / Real(kTwoPi)) * sqrt(kGravity / CalcTaperFirstMode(well));
    found.method = FrequencyMethod::kStaticDeflection;
  }
  return found;
}

// The closed integral of x M(x) / (E I(x)) along the cone, term by term. Logarithms and powers
// nearly cancel for a small taper, so their order stays.
Real CalcTaperFirstMode(const Thermowell& well) {
  const Real Dt = well.tipDiameter;
  const Real Dr = well.rootDiameter;
  const Real di = well.bore;
  const Real taper = (Dr - Dt) / well.totalLength;
  const Real Dx = Dt + well.tipThickness * taper;
  const Real g = well.youngsModulus * kGravity;  // Pa
  const Real a0 = 0.5 * pow(Dr - Dt, 2);
  const Real a1 = 0.25 * (3 * pow(Dt, 4) / pow(di, 2) - 5 * pow(di, 2) - 6 * pow(Dx, 2));
  const Real P = log((Dt - di) * (Dr + di) / ((Dt + di) * (Dr - di)));
  const Real A = atan(di * (Dt - Dr) / (pow(di, 2) + Dr * Dt));
  const Real a2 = (Dt / di) * P + log((pow(Dr, 2) - pow(di, 2)) / (pow(Dt, 2) - pow(di, 2)));
  const Real a3 = 0.5 * (6 * pow(Dx, 2) - 7 * pow(di, 2) - 3 * pow(Dt, 4) / pow(di, 2));
  const Real a4 = (Dt / di) * A + 0.5 * log((pow(Dr, 2) + pow(di, 2)) / (pow(Dt, 2) + pow(di, 2)));
  const Real a5 = 2 * (pow(Dt, 3) / pow(di, 2) - 3 * Dx);
  const Real a6 = (Dt / 2) * log((pow(Dt, 2) + pow(di, 2)) * (pow(Dr, 2) - pow(di, 2)) /
                                 ((pow(Dt, 2) - pow(di, 2)) * (pow(Dr, 2) + pow(di, 2)))) +
                  di * A + (di / 2) * P;
  const Real S = a0 + a1 * a2 + a3 * a4 + a5 * a6;  // m2
  return S / (((3 * g) / (4 * well.wellDensity * kGravity)) * pow(taper, 4));
}

FrequencyMargin MarginOf(Real naturalFrequency, Real vortexFrequency) {
  constexpr double kNoVortices = 100;
  const Real ratio =
      vortexFrequency != 0 ? RoundDigits(naturalFrequency / vortexFrequency, 3) : Real(kNoVortices);
  if (ratio < kLowMargin) return FrequencyMargin::kBelow;
  return ratio <= kHighMargin ? FrequencyMargin::kNear : FrequencyMargin::kAbove;
}

bool AvoidsLockIn(Real reducedVelocity, Real dampingParameter) {
  return reducedVelocity < kInLineVr || dampingParameter > 64 ||
         (reducedVelocity < kCrossFlowVr && dampingParameter > 2.5);
}

DragCoefficient CylinderDrag(Real reynolds, Real insertionLength, Real diameter) {
  const Real l = log(reynolds);
  DragCoefficient drag{0, insertionLength / diameter};
  if (reynolds >= 400000) {
    const Real Cd = exp(0.4592 * l - 7.2);
    drag.value = RoundDigits(Cd > 0.8 ? Real(0.8) : Cd, 2);
    return drag;
  }
  Real Cd = 0;  // from Re 1000 on the finite length alone decides
  if (reynolds < 0.4) {
    Cd = 8 * kSinglePi / (reynolds * (2.002 - l));
  } else if (reynolds < 1000) {
    Cd = exp(0.0383 * pow(l, 2) - 0.6559 * l + 2.3437);
  }
  Real& As = drag.lengthRatio;
  if (As < 1) As = 1;
  const Real a = log(As);
  const Real finite =
      As > 1000 ? Real(1.2)
                : -0.002957 * pow(a, 3) + 0.027696 * pow(a, 2) + 0.0304902 * a + 0.6426185;
  drag.value = RoundDigits(finite > Cd ? finite : Cd, 2);
  return drag;
}

Real CalcDragStress(const Thermowell& well, Real velocity) {
  constexpr double kCd = 1.2;  // JSME S 012, whatever the Reynolds number
  if (well.insertionLength == 0) return 0;
  const Real forcePerLength =
      (well.density / 2) * well.WettedDiameter() * pow(velocity, 2) * kCd;  // N/m
  const Real stress = (forcePerLength * well.insertionLength / well.SectionModulus()) *
                      (well.totalLength - well.insertionLength / 2);
  return stress / kGravity;
}

Real CalcRandomStress(const Thermowell& well, Real velocity, Real firstFrequency,
                      Real reducedVelocity) {
  constexpr double kDeviations = 3;
  constexpr double kTipValue = 2;  // of the first mode
  constexpr double kSigma = 0.734;
  const Real Dm = well.WettedDiameter();
  const Real fr = firstFrequency * Dm / velocity;
  // Spectrum with 4 pi, and the response below with 64 pi, as this method states them; the powers
  // of pi of random vibration theory would be higher and the stress lower.
  const Real Sf = reducedVelocity < kCrossFlowVr ? 4 / (1 + (kSinglePi * 4.0) * pow(fr, 2))
                                                 : 0.007979 / pow(fr, 4);
  const Real Sp = (pow((0.13 / 2) * well.density * pow(velocity, 2) * Dm, 2) * Sf * Dm) / velocity;
  const Real lambda = kLambda[0];
  const Real x = lambda * (1 - well.insertionLength / well.totalLength);
  const Real phi = -(sinh(x) - sin(x)) + kSigma * (cosh(x) + cos(x));
  const Real phi1 = phi / lambda;
  const Real Y = kTipValue * kDeviations *
                 sqrt((pow(phi1, 2) * Sp) / (64 * kSinglePi * pow(well.MassPerLength(), 2) *
                                             pow(firstFrequency, 3) * well.dampingRatio));
  return (well.youngsModulus * well.SecondMomentOfArea() / well.SectionModulus()) * Y *
         pow(lambda, 2) / pow(well.totalLength, 2);
}

Real CombinedStress(Real dragStress, Real randomStress, Real reducedVelocity) {
  if (ModeOf(reducedVelocity) == VibrationMode::kAlternateLift) {
    return sqrt(pow(dragStress, 2) + pow(randomStress, 2));
  }
  return dragStress + randomStress;
}

VibrationMode ModeOf(Real reducedVelocity) {
  if (reducedVelocity < kSymmetricFrom) return VibrationMode::kTakenAsDrag;
  if (reducedVelocity < kAlternateFrom) return VibrationMode::kSymmetricVortices;
  if (reducedVelocity < kGapFrom) return VibrationMode::kAlternateDrag;
  if (reducedVelocity < kLiftFrom) return VibrationMode::kTakenAsDrag;
  if (reducedVelocity < kLiftTo) return VibrationMode::kAlternateLift;
  return VibrationMode::kTakenAsDrag;
}

std::optional<Real> NotchStressConcentration(Real radius, Real diameter) {
  const Real x = 2 * radius / diameter;
  if (x > 1.0) return std::nullopt;
  const Real Kt = 1 / (1.3035 * pow(x, 3) - 2.5204 * pow(x, 2) + 1.8512 * x + 0.286);
  return Kt < 1 ? Real(1) : Kt;
}

std::vector<SheddingPoint> SheddingCurve(const Thermowell& well, Real highest, int points) {
  std::vector<SheddingPoint> curve;
  for (int i = 0; i <= points; ++i) {
    const Real ratio = highest * i / points;
    Thermowell at = well;
    at.volumeFlow *= ratio;
    at.impellerSpeed *= ratio;
    const std::optional<Real> velocity = FlowVelocity(at);
    if (!velocity) return {};
    const Real strouhal = SheddingStrouhal(TipReynolds(at, *velocity));
    curve.push_back({ratio, *velocity, strouhal * *velocity / well.tipDiameter});
  }
  return curve;
}

}  // namespace temperature
