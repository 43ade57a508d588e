#pragma once

#include <string>

#include "common/messages.h"
#include "common/real.h"

namespace piping {

using common::Real;

/// Shapes of a line's inlet, under the numbers that are typed on the sheet.
enum InletType {
  kStraightInlet = 0,
  kSharpEdgedInlet = 1,  // flush with the wall of a vessel
  kRoundedInlet = 2,     // bell mouth
  kProjectingInlet = 3,  // the pipe reaches into the vessel
  kConicalInlet = 4,     // reducer or diffuser
};

/// Change of bore at an end of a line.
struct Terminal {
  Real ratio = 1;  // bore behind it over bore before it: d2/d1 at the inlet, d3/d2 behind
  Real angle = 0;  // whole angle of the cone, deg; 180 is a sudden change
};

/// The boxes of the shapes as they stand on the sheet.
struct ShapeEntries {
  struct End {
    std::string ratio;
    std::string angle;
  };
  std::string inletType;
  End inlet;
  End outlet;
};

/// Brings entries that contradict each other into line: the inlet with its type, then ratio and
/// angle of the inlet and of the outlet. Every correction is told, in this order; only empty boxes
/// are filled in silence. The entries hold numbers afterwards.
void CorrectShape(ShapeEntries& shape, common::Messages& messages);

/// Loss coefficient of the inlet in velocity heads, 3 decimals. A contraction takes that of its
/// type; an enlargement is rated by its angle whatever the type. A type that there is not raises
/// kInvalidArgument.
Real InletZeta(int inletType, const Terminal& inlet);

/// Loss coefficient of the outlet in velocity heads, 3 decimals.
Real OutletZeta(const Terminal& outlet);

}  // namespace piping
