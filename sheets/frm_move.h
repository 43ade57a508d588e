#pragma once

#include "forms/controls.h"
#include "sheets/frm_unit_converter.h"

namespace sheets {

/// Moves the converter's categories, or the units of one, up and down in their list. Every move
/// counts at once.
class frmMove : public forms::Form {
 public:
  static constexpr const char* kName = "frmMove";

  forms::Label lblMove{*this, "lblMove", "", forms::LabelStyle::kNote};
  forms::ListBox lstMove{*this, "lstMove", 14};
  forms::Button cmdUp{*this, "cmdUp", "↑"};
  forms::Button cmdDown{*this, "cmdDown", "↓"};
  forms::Button cmdOK{*this, "cmdOK", "閉じる", forms::ButtonRole::kCancel};

  explicit frmMove(shell::Workspace& workspace);
  void Load() override;

 private:
  void Move(int step);

  shell::Workspace& workspace_;
  frm単位換算::Order order_ = frm単位換算::Order::kCategories;
};

}  // namespace sheets
