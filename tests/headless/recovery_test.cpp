#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "common/file.h"
#include "tests/shell/temporary_folder.h"

namespace headless {
namespace {

using Json = nlohmann::json;
namespace fs = std::filesystem;

/// The driver as a process of its own, which can be killed.
class Program {
 public:
  explicit Program(std::vector<std::string> arguments) {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) throw std::runtime_error("no sockets");
    arguments.insert(arguments.begin(), ZEPHA_BUILD_DIR "/zepha-headless");
    std::vector<char*> words(arguments.size() + 1);
    std::transform(arguments.begin(), arguments.end(), words.begin(),
                   [](std::string& argument) { return argument.data(); });
    process_ = fork();
    if (process_ == 0) {
      dup2(ends[1], STDIN_FILENO);
      dup2(ends[1], STDOUT_FILENO);
      for (const int end : ends) close(end);
      execv(words[0], words.data());
      _exit(127);
    }
    close(ends[1]);
    socket_ = ends[0];
    start = Answer();
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  /// Ends as a power failure would have it, unless Finish was called.
  ~Program() {
    if (!ended_) kill(process_, SIGKILL);
    Finish();
    close(socket_);
  }

  Json Do(const std::string& line) {
    dprintf(socket_, "%s\n", line.c_str());
    return Answer();
  }
  /// The end of the input is an orderly exit.
  void Finish() {
    shutdown(socket_, SHUT_WR);
    if (!std::exchange(ended_, true)) waitpid(process_, nullptr, 0);
  }
  /// What the start asked or told.
  std::string Question() const {
    return start.contains("messages") ? start["messages"][0]["text"] : "";
  }

  Json start;

 private:
  Json Answer() const {
    std::string line;
    for (char c = 0; read(socket_, &c, 1) == 1 && c != '\n';) line += c;
    return Json::parse(line, nullptr, false);
  }

  pid_t process_ = 0;
  int socket_ = -1;
  bool ended_ = false;
};

class RecoveryOfProcess : public testing::Test {
 protected:
  RecoveryOfProcess() { fs::copy_file(sample_, plant_); }

  std::unique_ptr<Program> Start(std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"--settings", folder_ / "settings.ini"});
    return std::make_unique<Program>(more);
  }
  /// Registers a tag that no instrument file can hold in the plant's list, and dies.
  void LoseATag() {
    const auto program = Start();
    program->Do("load " + plant_);
    program->Do("open ⊿P Flow");
    program->Do("type txtTagNo FE-é");
    EXPECT_EQ(program->Do("register")["TagCount"], kTags + 1);
  }
  std::string State(const std::string& name) const {
    return (folder_ / "settings.ini.state/") + name;
  }

  static constexpr int kTags = 61;
  const std::string ducts_ = ZEPHA_SOURCE_DIR "/samples/ducts.dct";
  const std::string sample_ = ZEPHA_SOURCE_DIR "/samples/plant.zph";
  tests::TemporaryFolder folder_;
  std::string plant_ = folder_ / "プラント.zph";
};

TEST_F(RecoveryOfProcess, AKilledRunIsOfferedUntilItsTagsAreSaved) {
  LoseATag();
  const auto later = Start({"--answer", "cancel"});
  EXPECT_EQ(later->Do("workspace")["TagModified"], false);
  later->Finish();

  for (int crash = 0; crash < 2; ++crash) {
    const auto program = Start({"--answer", "yes"});
    const std::string question = program->Question();
    EXPECT_NE(question.find("計装データ：62件\nファイル：" + plant_ + "\n\n復元"),
              std::string::npos)
        << question;
    const Json state = program->Do("workspace");
    EXPECT_EQ(state["TagCount"], kTags + 1);
    EXPECT_EQ(state["TagModified"], true);
    EXPECT_EQ(state["ZephaFileName"], plant_);
    EXPECT_EQ(program->Do("row 2")["row"][0], "FE-é");
    EXPECT_EQ(Start()->Question(), "") << "the copy belongs to a living program";
  }

  const auto program = Start();
  program->Do("load " + plant_);
  EXPECT_EQ(program->Do("workspace")["TagCount"], kTags) << "the user's file is as it was";
  program->Do("menu mnuTagList");
  program->Do("click cmdDown");
  EXPECT_EQ(program->Do("recovery")["copy"]["tags"], kTags);
  EXPECT_EQ(program->Do("save")["TagModified"], false);
  EXPECT_TRUE(program->Do("recovery")["copy"].is_null());
  EXPECT_FALSE(fs::exists(State("recovery-1.copy")));
}

