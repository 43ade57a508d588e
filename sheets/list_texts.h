#pragma once

#include <string>
#include <vector>

#include "common/real.h"
#include "data/convert_lists.h"

namespace sheets {

/// Nominal pipe sizes as the lists show them, with "in" behind.
std::vector<std::string> NominalSizeTexts(const data::ConvertLists& lists);

/// Number of a result that is grouped by thousands ("1,234.50").
common::Real GroupedNumber(std::string text);

/// Schedules that the pipe table has walls for.
std::vector<std::string> ScheduleTexts(const data::ConvertLists& lists);

}  // namespace sheets
