#pragma once

#include <string>

#include "forms/controls.h"

namespace sheets {

/// Whether a flag of a tag record is set; one of an old file may also be a number.
bool IsSet(const std::string& text);

/// Selects the entry whose index a tag record holds.
void Select(forms::ComboBox& box, const std::string& index);

}  // namespace sheets
