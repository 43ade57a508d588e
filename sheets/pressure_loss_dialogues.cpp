#include "sheets/pressure_loss_dialogues.h"

#include "sheets/frm_press_loss.h"
#include "sheets/pipe_ends.h"

namespace sheets {

namespace {

/// Commercial steel, whose roughness the sheet starts with.
constexpr int kStartPipe = 1;

frmPressLoss* LossSheet(const shell::Workspace& workspace) {
  return dynamic_cast<frmPressLoss*>(workspace.forms.ActiveSheet());
}

constexpr const char* kTypeNames[frmInletType::kTypes] = {"Type 0　ストレート", "Type 1　角端",
                                                          "Type 2　丸み付き", "Type 3　突出し",
                                                          "Type 4　レデューサー"};

}  // namespace

frmRoughness::frmRoughness(shell::Workspace& workspace)
    : Form(kName, "管内粗さ", forms::FormRole::kDialog), workspace_(workspace) {
  lstRoughness.onClick = [this] { lblRoughness.SetText(Selected()); };
  lstRoughness.onDblClick = [this] { cmdRoughness_Click(); };
  lstRoughness.onEnter = lstRoughness.onDblClick;
  cmdRoughness.onClick = lstRoughness.onDblClick;
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{lbl配管種類}, {lstRoughness}})),
      forms::Table({{lbl管内粗さ, lblRoughness, "mm"}}),
      forms::Buttons({{}, cmdRoughness, cmdCancel}),
  }));
}

void frmRoughness::Load() {
  // Without its file the table has nothing to choose from, and nothing that may go to the sheet.
  if (workspace_.tables.pressLoss.Empty()) return;
  std::vector<std::string> names;
  for (const auto& pipe : workspace_.tables.pressLoss.pipeRoughnessTable) {
    names.push_back(pipe.name);
  }
  lstRoughness.SetItems(std::move(names));
  lstRoughness.SetIndex(kStartPipe);
}

std::string frmRoughness::Selected() const {
  if (lstRoughness.Index() < 0) return {};
  return common::At(workspace_.tables.pressLoss.pipeRoughnessTable, lstRoughness.Index()).value;
}

void frmRoughness::cmdRoughness_Click() {
  frmPressLoss* const sheet = LossSheet(workspace_);
  if (sheet != nullptr && lstRoughness.Index() >= 0) sheet->TakeRoughness(Selected());
  workspace_.forms.Unload(*this);
}

frmInletType::frmInletType(shell::Workspace& workspace)
    : Form(kName, "流入部配管形状", forms::FormRole::kDialog), workspace_(workspace) {
  forms::Line pictures;
  forms::Line buttons;
  for (int type = 0; type < kTypes; ++type) {
    picInlet[type].onPaint = [type](forms::DrawSurface& surface) { DrawInletType(surface, type); };
    picInlet[type].onClick = [this, type] { Choose(type); };
    picInlet[type].SetToolTip("クリックでこの形状を選びます。");
    cmdInlet[type].SetText(kTypeNames[type]);
    cmdInlet[type].onClick = picInlet[type].onClick;
    pictures.emplace_back(picInlet[type]);
    buttons.emplace_back(cmdInlet[type]);
  }
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({std::move(pictures), std::move(buttons)})),
      forms::Buttons({{}, cmdCancel}),
  }));
}

void frmInletType::Choose(int type) {
  if (frmPressLoss* const sheet = LossSheet(workspace_)) sheet->TakeInletType(type);
  workspace_.forms.Unload(*this);
}

}  // namespace sheets
