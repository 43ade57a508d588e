#pragma once

#include <optional>
#include <string>
#include <vector>

#include "shell/workbook_file.h"

namespace shell {

struct Workspace;

/// The name under which the form of the export is known.
inline constexpr const char* kExportForm = "frmZepha2Excel";

/// All tags of the store as a workbook: a worksheet for each kind, a row for each tag in the order
/// of the store. It is made step by step, so that the user sees how far it is.
class TagExport {
 public:
  /// Steps before the first tag: the workbook and its worksheets.
  static constexpr int kStepsBefore = 9;

  explicit TagExport(const Workspace& workspace);

  int Steps() const { return tags_ + kStepsBefore; }
  int Done() const { return done_; }
  /// Takes the next step; false when all are done. Raises a fault with its sentence for a tag of a
  /// kind that has no worksheet, and without the lists that name the units.
  bool Next();
  /// The bytes of the finished workbook.
  std::string Finish() { return file_.value().Finish(); }

 private:
  void Begin();
  void AddTag(int row);

  const Workspace& workspace_;
  int tags_;
  int done_ = 0;
  std::optional<WorkbookFile> file_;
  /// The next free row of each worksheet; 0 holds the titles.
  std::vector<int> sheetNextRow_;
};

/// Writes all tags as a workbook to a path, whatever stands there.
void WriteWorkbook(const Workspace& workspace, const std::string& path);

/// The question before a file is replaced.
std::string ReplaceQuestion(const std::string& path);

/// A new, empty file in the folder for temporary files, named after the instrument file. Raises
/// kFileAccess when it cannot be created.
std::string NewWorkbookPath(const std::string& instrumentFile);

}  // namespace shell
