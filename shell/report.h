#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/draw_surface.h"
#include "shell/hidden_sheets.h"
#include "shell/print_job.h"

namespace shell {

/// The name under which the preview window is known.
inline constexpr const char* kPreviewForm = "frmPreview";
/// The name under which the dialogue for printing many tags is known.
inline constexpr const char* kPrintAllForm = "frm一括印刷";

/// Prints the sheet on top as one A4 page, frame and body, in letters of the workspace's
/// printScale. With no sheet on top it says so instead, and returns false.
bool PrintSheet(Workspace& workspace, forms::DrawSurface& target);

/// The command "印刷": the sheet on top, on a printer that the user chooses. Editors print the
/// image of their window.
void Print(Workspace& workspace);
/// The same without the question for a sheet; the preview has one.
void PrintOnPrinter(Workspace& workspace);
/// The image of the active form, on a printer that the user chooses.
void HardCopy(Workspace& workspace);
/// The command "プレビュー".
void ShowPreview(Workspace& workspace);
/// The preview has gone: its commands are free again.
void PreviewClosed(Workspace& workspace);

/// Prints the sheet on top into a PDF file; false when it could not be written or there is no
/// sheet.
bool PrintToPdf(Workspace& workspace, const std::string& path);

/// Prints tags one after the other, a page each, as their own sheets print them, without showing
/// these sheets and without touching what stands on the open ones.
class TagPrinter {
 public:
  /// rows: rows of the tag store, in the order of printing.
  TagPrinter(Workspace& workspace, std::unique_ptr<PrintJob> job, std::vector<int> rows);
  ~TagPrinter();
  TagPrinter(const TagPrinter&) = delete;
  TagPrinter& operator=(const TagPrinter&) = delete;

  /// Prints the next tag; false when there is none left.
  bool Next();
  int Done() const { return done_; }
  int Count() const { return static_cast<int>(rows_.size()); }
  int Pages() const { return pages_; }
  /// Tags that could not be printed, each with the reason.
  const std::vector<std::string>& Left() const { return left_; }
  bool Finish() { return job_->Finish(); }
  void Abort() { job_->Abort(); }

 private:
  void PrintTag(int row);

  Workspace& workspace_;
  std::unique_ptr<PrintJob> job_;
  std::vector<int> rows_;
  HiddenSheets sheets_;
  std::vector<std::string> left_;
  int done_ = 0;
  int pages_ = 0;
};

/// What the user is told at the end of printing many tags.
std::string PrintedText(const TagPrinter& printer);

}  // namespace shell
