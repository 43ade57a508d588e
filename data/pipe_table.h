#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "data/process_state.h"

namespace data {

/// Steel pipes: for 25 nominal sizes the outside diameter and 14 wall thicknesses in mm, in single
/// precision. Sizes and schedules are positions in the lists of the sheets.
struct PipeTable {
  static constexpr int kSizes = 25;
  static constexpr int kSchedules = 14;

  std::vector<std::array<float, kSchedules + 1>> rows;

  bool Empty() const { return rows.empty(); }

  /// Outside diameter in mm; raises kIndexOutOfRange outside the table.
  float OutsideDiameter(int size) const;

  /// Wall thickness in mm, 0 for a pipe that is not made; raises kIndexOutOfRange outside the
  /// table.
  float WallThickness(int size, int schedule) const;

  /// Inside diameter in mm, 3 decimals; nothing when there is no such pipe.
  std::optional<Real> InnerDiameter(int size, int schedule) const;
};

/// Reads 25 x 15 numbers from CP932 bytes. False, with the table left empty, when one is missing,
/// left over or no number.
bool ReadPipeTable(std::string bytes, PipeTable& table);

}  // namespace data
