#include "sheets/record_fields.h"

#include "common/number.h"

namespace sheets {

bool IsSet(const std::string& text) { return text == "True" || common::Val(text) != 0; }

void Select(forms::ComboBox& box, const std::string& index) {
  box.SetIndex(common::IntIndex(common::Val(index)));
}

}  // namespace sheets
