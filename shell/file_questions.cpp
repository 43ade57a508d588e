#include "shell/file_questions.h"

#include <filesystem>

#include "common/text.h"
#include "shell/workspace.h"

namespace shell {

namespace {

constexpr const char* kFolders = "Folders";

/// The folder in a path, whole, whatever folder the next run starts in.
std::string FolderOf(const std::string& path) {
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::absolute(path, error);
  return error ? std::string() : whole.parent_path().string();
}

}  // namespace

std::optional<std::string> AskForFile(Workspace& workspace, forms::FileQuestion question,
                                      const std::string& inHand) {
  const std::string kind = question.extension.substr(1);
  question.folder = inHand.empty() ? workspace.settings.Get(kFolders, kind) : FolderOf(inHand);
  if (question.save && question.name.empty()) question.name = common::FileNameOf(inHand);
  std::optional<std::string> path = workspace.Shown().AskFile(question);
  if (path) workspace.settings.Set(kFolders, kind, FolderOf(*path));
  return path;
}

}  // namespace shell
