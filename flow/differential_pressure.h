#pragma once

#include <optional>

#include "common/messages.h"
#include "common/real.h"
#include "flow/context.h"
#include "flow/discharge.h"
#include "flow/orifice_table.h"

namespace flow {

/// What a solver finds, in the units of the context. C goes to the context.
struct Solution {
  Real dP;  // at qMax, mmH2O
  Real alpha;
  Real beta;
  Real eps = 1;
  std::optional<Real> radius;  // quarter circle, mm
};

/// All numbers that a calculation shows. What an element does not have is empty.
struct SizingResult {
  Real reMax;             // pipe Reynolds number at maximum scale flow
  Real reNor;             // the same at normal flow
  std::optional<Real> c;  // types 0 to 2 and 5 to 10
  Real alpha;
  Real eps;
  Real beta;
  Real dP;                     // at maximum scale flow, mmH2O
  std::optional<Real> d20;     // bore at 20 degC, mm; on the way from differential to bore
  std::optional<Real> radius;  // inlet edge of a quarter circle plate, mm
  Real loss;                   // permanent pressure loss at dP, mmH2O
  Real reLow;
  Real reHigh;
  std::optional<Real> upstreamTap;    // mm; types 0 to 3
  std::optional<Real> downstreamTap;  // mm, to one decimal where it is worked out
  Real useLow;                        // reLow/reMax to two decimals, as a ratio of full scale
  std::optional<Real> useHigh;        // reHigh/reMax likewise; types above 2
};

/// Asks about a pipe outside the element's limits and refuses a differential that the pressure does
/// not allow. False, with `calcFailed` set, when the calculation ends here.
bool CheckPipeAndDifferential(Context& context, const OrificeTable& table,
                              common::Messages& messages);

/// Differential at qMax for a known bore. reNor: pipe Reynolds number at normal flow. Asks or tells
/// about beta outside the limits and tells a differential that is too large; then nothing is
/// returned and `calcFailed` is set. An iteration that does not settle raises an overflow fault.
std::optional<Solution> SolveDifferentialPressure(Context& context, const OrificeTable& table,
                                                  Real reNor, common::Messages& messages);

/// Beta for a known differential at qMax, by the prescribed iteration: the coefficients returned
/// are those of the beta before the last step. Refuses what lies outside the limits, without a
/// question; then nothing is returned and `calcFailed` is set. An iteration that does not settle
/// raises an overflow fault.
std::optional<Solution> SolveBore(Context& context, const OrificeTable& table, Real reNor,
                                  common::Messages& messages);

/// Tests the Reynolds number at normal flow against its limits: tells, and asks where the type may
/// be used outside. False, with `calcFailed` set, when the calculation ends here.
bool CheckReynolds(Context& context, Real reNor, const ReynoldsRange& limits,
                   common::Messages& messages);

/// Bore at 20 degC in mm of a beta found at temperature.
Real BoreAtReference(const Context& context, Real beta);

/// Refuses a differential, worked out for a bore, that is beyond a quarter of the pressure of a gas
/// or steam or beyond the pressure of a liquid. The bound for a liquid is refused here, not at
/// entry. False, with `calcFailed` set, when the calculation ends here.
bool CheckCalculatedDifferential(Context& context, Real dP, common::Messages& messages);

/// One whole calculation on inputs that are read, in the order in which the user is to meet its
/// messages. Clears the flag and the mark of the calculation before. Nothing is returned when a
/// check has failed and told so.
std::optional<SizingResult> Calculate(Context& context, const OrificeTable& table,
                                      common::Messages& messages);

}  // namespace flow
