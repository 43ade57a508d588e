#pragma once

#include <string>

namespace shell {

/// What an engineer calls a column (0 to 50) of a tag record of a kind: the title of the workbook,
/// a unit with what it is the unit of; a name of its own where the workbook has none.
std::string FieldName(const std::string& kind, int column);

/// A stored text as it is told: the number of a colour as its name, nothing as such.
std::string ShownField(const std::string& kind, int column, const std::string& text);

}  // namespace shell
