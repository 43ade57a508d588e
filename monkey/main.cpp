// Random events on every form, through the driver, with checks after each. Trials of some hundred
// events each run in processes and folders of their own, from the shipped data and the sample
// plant; everything in them follows from the seed. What is found is shrunk to a short script.

#include <algorithm>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <exception>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "folder.h"
#include "monkey.h"
#include "trial.h"

namespace {

constexpr const char* kUsage =
    "usage: zepha-monkey [--seed N] [--events N] [--form NAME] [--trial N [--script FILE]]\n"
    "  --trial   this trial alone, telling its lines\n"
    "  --script  plays these lines instead of random ones\n";
constexpr int kEventsPerTrial = 500;
/// After so many different findings a run ends.
constexpr std::size_t kEnoughFindings = 12;

struct Arguments {
  std::uint64_t seed = 1;
  long events = 20000;
  std::string form;
  std::optional<std::uint64_t> trial;
  std::string script;
};

std::optional<Arguments> Parse(int count, char** values) {
  Arguments arguments;
  for (int i = 1; i + 1 < count; i += 2) {
    const std::string word = values[i];
    const std::string value = values[i + 1];
    if (word == "--seed") {
      arguments.seed = std::stoull(value);
    } else if (word == "--events") {
      arguments.events = std::stol(value);
    } else if (word == "--form") {
      arguments.form = value;
    } else if (word == "--trial") {
      arguments.trial = std::stoull(value);
    } else if (word == "--script") {
      arguments.script = value;
    } else {
      return std::nullopt;
    }
  }
  if (count % 2 == 0) return std::nullopt;
  return arguments;
}

void Add(const std::map<std::string, long>& from, std::map<std::string, long>& to) {
  for (const auto& [name, count] : from) to[name] += count;
}

void Add(const monkey::Tally& from, monkey::Tally& to) {
  to.events += from.events;
  Add(from.touched, to.touched);
  Add(from.counts, to.counts);
  Add(from.faults, to.faults);
  if (from.slowestSeconds > to.slowestSeconds) {
    to.slowestSeconds = from.slowestSeconds;
    to.slowestLine = from.slowestLine;
  }
}

void Tell(const monkey::TrialPlan& plan, const monkey::TrialResult& result) {
  std::printf("FOUND with --seed %" PRIu64 " --trial %" PRIu64 ", event %zu: %s\n", plan.seed,
              plan.number, result.lines.size(), result.finding.c_str());
  std::printf("%s", result.report.substr(0, 6000).c_str());
  const std::vector<std::string> lines = monkey::Shrunk(plan, result);
  for (const std::string& line : lines) std::printf("  %s\n", line.c_str());
  const std::string folder = monkey::KeepForTheDriver(plan, lines).string();
  std::printf(
      "  cd %s && %s/zepha-headless --install-dir %s --settings %s script\n"
      "  (lines behind #monkey: zepha-monkey --seed %" PRIu64 " --trial %" PRIu64
      " --script %s/script)\n",
      folder.c_str(), ZEPHA_BUILD_DIR, monkey::kDataFolder, monkey::kSettingsFile, plan.seed,
      plan.number, folder.c_str());
  std::fflush(stdout);
}

/// One trial, told line by line.
int RunOne(const Arguments& arguments, monkey::TrialPlan plan) {
  plan.number = *arguments.trial;
  const std::vector<std::string> lines = monkey::LinesOf(arguments.script);
  const monkey::TrialResult result =
      monkey::RunOnDriver(plan, arguments.script.empty() ? nullptr : &lines);
  for (const std::string& line : result.lines) std::printf("%s\n", line.c_str());
  if (result.finding.empty()) return 0;
  std::printf("FOUND: %s\n%s", result.finding.c_str(), result.report.c_str());
  return 1;
}

/// How often each form was reached, and the controls that never were.
void TellCoverage(const monkey::Tally& tally, const std::string& onlyForm) {
  shell::MemorySettings settings;
  headless::Driver driver(ZEPHA_BUILD_DIR, settings);
  std::string missed;
  std::size_t controls = 0;
  for (const std::string& name : driver.Bench().Forms().KnownNames()) {
    if (!onlyForm.empty() && name != onlyForm) continue;
    long events = 0;
    std::size_t here = 0;
    const auto form = driver.Bench().Forms().Create(name);
    for (const forms::Control* control : form->Controls()) {
      const auto touched = tally.touched.find(monkey::FullName(*control));
      if (touched != tally.touched.end()) events += touched->second;
      if (!monkey::CanBeHandled(*control)) continue;
      ++here;
      if (touched == tally.touched.end()) missed.append(" ").append(monkey::FullName(*control));
    }
    controls += here;
    std::printf("  %8ld  %s (%zu controls)\n", events, name.c_str(), here);
  }
  std::printf("Never reached of %zu controls:%s\n", controls,
              missed.empty() ? " none" : missed.c_str());
}

int Run(const Arguments& arguments, monkey::TrialPlan plan) {
  const auto begin = std::chrono::steady_clock::now();
  monkey::Tally tally;
  std::set<std::string> findings;
  long failures = 0;
  while (tally.events < arguments.events && findings.size() < kEnoughFindings) {
    plan.events =
        static_cast<int>(std::min<long>(kEventsPerTrial, arguments.events - tally.events));
    const monkey::TrialResult result = monkey::RunOnDriver(plan);
    Add(result.tally, tally);
    if (!result.finding.empty()) {
      ++failures;
      if (findings.insert(result.finding).second) Tell(plan, result);
      ++tally.events;  // a trial that fails at once must not keep the run from ending
    }
    ++plan.number;
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
  std::printf("Events that reached a control, by form:\n");
  TellCoverage(tally, arguments.form);
  for (const auto& [name, count] : tally.counts) std::printf("%s: %ld\n", name.c_str(), count);
  std::printf("Runtime faults told to the user:\n");
  for (const auto& [name, count] : tally.faults) std::printf("  %6ld  %s\n", count, name.c_str());
  std::printf("Slowest event: %.3f s of processor time: %.120s\n", tally.slowestSeconds,
              tally.slowestLine.c_str());
  std::printf("%ld events in %.1f s, %.0f a second; %ld trials of %" PRIu64 " failed.\n",
              tally.events, seconds.count(), static_cast<double>(tally.events) / seconds.count(),
              failures, plan.number);
  return failures == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** values) {
  std::optional<Arguments> arguments;
  try {
    arguments = Parse(count, values);
  } catch (const std::exception&) {
    arguments.reset();  // not a number
  }
  if (!arguments) {
    std::cerr << kUsage;
    return 2;
  }
  monkey::TrialPlan plan;
  plan.seed = arguments->seed;
  plan.events = kEventsPerTrial;
  plan.form = arguments->form;
  return arguments->trial ? RunOne(*arguments, plan) : Run(*arguments, plan);
}
