#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "player.h"
#include "random.h"

namespace monkey {

/// What distinguishes one trial from another; all that happens follows from it.
struct TrialPlan {
  std::uint64_t seed = 1;
  std::uint64_t number = 0;
  int events = 500;
  /// Name of the form to keep to, or "".
  std::string form;
};

struct TrialResult {
  Tally tally;
  /// What was found, in a sentence, "" for nothing.
  std::string finding;
  /// What the process said as it ended, a sanitizer's report for instance.
  std::string report;
  /// The lines so far, the offending one last.
  std::vector<std::string> lines;
};

/// What a trial has at hand while it runs.
struct TrialStage {
  Random& random;
  /// Whether the data files are undamaged.
  bool sound;
  Tally& tally;
  /// Writes an event down, before it is done, so that it is known even if it ends the process.
  std::function<void(const std::string& line)> note;
};

/// The lines of a text file; none when it cannot be read.
std::vector<std::string> LinesOf(const std::filesystem::path& path);

/// Runs a trial in a process and a folder of its own. perform throws a Finding to end it.
TrialResult RunTrial(const TrialPlan& plan,
                     const std::function<void(const TrialStage& stage)>& perform);

/// The same on the driver: random lines, or the given ones in the same folder contents.
TrialResult RunOnDriver(const TrialPlan& plan, const std::vector<std::string>* lines = nullptr);

/// As few lines of a failed trial on the driver as still give the same finding, by leaving out ever
/// smaller parts.
std::vector<std::string> Shrunk(const TrialPlan& plan, const TrialResult& failed);

/// Leaves the start of the trial's folder and the script in a new folder, for a look with the
/// driver.
std::filesystem::path KeepForTheDriver(const TrialPlan& plan,
                                       const std::vector<std::string>& lines);

}  // namespace monkey
