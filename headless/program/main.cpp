#include <csignal>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "headless/driver.h"
#include "headless/states.h"
#include "shell/own_data.h"

namespace {

struct Arguments {
  std::string installDir;
  std::string settings;
  std::string script;
  std::vector<std::string> answers;
};

constexpr const char* kUsage =
    "usage: zepha-headless [--install-dir DIR] [--settings FILE] [--answer WORD]... [SCRIPT]\n";

std::optional<Arguments> Parse(int count, char** values) {
  Arguments arguments;
  for (int i = 1; i < count; ++i) {
    const std::string word = values[i];
    if (word == "--install-dir" || word == "--settings") {
      if (++i == count) return std::nullopt;
      (word == "--settings" ? arguments.settings : arguments.installDir) = values[i];
    } else if (word == "--answer") {
      if (++i == count || !headless::AnswerOf(values[i])) return std::nullopt;
      arguments.answers.emplace_back(values[i]);
    } else if (word.starts_with("--") || !arguments.script.empty()) {
      return std::nullopt;
    } else {
      arguments.script = word;
    }
  }
  return arguments;
}

shell::DataFolder DataFolderFor(const std::string& installDir) {
  if (installDir.empty()) return shell::FindDataFolder(shell::ProgramFolder());
  return {installDir, {}, {}, {}};
}

/// Without a file nothing is read or kept.
std::unique_ptr<shell::SettingsStore> Settings(const std::string& path) {
  if (path.empty()) return std::make_unique<shell::MemorySettings>();
  return std::make_unique<shell::FileSettings>(path);
}

/// Beside the settings, so that a trial never touches the user's own work in progress.
std::string StateFolder(const std::string& settings) {
  return settings.empty() ? settings : settings + ".state";
}

void Tell(const headless::Json& answer) {
  // Bytes that are no UTF-8 are told as U+FFFD instead of ending the run.
  std::cout << answer.dump(-1, ' ', false, headless::Json::error_handler_t::replace) << std::endl;
}

void RunScript(headless::Driver& driver, std::istream& input) {
  std::string line;
  while (!driver.Ended() && std::getline(input, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.find_first_not_of(" \t") == std::string::npos || line.front() == '#') continue;
    Tell(driver.Execute(line));
  }
  if (!driver.Ended()) driver.Close();
}

}  // namespace

int main(int count, char** values) {
  // A limit on the size of files is told like a full disk instead of ending the run.
  std::signal(SIGXFSZ, SIG_IGN);
  const std::optional<Arguments> arguments = Parse(count, values);
  if (!arguments) {
    std::cerr << kUsage;
    return 2;
  }
  std::ifstream script;
  if (!arguments->script.empty()) {
    script.open(arguments->script);
    if (!script) {
      std::cerr << "zepha-headless: cannot read " << arguments->script << '\n';
      return 2;
    }
  }
  const std::unique_ptr<shell::SettingsStore> settings = Settings(arguments->settings);
  const shell::DataFolder data = DataFolderFor(arguments->installDir);
  headless::Driver driver(data.path, *settings, StateFolder(arguments->settings));
  driver.Bench().Space().dataNote = data.note;
  driver.Bench().Space().guideDir = shell::FindGuideFolder(shell::ProgramFolder());
  // The start may ask before the first command can be read.
  for (const std::string& word : arguments->answers) driver.Execute("answer " + word);
  Tell(driver.Start());
  RunScript(driver, arguments->script.empty() ? std::cin : script);
  if (!std::cout.flush()) {
    std::cerr << "zepha-headless: the answers could not be written\n";
    return 1;
  }
  return driver.Misunderstood() ? 1 : 0;
}
