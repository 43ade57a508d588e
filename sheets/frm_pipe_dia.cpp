#include "sheets/frm_pipe_dia.h"

#include "sheets/list_texts.h"
#include "sheets/property_target.h"

namespace sheets {

namespace {

PipeTarget* TargetOf(shell::Workspace& workspace) {
  return dynamic_cast<PipeTarget*>(workspace.forms.ActiveSheet());
}

}  // namespace

frmPipeDia::frmPipeDia(shell::Workspace& workspace)
    : Form(kName, "配管内径", forms::FormRole::kDialog), workspace_(workspace) {
  cmdSet.onClick = [this] { cmdSet_Click(); };
  for (forms::ListBox* list : {&lstNominal, &lstSchedule}) {
    list->onDblClick = cmdSet.onClick;
    list->onEnter = cmdSet.onClick;
  }
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{lblNominal, lblSchedule}, {lstNominal, lstSchedule}})),
      forms::Buttons({{}, cmdSet, cmdCancel}),
  }));
}

void frmPipeDia::Load() {
  const Quiet quiet(*this);
  lstNominal.SetItems(NominalSizeTexts(workspace_.tables.lists));
  lstSchedule.SetItems(ScheduleTexts(workspace_.tables.lists));
  const PipeTarget* const sheet = TargetOf(workspace_);
  if (sheet != nullptr && sheet->PipeStartSize() < lstNominal.Count()) {
    lstNominal.SetIndex(sheet->PipeStartSize());
  }
  if (lstSchedule.Count() > kStartSchedule) lstSchedule.SetIndex(kStartSchedule);
}

void frmPipeDia::cmdSet_Click() {
  const int size = lstNominal.Index();
  const int schedule = lstSchedule.Index();
  if (size < 0 || schedule < 0) {
    workspace_.process.pipeInnerDiameter = 0;
    workspace_.forms.Unload(*this);
    return;
  }
  const data::PipeTable& pipes = workspace_.tables.pipes;
  const std::optional<common::Real> bore = pipes.InnerDiameter(size, schedule);
  if (!bore) {
    workspace_.Shown().Show("該当の配管はありません。");
    return;
  }
  workspace_.process.pipeInnerDiameter = *bore;
  if (PipeTarget* const sheet = TargetOf(workspace_)) {
    sheet->TakePipe(pipes.OutsideDiameter(size), pipes.WallThickness(size, schedule), *bore);
  }
  workspace_.forms.Unload(*this);
}

}  // namespace sheets
