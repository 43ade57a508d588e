// Included before all else when zepha-bench-plain is built: the compiler may take it that no fault
// is ever raised, and leaves the checks of the arithmetic out. For measuring only.
#pragma once

#include "common/fault.h"

namespace common {

[[noreturn]] inline void RaiseFault(Fault) { __builtin_unreachable(); }

}  // namespace common
