#pragma once

#include "forms/controls.h"
#include "shell/workspace.h"

namespace sheets {

/// Turns a nominal size and a schedule into a pipe bore for the sheet on top.
class frmPipeDia : public forms::Form {
 public:
  static constexpr const char* kName = "frmPipeDia";

  forms::Label lblNominal{*this, "lblNominal", "呼び径"};
  forms::Label lblSchedule{*this, "lblSchedule", "スケジュール"};
  forms::ListBox lstNominal{*this, "lstNominal", 14};
  forms::ListBox lstSchedule{*this, "lstSchedule", 14};
  forms::Button cmdSet{*this, "cmdSet", "決定", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmPipeDia(shell::Workspace& workspace);

  void Load() override;

 private:
  void cmdSet_Click();

  shell::Workspace& workspace_;
};

}  // namespace sheets
