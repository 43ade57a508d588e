#pragma once

#include <array>
#include <string>

namespace ducts {

/// Diameters in mm and weights in kg/km of cables and tubes, as they stand in CableData.dat, in
/// single precision.
struct CableTable {
  static constexpr int kTypes = 3;
  static constexpr int kCoreCounts = 12;
  static constexpr int kSizes = 4;
  static constexpr int kTubes = 7;

  using ByCable = std::array<std::array<std::array<float, kSizes>, kCoreCounts>, kTypes>;

  ByCable controlCableDia{};
  ByCable controlCableWeight{};
  ByCable leadCableDia{};  // compensating lead wires
  ByCable leadCableWeight{};
  std::array<float, kTubes> copperTubeDia{};
  std::array<float, kTubes> copperTubeWeight{};

  bool Empty() const { return copperTubeDia[0] == 0; }
};

/// Reads the contents of CableData.dat (CP932); the three labels of each entry are skipped. False
/// when the file is short or a number is none; the table is then empty.
bool ReadCableTable(std::string bytes, CableTable& table);

/// Sizes of cable ducts in rising area, as they stand in CableDuct.dat.
struct DuctCatalogue {
  static constexpr int kRows = 9;

  struct Row {
    float width = 0;  // mm
    float depth = 0;  // mm
    float area = 0;   // usable, mm2
  };

  std::array<Row, kRows> rows;

  bool Empty() const { return rows[0].area == 0; }
};

/// Reads the contents of CableDuct.dat (CP932). False when the file is short or a number is none;
/// the catalogue is then empty.
bool ReadDuctCatalogue(std::string bytes, DuctCatalogue& catalogue);

}  // namespace ducts
