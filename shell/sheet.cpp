#include "shell/sheet.h"

#include <stdexcept>

#include "shell/unit_choices.h"

namespace shell {

namespace {

const SheetEntry& Registered(const std::string& kind) {
  const SheetEntry* const entry = FindSheet(kind);
  if (entry == nullptr) throw std::logic_error("no sheet " + kind);
  return *entry;
}

}  // namespace

Sheet::Sheet(Workspace& workspace, const std::string& kind, std::string caption)
    : Form(Registered(kind).form, std::move(caption), forms::FormRole::kSheet),
      workspace_(workspace),
      entry_(Registered(kind)) {}

void Sheet::Activate() {
  workspace_.lastFormName = Name();
  workspace_.activeSheetKind = entry_.kind;
  EnableCommandsFor(workspace_, entry_);
}

void Sheet::Unload() {
  KeepUnits(workspace_, *this);
  workspace_.activeSheetKind.clear();
  EnableOpening(workspace_, entry_);
}

void Sheet::AddTo(int) {}

void Sheet::GetFrom(int) {}

void Sheet::RestoreResults(int) {}

std::vector<Sheet::Calculation> Sheet::CalculationsOf(const TagRow&) { return {}; }

std::vector<int> Sheet::LookUpAnew() { return {}; }

bool Sheet::PrintBody(PrintSurface&) { return false; }

Sheet* SheetOnTop(const Workspace& workspace) {
  return dynamic_cast<Sheet*>(workspace.forms.ActiveSheet());
}

bool HasData(const Workspace& workspace, const std::vector<std::string>& fileNames) {
  std::string missing;
  for (const std::string& name : fileNames) {
    if (!workspace.tables.IsRead(name)) missing += "\n" + name;
  }
  if (missing.empty()) return true;
  workspace.Shown().Show("次のデータファイルが読み込まれていないため、計算できません。" + missing,
                         {}, common::Icon::kWarning);
  return false;
}

}  // namespace shell
