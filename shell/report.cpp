#include "shell/report.h"

#include <algorithm>
#include <utility>

#include "common/text.h"
#include "shell/page_frame.h"
#include "shell/sheet.h"
#include "shell/sheet_registry.h"
#include "shell/workspace.h"

namespace shell {

namespace {

constexpr const char* kNothingToPrint = "印刷対象がありません。";

/// Whether there is a sheet on top; tells the user otherwise.
bool HasSheet(const Workspace& workspace, const char* title) {
  if (!workspace.activeSheetKind.empty()) return true;
  workspace.Shown().Show(kNothingToPrint, title);
  return false;
}

void TellNotPrinted(const Workspace& workspace) {
  workspace.Shown().Show("印刷できませんでした。プリンタまたは保存先を確認してください。", "印刷",
                         common::Icon::kWarning);
}

/// One page: the frame, then the body of the sheet, if it has one. False if it has none.
bool PrintPage(const Workspace& workspace, Sheet* sheet, forms::DrawSurface& target) {
  PrintSurface surface(target, workspace.printScale);
  // The one sheet whose own part has no line for its tag number.
  const bool named = sheet != nullptr && workspace.activeSheetKind == "物性推算";
  PrintPageFrame(workspace, named ? sheet->TagNumber() : std::string(), surface);
  const PageGeometry page;
  surface.MoveTo(page.bodyX, page.bodyY);
  return sheet != nullptr && sheet->PrintBody(surface);
}

}  // namespace

bool PrintSheet(Workspace& workspace, forms::DrawSurface& target) {
  if (!HasSheet(workspace, "印刷")) return false;
  PrintPage(workspace, SheetOnTop(workspace), target);
  return true;
}

void Print(Workspace& workspace) {
  if (!HasSheet(workspace, "印刷")) return;
  const SheetEntry* const sheet = FindSheet(workspace.activeSheetKind);
  if (sheet != nullptr && sheet->isEditor) {
    HardCopy(workspace);
  } else {
    PrintOnPrinter(workspace);
  }
}

void PrintOnPrinter(Workspace& workspace) {
  if (workspace.platform == nullptr) {
    TellNotPrinted(workspace);
    return;
  }
  const std::unique_ptr<PrintJob> job = workspace.platform->AskForPrinter();
  if (!job) return;
  workspace.printScale = kPaperScale;
  PrintSheet(workspace, job->NewPage());
  if (!job->Finish()) TellNotPrinted(workspace);
}

void HardCopy(Workspace& workspace) {
  if (!HasSheet(workspace, "印刷")) return;
  forms::Form* const form = workspace.forms.ActiveSheet();
  if (workspace.platform == nullptr || form == nullptr) {
    TellNotPrinted(workspace);
  } else {
    workspace.platform->PrintImage(*form);
  }
}

void ShowPreview(Workspace& workspace) {
  if (!HasSheet(workspace, "Preview")) return;
  workspace.window.SetCommandEnabled("mnuPreview", false);
  workspace.window.SetButtonEnabled(kPreviewButton, false);
  workspace.forms.Show(kPreviewForm);
}

void PreviewClosed(Workspace& workspace) {
  workspace.window.SetCommandEnabled("mnuPreview", true);
  workspace.window.SetButtonEnabled(kPreviewButton, true);
}

bool PrintToPdf(Workspace& workspace, const std::string& path) {
  if (!HasSheet(workspace, "印刷")) return false;
  const std::unique_ptr<PrintJob> job =
      workspace.platform == nullptr ? nullptr : workspace.platform->StartPdf(path);
  if (!job) return false;
  workspace.printScale = kPaperScale;
  PrintSheet(workspace, job->NewPage());
  return job->Finish();
}

TagPrinter::TagPrinter(Workspace& workspace, std::unique_ptr<PrintJob> job, std::vector<int> rows)
    : workspace_(workspace), job_(std::move(job)), rows_(std::move(rows)), sheets_(workspace) {
  workspace_.printScale = kPaperScale;
}

TagPrinter::~TagPrinter() = default;

bool TagPrinter::Next() {
  if (done_ >= Count()) return false;
  const int row = rows_[static_cast<std::size_t>(done_++)];
  const KeptValues kept(workspace_);
  try {
    PrintTag(row);
  } catch (const common::RuntimeFault& fault) {
    left_.push_back(workspace_.tags.Text(row, kTagNumberColumn) + "（" + fault.Text() + "）");
  }
  return true;
}

void TagPrinter::PrintTag(int row) {
  const std::string kind = workspace_.tags.Text(row, kKindColumn);
  workspace_.activeSheetKind = kind;
  Sheet* const sheet = sheets_.Of(kind);
  if (sheet == nullptr) {
    left_.push_back(workspace_.tags.Text(row, kTagNumberColumn) + "（" + kind +
                    "は印刷できません）");
    return;
  }
  sheet->GetFrom(row);
  sheet->RestoreResults(row);
  PrintPage(workspace_, sheet, job_->NewPage());
  ++pages_;
}

std::string PrintedText(const TagPrinter& printer) {
  std::string text = std::to_string(printer.Pages()) + "件を印刷しました。";
  if (printer.Left().empty()) return text;
  text += "\n次のタグは印刷していません。";
  constexpr std::size_t kNamed = 20;
  for (std::size_t i = 0; i < std::min(kNamed, printer.Left().size()); ++i) {
    text += "\n　" + printer.Left()[i];
  }
  if (printer.Left().size() > kNamed) {
    text += "\n　ほか " + std::to_string(printer.Left().size() - kNamed) + "件";
  }
  return text;
}

}  // namespace shell
