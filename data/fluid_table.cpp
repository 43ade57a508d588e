#include "data/fluid_table.h"

#include "common/fields.h"
#include "common/real.h"
#include "common/text.h"
#include "data/field_list.h"

namespace data {

const std::string& FluidTable::Cell(int fluidIndex, int field) const {
  return common::At(common::At(fluids, fluidIndex), field);
}

std::vector<std::string> FluidTable::Names() const {
  std::vector<std::string> names;
  for (const Record& fluid : fluids) names.push_back(fluid[kLiquidName]);
  return names;
}

bool ReadFluidTable(std::string bytes, FluidTable& table) {
  table = {};
  auto fields = ReadFields(std::move(bytes), FluidTable::kFields * (FluidTable::kFluids + 1));
  if (!fields) return false;
  auto next = fields->begin();
  for (std::string& header : table.headers) header = std::move(*next++);
  table.fluids.resize(FluidTable::kFluids);
  for (FluidTable::Record& fluid : table.fluids) {
    for (std::string& field : fluid) field = std::move(*next++);
  }
  return true;
}

std::string WriteFluidTable(const FluidTable& table) {
  std::string text = common::QuotedLine(table.headers);
  for (const FluidTable::Record& fluid : table.fluids) text += common::QuotedLine(fluid);
  return common::ToCp932(text);
}

}  // namespace data
