#pragma once

#include <array>
#include <string>

#include "common/messages.h"
#include "data/process_state.h"

namespace data {

/// Eight materials with four properties as cubic polynomials of temperature over one or two ranges:
/// density in kg/m3, Young's modulus and allowable stress in kgf/mm2, mean linear expansion from
/// 20 degC in 1e-6/degC. A property has a row for its low range and one for its high range; a row
/// has the low limit (read in the low row alone), the upper limit in degC and four coefficients.
/// Cells stay text until used; a blank upper limit of the high row means that there is one range.
struct MaterialTable {
  static constexpr int kMaterials = 8;
  static constexpr int kRows = 8;
  static constexpr int kColumns = 6;
  using Cells = std::array<std::array<std::string, kColumns>, kRows>;

  std::array<std::string, kMaterials> names;
  std::array<Cells, kMaterials> cells;

  /// Whether it has no name.
  bool Empty() const;
};

/// Low rows of the properties; the high row follows.
enum MaterialRow { kDensityRow = 0, kYoungsModulusRow = 2, kStressRow = 4, kExpansionRow = 6 };

/// Reads a table from CP932 bytes: 8 names, then the cells. False when texts are missing, which
/// leaves the remaining cells blank, or left over, or when the bytes are no text at all, which
/// leaves the table empty.
bool ReadMaterialTable(std::string bytes, MaterialTable& table);

/// The file of a table as CP932 bytes, all fields in quotes: the names in one line, then a line a
/// row.
std::string WriteMaterialTable(const MaterialTable& table);

// Estimators. Outside the range they show it, and an arithmetic fault inside is shown; the result
// is 0 then. They never raise.

/// Whether a material has an equation for its density: the low row's coefficients do not add up to
/// 0. Raises kIndexOutOfRange outside the table and kOverflow for a coefficient beyond a double.
bool HasDensityEquation(const MaterialTable& table, int material);

/// Density at a temperature in degC, no decimals; 0 without a message where there is no equation.
Real MaterialDensity(const MaterialTable& table, int material, Real temperature,
                     common::Messages& messages);

/// Young's modulus at `temperatureC`, no decimals.
Real MaterialYoungsModulus(const MaterialTable& table, int material, const ProcessState& state,
                           common::Messages& messages);

/// Allowable stress at `temperatureC`, 1 decimal.
Real MaterialAllowableStress(const MaterialTable& table, int material, const ProcessState& state,
                             common::Messages& messages);

/// Linear expansion at `temperatureC`, 1 decimal.
Real MaterialLinearExpansion(const MaterialTable& table, int material, const ProcessState& state,
                             common::Messages& messages);

}  // namespace data
