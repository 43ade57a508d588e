#pragma once

#include <string>
#include <vector>

#include "data/convert_lists.h"

namespace sheets {

/// Nominal pipe sizes as the lists show them, with "in" behind.
std::vector<std::string> NominalSizeTexts(const data::ConvertLists& lists);

/// Schedules that the pipe table has walls for.
std::vector<std::string> ScheduleTexts(const data::ConvertLists& lists);

}  // namespace sheets
