#pragma once

#include "forms/controls.h"
#include "sheets/valve_targets.h"
#include "shell/workspace.h"

namespace sheets {

/// Turns a flange rating and the body size of the valve sheet on top into the bore of the valve.
class frmRating : public forms::Form {
 public:
  static constexpr const char* kName = "frmRating";

  forms::Label lblRating{*this, "lblRating", "フランジ規格"};
  forms::ListBox lstRating{*this, "lstRating", 16};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmRating(shell::Workspace& workspace);

  void Load() override;

 private:
  void cmdOK_Click();
  RatingTarget* Sheet() const;

  shell::Workspace& workspace_;
};

}  // namespace sheets
