#include "data/unit_table.h"

#include <algorithm>
#include <utility>

#include "common/fields.h"
#include "common/number.h"
#include "common/text.h"
#include "data/field_list.h"

namespace data {

namespace {

/// The next field as a whole number from 0 to limit - 1.
std::optional<int> NextIndex(common::FieldReader& reader, std::size_t limit) {
  const auto field = reader.Next();
  const auto number = field ? common::WholeNumber(*field) : std::nullopt;
  if (!number || *number < 0 || *number >= static_cast<double>(limit) || Int(*number) != *number) {
    return std::nullopt;
  }
  return common::IntIndex(*number);
}

std::optional<UnitEntry> NextUnit(common::FieldReader& reader) {
  auto name = reader.Next();
  const auto factor = reader.Next();
  const auto offset = reader.Next();
  if (!offset) return std::nullopt;
  const auto factorNumber = common::WholeNumber(*factor);
  const auto offsetNumber = common::WholeNumber(*offset);
  if (!factorNumber || !offsetNumber) return std::nullopt;
  return UnitEntry{std::move(*name), *factorNumber, *offsetNumber};
}

std::optional<UnitCategory> NextCategory(common::FieldReader& reader) {
  auto name = reader.Next();
  const auto lastUnitIndex = NextIndex(reader, UnitTable::kMaxUnits);
  if (!name || !lastUnitIndex) return std::nullopt;
  const auto unitCount = static_cast<std::size_t>(*lastUnitIndex) + 1;
  const auto baseUnitIndex = NextIndex(reader, unitCount);
  if (!baseUnitIndex) return std::nullopt;
  UnitCategory category{std::move(*name), *baseUnitIndex, {}};
  while (category.units.size() < unitCount) {
    auto unit = NextUnit(reader);
    if (!unit) return std::nullopt;
    category.units.push_back(std::move(*unit));
  }
  return category;
}

/// Runs an edit of a category's units that may move its base.
template <class Edit>
void EditUnits(UnitCategory& category, Edit edit) {
  const std::string base = common::At(category.units, category.baseUnitIndex).unitName;
  edit(category.units);
  const auto found = std::find_if(category.units.begin(), category.units.end(),
                                  [&base](const UnitEntry& unit) { return unit.unitName == base; });
  if (found == category.units.end()) return;
  category.baseUnitIndex = static_cast<int>(found - category.units.begin());
}

/// Where to insert in a list.
template <class Entry>
auto PlaceIn(std::vector<Entry>& entries, int place) {
  if (place < 0 || place > static_cast<int>(entries.size())) {
    common::RaiseFault(common::Fault::kIndexOutOfRange);
  }
  return entries.begin() + place;
}

}  // namespace

bool ReadUnitTable(std::string bytes, UnitTable& table) {
  table = {};
  if (!IsText(bytes)) return false;
  common::FieldReader reader(std::move(bytes));
  UnitTable read;
  while (!reader.AtEnd()) {
    if (read.categories.size() == UnitTable::kMaxCategories) return false;
    auto category = NextCategory(reader);
    if (!category) return false;
    read.categories.push_back(std::move(*category));
  }
  table = std::move(read);
  return !table.Empty();
}

std::string WriteUnitTable(const UnitTable& table) {
  std::string text;
  for (const UnitCategory& category : table.categories) {
    text += common::QuotedField(category.categoryName) + "," +
            common::NumberText(category.LastUnitIndex()) + "," +
            common::NumberText(category.baseUnitIndex) + "\r\n";
    for (const UnitEntry& unit : category.units) {
      text += common::QuotedField(unit.unitName) + "," + common::NumberText(unit.factor) + "," +
              common::NumberText(unit.offset) + "\r\n";
    }
  }
  return common::ToCp932(text);
}

std::string CutCategoryName(std::string_view name) {
  constexpr int kBytes = 20;
  return common::TruncateToBytes(name, kBytes + 1);
}

void InsertCategory(UnitTable& table, int place, std::string name, std::string unitName) {
  if (table.categories.size() >= UnitTable::kMaxCategories) {
    common::RaiseFault(common::Fault::kIndexOutOfRange);
  }
  UnitCategory category{std::move(name), 0, {{std::move(unitName), 1, 0}}};
  table.categories.insert(PlaceIn(table.categories, place), std::move(category));
}

void InsertUnit(UnitCategory& category, int place, UnitEntry unit) {
  if (category.units.size() >= UnitTable::kMaxUnits) {
    common::RaiseFault(common::Fault::kIndexOutOfRange);
  }
  EditUnits(category, [&](std::vector<UnitEntry>& units) {
    units.insert(PlaceIn(units, place), std::move(unit));
  });
}

void RemoveUnit(UnitCategory& category, int unit) {
  common::At(category.units, unit);
  EditUnits(category, [&](std::vector<UnitEntry>& units) { units.erase(units.begin() + unit); });
}

void ExchangeUnits(UnitCategory& category, int one, int other) {
  std::swap(common::At(category.units, one), common::At(category.units, other));
  if (category.baseUnitIndex == one) {
    category.baseUnitIndex = other;
  } else if (category.baseUnitIndex == other) {
    category.baseUnitIndex = one;
  }
}

bool SortUnits(UnitCategory& category) {
  constexpr int kFewest = 3;
  if (category.LastUnitIndex() + 1 < kFewest) return false;
  EditUnits(category, [](std::vector<UnitEntry>& units) {
    std::stable_sort(units.begin(), units.end(), [](const UnitEntry& one, const UnitEntry& other) {
      return common::UpperCase(one.unitName) < common::UpperCase(other.unitName);
    });
  });
  return true;
}

std::optional<std::string> ConvertUnit(const UnitCategory& category, int before, int after,
                                       Real value) {
  const UnitEntry& from = common::At(category.units, before);
  const UnitEntry& to = common::At(category.units, after);
  Real converted = value;
  if (before != after) {
    converted = (value * from.factor - to.offset + from.offset) / to.factor;
  }
  const int exponent = converted > 0 ? common::IntIndex(Log10(converted)) : 0;
  converted = common::RoundDigits(converted, 5 - exponent);
  std::string text = common::Format(converted, "###,###,##0.0000000000000");
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  if (text.size() > kConverterCharacters) return std::nullopt;
  return text;
}

}  // namespace data
