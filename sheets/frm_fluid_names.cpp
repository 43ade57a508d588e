#include "sheets/frm_fluid_names.h"

#include "common/text.h"
#include "sheets/list_texts.h"

namespace sheets {

frm流体名表示::frm流体名表示(shell::Workspace& workspace)
    : Form(kName, "物性推算", forms::FormRole::kTool), workspace_(workspace) {
  cmd単独物性.onClick = [this] { Fill(false); };
  lst物性推算.onDblClick = cmd単独物性.onClick;
  lst物性推算.onEnter = cmd単独物性.onClick;
  cmd全物性.onClick = [this] { Fill(true); };
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Stretched(forms::Table({{lst物性推算}})),
      forms::Buttons({cmd全物性, cmd単独物性, cmdCancel}),
  }));
}

void frm流体名表示::Load() { FillNames(); }

void frm流体名表示::FillNames() {
  const data::FluidTable& fluids = workspace_.process.fluidPhase == data::kGas
                                       ? workspace_.tables.gases
                                       : workspace_.tables.liquids;
  lst物性推算.SetItems(FluidTexts(fluids));
}

void frm流体名表示::FluidsChanged() {
  const int index = lst物性推算.Index();
  FillNames();
  if (index < lst物性推算.Count()) lst物性推算.SetIndex(index);
}

void frm流体名表示::Fill(bool all) {
  if (lst物性推算.Index() < 0 || common::IsBlank(lst物性推算.Text())) {
    workspace_.Shown().Show("流体名が選択されていません", "物性推算");
    return;
  }
  auto* const sheet = dynamic_cast<PropertyTarget*>(workspace_.forms.ActiveSheet());
  if (sheet == nullptr) return;
  if (all) {
    sheet->FillAllProperties(lst物性推算.Index());
  } else {
    sheet->FillProperty(workspace_.propertyWord, lst物性推算.Index());
  }
  workspace_.forms.Unload(*this);
}

}  // namespace sheets
