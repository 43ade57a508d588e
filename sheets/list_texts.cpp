#include "sheets/list_texts.h"

#include <algorithm>

#include "common/number.h"
#include "data/pipe_table.h"

namespace sheets {

std::vector<std::string> NominalSizeTexts(const data::ConvertLists& lists) {
  std::vector<std::string> texts = lists.nominalSizes;
  for (std::string& text : texts) text += "in";
  return texts;
}

std::vector<std::string> FluidTexts(const data::FluidTable& fluids) {
  std::vector<std::string> texts;
  for (const std::string& name : fluids.Names()) texts.push_back(" " + name);
  return texts;
}

common::Real GroupedNumber(std::string text) {
  std::erase(text, ',');
  return common::Val(text);
}

std::vector<std::string> ScheduleTexts(const data::ConvertLists& lists) {
  const auto count = std::min<std::size_t>(lists.schedules.size(), data::PipeTable::kSchedules);
  return {lists.schedules.begin(), lists.schedules.begin() + static_cast<std::ptrdiff_t>(count)};
}

}  // namespace sheets
