#include "shell/sheet_registry.h"

#include <algorithm>

#include "shell/unit_choices.h"
#include "shell/workspace.h"

namespace shell {

const std::vector<SheetEntry>& SheetRegistry() {
  static const std::vector<SheetEntry> kSheets = {
      {"⊿P Flow",
       "frmOrifice",
       {"mnuOrifice", "mnuFlownozzle", "mnuVenturi"},
       11,
       true,
       false,
       "differential-pressure"},
      {"Integral", "frmIntegral", {"mnuIntegral"}, 12, true, false, "integral-orifice"},
      {"Vortex", "frmVortex", {"mnuVortex"}, 13, true, false, "vortex-meter"},
      {"TW", "frmTW", {"mnuThermowell"}, 14, true, false, "thermowell"},
      {"測温体", "frmTE", {"mnuTC"}, 15, true, false, "temperature-sensor"},
      {"CV", "frmCV", {"mnuControlValve"}, 16, true, false, "control-valve"},
      {"CableDuct", "frmCable", {"mnuCableDuct"}, 17, false, false, "cable-duct"},
      {"圧力損失", "frmPressLoss", {"mnuPressLoss"}, 18, true, false, "pressure-loss"},
      {"制限ｵﾘﾌｨｽ", "frmRO", {"mnuRO"}, 19, true, false, "restriction-orifice"},
      {"物性推算", "frm物性", {"mnuBussei"}, 20, false, false, "properties"},
      {"EditCV", "frmEditCVspec", {"mnuCVcatalog"}, 24, false, true, "data-editors"},
      {"EditProp", "frmEditPropData", {"mnuEditPropData"}, 25, false, true, "data-editors"},
      {"Material", "frmMaterial", {"mnuMaterial"}, 26, false, true, "data-editors"},
  };
  return kSheets;
}

const SheetEntry* FindSheet(const std::string& kind) {
  const auto& sheets = SheetRegistry();
  const auto found = std::find_if(sheets.begin(), sheets.end(),
                                  [&](const SheetEntry& sheet) { return sheet.kind == kind; });
  return found == sheets.end() ? nullptr : &*found;
}

void OpenSheet(Workspace& workspace, const std::string& kind) {
  const SheetEntry* const sheet = FindSheet(kind);
  if (sheet == nullptr || workspace.activeSheetKind == kind) return;
  if (!workspace.forms.Knows(sheet->form)) return;
  forms::Form* const active = workspace.forms.ActiveSheet();
  if (!workspace.multiWindowMode && active != nullptr) workspace.forms.Unload(*active);
  const bool fresh = workspace.forms.Find(sheet->form) == nullptr;
  forms::Form& form = workspace.forms.Show(sheet->form);
  if (fresh) RestoreUnits(workspace, form);
}

void EnableCommandsFor(Workspace& workspace, const SheetEntry& sheet) {
  MainWindow& window = workspace.window;
  for (const std::string& item : sheet.menuItems) window.SetCommandEnabled(item, false);
  window.SetButtonEnabled(sheet.button, false);
  window.SetButtonEnabled(kPrintButton, !sheet.isEditor);
  window.SetCommandEnabled("mnuPrint", !sheet.isEditor);
  window.SetButtonEnabled(kPreviewButton, !sheet.isEditor);
  window.SetCommandEnabled("mnuPreview", !sheet.isEditor);
  window.SetCommandEnabled("mnuHCopy", sheet.isEditor);
}

void EnableOpening(Workspace& workspace, const SheetEntry& sheet) {
  for (const std::string& item : sheet.menuItems) workspace.window.SetCommandEnabled(item, true);
  workspace.window.SetButtonEnabled(sheet.button, true);
}

void CloseOtherForms(Workspace& workspace) {
  const forms::Form* const active = workspace.forms.ActiveSheet();
  for (forms::Form* form : workspace.forms.Open()) {
    if (form->Role() == forms::FormRole::kSheet && form != active) workspace.forms.Unload(*form);
  }
}

}  // namespace shell
