#include "data/pipe_table.h"

#include "common/number.h"
#include "data/field_list.h"

namespace data {

float PipeTable::OutsideDiameter(int size) const { return common::At(rows, size)[0]; }

float PipeTable::WallThickness(int size, int schedule) const {
  const auto& row = common::At(rows, size);
  if (schedule < 0) common::RaiseFault(common::Fault::kIndexOutOfRange);
  return common::At(row, schedule + 1);
}

std::optional<Real> PipeTable::InnerDiameter(int size, int schedule) const {
  const bool listed =
      size >= 0 && size < static_cast<int>(rows.size()) && schedule >= 0 && schedule < kSchedules;
  if (!listed) return std::nullopt;
  const Real thickness = WallThickness(size, schedule);
  if (thickness <= 0) return std::nullopt;
  return common::RoundDigits(OutsideDiameter(size) - 2 * thickness, 3);
}

bool ReadPipeTable(std::string bytes, PipeTable& table) {
  table = {};
  constexpr std::size_t kColumns = PipeTable::kSchedules + 1;
  const auto numbers = ReadSingles(std::move(bytes), PipeTable::kSizes * kColumns);
  if (!numbers) return false;
  auto next = numbers->begin();
  table.rows.resize(PipeTable::kSizes);
  for (auto& row : table.rows) {
    for (float& value : row) value = *next++;
  }
  return true;
}

}  // namespace data
