#include "sheets/tag_record.h"

#include "common/real.h"
#include "forms/form.h"
#include "sheets/record_fields.h"

namespace sheets {

const std::string& At(const shell::TagRow& record, int column) {
  return common::At(record, column);
}

void TagColumns::Put(shell::TagStore& tags, int row) const {
  RecordWriter record(tags, row);
  for (const auto& [column, box] : selections) record.PutIndex(column, *box);
  record.PutTexts(entries);
  record.PutTexts(results);
}

void TagColumns::GetSelections(const shell::TagRow& record) const {
  for (const auto& [column, box] : selections) Select(*box, At(record, column));
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
