#include "sheets/frm_cv_set.h"

#include "common/text.h"
#include "sheets/valve_targets.h"

namespace sheets {

namespace {

constexpr int kSizeColumns = 10;

TrimTarget* TargetOf(shell::Workspace& workspace) {
  return dynamic_cast<TrimTarget*>(workspace.forms.ActiveSheet());
}

}  // namespace

frmCvSet::frmCvSet(shell::Workspace& workspace)
    : Form(kName, "内弁サイズ・Cv", forms::FormRole::kDialog), workspace_(workspace) {
  cmdCvSet.onClick = [this] { cmdCvSet_Click(); };
  lstCv.onDblClick = cmdCvSet.onClick;
  lstCv.onEnter = cmdCvSet.onClick;
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{lblModel}, {lblColumns}, {forms::Cell(lstCv).Wide(24)}})),
      forms::Buttons({{}, cmdCvSet, cmdCancel}),
  }));
}

/// Rows that the catalogue leaves empty are listed, too.
void frmCvSet::Load() {
  const TrimTarget* const sheet = TargetOf(workspace_);
  if (sheet == nullptr || sheet->MakerIndex() < 0 || sheet->ModelIndex() < 0) return;
  const valve::ValveCatalogue& valves = workspace_.tables.valves;
  maker_ = sheet->MakerIndex();
  model_ = sheet->ModelIndex();
  lblModel.SetText(common::At(common::At(valves.valveModel, maker_), model_));
  const auto& sizes = common::At(common::At(valves.valveSize, maker_), model_);
  const auto& cvs = common::At(common::At(valves.valveCv, maker_), model_);
  std::vector<std::string> lines;
  for (std::size_t row = 0; row < sizes.size(); ++row) {
    lines.push_back(common::PadToBytes(sizes[row], kSizeColumns) + cvs[row]);
  }
  lstCv.SetItems(std::move(lines));
}

/// A trim is one of the model that is listed; a sheet with another model by now takes none.
void frmCvSet::cmdCvSet_Click() {
  if (lstCv.Index() < 0) return;
  TrimTarget* const sheet = TargetOf(workspace_);
  if (sheet != nullptr && sheet->MakerIndex() == maker_ && sheet->ModelIndex() == model_) {
    sheet->TakeTrim(lstCv.Index());
  }
  workspace_.forms.Unload(*this);
}

}  // namespace sheets
