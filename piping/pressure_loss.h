#pragma once

#include <array>
#include <optional>
#include <vector>

#include "common/real.h"
#include "data/process_state.h"
#include "piping/press_loss_table.h"
#include "piping/terminal_shape.h"

namespace piping {

using common::Real;

/// Steps along a line of gas or steam; a liquid takes the whole line in one.
inline constexpr int kLossStepCount = 500;

/// A pipe with its fittings and the flow in it.
struct Line {
  int fluidPhase = data::kLiquid;
  Real pressureAbs;    // before the inlet, kgf/cm2 absolute
  Real temperatureK;   // K, the same along the line
  Real densityFlow;    // before the inlet, kg/m3
  Real viscosityCp;    // cP
  Real massFlow;       // kg/h
  Real innerDiameter;  // mm
  Real roughness;      // mm
  Real pipeLength;     // m
  Real fittingLoss;    // zeta of all fittings
  int inletType = kStraightInlet;
  Terminal inlet;
  Terminal outlet;
};

/// Losses are in kgf/cm2, velocities in m/s.
struct LineLoss {
  Real frictionFactor;
  Real reynolds;
  Real velocityIn;
  Real velocityOut;  // at the start of the last step
  Real inletZeta;
  Real outletZeta;
  Real inletLoss;
  Real outletLoss;
  Real totalLoss;
  /// The velocity is above sqrt(P/rho), the highest that an isothermal flow of gas or steam reaches
  /// in a pipe: the line cannot carry the flow.
  bool choked = false;
  /// Pressures along the pipe at equal distances, kgf/cm2 absolute: the first behind the inlet, the
  /// last before the outlet.
  std::vector<Real> pressures;
};

/// Loss coefficient of ten counts of fittings, velocity heads, 2 decimals. The coefficients are
/// those of the table in single precision: 0.35 counts as 0.349999994.
Real FittingLoss(const PressLossTable& table,
                 const std::array<Real, PressLossTable::kFittings>& counts);

/// Darcy friction factor of a pipe, 4 decimals: 64/Re below Re 3000, without a transition band, and
/// from there on the equation of Colebrook and White
///   1/sqrt(lambda) = -2 log10(eps/(3.71 D) + 2.52/(Re sqrt(lambda)))
/// (J. Inst. Civ. Eng. 11, 1939, with 2.52 for its 2.51). roughness and diameter in mm. A Reynolds
/// number of 0 raises a division fault; it has no meaning from a roughness of 3.7 D on.
Real FrictionFactor(Real reynolds, Real roughness, Real diameter);

/// Loss along the line by Darcy and Weisbach. Gas and steam expand at constant temperature, step by
/// step, at the friction factor of the inlet; the loss that accelerates them, 2 ln(P1/P2) velocity
/// heads beside lambda L/D + zeta, is left out. Nothing when the loss exceeds the pressure. Entries
/// that have no flow (a diameter, density, viscosity or flow of 0) raise the fault of the
/// arithmetic, a density below 0 kInvalidArgument.
std::optional<LineLoss> CalculateLineLoss(const Line& line);

}  // namespace piping
