#pragma once

#include <array>
#include <string>

#include "common/real.h"

namespace flow {

using common::Real;

/// Vortex meters of four makers, as they stand in Vortex.dat.
struct VortexTable {
  static constexpr int kSizes = 10;
  static constexpr int kMakers = 4;

  std::array<Real, kSizes> meterSize{};  // nominal, mm
  std::array<std::string, kMakers> makerName;
  std::array<std::array<Real, kSizes>, kMakers> meterBore{};     // mm; 0: no such size
  std::array<std::array<Real, kSizes>, kMakers> meterKFactor{};  // pulses per litre, 15 degC

  bool Empty() const { return meterSize[0] == 0; }
};

/// Reads the contents of Vortex.dat (CP932). False when the file is short or a number is none; the
/// table is then empty.
bool ReadVortexTable(std::string bytes, VortexTable& table);

}  // namespace flow
