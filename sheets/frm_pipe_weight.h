#pragma once

#include <vector>

#include "forms/controls.h"
#include "sheets/material_user.h"
#include "shell/workspace.h"

namespace sheets {

/// Lists the weight of a pipe of one schedule, material and length for every nominal size.
class frmPipeWeight : public forms::Form, public MaterialUser {
 public:
  static constexpr const char* kName = "frmPipeWeight";

  forms::Label lblSchedule{*this, "lblSchedule", "スケジュール"};
  forms::ComboBox cboSchedule{*this, "cboSchedule"};
  forms::Label lbl配管材質{*this, "lbl配管材質", "配管材質"};
  forms::ComboBox cbo配管材質{*this, "cbo配管材質"};
  forms::Label lblPipeLength{*this, "lblPipeLength", "配管長さ"};
  forms::TextBox txtPipeLength{*this, "txtPipeLength", forms::NumberKeys};
  forms::Grid grdWeight{*this, "grdWeight", Columns(), 18};
  forms::Button cmdClose{*this, "cmdClose", "閉じる", forms::ButtonRole::kCancel};

  explicit frmPipeWeight(shell::Workspace& workspace);

  void Load() override;
  /// The weights of an edited material are none of the table's any more.
  void MaterialsChanged() override;

 private:
  static std::vector<forms::Grid::Column> Columns();

  void ListWeights();
  void FillMaterials();

  shell::Workspace& workspace_;
};

}  // namespace sheets
