#include "shell/lifecycle.h"

#include <filesystem>
#include <sstream>

#include "common/file.h"
#include "common/number.h"
#include "shell/duct_commands.h"
#include "shell/duct_file.h"
#include "shell/recovery_commands.h"
#include "shell/sheet_registry.h"
#include "shell/tag_commands.h"
#include "shell/workspace.h"

namespace shell {

namespace {

constexpr const char* kUser = "User";
constexpr const char* kScreen = "ExeScrn";

/// A stored number, or the default when it is missing or damaged.
int NumberSetting(const Workspace& workspace, const char* key, int byDefault) {
  const std::string text = workspace.settings.Get(kScreen, key);
  if (text.empty()) return byDefault;
  try {
    return common::IntIndex(common::Val(text));
  } catch (const common::RuntimeFault&) {
    return byDefault;
  }
}

/// Whether the window has a stored place is decided by its top alone.
void RestorePlacement(Workspace& workspace) {
  const WindowPlacement first;
  WindowPlacement placement;
  if (!workspace.settings.Get(kScreen, "WinTop").empty()) {
    placement.top = NumberSetting(workspace, "WinTop", first.top);
    placement.left = NumberSetting(workspace, "WinLeft", first.left);
    placement.width = NumberSetting(workspace, "WinWidth", first.width);
    placement.height = NumberSetting(workspace, "WinHeight", first.height);
  }
  placement.state = NumberSetting(workspace, "WinState", WindowPlacement::kNormal);
  workspace.window.Place(placement);
}

/// Runs one step of the start; its failure must not keep the others from running.
template <class Step>
void PassOver(Step step) {
  try {
    step();
  } catch (const common::RuntimeFault&) {
    // The step's object is damaged or gone: the run starts without it.
  }
}

/// The wanted file from the root of the file system on, because the last file of a run is opened
/// from another folder the next time; "" when there is no such file.
std::string FileToOpen(const Workspace& workspace, const std::string& wanted) {
  if (wanted.empty()) return {};
  std::error_code error;
  std::string path = std::filesystem::absolute(wanted, error).lexically_normal().string();
  if (std::filesystem::is_regular_file(path, error)) return path;
  workspace.Shown().Show("指定されたファイルは見つからないか、ファイルではありません。\n" + path,
                         {}, common::Icon::kWarning);
  return {};
}

/// wanted: opened instead of the last file, "" for none.
void RestoreDucts(Workspace& workspace, const std::string& wanted) {
  const std::string last = workspace.settings.Get(kScreen, "DuctFile");
  const std::string& path = wanted.empty() ? last : wanted;
  if (!path.empty()) OpenDuctFile(workspace.ducts, path, workspace.Shown());
}

void RestoreFile(Workspace& workspace, const std::string& wanted) {
  const std::string last = workspace.settings.Get(kScreen, "ZephaFile");
  const std::string& path = wanted.empty() ? last : wanted;
  std::error_code error;
  // The last tag is one of the last file.
  if (path == last || std::filesystem::equivalent(path, last, error)) {
    workspace.tags.lastTagIndex = RowNumberSetting(workspace.settings.Get(kScreen, "DataNo"));
  }
  if (path.empty()) return;
  // The list is loaded while the store is empty; otherwise it would forget the last tag.
  workspace.forms.Show(kTagListForm);
  OpenFileNamed(workspace, path);
}

void RestoreSheet(Workspace& workspace) {
  workspace.lastFormName = workspace.settings.Get(kScreen, "ZephaForm");
  for (const SheetEntry& sheet : SheetRegistry()) {
    if (sheet.form == workspace.lastFormName) OpenSheet(workspace, sheet.kind);
  }
}

void ShowDucts(Workspace& workspace) {
  OpenSheet(workspace, kDuctSheet);
  ShowDuctList(workspace);
  const std::string& path = workspace.ducts.ductFileName;
  if (!path.empty()) RememberFile(workspace, path);
}

void RestoreTag(Workspace& workspace) {
  TagStore& tags = workspace.tags;
  const int row = tags.lastTagIndex;
  if (row < 1 || row > tags.TagCount()) return;
  if (tags.Text(row, kKindColumn) != workspace.activeSheetKind) return;
  tags.currentTag = row;
  RecallTag(workspace, row);
}

std::vector<std::string> WordsOf(const std::string& command) {
  std::istringstream stream(command);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

/// A house's own help file goes before the guide.
std::string HelpPath(const Workspace& workspace) {
  std::string helpFile = common::JoinPath(workspace.installDir, "Zepha.chm");
  std::error_code error;
  if (std::filesystem::exists(helpFile, error)) return helpFile;
  const SheetEntry* const sheet = FindSheet(workspace.activeSheetKind);
  const std::string page = sheet == nullptr ? "index" : sheet->guidePage;
  return common::JoinPath(workspace.guideDir, page + ".html");
}

}  // namespace

void RestoreLastRun(Workspace& workspace, const std::string& file) {
  if (workspace.settings.Get(kUser, "InstDir").empty()) {
    std::error_code error;
    workspace.settings.Set(kUser, "InstDir", std::filesystem::current_path(error).string());
  }
  workspace.issuerName = workspace.settings.Get(kUser, "Company");
  RestorePlacement(workspace);
  workspace.userPrograms = ReadUserPrograms(workspace.installDir);
  ShowUserPrograms(workspace);
  ShowRecentFiles(workspace);
  const std::string path = FileToOpen(workspace, file);
  const bool isDucts = IsDuctFile(path);
  PassOver([&] { RestoreDucts(workspace, isDucts ? path : ""); });
  PassOver([&] { RestoreFile(workspace, isDucts ? "" : path); });
  PassOver([&] { OfferRecovery(workspace); });
  PassOver([&] { isDucts ? ShowDucts(workspace) : RestoreSheet(workspace); });
  PassOver([&] { RestoreTag(workspace); });
}

void WorkspaceEnd(Workspace& workspace) {
  const auto keep = [&workspace](const char* key, const std::string& value) {
    workspace.settings.Set(kScreen, key, value);
  };
  const WindowPlacement& placement = workspace.window.Placement();
  keep("DuctFile", workspace.ducts.ductFileName);
  keep("ZephaFile", workspace.tags.zephaFileName);
  keep("DataNo", std::to_string(workspace.tags.lastTagIndex));
  keep("ZephaForm", workspace.lastFormName);
  keep("WinState", std::to_string(placement.state));
  keep("WinWidth", std::to_string(placement.width));
  keep("WinHeight", std::to_string(placement.height));
  keep("WinTop", std::to_string(placement.top));
  keep("WinLeft", std::to_string(placement.left));
  workspace.forms.UnloadAll();
  workspace.recovery.End();
  if (workspace.onExit) workspace.onExit();
}

void InitialisePlacement(Workspace& workspace) {
  workspace.window.Place(WindowPlacement());
  CloseOtherForms(workspace);
}

void ShowUserPrograms(Workspace& workspace) {
  int button = kFirstUserButton;
  for (const UserProgram& program : workspace.userPrograms) {
    workspace.window.SetButtonToolTip(button++, program.caption);
  }
}

/// The whole command may be the path of a program, blanks included; otherwise its first word is the
/// program and the others are its arguments.
void StartUserProgram(Workspace& workspace, int index) {
  const std::string& command = workspace.userPrograms.at(static_cast<std::size_t>(index)).command;
  if (command.empty()) return;
  std::error_code error;
  std::vector<std::string> words = {command};
  if (!std::filesystem::exists(command, error)) words = WordsOf(command);
  const std::vector<std::string> arguments(words.empty() ? words.end() : words.begin() + 1,
                                           words.end());
  if (!words.empty() && workspace.platform != nullptr &&
      workspace.platform->StartProgram(words.front(), arguments)) {
    return;
  }
  workspace.Shown().Show("プログラムを起動できません。\n" + command, {}, common::Icon::kWarning);
}

void ShowHelp(Workspace& workspace) {
  const std::string path = HelpPath(workspace);
  if (workspace.platform != nullptr && workspace.platform->OpenWithDesktop(path)) return;
  workspace.Shown().Show("ヘルプを開けません。\n" + path, {}, common::Icon::kWarning);
}

}  // namespace shell
