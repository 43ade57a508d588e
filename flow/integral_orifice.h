#pragma once

#include <optional>
#include <string>

#include "common/real.h"
#include "flow/element.h"
#include "flow/integral_table.h"

namespace flow {

/// What an integral orifice is rated for.
struct IntegralInputs {
  int model = 0;  // t: list index of the transmitter
  int fluidPhase = kLiquid;
  Real p;             // kgf/cm2 absolute
  Real temperatureC;  // degC
  Real rho;           // density at operating conditions, kg/m3
  Real mu;            // viscosity, cP
  Real kappa;         // isentropic exponent; gas and steam
  Real flow;          // maximum scale flow, kg/h
  Real normalFlow;    // kg/h
};

/// Group of a transmitter: models 0 to 2 are group 0, model 3 is group 1, model 4 is group 2.
constexpr int IntegralGroup(int model) { return model > 2 ? model - 2 : 0; }

/// Bores of a group.
constexpr int IntegralBores(int group) {
  return group == 2 ? IntegralTable::kWideBores : IntegralTable::kBores;
}

/// Whether a model takes the phase: steam is for group 1 alone.
constexpr bool IntegralTakes(int model, int fluidPhase) {
  return fluidPhase != kSteam || IntegralGroup(model) == 1;
}

// Why a bore cannot be used.
inline constexpr const char* kScaleFlowTooLarge = "目盛流量過大";
inline constexpr const char* kNormalFlowTooSmall = "常用流量過少";
inline constexpr const char* kReynoldsTooLow = "ﾚｲﾉﾙｽﾞ数下限";
inline constexpr const char* kDifferentialTooLarge = "差圧過大";
inline constexpr const char* kOutOfRange = "Range外";

/// What one bore does. What a group has not, or what was not reached before a note, is empty.
struct BoreRating {
  Real re;                    // Reynolds number at normal flow
  Real dP;                    // at maximum scale flow, whole mmH2O; 0 when a note came before it
  std::string note;           // "" when the bore is usable
  std::optional<Real> kaf;    // group 0: coefficient ratio
  std::optional<Real> alpha;  // group 1: flow coefficient
  std::optional<Real> eps;    // group 1: expansion factor
  std::optional<Real> equivalentFlow;  // groups 0, 2: l/min of water or of air
};

/// Reynolds number of bore i at a mass flow of kg/h: of the bore for group 0, of the pipe (14 mm)
/// for group 1, of the body (13 mm) for group 2.
Real BoreReynolds(const IntegralTable& table, int group, int i, Real massFlow, Real mu);

/// Rates bore i: the differential that it makes, or why it cannot be used. The first note ends the
/// rating. Raises a fault for a density or viscosity of 0, and in group 1 for gas and steam where
/// the expansion factor has no value.
BoreRating RateBore(const IntegralTable& table, const IntegralInputs& inputs, int i);

/// Isentropic expansion factor of group 1: x is differential over absolute pressure, both at normal
/// flow. Raises a fault for x of 0 or above 1 and for kappa 1.
Real IntegralExpansion(Real x, Real beta, Real kappa);

/// Permanent loss of bore i in the unit of dP: dP (1 - K)/(1 + K) for group 1, else (1 - beta) dP.
Real IntegralPermanentLoss(const IntegralTable& table, int group, int i, Real dP);

}  // namespace flow
