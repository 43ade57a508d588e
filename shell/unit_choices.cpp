#include "shell/unit_choices.h"

#include <sstream>

#include "forms/controls.h"
#include "shell/workspace.h"

namespace shell {

namespace {

constexpr const char* kUnits = "Units";

}  // namespace

/// One text for a sheet: a line for each field, its name and unit with a tab between them. The
/// texts of the units are kept, not their places, because the lists are edited.
void KeepUnits(Workspace& workspace, const forms::Form& sheet) {
  if (!workspace.keepsUnits) return;
  std::string choices;
  for (const forms::Control* control : sheet.Controls()) {
    if (dynamic_cast<const forms::UnitBox*>(control) == nullptr) continue;
    choices += control->Name() + "\t" + control->Text() + "\n";
  }
  if (!choices.empty()) workspace.settings.Set(kUnits, sheet.Name(), choices);
}

void RestoreUnits(Workspace& workspace, forms::Form& sheet) {
  if (!workspace.keepsUnits) return;
  std::istringstream choices(workspace.settings.Get(kUnits, sheet.Name()));
  for (std::string name, unit; std::getline(choices, name, '\t') && std::getline(choices, unit);) {
    auto* const box = dynamic_cast<forms::UnitBox*>(sheet.Find(name));
    const int index = box == nullptr ? -1 : box->IndexOf(unit);
    if (index >= 0) sheet.RunEvent(box, [&] { box->SetIndex(index); });
  }
}

}  // namespace shell