TEST_F(RecoveryOfProcess, ARefusedCopyIsSetAsideAndNotOfferedAgain) {
  LoseATag();
  EXPECT_EQ(Start({"--answer", "no"})->Do("workspace")["TagCount"], 0);
  EXPECT_EQ(Start()->Question(), "");
  ASSERT_TRUE(fs::exists(State("recovery-1.refused")));
  fs::rename(State("recovery-1.refused"), State("recovery-1.copy"));
  EXPECT_EQ(Start()->Do("workspace")["TagCount"], kTags + 1);
}

TEST_F(RecoveryOfProcess, TheQuestionTellsWhatBecameOfTheFile) {
  LoseATag();
  // An older time says nothing: what counts is what the file holds.
  const auto time = fs::last_write_time(plant_);
  common::WriteFile(plant_, common::ReadFile(plant_) + " ");
  fs::last_write_time(plant_, time - std::chrono::hours(48));
  EXPECT_NE(Start()->Question().find("※このファイルは、編集を始めた後に書き換えられています。"),
            std::string::npos);
  fs::remove(plant_);
  const auto program = Start();
  EXPECT_NE(program->Question().find("※このファイルは、見つからないか"), std::string::npos);
  EXPECT_EQ(program->Do("workspace")["ZephaFileName"], plant_);
}

TEST_F(RecoveryOfProcess, WhatIsSavedOrGivenUpIsNotOffered) {
  const struct {
    const char* name;
    std::vector<std::string> commands;
    bool killed;
  } rows[] = {
      {"moved there and back", {"click cmdDown", "click cmdUp"}, true},
      {"another file", {"click cmdDown", "load " + sample_}, true},
      {"new file", {"click cmdDown", "answer no", "menu mnuNewFileOpen"}, true},
      {"saved elsewhere", {"click cmdDown", "save " + (folder_ / "b.zph")}, true},
      {"orderly exit", {"click cmdDown"}, false},
      {"ducts saved",
       {"open CableDuct", "load " + ducts_, "pick lstDuct 1", "click frmDuctList!cmdDelete",
        "open CableDuct", "save " + (folder_ / "b.dct")},
       true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    auto program = Start();
    program->Do("load " + plant_);
    program->Do("menu mnuTagList");
    for (const std::string& command : row.commands) {
      const Json answer = program->Do(command);
      EXPECT_EQ(answer["ok"], true) << answer;
    }
    if (!row.killed) program->Finish();
    program.reset();
    EXPECT_EQ(Start()->Question(), "");
  }
}

TEST_F(RecoveryOfProcess, UnsavedDuctsComeBack) {
  {
    const auto program = Start();
    program->Do("open CableDuct");
    program->Do("load " + ducts_);
    program->Do("pick lstDuct 1");
    program->Do("click cmdDelete");
    EXPECT_EQ(program->Do("recovery")["copy"]["ducts"], 3);
  }
  const auto program = Start();
  EXPECT_NE(program->Question().find("ケーブルダクト：3件"), std::string::npos);
  const Json state = program->Do("workspace");
  EXPECT_EQ(state["DuctCount"], 3);
  EXPECT_EQ(state["DuctModified"], true);
}

}  // namespace
}  // namespace headless
