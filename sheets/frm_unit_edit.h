#pragma once

#include "forms/controls.h"
#include "sheets/frm_unit_converter.h"

namespace sheets {

/// Names a category of the converter, or names a unit and tells its factor and constant.
class frmUnitEdit : public forms::Form {
 public:
  static constexpr const char* kName = "frmUnitEdit";

  forms::Label lblEditCategory{*this, "lblEditCategory"};
  forms::TextBox txtEditCategory{*this, "txtEditCategory"};
  forms::Label lblAddUnit{*this, "lblAddUnit"};
  forms::TextBox txtAddUnit{*this, "txtAddUnit"};
  forms::Label lblBaseUnit{*this, "lblBaseUnit", "基準単位"};
  forms::TextBox txtBaseUnit{*this, "txtBaseUnit"};
  forms::Label lblConvFactor{*this, "lblConvFactor", "換算係数"};
  forms::TextBox txtConvFactor{*this, "txtConvFactor", forms::ExponentKeys};
  forms::Label lblConvConst{*this, "lblConvConst", "定数項"};
  forms::TextBox txtConvConst{*this, "txtConvConst", forms::ExponentKeys};
  forms::Label lblEquation{*this, "lblEquation", "", forms::LabelStyle::kNote};
  forms::Button cmdOK{*this, "cmdOK", "OK", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmUnitEdit(shell::Workspace& workspace);
  void Load() override;

 private:
  using UnitEdit = frm単位換算::UnitEdit;

  /// A field that the edit does not ask for is shown and takes no entry.
  static void Ask(forms::TextBox& box, bool asked);
  void FillFields(const frm単位換算& converter);
  void ShowEquation();
  void cmdOK_Click();
  /// Whether the names that the edit asks for are there; the focus goes back to an empty one.
  bool HasNames();
  void Apply(frm単位換算& converter);

  shell::Workspace& workspace_;
  UnitEdit edit_ = UnitEdit::kRenameCategory;
};

}  // namespace sheets
