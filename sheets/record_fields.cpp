#include "sheets/record_fields.h"

#include "common/number.h"

namespace sheets {

void Select(forms::ComboBox& box, const std::string& index) {
  box.SetIndex(common::IntIndex(common::Val(index)));
}

}  // namespace sheets
