#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/controls.h"
#include "shell/record_text.h"
#include "shell/tag_store.h"

namespace sheets {

/// Writes a sheet into a row of the tag store.
class RecordWriter {
 public:
  RecordWriter(shell::TagStore& tags, int row) : tags_(tags), row_(row) {}

  void Put(int column, std::string text) { tags_.SetText(row_, column, std::move(text)); }
  /// The texts of controls by column.
  template <class ControlKind>
  void PutTexts(const std::vector<std::pair<int, ControlKind*>>& columns) {
    for (const auto& [column, control] : columns) Put(column, control->Text());
  }
  void PutIndex(int column, const forms::ListControl& list) {
    Put(column, std::to_string(list.Index()));
  }
  void PutFlag(int column, bool set) { Put(column, set ? "True" : "False"); }

 private:
  shell::TagStore& tags_;
  int row_;
};

using shell::IsSet;

/// Selects the entry whose index a tag record holds.
void Select(forms::ComboBox& box, const std::string& index);

}  // namespace sheets
