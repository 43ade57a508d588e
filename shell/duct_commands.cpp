#include "shell/duct_commands.h"

#include <utility>

#include "shell/duct_file.h"
#include "shell/file_questions.h"
#include "shell/instrument_file.h"
#include "shell/record_text.h"
#include "shell/recovery_commands.h"
#include "shell/tag_commands.h"
#include "shell/workspace.h"

namespace shell {

namespace {

constexpr const char* kFilter = "Cable Duct Data(*.dct)|*.dct";

}  // namespace

bool DuctsOnTop(const Workspace& workspace) { return workspace.activeSheetKind == kDuctSheet; }

void ShowDuctList(Workspace& workspace) {
  DuctStore& ducts = workspace.ducts;
  ducts.Select(ducts.DuctCount() > 0 ? 0 : -1);
  ducts.CaptionList(":");
  workspace.forms.Show(kDuctListForm);
}

void ShowDataList(Workspace& workspace) {
  if (DuctsOnTop(workspace)) {
    ShowDuctList(workspace);
  } else {
    RefreshTagList(workspace);
  }
}

void NewDuctList(Workspace& workspace) {
  if (!AskBeforeNewFile("開いているダクトリストが変更されています。", workspace.ducts.ductModified,
                        workspace.tags, workspace.Shown())) {
    return;
  }
  workspace.ducts.StartNewFile();
  KeepRecovery(workspace);
  workspace.ducts.CaptionList();
  workspace.forms.Show(kDuctListForm);
}

void OpenDuctList(Workspace& workspace) {
  const std::optional<std::string> path =
      AskForFile(workspace, {false, "開く", kFilter, kDuctExtension}, workspace.ducts.ductFileName);
  if (path) OpenDuctListNamed(workspace, *path);
}

void OpenDuctListNamed(Workspace& workspace, const std::string& path) {
  if (OpenDuctFile(workspace.ducts, path, workspace.Shown())) RememberFile(workspace, path);
  KeepRecovery(workspace);
  workspace.forms.Show(kDuctListForm);
}

void TakeUnsavedDucts(Workspace& workspace, std::vector<DuctRow> rows, const std::string& path) {
  DuctStore& ducts = workspace.ducts;
  ducts.TakeRows(std::move(rows));
  ducts.ductFileName = path;
  ducts.ductModified = true;
  ducts.CaptionList();
}

void SaveDuctList(Workspace& workspace) {
  if (workspace.ducts.ductFileName.empty()) {
    SaveDuctListAs(workspace);
  } else {
    SaveDuctFile(workspace.ducts, workspace.Shown());
    KeepRecovery(workspace);
  }
}

void SaveDuctListAs(Workspace& workspace) {
  if (!HasDuctsToSave(workspace.ducts, workspace.Shown())) return;
  const std::optional<std::string> path = AskForFile(
      workspace, {true, "名前を付けて保存", kFilter, kDuctExtension}, workspace.ducts.ductFileName);
  if (path) SaveDuctListNamed(workspace, *path);
}

void SaveDuctListNamed(Workspace& workspace, const std::string& path) {
  DuctStore& ducts = workspace.ducts;
  if (!HasDuctsToSave(ducts, workspace.Shown())) return;
  SaveUnderName(WithExtension(path, kDuctExtension), ducts.ductFileName, ducts.ductModified,
                [&] { SaveDuctFile(ducts, workspace.Shown()); });
  KeepRecovery(workspace);
  RememberFile(workspace, ducts.ductFileName);
  ducts.CaptionList();
  if (forms::Form* const list = workspace.forms.Find(kDuctListForm)) list->Activate();
}

}  // namespace shell
