#pragma once

#include <array>
#include <string>

#include "data/property_curve.h"
#include "forms/controls.h"
#include "sheets/property_plot.h"
#include "shell/sheet.h"

namespace sheets {

/// Edits the fluid tables: a page of 24 fields for each liquid and gas. Every change goes into the
/// table at once, so that open sheets estimate with it; the files are written by command. Fields
/// are free texts: what the estimators cannot use is marked, and saved as it stands.
class frmEditPropData : public shell::Sheet {
 public:
  static constexpr const char* kKind = "EditProp";
  static constexpr int kFields = data::FluidTable::kFields;
  static constexpr int kPlots = 3;

  forms::OptionButton Option1{*this, "Option1", "液体"};
  forms::OptionButton Option2{*this, "Option2", "気体"};
  forms::TabStrip TabStrip1{*this, "TabStrip1", forms::TabStrip::Side::kLeft};
  forms::ControlArray<forms::Label> lblItemName{*this, "lblItemName", kFields};
  forms::ControlArray<forms::TextBox> txtItemData{*this, "txtItemData", kFields};
  /// The curves of the fluid.
  forms::ControlArray<forms::Picture> picProperty{*this, "picProperty", kPlots, 3600.0, 3700.0};

  forms::Label lbl変更{*this, "lbl変更", "", forms::LabelStyle::kNote};
  forms::Button cmdDeleteProp{*this, "cmdDeleteProp", "削　除"};
  forms::Button cmdSaveProp{*this, "cmdSaveProp", "保　存", forms::ButtonRole::kDefault};

  explicit frmEditPropData(shell::Workspace& workspace);

  void Load() override;
  void Unload() override;

 private:
  void DeclareLayout();

  data::FluidTable& Table() const;
  bool IsShown() const { return fluid_ >= 0; }
  std::string& Cell(int field) const;

  void Option_Click(data::FluidPhase phase);
  void TabStrip1_Click();
  void txtItemData_Change(int field);
  bool StepFrom(int field, forms::Arrow arrow);
  void cmdDeleteProp_Click();

  void ShowTable();
  void ShowFluid();
  /// Remarks on the fields and the curves, which follow every edit.
  void ShowJudgement();
  PropertyCurve CurveOf(int plot) const;
  void ShowModified();
  void Changed();
  void Save();

  data::FluidPhase phase_ = data::kLiquid;
  int fluid_ = -1;
  std::array<PropertyCurve, kPlots> curves_;
};

}  // namespace sheets
