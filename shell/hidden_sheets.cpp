#include "shell/hidden_sheets.h"

#include <algorithm>

#include "shell/sheet.h"
#include "shell/sheet_registry.h"

namespace shell {

KeptValues::KeptValues(Workspace& workspace)
    : workspace_(workspace),
      process_(workspace.process),
      orifice_(workspace.tables.orifice),
      activeSheetKind_(workspace.activeSheetKind),
      calcNote_(workspace.calcNote),
      elementKind_(workspace.elementKind),
      calcFailed_(workspace.calcFailed),
      calcDone_(workspace.calcDone) {}

KeptValues::~KeptValues() {
  workspace_.process = process_;
  workspace_.tables.orifice = orifice_;
  workspace_.activeSheetKind = std::move(activeSheetKind_);
  workspace_.calcNote = std::move(calcNote_);
  workspace_.elementKind = elementKind_;
  workspace_.calcFailed = calcFailed_;
  workspace_.calcDone = calcDone_;
}

HiddenSheets::HiddenSheets(Workspace& workspace) : workspace_(workspace) {}

HiddenSheets::~HiddenSheets() = default;

Sheet* HiddenSheets::Of(const std::string& kind) {
  const auto found = std::find_if(sheets_.begin(), sheets_.end(),
                                  [&](const auto& sheet) { return sheet->Entry().kind == kind; });
  if (found != sheets_.end()) return found->get();
  const SheetEntry* const entry = FindSheet(kind);
  if (entry == nullptr || !entry->holdsTags || !workspace_.forms.Knows(entry->form)) return nullptr;
  std::unique_ptr<forms::Form> form = workspace_.forms.Create(entry->form);
  std::unique_ptr<Sheet> sheet(dynamic_cast<Sheet*>(form.release()));
  sheet->Load();
  sheets_.push_back(std::move(sheet));
  return sheets_.back().get();
}

}  // namespace shell
