#pragma once

#include <array>
#include <string>
#include <vector>

namespace data {

/// What stands in the code of a liquid's density for "no equation" and in the range of a gas's heat
/// capacity for "no limit".
inline constexpr const char* kFiveBlanks = "     ";

/// Empirical equations of up to 50 fluids; one table for liquids, one for gases. Cells stay text
/// until an estimator reads them, and their blanks count. An unused record is there with a blank
/// name.
struct FluidTable {
  static constexpr std::size_t kFluids = 50;
  static constexpr std::size_t kFields = 24;
  using Record = std::array<std::string, kFields>;

  Record headers;
  std::vector<Record> fluids;

  bool Empty() const { return fluids.empty(); }

  /// A cell; raises kIndexOutOfRange outside the table.
  const std::string& Cell(int fluidIndex, int field) const;

  /// The first cells of all records, blank ones too: a list's index is the fluid's index.
  std::vector<std::string> Names() const;
};

/// Fields of a liquid. An equation has four coefficients behind its code, then its range in degC.
enum LiquidField {
  kLiquidName = 0,
  kLiquidDensityCode = 1,
  kLiquidDensityA = 2,
  kLiquidDensityLow = 6,
  kLiquidDensityHigh = 7,
  kLiquidViscosityCode = 8,
  kLiquidViscosityA = 9,
  kLiquidViscosityLow = 13,
  kLiquidViscosityHigh = 14,
  kLiquidCriticalPressure = 15,  // MPa
  kLiquidVapourCode = 16,
  kLiquidVapourA = 17,
  kLiquidVapourLow = 21,
  kLiquidVapourHigh = 22,
};

/// Fields of a gas.
enum GasField {
  kGasName = 0,
  kGasMolecularWeight = 1,
  kGasNormalDensity = 2,          // kg/Nm3; 0: from the molecular weight
  kGasCriticalPressure = 3,       // MPa
  kGasCriticalTemperature = 4,    // K
  kGasNormalCompressibility = 5,  // 0: from the critical data
  kGasViscosityCode = 6,
  kGasViscosityA = 7,
  kGasViscosityLow = 11,
  kGasViscosityHigh = 12,
  kGasHeatCode = 13,
  kGasHeatA = 14,
  kGasHeatLow = 18,
  kGasHeatHigh = 19,
};

/// Reads a table from CP932 bytes: 24 headers, then 50 records of 24 texts. False, with the table
/// left empty, when fields are missing or left over.
bool ReadFluidTable(std::string bytes, FluidTable& table);

/// The file of a table as CP932 bytes, a record a line, every field in quotes.
std::string WriteFluidTable(const FluidTable& table);

}  // namespace data
