#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tests {

/// What a program finds when it starts.
struct Surroundings {
  std::vector<std::pair<std::string, std::string>> environment;  // instead of what is inherited
  rlim_t largestFile = RLIM_INFINITY;
  /// Shell commands that run first, as root of a namespace with mounts of its own.
  std::string mounts;
};

/// Whether this machine lets a user have mounts of his own.
inline bool MountsAllowed() {
  static const bool allowed =
      std::system("unshare -rm sh -c 'mount -t tmpfs tmpfs /mnt' >/dev/null 2>&1") == 0;
  return allowed;
}

/// What another program prints about a file.
inline std::string OutputOf(const std::string& command) {
  std::string output;
  FILE* const pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return output;
  char part[4096];
  while (const std::size_t count = std::fread(part, 1, sizeof part, pipe)) {
    output.append(part, count);
  }
  EXPECT_EQ(pclose(pipe), 0) << command;
  return output;
}

/// The driver as a process of its own, which takes a command a line and answers each.
class Program {
 public:
  explicit Program(std::vector<std::string> arguments, const Surroundings& around = {}) {
    arguments.insert(arguments.begin(), ZEPHA_BUILD_DIR "/zepha-headless");
    if (!around.mounts.empty()) {
      arguments.insert(arguments.begin(),
                       {"unshare", "-rm", "sh", "-ec", around.mounts + "\nexec \"$0\" \"$@\""});
    }
    int input[2];
    int output[2];
    if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0) std::abort();
    process_ = fork();
    if (process_ == 0) {
      dup2(input[0], STDIN_FILENO);
      dup2(output[1], STDOUT_FILENO);
      Become(std::move(arguments), around);
    }
    close(input[0]);
    close(output[1]);
    input_ = input[1];
    output_ = output[0];
    started = Answer();
  }
  ~Program() {
    if (process_ > 0) Kill();
    close(output_);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// What it said at its start; nothing when it did not come that far.
  std::optional<nlohmann::json> started;

  void Send(const std::string& line) {
    const std::string text = line + "\n";
    if (write(input_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) std::abort();
  }

  /// The next answer; nothing when the program has ended, or has not answered for a minute.
  std::optional<nlohmann::json> Answer() {
    constexpr int kMinute = 60000;
    while (unread_.find('\n') == std::string::npos) {
      pollfd wait = {output_, POLLIN, 0};
      char part[65536];
      const ssize_t count = poll(&wait, 1, kMinute) == 1 ? read(output_, part, sizeof part) : 0;
      if (count <= 0) return std::nullopt;
      unread_.append(part, static_cast<std::size_t>(count));
    }
    const std::string line = unread_.substr(0, unread_.find('\n'));
    unread_.erase(0, line.size() + 1);
    return nlohmann::json::parse(line);
  }

  /// The answer to a command; an empty object, and a failed test, when there is none.
  nlohmann::json Do(const std::string& line) {
    Send(line);
    std::optional<nlohmann::json> answer = Answer();
    EXPECT_TRUE(answer.has_value()) << "no answer to " << line;
    return answer.value_or(nlohmann::json::object());
  }

  void Kill() {
    kill(process_, SIGKILL);
    End();
  }

  /// Closes its input and waits; the exit status, or -1 when it was killed.
  int End() {
    close(input_);
    int status = 0;
    waitpid(std::exchange(process_, 0), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  [[noreturn]] static void Become(std::vector<std::string> arguments, const Surroundings& around) {
    for (const auto& [name, value] : around.environment) setenv(name.c_str(), value.c_str(), 1);
    const rlimit limit = {around.largestFile, around.largestFile};
    setrlimit(RLIMIT_FSIZE, &limit);
    std::vector<char*> words;
    for (std::string& argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    execvp(words[0], words.data());
    _exit(127);
  }

  pid_t process_ = 0;
  int input_ = -1;
  int output_ = -1;
  std::string unread_;
};

}  // namespace tests
