#include "trial.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>

#include "checks.h"
#include "common/file.h"
#include "folder.h"
#include "monkey.h"
#include "tests/support/temporary_folder.h"

namespace monkey {

namespace {

namespace fs = std::filesystem;

constexpr const char* kScript = "script";
constexpr const char* kResult = "result";
constexpr const char* kReport = "report";
/// Ends of the trial's process.
constexpr int kFound = 3;
/// Runs that shrinking a script may take.
constexpr int kMostReplays = 250;

/// Where folders of trials stand: in memory where there is such a place, because trials write much.
fs::path BaseFolder() {
  const fs::path memory = "/dev/shm";
  const bool told = std::getenv("TMPDIR") != nullptr;
  return !told && fs::is_directory(memory) ? memory : fs::temp_directory_path();
}

std::string ResultText(const std::string& finding, const Tally& tally) {
  const headless::Json result = {{"found", finding},         {"events", tally.events},
                                 {"touched", tally.touched}, {"counts", tally.counts},
                                 {"faults", tally.faults},   {"seconds", tally.slowestSeconds},
                                 {"line", tally.slowestLine}};
  return result.dump(-1, ' ', false, headless::Json::error_handler_t::replace);
}

/// Nothing when the process died before it wrote a result.
void ReadResult(const std::string& text, TrialResult& result) {
  const headless::Json read = headless::Json::parse(text, nullptr, false);
  if (read.is_discarded()) return;
  read.at("found").get_to(result.finding);
  read.at("events").get_to(result.tally.events);
  read.at("touched").get_to(result.tally.touched);
  read.at("counts").get_to(result.tally.counts);
  read.at("faults").get_to(result.tally.faults);
  read.at("seconds").get_to(result.tally.slowestSeconds);
  read.at("line").get_to(result.tally.slowestLine);
}

/// The trial's own process, in the trial's folder.
[[noreturn]] void Play(Random& random, bool sound,
                       const std::function<void(const TrialStage&)>& perform) {
  std::ofstream script(kScript);
  Tally tally;
  std::string found;
  try {
    perform({random, sound, tally, [&script](const std::string& line) {
               script << line << '\n' << std::flush;
             }});
  } catch (const Finding& finding) {
    found = finding.what;
  } catch (const std::exception& failure) {
    found = std::string("an exception leaves the program: ") + failure.what();
  }
  common::WriteFile(kResult, ResultText(found, tally));
  _exit(found.empty() ? 0 : kFound);
}

std::string HowItEnded(int status) {
  if (WIFSIGNALED(status)) {
    const int signal = WTERMSIG(status);
    if (signal == SIGPROF || signal == SIGALRM) {
      return "an event takes longer than " + std::to_string(kPatienceSeconds) + " s";
    }
    return std::string("the program dies: ") + strsignal(signal);
  }
  return "the program ends with status " + std::to_string(WEXITSTATUS(status));
}

/// What of a finding stays the same in a shorter script: its words without figures and texts.
std::string KindOf(const std::string& finding) {
  std::string kind = finding.substr(0, finding.find(':'));
  std::erase_if(kind, [](char c) { return c >= '0' && c <= '9'; });
  return kind;
}

}  // namespace

std::vector<std::string> LinesOf(const fs::path& path) {
  std::vector<std::string> lines;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

TrialResult RunTrial(const TrialPlan& plan, const std::function<void(const TrialStage&)>& perform) {
  const tests::TemporaryFolder own(BaseFolder());
  const fs::path folder = own.Path();
  Random random(plan.seed, plan.number);
  const bool sound = FillFolder(folder, random);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process for a trial");
  if (child == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    fs::current_path(folder);
    setenv("TMPDIR", (folder / "tmp").c_str(), 1);
    const int report = open(kReport, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(report, STDOUT_FILENO);
    dup2(report, STDERR_FILENO);
    Play(random, sound, perform);
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) continue;
  TrialResult result;
  if (const fs::path file = folder / kResult; fs::exists(file)) {
    ReadResult(common::ReadFile(file.string()), result);
  }
  result.lines = LinesOf(folder / kScript);
  if (result.finding.empty() && status != 0) {
    result.finding = HowItEnded(status);
    result.tally.events = static_cast<long>(result.lines.size());
    result.report = common::ReadFile((folder / kReport).string());
  }
  return result;
}

TrialResult RunOnDriver(const TrialPlan& plan, const std::vector<std::string>* lines) {
  return RunTrial(plan, [&](const TrialStage& stage) {
    Player player(stage.tally, stage.sound);
    Monkey monkey(player, stage.tally, stage.random, plan.form);
    player.Start();
    const auto events = lines == nullptr ? static_cast<std::size_t>(plan.events) : lines->size();
    for (std::size_t i = 0; i < events; ++i) {
      const std::string line = lines == nullptr ? monkey.Next() : (*lines)[i];
      stage.note(line);
      player.Do(line);
    }
    player.Finish();
  });
}

std::vector<std::string> Shrunk(const TrialPlan& plan, const TrialResult& failed) {
  std::vector<std::string> lines = failed.lines;
  int replays = 0;
  const auto stillFails = [&](const std::vector<std::string>& shorter) {
    return ++replays <= kMostReplays &&
           KindOf(RunOnDriver(plan, &shorter).finding) == KindOf(failed.finding);
  };
  for (std::size_t part = lines.size() / 2; part > 0 && replays < kMostReplays;) {
    bool shorter = false;
    for (std::size_t begin = 0; begin < lines.size() && replays < kMostReplays;) {
      std::vector<std::string> rest(lines.begin(), lines.begin() + static_cast<long>(begin));
      const std::size_t end = std::min(begin + part, lines.size());
      rest.insert(rest.end(), lines.begin() + static_cast<long>(end), lines.end());
      if (stillFails(rest)) {
        lines = std::move(rest);
        shorter = true;
      } else {
        begin = end;
      }
    }
    if (part > 1) {
      part /= 2;
    } else if (!shorter) {
      break;
    }
  }
  return lines;
}

fs::path KeepForTheDriver(const TrialPlan& plan, const std::vector<std::string>& lines) {
  fs::path folder = fs::temp_directory_path() / ("zepha-monkey-" + std::to_string(plan.seed) + "-" +
                                                 std::to_string(plan.number));
  fs::remove_all(folder);
  fs::create_directories(folder);
  Random random(plan.seed, plan.number);
  FillFolder(folder, random);
  std::ofstream script(folder / kScript);
  for (const std::string& line : lines) script << line << '\n';
  return folder;
}

}  // namespace monkey
