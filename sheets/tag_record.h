#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/controls.h"
#include "shell/tag_store.h"

namespace sheets {

/// Longest tag number in CP932 bytes.
inline constexpr int kTagNumberBytes = 26;

/// Which controls of a sheet stand in which columns of its tag record.
struct TagColumns {
  std::vector<std::pair<int, forms::ComboBox*>> selections;  // stored as list positions
  std::vector<std::pair<int, forms::Control*>> entries;      // stored as texts
  std::vector<std::pair<int, forms::Label*>> results;        // stored as texts

  /// Writes all of them into a row of the store.
  void Put(shell::TagStore& tags, int row) const;
  /// Selects as clicks do, so that what depends on a selection follows it.
  void GetSelections(const shell::TagRow& record) const;
  /// Fills the entries as typing does. A combo box that stands as a text is found without looking
  /// anything up: what was stored holds.
  void GetEntries(const shell::TagRow& record) const;
  /// Fills the results without an event.
  void GetResults(const shell::TagRow& record) const;
};

/// Text of a column.
const std::string& At(const shell::TagRow& record, int column);

}  // namespace sheets
