#pragma once

#include <optional>

#include "common/messages.h"
#include "common/real.h"
#include "flow/context.h"
#include "flow/element.h"
#include "flow/orifice_table.h"

namespace flow {

/// Discharge coefficient C (where the element has one) and flow coefficient
/// alpha = C / sqrt(1 - beta^4), neither with a unit.
struct Coefficients {
  std::optional<Real> c;
  Real alpha;
};

/// Coefficient equation of one element in one pipe at one Reynolds number, as a function of beta.
/// What does not depend on beta is worked out once, since the solver asks again and again.
/// For all types but the quarter circle.
class DischargeEquation {
 public:
  /// reNor: pipe Reynolds number at normal flow; pipeBore: D in mm. Raises a fault for a Reynolds
  /// number of 0 where the equation uses it (types 0 to 3, 5, 6).
  DischargeEquation(ElementType type, Real reNor, float pipeBore);

  /// The coefficients at beta; raises a fault where the equation has no value (beta >= 1).
  Coefficients At(Real beta) const;

 private:
  /// Orifice plate with flange, D and D/2 or corner taps (types 0, 1, 2): Reader-Harris/Gallagher
  /// equation, ISO 5167-2:2003 clause 5.3.2.1 = JIS Z 8762-2:2007, below 71.12 mm (in single
  /// precision) with the correction for small pipes. Valid for beta 0.1 to 0.75, D 50 to 1000 mm.
  Real OrificeDischarge(Real beta) const;

  /// Flow coefficient alpha of an orifice plate with vena contracta taps (type 3), older metric
  /// form with D in mm, beta 0.1 to 0.8. There is no C.
  Real VenaContractaCoefficient(Real beta) const;

  /// ISA 1932 nozzle (type 5), ISO 5167-3:2003 clause 5.1.6.2 (beta 0.3 to 0.8), and long radius
  /// nozzle (type 6), clause 5.2.6.2 (beta 0.2 to 0.8).
  Real NozzleDischarge(Real beta) const;

  /// Classical venturi tubes (types 7 to 9), ISO 5167-4:2003 clause 5.5, and venturi nozzle (type
  /// 10), ISO 5167-3:2003 clause 5.3.4.2; none of them depends on the Reynolds number.
  Real VenturiDischarge(Real beta) const;

  ElementType type_;
  Real reNor_;
  Real pipeBore_;
  bool smallBore_ = false;
  Real reynoldsTerm_;  // the power of 1000000/Re that stands alone in the equation
  Real downstreamTap_;
  Real upstreamTerm_;
  Real smallBoreTerm_;
};

/// Expansion factor of all types but 4 for gas and steam. x: differential over absolute pressure,
/// both at normal flow. Types 0 to 2: ISO 5167-2:2003 clause 5.3.2.2; types 5 to 10: ISO
/// 5167-3:2003 clause 5.1.6.3, isentropic; type 3: the older linear form. Raises a fault for x > 1,
/// for kappa 1 and for x = 0 with types 5 to 10.
Real ExpansionFactor(ElementType type, Real beta, Real x, Real kappa);

/// Expansion factor of the quarter circle plate (type 4) for gas and steam; x as above.
Real QuarterCircleExpansion(Real beta, Real x, Real kappa);

/// Quarter circle plate of known beta.
struct QuarterCircle {
  Real s;  // alpha beta^2
  Real alpha;
  Real radius;  // of the inlet edge, mm
};

/// S, alpha and radius of a quarter circle plate from its table. pipeBore: D in mm. Raises an index
/// fault for a beta beyond the table.
QuarterCircle QuarterCircleFromBeta(const OrificeTable& table, Real beta, float pipeBore);

/// Quarter circle plate that was looked for by its S.
struct QuarterCircleSolution {
  Real eps = 1;
  Real alpha;
  Real beta;
  Real radius;  // mm
};

/// Plate of the flow parameter s0 = alpha eps beta^2; x: differential over absolute pressure at
/// normal flow, for gas and steam. S outside 0.0305 to 0.503 is told; at the start it also sets
/// `calcFailed`, and nothing is returned. Inside the loop for gas and steam it leaves alpha and
/// beta 0 instead, as does an eps that is not positive, so that the check on beta speaks, too.
std::optional<QuarterCircleSolution> QuarterCircleFromS(Context& context, const OrificeTable& table,
                                                        Real s0, Real x,
                                                        common::Messages& messages);

/// Limits of the pipe Reynolds number at normal flow.
struct ReynoldsRange {
  Real reLow;
  Real reHigh;
};

/// Reynolds limits of an element; pipeBore: D in mm. Types 0 to 2: ISO 5167-2 with 170 beta^2 D on
/// all three taps; 5, 6, 10: ISO 5167-3; 7 to 9: ISO 5167-4; 3 and 4 by tables. For type 3 beyond
/// beta 0.8 or D 750 mm there is no lower limit: 0.
ReynoldsRange ReynoldsLimits(const OrificeTable& table, ElementType type, Real beta,
                             float pipeBore);

/// Permanent pressure loss in mmH2O of the differential dP in mmH2O. Types 0 to 3, 5, 6: ISO 5167-2
/// eq. (7); type 4: the same with alpha beta^2; venturi types: fractions of dP with a floor.
Real PermanentLoss(ElementType type, Real dP, Real alpha, Real beta, Real c);

/// Distance of the downstream vena contracta tap from the plate, in the unit of pipeBore20, which
/// is the bore as entered, not that at temperature. Beyond the table, which ends at beta 0.1 and
/// 0.8, the first or last pair of rows is drawn out.
Real DownstreamTapDistance(const OrificeTable& table, Real beta, Real pipeBore20);

}  // namespace flow
