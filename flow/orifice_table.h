#pragma once

#include <array>
#include <string>

#include "common/real.h"
#include "flow/element.h"

namespace flow {

using common::Real;

/// Limits of use, tap factors and quarter circle data of the differential-pressure elements, as
/// they stand in Orifice.dat.
struct OrificeTable {
  static constexpr int kTapFactors = 15;
  static constexpr int kQuarterCircleRows = 101;
  static constexpr int kReynoldsRows = 6;

  // Limits of use by element type: beta, and pipe bore in mm. The restriction orifice sheet
  // overwrites rows 0 and 1 for the rest of the run.
  std::array<Real, kElementTypes> betaMin{};
  std::array<Real, kElementTypes> betaMax{};
  std::array<Real, kElementTypes> pipeMin{};
  std::array<Real, kElementTypes> pipeMax{};

  /// Downstream tap of vena contracta taps, fraction of D; row i is for beta = 0.10 + 0.05 i.
  std::array<Real, kTapFactors> downstreamTapFactor{};

  // Quarter circle plate: beta, S = alpha beta^2, and edge radius as a fraction of D; all rising
  // with the row, but the radius.
  std::array<Real, kQuarterCircleRows> tableBeta{};
  std::array<Real, kQuarterCircleRows> tableS{};
  std::array<Real, kQuarterCircleRows> tableRadius{};

  // Pipe Reynolds limits of the quarter circle plate.
  std::array<Real, kReynoldsRows> quarterCircleReMax{};
  std::array<Real, kReynoldsRows> quarterCircleReMin{};

  bool Empty() const { return tableBeta.back() == 0; }
};

/// Reads the contents of Orifice.dat (CP932). False when the file is short, holds something that
/// is not a number, or its beta and S do not rise from row to row; the table is then empty.
bool ReadOrificeTable(std::string bytes, OrificeTable& table);

}  // namespace flow
