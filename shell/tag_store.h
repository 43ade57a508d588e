#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "common/messages.h"

namespace shell {

inline constexpr int kTagColumns = 51;
inline constexpr int kMaxTags = 300;
inline constexpr int kTagNumberColumn = 0;
inline constexpr int kKindColumn = 50;

/// A row of the tag store. The store knows columns 0 (tag number) and 50 (kind) alone; the others
/// belong to the sheet of that kind.
using TagRow = std::array<std::string, kTagColumns>;

/// The tags of one instrument file, as texts, with the tag list as it stands on the screen. Row 0
/// is the file header, rows 1 to TagCount() are the tags in list order. Rows behind them keep what
/// they held.
///
/// The lines and the selection of the list live here and not in its window, because registering
/// goes by the selection whether the window is open or not. While it is closed, the selected line
/// is that of `currentTag`.
class TagStore {
 public:
  /// Copies a sheet into a row.
  using AddRoutine = std::function<void(int row)>;

  TagStore() : rows_(kMaxTags + 1) {}

  /// Row in use by register and recall.
  int currentTag = 0;
  /// Row last recalled through the list; survives runs.
  int lastTagIndex = 0;
  /// The tags differ from the file. Add routines set it.
  bool tagModified = false;
  /// Path of the open file, "" when new.
  std::string zephaFileName;

  /// Text of a row (0 to 300) and column (0 to 50); raises kIndexOutOfRange outside.
  const std::string& Text(int row, int column) const;
  void SetText(int row, int column, std::string text);
  const TagRow& Row(int row) const;
  /// Row of a tag, 0 for none.
  int RowOf(const std::string& tagNumber) const;

  /// Number of tags; -1 after a file without any record was opened.
  int TagCount() const { return tagCount_; }
  bool HasTags() const { return tagCount_ > 0; }
  /// Whether the last registration replaced a row.
  bool ReplaceTag() const { return replaceTag_; }
  /// First character of the version text of the opened file.
  const std::string& FileMajorVersion() const { return fileMajorVersion_; }

  /// Tag number, blanks up to 28 bytes of CP932 (columns of a fixed-pitch font), kind.
  std::string ListLine(int row) const;
  const std::vector<std::string>& Lines() const { return lines_; }
  /// Selected line from 0, -1 for none.
  int Selection() const;
  /// The user has selected a line; raises kIndexOutOfRange when there is none like it.
  void SelectLine(int line);
  /// What the list's number label shows after editing: selection + 1.
  int ListNumber() const { return Selection() + 1; }
  /// "Tag List ： " and the file's name without its extension.
  std::string ListCaption() const;
  /// The list's window has been loaded. To be told before the start-up reads a file, because with
  /// tags in the store it resets `lastTagIndex`.
  void ListOpened();
  void ListClosed();
  /// Writes all lines anew and selects the line of `currentTag`.
  void Refresh();

  /// Puts a tag into the store. One with the same number is replaced if the user says so and keeps
  /// its list line; otherwise the new row goes behind the selected line and holds, but for what the
  /// add routine writes, what stood in that row before. The store itself writes the kind and brings
  /// the tag number to the form that CP932 gives it, so that it is found again after a reload.
  /// Returns the row, or 0 when nothing was done: no tag number, a kind that holds no tags, No, or
  /// 300 tags.
  int Register(const std::string& tagNumber, const std::string& kind, common::Messages& messages,
               const AddRoutine& add);

  /// The selected line is about to be recalled: its row, 0 for none, becomes the current and the
  /// last one.
  int TakeSelectedForRecall();

  /// Deletes the tag of the selected line after a question.
  void Delete(common::Messages& messages);
  /// The selected tag and its line change places with the neighbour.
  void MoveUp();
  void MoveDown();
  /// Stable sorts, by code points. The selected position stays.
  void SortByTag() { SortBy(kTagNumberColumn); }
  void SortByKind() { SortBy(kKindColumn); }

  /// A new file: no name, no tags. The rows keep their texts.
  void StartNewFile();
  /// A file is about to be read into the store.
  void PrepareForReading();
  /// Takes all rows of a file, header first; at most 301, else kIndexOutOfRange.
  void TakeRows(std::vector<TagRow> rows);
  /// After a file was read: the row last recalled becomes the current one, and the list is written.
  void ShowTagsRead();

 private:
  int CountedTags() const { return tagCount_ < 0 ? 0 : tagCount_; }
  bool Insert(const std::string& tagNumber, const std::string& kind, common::Messages& messages);
  void Select(int line);
  void Exchange(int line, int neighbour);
  void SortBy(std::size_t column);
  void WriteLines();

  std::vector<TagRow> rows_;
  std::vector<std::string> lines_;
  int tagCount_ = 0;
  int selection_ = -1;
  bool listOpen_ = false;
  bool replaceTag_ = false;
  std::string fileMajorVersion_;
};

}  // namespace shell
