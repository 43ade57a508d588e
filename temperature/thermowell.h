#pragma once

#include <array>
#include <optional>
#include <vector>

#include "common/messages.h"
#include "common/real.h"

namespace temperature {

using common::Real;

// Flow-induced vibration and bending of a thermowell by JSME S 012, with the static deflection rule
// of ASME PTC for the first mode of a tapered tube. Lengths are in m and forces in kgf, so moduli
// and stresses are in kgf/m2; faults are those of common::Real.

enum InstallKind { kInPipe = 0, kInTank = 1 };

/// Entries of the analysis.
struct Thermowell {
  int installKind = kInPipe;

  Real totalLength;          // L, m
  Real insertionLength;      // Le, the part in the flow, m
  Real tipDiameter;          // m
  Real rootDiameter;         // m
  Real bore;                 // m
  Real tipThickness;         // of the closed end, where the bore begins, m
  Real wellDensity;          // kg/m3
  Real youngsModulus;        // kgf/m2
  Real allowableStress;      // kgf/m2
  Real dampingRatio;         // critical damping ratio in air
  Real stressConcentration;  // Kt at the root

  Real density;    // of the fluid in operation, kg/m3
  Real viscosity;  // cP

  Real volumeFlow;  // m3/h, in a pipe
  Real pipeBore;    // mm, in a pipe

  Real impellerSpeed;     // 1/s, in a tank
  Real impellerDiameter;  // m, in a tank
  Real tankDiameter;      // m, in a tank

