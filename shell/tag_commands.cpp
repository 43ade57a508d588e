#include "shell/tag_commands.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "common/text.h"
#include "forms/control.h"
#include "shell/duct_commands.h"
#include "shell/file_questions.h"
#include "shell/instrument_file.h"
#include "shell/record_text.h"
#include "shell/recovery_commands.h"
#include "shell/sheet.h"
#include "shell/sheet_registry.h"
#include "shell/workspace.h"

namespace shell {

namespace {

constexpr const char* kFilter = "ZEPHAデータ(*.zph)|*.zph";
constexpr const char* kExtension = ".zph";
constexpr const char* kRecentSection = "Recent";
constexpr int kRecentFiles = 8;

std::string RecentKey(int number) { return "File" + std::to_string(number); }

std::vector<std::string> RecentFiles(const Workspace& workspace) {
  std::vector<std::string> paths;
  for (int i = 1; i <= kRecentFiles; ++i) {
    std::string path = workspace.settings.Get(kRecentSection, RecentKey(i));
    if (!path.empty()) paths.push_back(std::move(path));
  }
  return paths;
}

/// A text as a caption, in which "&" would mark a mnemonic.
std::string WithoutMnemonic(const std::string& text) {
  std::string caption;
  for (const char c : text) caption += c == '&' ? std::string("&&") : std::string(1, c);
  return caption;
}

/// Opens the sheet of the current tag's kind, unless it is on top.
void ShowTagSheet(Workspace& workspace) {
  const SheetEntry* const sheet =
      FindSheet(workspace.tags.Text(workspace.tags.currentTag, kKindColumn));
  if (sheet != nullptr && sheet->holdsTags) OpenSheet(workspace, sheet->kind);
}

/// The number label of the list, after a file was opened or given up.
void ShowListNumber(Workspace& workspace, int number) {
  const forms::Form* const list = workspace.forms.Find(kTagListForm);
  forms::Control* const label = list == nullptr ? nullptr : list->Find("lblListNo");
  if (label != nullptr) label->SetText(std::to_string(number));
}

}  // namespace

void RegisterTag(Workspace& workspace) {
  Sheet* const sheet = SheetOnTop(workspace);
  if (sheet == nullptr || !sheet->Entry().holdsTags) return;
  workspace.tags.Register(sheet->TagNumber(), workspace.activeSheetKind, workspace.Shown(),
                          [sheet](int row) { sheet->AddTo(row); });
  ShowTitle(workspace);
}

void RecallTag(Workspace& workspace, int row) {
  Sheet* const sheet = SheetOnTop(workspace);
  if (sheet == nullptr) return;
  if (workspace.tags.Text(row, kKindColumn) != workspace.activeSheetKind) return;
  sheet->GetFrom(row);
}

void RecallSelectedTag(Workspace& workspace) {
  const int row = workspace.tags.TakeSelectedForRecall();
  if (row < 1) return;
  if (workspace.tags.Text(row, kKindColumn) != workspace.activeSheetKind) ShowTagSheet(workspace);
  RecallTag(workspace, row);
}

void RefreshTagList(Workspace& workspace) {
  workspace.tags.Refresh();
  workspace.forms.Show(kTagListForm);
  ShowTitle(workspace);
}

void NewFile(Workspace& workspace) {
  if (DuctsOnTop(workspace)) {
    NewDuctList(workspace);
    return;
  }
  if (!NewInstrumentFile(workspace.tags, workspace.Shown())) return;
  KeepRecovery(workspace);
  RefreshTagList(workspace);
  ShowListNumber(workspace, 0);
}

void OpenFile(Workspace& workspace) {
  if (DuctsOnTop(workspace)) {
    OpenDuctList(workspace);
    return;
  }
  const std::optional<std::string> path =
      AskForFile(workspace, {false, "開く", kFilter, kExtension}, workspace.tags.zephaFileName);
  if (path) OpenFileNamed(workspace, *path);
}

void OpenFileNamed(Workspace& workspace, const std::string& path) {
  const bool opened = OpenInstrumentFile(workspace.tags, path, workspace.tables.pipes,
                                         workspace.tables.lists, workspace.Shown());
  KeepRecovery(workspace);
  if (opened) RememberFile(workspace, path);
  RefreshTagList(workspace);
  ShowListNumber(workspace, workspace.tags.currentTag);
}

void TakeUnsavedTags(Workspace& workspace, std::vector<TagRow> rows, const std::string& path) {
  TagStore& tags = workspace.tags;
  tags.PrepareForReading();
  // The list is loaded while the store is empty; otherwise it would forget the last tag.
  workspace.forms.Show(kTagListForm);
  tags.TakeRows(std::move(rows));
  tags.zephaFileName = path;
  tags.ShowTagsRead();
  tags.tagModified = true;
  RefreshTagList(workspace);
  ShowListNumber(workspace, tags.currentTag);
}

bool IsDuctFile(const std::string& path) {
  std::string end = path.substr(path.size() - std::min<std::size_t>(path.size(), 4));
  std::transform(end.begin(), end.end(), end.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return end == kDuctExtension;
}

void OpenFileOfItsKind(Workspace& workspace, const std::string& path) {
  if (IsDuctFile(path)) {
    OpenDuctListNamed(workspace, path);
  } else {
    OpenFileNamed(workspace, path);
  }
}

void SaveFile(Workspace& workspace) {
  if (DuctsOnTop(workspace)) {
    SaveDuctList(workspace);
    return;
  }
  if (workspace.tags.zephaFileName.empty()) {
    SaveFileAs(workspace);
    return;
  }
  SaveInstrumentFile(workspace.tags, workspace.Shown());
  KeepRecovery(workspace);
  ShowTitle(workspace);
}

void SaveFileAs(Workspace& workspace) {
  if (DuctsOnTop(workspace)) {
    SaveDuctListAs(workspace);
    return;
  }
  if (!HasTagsToSave(workspace.tags, workspace.Shown())) return;
  const std::optional<std::string> path = AskForFile(
      workspace, {true, "名前を付けて保存", kFilter, kExtension}, workspace.tags.zephaFileName);
  if (path) SaveFileNamed(workspace, *path);
}

void SaveFileNamed(Workspace& workspace, const std::string& path) {
  TagStore& tags = workspace.tags;
  if (!HasTagsToSave(tags, workspace.Shown())) return;
  SaveUnderName(WithExtension(path, kExtension), tags.zephaFileName, tags.tagModified,
                [&] { SaveInstrumentFile(tags, workspace.Shown()); });
  KeepRecovery(workspace);
  RememberFile(workspace, tags.zephaFileName);
  ShowTitle(workspace);
}

void RememberFile(Workspace& workspace, const std::string& path) {
  std::vector<std::string> paths = RecentFiles(workspace);
  std::erase(paths, path);
  paths.insert(paths.begin(), path);
  paths.resize(kRecentFiles);
  for (int i = 0; i < kRecentFiles; ++i) {
    workspace.settings.Set(kRecentSection, RecentKey(i + 1), paths[static_cast<std::size_t>(i)]);
  }
  ShowRecentFiles(workspace);
}

void ShowTitle(Workspace& workspace) {
  workspace.window.SetCommandEnabled(kRecalculateCommand, workspace.tags.HasTags());
  const std::string name = common::FileNameOf(workspace.tags.zephaFileName);
  const std::string mark = workspace.tags.tagModified ? " *" : "";
  if (name.empty() && mark.empty()) {
    workspace.window.SetTitle("ZEPHA");
  } else {
    workspace.window.SetTitle((name.empty() ? "New File" : name) + mark + " － ZEPHA");
  }
}

void ShowRecentFiles(Workspace& workspace) {
  std::vector<Command> commands;
  for (const std::string& path : RecentFiles(workspace)) {
    Command command;
    command.name = "mnuRecent" + std::to_string(commands.size() + 1);
    command.caption = WithoutMnemonic(path);
    command.run = [&workspace, path] { OpenFileOfItsKind(workspace, path); };
    commands.push_back(std::move(command));
  }
  workspace.window.SetEntries("mnuRecent", std::move(commands));
}

}  // namespace shell
