#include "data/unit_table.h"

#include "common/fields.h"
#include "common/number.h"
#include "common/text.h"
#include "data/field_list.h"

namespace data {

namespace {

/// The next field as a whole number from 0 to limit - 1.
std::optional<int> NextIndex(common::FieldReader& reader, std::size_t limit) {
  const auto field = reader.Next();
  const auto number = field ? NumberField(*field) : std::nullopt;
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
  const auto factorNumber = NumberField(*factor);
  const auto offsetNumber = NumberField(*offset);
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
