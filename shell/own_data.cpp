#include "shell/own_data.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <thread>
#include <utility>

#include "common/fault.h"
#include "common/file.h"
#include "common/file_lock.h"
#include "shell/settings.h"

namespace shell {

namespace {

namespace fs = std::filesystem;
using common::Fault;
using common::RuntimeFault;

/// Below the own folder: each file as it was shipped when the user's copy was made.
constexpr const char* kOriginals = "shipped";
constexpr const char* kLock = "data.lock";
constexpr const char* kGuide = "guide";

/// What a start has to do with a file.
enum class Step {
  kNothing,
  kTake,      // the user gets the shipped file
  kRemember,  // he has it already
  kTell,      // he has edited an earlier one
};

struct DataFile {
  std::string name;
  std::string shipped;
  Step step = Step::kNothing;
};

std::vector<std::string> DataFilesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (entry->path().extension() == ".dat") names.push_back(entry->path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string OriginalsOf(const std::string& own) { return common::JoinPath(own, kOriginals); }

/// Contents of a file, nothing when there is none.
std::optional<std::string> Contents(const std::string& folder, const std::string& name) {
  try {
    return common::ReadFile(common::JoinPath(folder, name));
  } catch (const RuntimeFault& fault) {
    if (fault.Number() != Fault::kFileNotFound) throw;
    return std::nullopt;
  }
}

Step StepFor(const std::string& shipped, const std::optional<std::string>& mine,
             const std::optional<std::string>& original) {
  if (!mine) return Step::kTake;
  if (original == shipped) return Step::kNothing;
  if (mine == shipped) return Step::kRemember;
  return mine == original ? Step::kTake : Step::kTell;
}

std::vector<DataFile> Compare(const std::string& shipped, const std::string& own) {
  std::vector<DataFile> files;
  for (std::string& name : DataFilesIn(shipped)) {
    std::string bytes = common::ReadFile(common::JoinPath(shipped, name));
    const Step step = StepFor(bytes, Contents(own, name), Contents(OriginalsOf(own), name));
    files.push_back({std::move(name), std::move(bytes), step});
  }
  return files;
}

bool HasWork(const std::vector<DataFile>& files) {
  return std::any_of(files.begin(), files.end(), [](const DataFile& file) {
    return file.step == Step::kTake || file.step == Step::kRemember;
  });
}

/// The user's file comes first: after a crash in between it equals the shipped one, which the next
/// start sees. The other way round it would look edited.
void Apply(const std::vector<DataFile>& files, const std::string& own) {
  for (const auto& [name, shipped, step] : files) {
    if (step == Step::kTake) common::ReplaceFile(common::JoinPath(own, name), shipped);
    if (step == Step::kTake || step == Step::kRemember) {
      common::ReplaceFile(common::JoinPath(OriginalsOf(own), name), shipped);
    }
  }
}

void MakeFolders(const std::string& own) {
  std::error_code error;
  fs::create_directories(OriginalsOf(own), error);
  if (error) throw RuntimeFault(Fault::kFileAccess, "フォルダを作成できません。\n" + own);
}

/// Another program that starts at this moment does the same work; it takes far below a second.
common::FileLock WaitForLock(const std::string& own) {
  constexpr int kTries = 500;
  constexpr auto kPause = std::chrono::milliseconds(20);
  for (int i = 0; i < kTries; ++i) {
    if (auto lock = common::FileLock::Take(common::JoinPath(own, kLock))) return std::move(*lock);
    if (access(own.c_str(), W_OK) != 0) break;  // no patience helps
    std::this_thread::sleep_for(kPause);
  }
  throw RuntimeFault(Fault::kFileAccess,
                     "フォルダに書き込めないか、ほかのプログラムが使用中です。\n" + own);
}

/// The files' state after the folder has been brought up to date.
std::vector<DataFile> Update(const std::string& shipped, const std::string& own) {
  std::vector<DataFile> files = Compare(shipped, own);
  if (!HasWork(files)) return files;  // nothing is written at most starts
  MakeFolders(own);
  const common::FileLock lock = WaitForLock(own);
  files = Compare(shipped, own);
  Apply(files, own);
  return files;
}

std::string NewerNote(const DataFolder& folder) {
  std::string names;
  for (const std::string& name : folder.newer) names += "\n　" + name;
  return "次のデータファイルは編集されているため、新しい版に置き換えていません。" + names +
         "\n\n編集したファイル：" + folder.path + "\n新しい版：" + folder.shipped +
         "\n\n新しい版を使うには、編集したファイルを移動して起動し直してください。";
}

}  // namespace

std::string ProgramFolder() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path().string();
}

std::string InstalledFolder(const std::string& programFolder, const std::string& name) {
  return (fs::path(programFolder) / ZEPHA_SHARED_FOLDER / name).lexically_normal().string();
}

std::string FindGuideFolder(const std::string& programFolder) {
  std::string beside = common::JoinPath(programFolder, kGuide);
  std::string installed = InstalledFolder(programFolder, kGuide);
  std::error_code error;
  return fs::exists(beside, error) || !fs::exists(installed, error) ? beside : installed;
}

DataFolder FindDataFolder(const std::string& programFolder) {
  const std::string shipped = InstalledFolder(programFolder, "data");
  if (DataFilesIn(shipped).empty() || !DataFilesIn(programFolder).empty()) {
    return {programFolder, {}, {}, {}};
  }
  return PrepareOwnData(shipped, UserFolder("XDG_DATA_HOME", ".local/share"));
}

DataFolder PrepareOwnData(const std::string& shipped, const std::string& own) {
  try {
    if (own.empty()) {
      throw RuntimeFault(Fault::kFileAccess, "ホームフォルダが設定されていません。");
    }
    DataFolder folder = {own, {}, {}, shipped};
    for (const DataFile& file : Update(shipped, own)) {
      if (file.step == Step::kTell) folder.newer.push_back(file.name);
    }
    if (!folder.newer.empty()) folder.note = NewerNote(folder);
    return folder;
  } catch (const RuntimeFault& fault) {
    return {shipped,
            "データファイルを利用者のフォルダに用意できません。\n" + fault.Text() +
                "\n\nインストールされたデータをそのまま使います。"
                "\n利用者が編集したデータは使われず、データの編集は保存できません。",
            {},
            shipped};
  }
}

void TakeNoteOfNewer(const DataFolder& folder) {
  if (folder.newer.empty()) return;
  try {
    const common::FileLock lock = WaitForLock(folder.path);
    for (const std::string& name : folder.newer) {
      common::ReplaceFile(common::JoinPath(OriginalsOf(folder.path), name),
                          common::ReadFile(common::JoinPath(folder.shipped, name)));
    }
  } catch (const RuntimeFault&) {
    // They are named once more at the next start.
  }
}

}  // namespace shell
