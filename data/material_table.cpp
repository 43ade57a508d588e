#include "data/material_table.h"

#include <algorithm>

#include "common/fields.h"
#include "common/number.h"
#include "common/text.h"
#include "data/field_list.h"

namespace data {

namespace {

using common::SpacedNumberText;
using common::Val;

using Row = std::array<std::string, MaterialTable::kColumns>;

constexpr std::size_t kFirstCoefficient = 2;

struct Property {
  MaterialRow row;
  const char* title;
  int decimals;
};

constexpr Property kDensity = {kDensityRow, "材料密度", 0};
constexpr Property kYoungsModulus = {kYoungsModulusRow, "ヤング率", 0};
constexpr Property kAllowableStress = {kStressRow, "許容応力", 1};
constexpr Property kLinearExpansion = {kExpansionRow, "線膨張係数", 1};

Real CoefficientSum(const Row& row) {
  Real sum = 0;
  for (std::size_t i = kFirstCoefficient; i < row.size(); ++i) sum += Val(row[i]);
  return sum;
}

Real Polynomial(const Row& row, Real t) {
  Real value = 0;
  Real power = 1;
  for (std::size_t i = kFirstCoefficient; i < row.size(); ++i) {
    value += Val(row[i]) * power;
    power *= t;
  }
  return value;
}

Real Evaluate(const MaterialTable& table, int material, const Property& property, Real t,
              common::Messages& messages) {
  const auto& cells = common::At(table.cells, material);
  const Row& low = common::At(cells, property.row);
  const Row& high = common::At(cells, property.row + 1);
  const Real tMin = Val(low[0]);
  const Real t1 = Val(low[1]);
  const Real t2 = Val(high[1]);
  const Real tMax = common::IsBlank(high[1]) || t1 > t2 ? t1 : t2;
  if (t < tMin || t > tMax) {
    messages.Show(
        "推算式適用温度は" + SpacedNumberText(tMin) + "～" + SpacedNumberText(tMax) + "℃です。",
        property.title);
    return 0;
  }
  return common::RoundDigits(Polynomial(t <= t1 ? low : high, t), property.decimals);
}

Real Guarded(const MaterialTable& table, int material, const Property& property, Real t,
             common::Messages& messages) {
  try {
    if (property.row == kDensityRow && !HasDensityEquation(table, material)) return 0;
    return Evaluate(table, material, property, t, messages);
  } catch (const common::RuntimeFault& fault) {
    messages.Show(fault.Text(), property.title);
    return 0;
  }
}

/// Fills texts in order; false when the file ends first.
template <class Texts>
bool Fill(common::FieldReader& reader, Texts& texts) {
  for (std::string& text : texts) {
    auto field = reader.Next();
    if (!field) return false;
    text = std::move(*field);
  }
  return true;
}

}  // namespace

bool MaterialTable::Empty() const {
  return std::all_of(names.begin(), names.end(), common::IsBlank);
}

bool ReadMaterialTable(std::string bytes, MaterialTable& table) {
  table = {};
  if (!IsText(bytes)) return false;
  common::FieldReader reader(std::move(bytes));
  if (!Fill(reader, table.names)) return false;
  for (MaterialTable::Cells& cells : table.cells) {
    for (Row& row : cells) {
      if (!Fill(reader, row)) return false;
    }
  }
  return reader.AtEnd();
}

std::string WriteMaterialTable(const MaterialTable& table) {
  std::string text = common::QuotedLine(table.names);
  for (const MaterialTable::Cells& cells : table.cells) {
    for (const Row& row : cells) text += common::QuotedLine(row);
  }
  return common::ToCp932(text);
}

bool HasDensityEquation(const MaterialTable& table, int material) {
  return CoefficientSum(common::At(table.cells, material)[kDensityRow]) != 0;
}

Real MaterialDensity(const MaterialTable& table, int material, Real temperature,
                     common::Messages& messages) {
  return Guarded(table, material, kDensity, temperature, messages);
}

Real MaterialYoungsModulus(const MaterialTable& table, int material, const ProcessState& state,
                           common::Messages& messages) {
  return Guarded(table, material, kYoungsModulus, state.temperatureC, messages);
}

Real MaterialAllowableStress(const MaterialTable& table, int material, const ProcessState& state,
                             common::Messages& messages) {
  return Guarded(table, material, kAllowableStress, state.temperatureC, messages);
}

Real MaterialLinearExpansion(const MaterialTable& table, int material, const ProcessState& state,
                             common::Messages& messages) {
  return Guarded(table, material, kLinearExpansion, state.temperatureC, messages);
}

}  // namespace data
