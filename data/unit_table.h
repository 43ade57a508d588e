#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/process_state.h"

namespace data {

/// A unit of the converter: a value x in it is worth x * factor + offset in the base unit.
struct UnitEntry {
  std::string unitName;
  Real factor = 1;
  Real offset = 0;
};

/// Units of one quantity. Nothing enforces that the base unit has factor 1 and offset 0.
struct UnitCategory {
  std::string categoryName;
  int baseUnitIndex = 0;
  std::vector<UnitEntry> units;

  int LastUnitIndex() const { return static_cast<int>(units.size()) - 1; }
};

/// The user's table of units behind the converter sheet, kept in "単位変換.dat". The calculators do
/// not read it.
struct UnitTable {
  static constexpr std::size_t kMaxCategories = 30;
  static constexpr std::size_t kMaxUnits = 51;

  std::vector<UnitCategory> categories;

  bool Empty() const { return categories.empty(); }
};

/// Reads the table from CP932 bytes. False, with the table left empty, when the file is empty,
/// short or damaged, or has more than 30 categories or 51 units in one of them.
bool ReadUnitTable(std::string bytes, UnitTable& table);

/// The file of a table as CP932 bytes: texts in quotes, numbers bare with up to 15 digits, a record
/// a line.
std::string WriteUnitTable(const UnitTable& table);

/// Characters that the value and the result of the converter may have.
inline constexpr std::size_t kConverterCharacters = 16;

/// A value converted from one unit to another and formatted with about six significant digits
/// ("1,234.57"); nothing when that has more than 16 characters. The offsets are combined as
/// (x Fa - Ob + Oa) / Fb. Raises kDivisionByZero for a factor 0, kIndexOutOfRange for a wrong
/// index.
std::optional<std::string> ConvertUnit(const UnitCategory& category, int before, int after,
                                       Real value);

}  // namespace data
