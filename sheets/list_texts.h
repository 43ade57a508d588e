#pragma once

#include <string>
#include <vector>

#include "common/real.h"
#include "data/convert_lists.h"
#include "data/fluid_table.h"

namespace sheets {

/// Nominal pipe sizes as the lists show them, with "in" behind.
std::vector<std::string> NominalSizeTexts(const data::ConvertLists& lists);

/// Names of a fluid table as the lists show them, with a blank in front; positions are fluid
/// indices, so unused records are there, too.
std::vector<std::string> FluidTexts(const data::FluidTable& fluids);

/// Number of a result that is grouped by thousands ("1,234.50").
common::Real GroupedNumber(std::string text);

/// Place of Sch40 in the schedules, on which lists of pipes open.
inline constexpr int kStartSchedule = 7;

/// Schedules that the pipe table has walls for.
std::vector<std::string> ScheduleTexts(const data::ConvertLists& lists);

}  // namespace sheets
