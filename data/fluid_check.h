#pragma once

#include <string>

#include "data/fluid_table.h"
#include "data/process_state.h"

namespace data {

// Aids for whoever edits the fluid tables. Cells are free texts that the estimators read as they
// come: what is no number counts 0, and an unknown equation code gives no value.

/// Why the estimators cannot use a cell of a liquid or a gas as it stands, as a sentence; "" when
/// they can. A record without a name is not in use, and nothing is wrong with it.
std::string FluidCellRemark(FluidPhase phase, const FluidTable::Record& record, int field);

/// The equations behind the codes that a cell may hold, a line each; "" for a cell that holds none.
std::string EquationCodes(FluidPhase phase, int field);

}  // namespace data
