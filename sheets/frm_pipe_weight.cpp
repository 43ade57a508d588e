#include "sheets/frm_pipe_weight.h"

#include "common/number.h"
#include "sheets/list_texts.h"
#include "shell/sheet.h"

namespace sheets {

namespace {

using common::Format;
using common::Real;
using common::Val;

constexpr double kDensityTemperature = 20;  // degC

/// A length of the pipe table, which is in single precision, in mm.
std::string LengthText(float length) { return Format(Val(common::SingleText(length)), "##,##0.0"); }

/// Weight of a pipe in kg/m: its wall as a ring of diameter OD - t. Lengths in mm, density in
/// kg/m3. Pi is taken as 3.14159, as the weight lists have it.
Real WeightPerMetre(float outsideDiameter, float thickness, Real density) {
  return density * (3.14159 * thickness * (outsideDiameter - thickness) / 1000000.0);
}

}  // namespace

std::vector<forms::Grid::Column> frmPipeWeight::Columns() {
  return {{"呼び径", 1000, false}, {"外径(mm)", 1000},   {"内径(mm)", 1000},
          {"重量(kg/m)", 1200},    {"総重量(kg)", 1200}, {"", 300}};
}

frmPipeWeight::frmPipeWeight(shell::Workspace& workspace)
    : Form(kName, "配管重量", forms::FormRole::kTool), workspace_(workspace) {
  for (forms::ComboBox* box : {&cboSchedule, &cbo配管材質}) {
    box->onClick = [this] { ListWeights(); };
  }
  txtPipeLength.onChange = [this] { ListWeights(); };
  cmdClose.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Group("", forms::Table({
                           {lblSchedule, cboSchedule},
                           {lbl配管材質, cbo配管材質},
                           {lblPipeLength, txtPipeLength, "m"},
                       })),
      forms::Stretched(forms::Table({{grdWeight}})),
      forms::Buttons({{}, cmdClose}),
  }));
}

void frmPipeWeight::Load() {
  const Quiet quiet(*this);
  shell::HasData(workspace_, {"PipeThickness.dat", "Material.dat", "ZephaConvertData.dat"});
  cboSchedule.SetItems(ScheduleTexts(workspace_.tables.lists));
  if (cboSchedule.Count() > kStartSchedule) cboSchedule.SetIndex(kStartSchedule);
  FillMaterials();
  cbo配管材質.SetIndex(0);
}

void frmPipeWeight::MaterialsChanged() {
  const Quiet quiet(*this);
  FillMaterials();
  grdWeight.SetRows({});
}

/// The choice is that of a place in the table.
void frmPipeWeight::FillMaterials() {
  const auto& names = workspace_.tables.materials.names;
  const int material = cbo配管材質.Index();
  cbo配管材質.SetItems({names.begin(), names.end()});
  cbo配管材質.SetIndex(material);
}

void frmPipeWeight::ListWeights() {
  grdWeight.SetRows({});
  const data::PipeTable& pipes = workspace_.tables.pipes;
  const int schedule = cboSchedule.Index();
  const int material = cbo配管材質.Index();
  const bool chosen = schedule >= 0 && material >= 0 && !txtPipeLength.Text().empty();
  if (!chosen || pipes.Empty()) return;
  const Real length = Val(txtPipeLength.Text());
  const std::vector<std::string> sizes = NominalSizeTexts(workspace_.tables.lists);
  std::vector<std::vector<std::string>> rows;
  Real sum = 0;  // kg/m, of all sizes
  for (int size = 0; size < data::PipeTable::kSizes; ++size) {
    const float outsideDiameter = pipes.OutsideDiameter(size);
    const float thickness = pipes.WallThickness(size, schedule);
    rows.push_back({common::At(sizes, size), LengthText(outsideDiameter),
                    LengthText(outsideDiameter - 2 * thickness), "", "", ""});
    if (thickness == 0) continue;  // not made
    const Real density = data::MaterialDensity(workspace_.tables.materials, material,
                                               kDensityTemperature, workspace_.Shown());
    const Real weight = WeightPerMetre(outsideDiameter, thickness, density);
    rows.back()[3] = Format(weight, "###,##0.00");
    rows.back()[4] = Format(weight * length, "#,###,##0");
    sum += weight;
  }
  grdWeight.SetRows(std::move(rows));
  if (sum == 0) {
    workspace_.Shown().Show("材料データベースに密度推算式がありません。", "配管重量");
  }
}

}  // namespace sheets
