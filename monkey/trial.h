#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "player.h"

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

/// Runs a trial in a process and a folder of its own. With lines it plays these instead of random
/// ones, in the same folder contents.
TrialResult RunTrial(const TrialPlan& plan, const std::vector<std::string>* lines = nullptr);

/// As few lines of a failed trial as still give the same finding, by leaving out ever smaller
/// parts.
std::vector<std::string> Shrunk(const TrialPlan& plan, const TrialResult& failed);

/// Leaves the start of the trial's folder and the script in a new folder, for a look with the
/// driver.
std::filesystem::path KeepForTheDriver(const TrialPlan& plan,
                                       const std::vector<std::string>& lines);

}  // namespace monkey
