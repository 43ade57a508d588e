#pragma once

#include <array>

#include "data/material_table.h"
#include "forms/controls.h"
#include "shell/sheet.h"

namespace sheets {

/// Edits the materials: a page for one of the eight. Every change goes into the table at once, so
/// that open sheets calculate with it; the file is written by command.
class frmMaterial : public shell::Sheet {
 public:
  static constexpr const char* kKind = "Material";

  using Cells = forms::ControlArray<forms::TextBox>;

  forms::ControlArray<forms::OptionButton> optMaterial{*this, "optMaterial",
                                                       data::MaterialTable::kMaterials,
                                                       std::string(), std::string("material")};
  forms::Label lblMaterialName{*this, "lblMaterialName", "材料名"};
  forms::TextBox txtMaterialName{*this, "txtMaterialName"};
  forms::ControlArray<forms::Label> lblColumn{*this, "lblColumn", data::MaterialTable::kColumns};
  Cells txt密度L = Row("txt密度L");
  Cells txt密度H = Row("txt密度H");
  Cells txtヤング率L = Row("txtヤング率L");
  Cells txtヤング率H = Row("txtヤング率H");
  Cells txt許容応力L = Row("txt許容応力L");
  Cells txt許容応力H = Row("txt許容応力H");
  Cells txt線膨張係数L = Row("txt線膨張係数L");
  Cells txt線膨張係数H = Row("txt線膨張係数H");
  forms::Label lblEquation{*this, "lblEquation", "", forms::LabelStyle::kNote};
  forms::Button cmdDataSave{*this, "cmdDataSave", "保　存"};

  explicit frmMaterial(shell::Workspace& workspace);

  void Load() override;
  void Unload() override;

 private:
  Cells Row(const char* name) {
    return {*this, name, data::MaterialTable::kColumns, forms::SignedNumberKeys};
  }
  /// The boxes in the order of the table's rows.
  std::array<Cells*, data::MaterialTable::kRows> Rows();
  data::MaterialTable& Table() const { return Space().tables.materials; }
  data::MaterialTable::Cells& TableCells() const { return common::At(Table().cells, material_); }
  void BindHandlers();
  void DeclareLayout();
  forms::Block MaterialBlock();
  forms::Block EquationBlock();

  void optMaterial_Click(int material);
  void txtMaterialName_Change();
  void Changed();
  void ShowModified();
  void Save();

  int material_ = 0;
};

}  // namespace sheets
