#pragma once

#include "forms/controls.h"
#include "shell/duct_commands.h"
#include "shell/workspace.h"

namespace sheets {

/// The ducts of the open duct file, with the commands that register, recall and arrange them.
class frmDuctList : public forms::Form {
 public:
  static constexpr const char* kName = shell::kDuctListForm;

  forms::ListBox lstDuct{*this, "lstDuct", 14};
  forms::Button cmdUp{*this, "cmdUp", "↑"};
  forms::Button cmdDown{*this, "cmdDown", "↓"};
  forms::Button cmdAdd{*this, "cmdAdd", "挿入"};
  forms::Button cmdDelete{*this, "cmdDelete", "削除"};
  forms::Button cmdSend{*this, "cmdSend", "呼出", forms::ButtonRole::kDefault};

  explicit frmDuctList(shell::Workspace& workspace);

  void Load() override { ShowStore(); }
  void Activate() override { ShowStore(); }

 private:
  void ShowStore();
  void cmdAdd_Click();
  void cmdSend_Click();

  shell::Workspace& workspace_;
};

}  // namespace sheets
