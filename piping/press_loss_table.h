#pragma once

#include <array>
#include <string>

namespace piping {

/// Pipe roughness and loss coefficients of fittings, as they stand in PressLoss.dat.
struct PressLossTable {
  static constexpr int kPipeKinds = 4;
  static constexpr int kFittings = 10;

  struct Roughness {
    std::string name;
    std::string value;  // mm, as it stands in the file; goes to the sheet as text
  };
  struct Fitting {
    std::string name;
    float zeta = 0;  // velocity heads; single precision also in use
  };

  std::array<Roughness, kPipeKinds> pipeRoughnessTable;
  std::array<Fitting, kFittings> fittingTable;

  bool Empty() const { return pipeRoughnessTable[0].name.empty() && fittingTable[0].name.empty(); }
};

/// Reads the contents of PressLoss.dat (CP932). False when the file is short or a loss coefficient
/// is not a number; the table is then empty.
bool ReadPressLossTable(std::string bytes, PressLossTable& table);

}  // namespace piping
