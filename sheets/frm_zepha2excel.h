#pragma once

#include <memory>
#include <string>

#include "forms/controls.h"
#include "shell/workbook_export.h"
#include "shell/workspace.h"

namespace sheets {

/// Writes all tags into a new workbook and opens it with the user's program.
class frmZepha2Excel : public forms::Form {
 public:
  static constexpr const char* kName = shell::kExportForm;

  forms::Label lblMessage{*this, "lblMessage"};
  forms::ProgressBar ProgressBar1{*this, "ProgressBar1"};
  forms::Button cmdExchangeStart{*this, "cmdExchangeStart", "開　始", forms::ButtonRole::kDefault};
  forms::Button cmdEnd{*this, "cmdEnd", "終　了", forms::ButtonRole::kCancel};

  explicit frmZepha2Excel(shell::Workspace& workspace);

  void Load() override;
  void Unload() override;

 private:
  void cmdExchangeStart_Click();
  /// Takes a step of the export; false when it has ended. A fault ends it with its text.
  bool Step();
  bool TakeStep();
  void Finish();
  void ShowIdle();

  shell::Workspace& workspace_;
  std::unique_ptr<shell::TagExport> export_;
  std::string path_;
};

}  // namespace sheets
