#include "sheets/frm_material.h"

#include "common/text.h"
#include "sheets/material_user.h"
#include "shell/data_file.h"
#include "shell/instrument_file.h"

namespace sheets {

namespace {

/// Refuses what the file cannot hold, with the material that has it.
void CheckStorable(const data::MaterialTable& table) {
  for (int material = 0; material < data::MaterialTable::kMaterials; ++material) {
    const std::string& name = common::At(table.names, material);
    const std::string owner = "材料「" + name + "」";
    shell::CheckStorable(owner, name);
    for (const auto& row : common::At(table.cells, material)) {
      for (const std::string& cell : row) shell::CheckStorable(owner, cell);
    }
  }
}

}  // namespace

frmMaterial::frmMaterial(shell::Workspace& workspace)
    : Sheet(workspace, kKind, "材料データベース") {
  BindHandlers();
  DeclareLayout();
}

std::array<frmMaterial::Cells*, data::MaterialTable::kRows> frmMaterial::Rows() {
  return {&txt密度L,     &txt密度H,     &txtヤング率L,   &txtヤング率H,
          &txt許容応力L, &txt許容応力H, &txt線膨張係数L, &txt線膨張係数H};
}

void frmMaterial::BindHandlers() {
  for (int i = 0; i < optMaterial.Count(); ++i) {
    optMaterial[i].onClick = [this, i] { optMaterial_Click(i); };
  }
  txtMaterialName.onChange = [this] { txtMaterialName_Change(); };
  int row = 0;
  for (Cells* boxes : Rows()) {
    for (int column = 0; column < boxes->Count(); ++column) {
      forms::TextBox& box = (*boxes)[column];
      box.onChange = [this, &box, row, column] {
        std::string& cell = common::At(common::At(TableCells(), row), column);
        const std::string stored = common::CodePageForm(box.Text());
        if (cell == stored) return;
        cell = stored;
        Changed();
      };
    }
    ++row;
  }
  cmdDataSave.onClick = [this] { Save(); };
}

void frmMaterial::Load() {
  for (int i = 0; i < optMaterial.Count(); ++i) {
    optMaterial[i].SetText(common::At(Table().names, i));
  }
  optMaterial[0].Choose();
  ShowModified();
}

void frmMaterial::optMaterial_Click(int material) {
  const Quiet quiet(*this);
  material_ = material;
  txtMaterialName.SetText(common::At(Table().names, material_));
  int row = 0;
  for (Cells* boxes : Rows()) {
    const auto& cells = common::At(TableCells(), row++);
    for (int column = 0; column < boxes->Count(); ++column) {
      (*boxes)[column].SetText(common::At(cells, column));
    }
  }
}

void frmMaterial::txtMaterialName_Change() {
  std::string& name = common::At(Table().names, material_);
  const std::string stored = common::CodePageForm(txtMaterialName.Text());
  if (name == stored) return;
  name = stored;
  optMaterial[material_].SetText(name);
  Changed();
}

void frmMaterial::Changed() {
  Space().materialsModified = true;
  ShowModified();
  for (forms::Form* form : Space().forms.Open()) {
    if (auto* const user = dynamic_cast<MaterialUser*>(form)) user->MaterialsChanged();
  }
}

void frmMaterial::ShowModified() {
  cmdDataSave.SetBackColor(Space().materialsModified ? forms::kUnsaved : forms::kButtonFace);
}

void frmMaterial::Save() {
  shell::SaveDataFile(Space(), "Material.dat", Space().materialsModified, [this] {
    CheckStorable(Table());
    return data::WriteMaterialTable(Table());
  });
  ShowModified();
}

void frmMaterial::Unload() {
  if (Space().materialsModified && User().Ask("材料データが変更されています。保存しますか")) {
    Save();
  }
  Sheet::Unload();
}

void frmMaterial::DeclareLayout() {
  lblEquation.SetText("推算値 ＝ c0 ＋ c1･T ＋ c2･T^2 ＋ c3･T^3　（T：℃）");
  SetLayout(forms::Column({
      MaterialBlock(),
      EquationBlock(),
      forms::Buttons({lblEquation, {}, cmdDataSave}),
  }));
}

forms::Block frmMaterial::MaterialBlock() {
  constexpr int kOptionsInLine = 4;
  // A nameless material is still told apart by its number.
  constexpr const char* kNumbers[] = {"1", "2", "3", "4", "5", "6", "7", "8"};
  std::vector<forms::Line> options(2);
  for (int i = 0; i < optMaterial.Count(); ++i) {
    forms::Line& line = common::At(options, i / kOptionsInLine);
    line.emplace_back(kNumbers[i]);
    line.emplace_back(optMaterial[i]);
  }
  return forms::Group("材料", forms::Table(std::move(options)));
}

forms::Block frmMaterial::EquationBlock() {
  const struct {
    const char* title;
    int characters;
  } kColumns[] = {{"下限 ℃", 7}, {"上限 ℃", 7}, {"c0", 10}, {"c1", 11}, {"c2", 14}, {"c3", 17}};
  // The units in which the sheets read the results.
  constexpr const char* kProperties[] = {"密度　kg/m3", "ヤング率　kgf/mm2", "許容応力　kgf/mm2",
                                         "線膨張係数　1e-6/℃"};
  std::vector<forms::Line> lines = {{{}, {}}};
  for (int column = 0; column < lblColumn.Count(); ++column) {
    lblColumn[column].SetText(kColumns[column].title);
    lines[0].emplace_back(lblColumn[column]);
  }
  int row = 0;
  for (Cells* boxes : Rows()) {
    const char* const property = kProperties[row / 2];
    const bool low = row % 2 == 0;
    forms::Line line = {low ? forms::Cell(property) : forms::Cell(), low ? "低温側" : "高温側"};
    for (int column = 0; column < boxes->Count(); ++column) {
      forms::TextBox& box = (*boxes)[column];
      line.push_back(forms::Cell(box).Wide(kColumns[column].characters));
      box.SetAccessibleName(std::string(property) + (low ? " 低温側 " : " 高温側 ") +
                            kColumns[column].title);
    }
    if (!low) (*boxes)[0].SetToolTip("推算には使用しません（低温側の上限が境界です）。");
    lines.push_back(std::move(line));
    ++row;
  }
  return forms::Group("物性推算式の係数",
                      forms::Column({forms::Table({{lblMaterialName, txtMaterialName}}),
                                     forms::Table(std::move(lines))}));
}

}  // namespace sheets
