#include "shell/recovery.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "common/fault.h"
#include "common/file.h"
#include "shell/settings.h"

namespace shell {

namespace {

using common::Fault;
using common::RuntimeFault;

/// Programs that can run side by side, and copies that can wait to be looked at.
constexpr int kPlaces = 16;
constexpr const char* kCopy = ".copy";
constexpr const char* kLock = ".lock";
constexpr const char* kRefused = ".refused";

bool Exists(const std::string& path) {
  std::error_code unknown;
  return std::filesystem::exists(path, unknown);
}

/// The user's own work is nobody else's business.
void MakeFolder(const std::string& folder) {
  std::error_code told;
  std::filesystem::create_directories(std::filesystem::path(folder).parent_path(), told);
  mkdir(folder.c_str(), 0700);  // what fails shows when a file is written
}

/// The path as it means the same file in a run that starts in another folder.
std::string LastingPath(const std::string& path) {
  std::error_code unknown;
  return path.empty() ? path : std::filesystem::absolute(path, unknown).string();
}

template <class Row>
std::string FileWas(const std::optional<Unsaved<Row>>& before, const std::string& path) {
  return before && before->path == path ? before->fileWas : FileFingerprint(path);
}

/// What is unsaved now. `before`: the last copy, which knows the files as they were before the same
/// changes.
RecoveryCopy UnsavedNow(const TagStore& tags, const DuctStore& ducts, const RecoveryCopy& before) {
  RecoveryCopy copy;
  if (tags.tagModified && tags.HasTags()) {
    auto& list = copy.tags.emplace();
    list.path = LastingPath(tags.zephaFileName);
    list.fileWas = FileWas(before.tags, list.path);
    for (int row = 0; row <= tags.TagCount(); ++row) list.rows.push_back(tags.Row(row));
  }
  if (ducts.ductModified && ducts.DuctCount() > 0) {
    auto& list = copy.ducts.emplace();
    list.path = LastingPath(ducts.ductFileName);
    list.fileWas = FileWas(before.ducts, list.path);
    for (int row = 0; row < ducts.DuctCount(); ++row) list.rows.push_back(ducts.Row(row));
  }
  return copy;
}

}  // namespace

std::string Recovery::PathOf(int place, const char* extension) const {
  return common::JoinPath(folder_, "recovery-" + std::to_string(place) + extension);
}

std::vector<Recovery::Leftover> Recovery::Leftovers() const {
  std::vector<Leftover> found;
  for (int place = 1; place <= kPlaces && !folder_.empty(); ++place) {
    if (!Exists(PathOf(place, kCopy))) continue;
    std::optional<common::FileLock> lock = common::FileLock::Take(PathOf(place, kLock));
    if (!lock) continue;  // its program lives
    try {
      std::optional<RecoveryCopy> copy = ParseRecovery(common::ReadFile(PathOf(place, kCopy)));
      if (copy && !copy->Empty()) {
        found.push_back({place, std::move(*lock), std::move(*copy)});
      } else {
        SetAside(place);
      }
    } catch (const RuntimeFault&) {
      // It has gone since, or cannot be read now.
    }
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const Leftover& a, const Leftover& b) { return a.copy.time > b.copy.time; });
  return found;
}

void Recovery::Continue(Leftover leftover) {
  place_ = leftover.place;
  lock_ = std::move(leftover.lock);
  kept_ = std::move(leftover.copy);
}

void Recovery::SetAside(int place) const {
  std::rename(PathOf(place, kCopy).c_str(), PathOf(place, kRefused).c_str());
}

void Recovery::Discard(const Leftover& leftover) const {
  std::remove(PathOf(leftover.place, kCopy).c_str());
}

/// The first place where neither a program lives nor a copy waits.
void Recovery::TakePlace() {
  if (lock_ && lock_->InPlace()) return;
  MakeFolder(folder_);
  // Somebody has cleared the lock away; the place with this run's copy is still its own.
  if (lock_ && (lock_ = common::FileLock::Take(PathOf(place_, kLock)))) return;
  for (place_ = 1; place_ <= kPlaces; ++place_) {
    if (Exists(PathOf(place_, kCopy))) continue;
    lock_ = common::FileLock::Take(PathOf(place_, kLock));
    if (lock_) return;
  }
  throw RuntimeFault(Fault::kFileAccess,
                     std::string(FaultText(Fault::kFileAccess)) + "\n" + folder_);
}

void Recovery::Remove() {
  if (!kept_) return;
  if (lock_ && lock_->InPlace()) std::remove(PathOf(place_, kCopy).c_str());
  kept_.reset();
}

void Recovery::Tell(const std::string& trouble) {
  trouble_ = trouble;
  if (!std::exchange(told_, true) && onTrouble) onTrouble(trouble_);
}

void Recovery::Keep(const TagStore& tags, const DuctStore& ducts) {
  if (folder_.empty()) return;
  static const RecoveryCopy kNothing;
  RecoveryCopy copy = UnsavedNow(tags, ducts, kept_ ? *kept_ : kNothing);
  if (copy.Empty()) {
    Remove();
    return;
  }
  if (kept_ && kept_->tags == copy.tags && kept_->ducts == copy.ducts) return;
  copy.time = clock();
  try {
    TakePlace();
    common::ReplaceFile(PathOf(place_, kCopy), EncodeRecovery(copy));
    kept_ = std::move(copy);
    trouble_.clear();
  } catch (const RuntimeFault& fault) {
    Tell("障害に備えた控えを作成できません。" + fault.Text());
  }
}

void Recovery::End() {
  Remove();
  lock_.reset();
  folder_.clear();
}

std::string DefaultStateFolder() { return UserFolder("XDG_STATE_HOME", ".local/state"); }

}  // namespace shell
