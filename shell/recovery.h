#pragma once

#include <ctime>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "common/file_lock.h"
#include "shell/recovery_copy.h"

namespace shell {

/// Keeps a copy of unsaved work in the user's state folder and finds the copies of runs that ended
/// without removing theirs. Programs that run side by side have a place each in the folder, with a
/// lock that lasts as long as the program. The users' own files are never touched.
///
/// A place N is "recovery-N.copy" with its lock "recovery-N.lock"; "recovery-N.refused" is the copy
/// of that place that the user last refused.
class Recovery {
 public:
  /// What an earlier run left. Its place stays locked as long as this lives; destroying it leaves
  /// the copy for the next start.
  struct Leftover {
    int place = 0;
    common::FileLock lock;
    RecoveryCopy copy;
  };

  /// "": nothing is kept or found.
  void UseFolder(std::string folder) { folder_ = std::move(folder); }
  const std::string& Folder() const { return folder_; }

  /// The copies that no living program owns, newest first. What is no recovery file is set aside.
  std::vector<Leftover> Leftovers() const;
  /// The copy's contents are this run's work now; it goes on at that place.
  void Continue(Leftover leftover);
  /// The user does not want the copy. The last one refused at each place is kept, for a slip.
  void SetAside(const Leftover& leftover) const { SetAside(leftover.place); }
  /// The copy is worth nothing.
  void Discard(const Leftover& leftover) const;

  /// Brings the copy to the state of the stores: written if they have changed since, removed when
  /// nothing is unsaved. To be called every few seconds; cheap when there is nothing to do. A
  /// failure is told once and never raised.
  void Keep(const TagStore& tags, const DuctStore& ducts);
  /// The run ends in order: its copy goes, and nothing is kept any more.
  void End();

  /// The copy on the disk, if there is one.
  const std::optional<RecoveryCopy>& Kept() const { return kept_; }
  /// Why the last copy could not be written, "" when it could.
  const std::string& Trouble() const { return trouble_; }

  /// Hears of the first failure of a run.
  std::function<void(const std::string& text)> onTrouble;
  /// Seconds since 1970.
  std::function<std::int64_t()> clock = [] { return std::int64_t{std::time(nullptr)}; };

 private:
  std::string PathOf(int place, const char* extension) const;
  void SetAside(int place) const;
  void TakePlace();
  void Remove();
  void Tell(const std::string& trouble);

  std::string folder_;
  int place_ = 0;
  std::optional<common::FileLock> lock_;
  std::optional<RecoveryCopy> kept_;
  std::string trouble_;
  bool told_ = false;
};

/// "zepha" in $XDG_STATE_HOME or ~/.local/state; "" when the user has no home.
std::string DefaultStateFolder();

}  // namespace shell
