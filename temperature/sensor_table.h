#pragma once

#include <array>
#include <string>

#include "common/real.h"

namespace temperature {

using common::Real;

/// Characteristics of eight thermocouples and two resistance bulbs, as they stand in TE.dat.
struct SensorTable {
  static constexpr int kKinds = 10;
  static constexpr int kRanges = 3;
  static constexpr int kCoefficients = 15;  // powers 0 to 14

  template <class Value>
  using ByRange = std::array<std::array<Value, kRanges>, kKinds>;

  std::array<std::string, kKinds> sensorName;
  // [kind][range], degC. A kind of two ranges has the upper limit of the second in the third, too.
  ByRange<Real> rangeLow{};
  ByRange<Real> rangeHigh{};
  /// [kind][range][power]: output in uV, or resistance over that at 0 degC, by powers of degC.
  ByRange<std::array<Real, kCoefficients>> coef{};

  bool Empty() const { return rangeHigh[0][0] == rangeLow[0][0]; }
};

/// Reads the contents of TE.dat (CP932), whose 14 header fields are skipped. False when the file is
/// short or a number is none; the table is then empty.
bool ReadSensorTable(std::string bytes, SensorTable& table);

}  // namespace temperature
