#pragma once

#include <optional>
#include <string>
#include <string_view>
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

// Edits. The base unit is found again by its name after an insertion, a removal and a sort; of two
// units with that name the first one becomes the base. A place outside the list raises
// kIndexOutOfRange.

/// A category name as the table takes it: the first prefix that has more than 20 CP932 bytes, so 21
/// or 22 of them, or the whole of a shorter name.
std::string CutCategoryName(std::string_view name);

/// Puts a new category at a place, which the one there and those behind it make free. Its only unit
/// is its base. The table must have room.
void InsertCategory(UnitTable& table, int place, std::string name, std::string unitName);

/// Puts a unit at a place in front of those that stand there. The category must have room.
void InsertUnit(UnitCategory& category, int place, UnitEntry unit);

/// Removes a unit; not the base, of which callers take care.
void RemoveUnit(UnitCategory& category, int unit);

/// Exchanges two units; the base stays the same one.
void ExchangeUnits(UnitCategory& category, int one, int other);

/// Sorts the units by name without regard to capitals, equal ones in their order. Fewer than three
/// units stay as they are; false then.
bool SortUnits(UnitCategory& category);

/// Characters that the value and the result of the converter may have.
inline constexpr std::size_t kConverterCharacters = 16;

/// A value converted from one unit to another and formatted with about six significant digits
/// ("1,234.57"); nothing when that has more than 16 characters. The offsets are combined as
/// (x Fa - Ob + Oa) / Fb. Raises kDivisionByZero for a factor 0, kIndexOutOfRange for a wrong
/// index.
std::optional<std::string> ConvertUnit(const UnitCategory& category, int before, int after,
                                       Real value);

}  // namespace data
