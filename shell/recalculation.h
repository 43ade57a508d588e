#pragma once

#include <string>
#include <vector>

#include "shell/hidden_sheets.h"
#include "shell/sheet.h"
#include "shell/tag_store.h"

namespace shell {

/// The name under which the window of the recalculation is known.
inline constexpr const char* kRecalculateForm = "frm全タグ再計算";

/// A field of a tag that came out otherwise, as the record holds it.
struct TagChange {
  int row = 0;
  int column = 0;
  std::string tag;
  std::string field;
  std::string before;
  std::string after;
};

/// What the calculation of a tag said, or why there was none.
struct TagNote {
  int row = 0;
  std::string tag;
  std::string text;
};

/// Calculates every tag of the store anew: recalls it into its own sheet, which nobody sees,
/// presses what the user presses, and compares what would be registered with what is. The sheets
/// work on a store of their own; open sheets, process values, flags and tags stay as they are until
/// Write.
class Recalculator {
 public:
  /// Takes the tags as they stand now.
  explicit Recalculator(Workspace& workspace);

  /// Calculates the next tag; false when there is none left.
  bool Next();
  int Done() const { return done_; }
  int Count() const { return static_cast<int>(stored_.size()); }

  /// Tags that were calculated, changed or not.
  int Recalculated() const { return recalculated_; }
  /// Tags that could not be calculated; the notes tell why.
  int Left() const { return done_ - recalculated_; }
  const std::vector<TagChange>& Changes() const { return changes_; }
  const std::vector<TagNote>& Notes() const { return notes_; }
  /// Rows of tags with changes, in list order.
  std::vector<int> ChangedRows() const;

  /// Whether the tags are no longer those that were calculated.
  bool IsStale() const;
  /// Writes the new records of these rows into the store, and marks it as modified; their changes
  /// are then done. False when the store is stale: nothing is written. Rows without changes are
  /// passed over.
  bool Write(const std::vector<int>& rows);

 private:
  struct Outcome {
    std::string mode;
    bool complete = false;
    TagRow record;
    std::vector<common::Message> messages;
  };

  void Recalculate(int row);
  void Fill(Sheet& sheet, const TagRow& record);
  Outcome Run(Sheet& sheet, const Sheet::Calculation& calculation, const TagRow& record);
  void Take(int row, const Outcome& outcome, bool hasModes);
  /// Tells the entries that the databases have otherwise today.
  void CheckEntries(Sheet& sheet, int row);
  void Note(int row, std::string text);
  const TagRow& Stored(int row) const { return stored_[static_cast<std::size_t>(row - 1)]; }

  Workspace& workspace_;
  Listener listener_;
  HiddenSheets sheets_;
  /// Row 1 holds what is recalled, row 2 takes what would be registered.
  TagStore scratch_;
  std::vector<TagRow> stored_;
  std::vector<TagRow> results_;
  std::vector<TagChange> changes_;
  std::vector<TagNote> notes_;
  int done_ = 0;
  int recalculated_ = 0;
};

/// What came of it, in a few sentences.
std::string RecalculatedText(const Recalculator& recalculator);

}  // namespace shell
