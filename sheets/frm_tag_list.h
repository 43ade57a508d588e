#pragma once

#include "forms/controls.h"
#include "shell/workspace.h"

namespace sheets {

/// The tags of the open file in list order, with the commands that register, recall and arrange
/// them.
class frmTagList : public forms::Form {
 public:
  static constexpr const char* kName = "frmTagList";

  forms::ListBox lstTagNo{*this, "lstTagNo", 18, true};
  forms::Label lblNo{*this, "lblNo", "No."};
  forms::ResultLabel lblListNo{*this, "lblListNo"};
  forms::Button cmd追加{*this, "cmd追加", "挿入"};
  forms::Button cmdTagCall{*this, "cmdTagCall", "読出", forms::ButtonRole::kDefault};
  forms::Button cmdTagDelete{*this, "cmdTagDelete", "削除"};
  forms::Button cmdUp{*this, "cmdUp", "↑"};
  forms::Button cmdDown{*this, "cmdDown", "↓"};
  forms::Button cmdTagSort{*this, "cmdTagSort", "Tag No"};
  forms::Button cmdCategorySort{*this, "cmdCategorySort", "分類"};

  explicit frmTagList(shell::Workspace& workspace);

  void Load() override;
  void Activate() override;
  void Unload() override;

 private:
  /// Lines, selection and caption as the store has them.
  void ShowStore();
  /// The number of the selected line, which is shown after a click and after every edit.
  void ShowNumber();
  void ShowEdited();
  /// A button that changes the store.
  void Edits(forms::Button& button, void (shell::TagStore::*edit)());
  void lstTagNo_Click();
  void cmdTagCall_Click();

  shell::Workspace& workspace_;
};

}  // namespace sheets
