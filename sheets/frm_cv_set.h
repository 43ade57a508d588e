#pragma once

#include <string>

#include "forms/controls.h"
#include "shell/workspace.h"

namespace sheets {

/// Trim sizes and rated Cv of the model chosen on the valve sheet on top.
class frmCvSet : public forms::Form {
 public:
  static constexpr const char* kName = "frmCvSet";

  forms::Label lblModel{*this, "lblModel"};
  forms::Label lblColumns{*this, "lblColumns", "内弁サイズ　Cv", forms::LabelStyle::kNote};
  forms::ListBox lstCv{*this, "lstCv", 22, true};
  forms::Button cmdCvSet{*this, "cmdCvSet", "決定", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmCvSet(shell::Workspace& workspace);

  void Load() override;

 private:
  void cmdCvSet_Click();

  shell::Workspace& workspace_;
  /// The model whose trims are listed.
  int maker_ = -1;
  int model_ = -1;
};

}  // namespace sheets