  bool IsTapered() const { return tipDiameter != rootDiameter; }
  /// Of tip and root; governs mass, inertia, reduced velocity and damping.
  Real MeanDiameter() const;
  /// Outer diameter at the insertion depth.
  Real DiameterAtDepth() const;
  /// Of the part in the flow; governs drag and random force.
  Real WettedDiameter() const;
  /// Of the well and the fluid that moves with it, kg/m.
  Real MassPerLength() const;
  Real SecondMomentOfArea() const;  // m4
  Real SectionModulus() const;      // at the root, m3
};

constexpr int kModes = 3;
using ByMode = std::array<Real, kModes>;

enum class FrequencyMethod { kCantilever, kStaticDeflection };

struct NaturalFrequencies {
  ByMode hertz;
  FrequencyMethod method = FrequencyMethod::kCantilever;
};

/// How near the first natural frequency is to the vortices'.
enum class FrequencyMargin { kAbove, kNear, kBelow };

enum class Fatigue {
  kNotReached,
  kNoStress,     // nothing stands in the flow
  kBeyondRange,  // the random force has no figure from Vr 5 on
  kNotRated,     // and hence the fatigue none
  kExceeded,
  kPassed,
};

/// Nature of the vibration by reduced velocity.
enum class VibrationMode { kTakenAsDrag, kSymmetricVortices, kAlternateDrag, kAlternateLift };

struct DragCoefficient {
  Real value;        // 2 decimals
  Real lengthRatio;  // insertion length to diameter that it was taken at
};

struct Bending {
  bool withRandomForce = false;
  bool passed = false;
};

/// What an analysis has found, in the order in which it finds it. A fault leaves what stands before
/// it; the rest is unset.
struct ThermowellFindings {
  std::optional<Real> velocity;         // m/s
  std::optional<Real> reynolds;         // at the tip
  std::optional<Real> strouhal;         // 2 decimals
  std::optional<Real> vortexFrequency;  // 1/s
  std::optional<NaturalFrequencies> natural;
  std::optional<FrequencyMargin> margin;
  std::optional<ByMode> reducedVelocity;  // Vr
  std::optional<Real> dampingParameter;   // Cn, of all modes
  std::optional<bool> lockInAvoided;
  std::optional<DragCoefficient> drag;  // for information; the stress is not calculated with it
  std::optional<Real> dragStress;       // kgf/m2
  std::optional<Real> randomStress;     // amplitude, kgf/m2
  std::optional<Bending> bending;
  Fatigue fatigue = Fatigue::kNotReached;
};

/// The whole analysis. False when the geometry refuses, with its message; what was found before
/// stands then.
bool AnalyseThermowell(const Thermowell& well, common::Messages& messages,
                       ThermowellFindings& findings);

// The steps.

/// Mean velocity in m/s in a pipe of a bore in mm.
Real PipeVelocity(Real volumeFlow, Real pipeBore);

/// Velocity in m/s that the tip of the well meets in a stirred tank: that of the rotating core up
/// to the impeller's radius, falling with the power 0.8 of the distance from the centre beyond it.
/// Nothing when the tip reaches over the centre.
std::optional<Real> TankVelocity(const Thermowell& well);

/// Reynolds number at the tip.
Real TipReynolds(const Thermowell& well, Real velocity);

/// Strouhal number of a cylinder by Reynolds number (> 0), 2 decimals. JSME S 012. It steps to 0.46
/// at 3e5 and to 0.28 at 2e6.
Real GetStrouhal(Real reynolds);

/// The same with 0 below Re 50, where no vortices are shed.
Real SheddingStrouhal(Real reynolds);

/// First three modes of the well as a cantilever with its mean diameter; the first mode of a
/// tapered well by its static deflection instead.
NaturalFrequencies CalcNaturalFrequencies(const Thermowell& well);

/// Deflection in m of the tip of a tapered, bored well under its own weight, which gives the
/// frequency 1/(2 pi) sqrt(g/X). It does not approach the cantilever for a vanishing taper, which
/// it divides by: 13 % below it at 16 mm in water, and lost in rounding below 0.01 mm.
Real CalcTaperFirstMode(const Thermowell& well);

inline constexpr double kLowMargin = 0.7;
inline constexpr double kHighMargin = 1.3;
/// By the ratio of natural to vortex frequency, 3 decimals: near within 0.7 to 1.3, both included.
FrequencyMargin MarginOf(Real naturalFrequency, Real vortexFrequency);

/// Reduced velocities from which on lock-in threatens in line with the flow and across it.
inline constexpr double kInLineVr = 1.0;
inline constexpr double kCrossFlowVr = 3.3;
/// Whether lock-in is avoided or suppressed: Vr < 1, or Cn > 64, or Vr < 3.3 with Cn > 2.5.
bool AvoidsLockIn(Real reducedVelocity, Real dampingParameter);

/// Drag coefficient of a cylinder of finite length, 2 decimals.
DragCoefficient CylinderDrag(Real reynolds, Real insertionLength, Real diameter);

/// Stress at the root by the steady drag with a coefficient of 1.2, kgf/m2; 0 without insertion.
Real CalcDragStress(const Thermowell& well, Real velocity);

/// Amplitude at the root by the random force of turbulence, kgf/m2, for Vr < 5: three times the
/// standard deviation.
Real CalcRandomStress(const Thermowell& well, Real velocity, Real firstFrequency,
                      Real reducedVelocity);

/// Sum of drag and random stress; at right angles to each other for 4 <= Vr < 6.
Real CombinedStress(Real dragStress, Real randomStress, Real reducedVelocity);

VibrationMode ModeOf(Real reducedVelocity);

/// Stress concentration Kt at a shoulder with a chamfer of that radius on a well of that diameter,
/// both in the same unit, at least 1. Nothing when the radius is more than half the diameter.
std::optional<Real> NotchStressConcentration(Real radius, Real diameter);

/// Vortex shedding over the range of the flow, for the chart.
struct SheddingPoint {
  Real ratio;            // to the flow, or the speed of the impeller, that was entered
  Real velocity;         // m/s
  Real vortexFrequency;  // 1/s
};

/// Points from no flow to `highest` times the flow that was entered; none when the tip of the well
/// reaches over the centre of the tank.
std::vector<SheddingPoint> SheddingCurve(const Thermowell& well, Real highest, int points);

}  // namespace temperature
