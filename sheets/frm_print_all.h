#pragma once

#include <memory>
#include <vector>

#include "forms/controls.h"
#include "shell/report.h"
#include "shell/workspace.h"

namespace sheets {

/// Prints the marked tags of the list, a page each, on a printer or into one PDF file.
class frm一括印刷 : public forms::Form {
 public:
  static constexpr const char* kName = shell::kPrintAllForm;

  forms::CheckList lstTag{*this, "lstTag", 14};
  forms::Button cmd全選択{*this, "cmd全選択", "すべて選択"};
  forms::Button cmd全解除{*this, "cmd全解除", "すべて解除"};
  forms::Label lbl件数{*this, "lbl件数"};
  forms::ProgressBar prg進行{*this, "prg進行"};
  forms::Button cmdPDF{*this, "cmdPDF", "PDFに保存…"};
  forms::Button cmd印刷{*this, "cmd印刷", "印刷…", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "閉じる", forms::ButtonRole::kCancel};

  explicit frm一括印刷(shell::Workspace& workspace);

  void Load() override;
  void Unload() override;

 private:
  void ShowCount();
  void cmdPDF_Click();
  void cmd印刷_Click();
  void cmdCancel_Click();
  std::vector<int> MarkedRows() const;
  void SetRunning(bool running);
  void Start(std::unique_ptr<shell::PrintJob> job);
  /// Prints one tag; false when the work is done or was given up.
  bool Step();
  void End();

  shell::Workspace& workspace_;
  std::unique_ptr<shell::TagPrinter> printer_;
};

}  // namespace sheets
