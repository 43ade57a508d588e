#include "sheets/tag_record.h"

#include "common/number.h"
#include "forms/form.h"

namespace sheets {

const std::string& At(const shell::TagRow& record, int column) {
  return common::At(record, column);
}

void SelectStored(forms::ComboBox& box, const std::string& position) {
  box.SetIndex(common::IntIndex(common::Val(position)));
}

void TagColumns::Put(shell::TagStore& tags, int row) const {
  for (const auto& [column, box] : selections) {
    tags.SetText(row, column, std::to_string(box->Index()));
  }
  for (const auto& [column, control] : entries) tags.SetText(row, column, control->Text());
  for (const auto& [column, label] : results) tags.SetText(row, column, label->Text());
}

void TagColumns::GetSelections(const shell::TagRow& record) const {
  for (const auto& [column, box] : selections) SelectStored(*box, At(record, column));
}

void TagColumns::GetEntries(const shell::TagRow& record) const {
  for (const auto& [column, control] : entries) {
    if (dynamic_cast<forms::ComboBox*>(control) != nullptr) {
      const forms::Form::Quiet quiet(control->Owner());
      control->SetText(At(record, column));
    } else {
      control->SetText(At(record, column));
    }
  }
}

void TagColumns::GetResults(const shell::TagRow& record) const {
  for (const auto& [column, label] : results) {
    const forms::Form::Quiet quiet(label->Owner());
    label->SetText(At(record, column));
  }
}

}  // namespace sheets
