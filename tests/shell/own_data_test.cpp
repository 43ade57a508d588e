#include "shell/own_data.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>

#include "common/file.h"
#include "tests/support/temporary_folder.h"

namespace shell {
namespace {

namespace fs = std::filesystem;

class OwnData : public testing::Test {
 protected:
  OwnData() { fs::create_directory(shipped_); }

  /// Large enough for more than one write.
  static std::string Version(int number, int file) {
    return std::string(300'000, static_cast<char>('a' + number)) + std::to_string(file);
  }
  void Ship(int number) const {
    for (int file = 0; file < kFiles; ++file) {
      common::WriteFile(shipped_ + "/" + Name(file), Version(number, file));
    }
  }
  static std::string Name(int file) { return "データ" + std::to_string(file) + ".dat"; }
  std::string Mine(int file) const { return own_ + "/" + Name(file); }
  DataFolder Start() const { return PrepareOwnData(shipped_, own_); }

  void ExpectAll(int number) const {
    for (int file = 0; file < kFiles; ++file) {
      EXPECT_TRUE(common::ReadFile(Mine(file)) == Version(number, file)) << file;
    }
    EXPECT_EQ(Start().note, "");
  }
  static pid_t Fork(const std::function<bool()>& work) {
    const pid_t child = fork();
    if (child == 0) _exit(work() ? 0 : 1);
    return child;
  }
  static int StatusOf(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return status;
  }

  static constexpr int kFiles = 5;
  const tests::TemporaryFolder folder_;
  const std::string shipped_ = folder_ / "usr";
  const std::string own_ = folder_ / "home/.local/share/zepha";
};

TEST_F(OwnData, FollowsThePackageWhereTheUserHasNotEdited) {
  const std::string edit = "edited";
  const struct {
    const char* name;
    std::string mine;  // "" where he has removed it
    int newVersion;
    std::string then;
    bool told;
  } rows[] = {
      {"untouched", Version(1, 0), 1, Version(1, 0), false},
      {"removed", "", 1, Version(1, 0), false},
      {"edited", edit, 1, edit, false},
      {"untouched, new package", Version(1, 0), 2, Version(2, 0), false},
      {"untouched, package before", Version(1, 0), 0, Version(0, 0), false},
      {"removed, new package", "", 2, Version(2, 0), false},
      {"edited, new package", edit, 2, edit, true},
      {"already the new one", Version(2, 0), 2, Version(2, 0), false},
      {"a save that did not come to its end", std::string(9, '\0'), 2, std::string(9, '\0'), true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    fs::remove_all(own_);
    Ship(1);
    EXPECT_EQ(Start().path, own_);
    fs::remove(Mine(0));
    if (!row.mine.empty()) common::WriteFile(Mine(0), row.mine);
    Ship(row.newVersion);
    const DataFolder folder = Start();
    EXPECT_TRUE(common::ReadFile(Mine(0)) == row.then);
    EXPECT_TRUE(common::ReadFile(Mine(1)) == Version(row.newVersion, 1));
    EXPECT_EQ(folder.newer, row.told ? std::vector{Name(0)} : std::vector<std::string>());
    EXPECT_EQ(folder.note.find("\n　データ0.dat\n") != std::string::npos, row.told);
    EXPECT_EQ(Start().newer, folder.newer) << "until he has been told";
    TakeNoteOfNewer(folder);
    EXPECT_EQ(Start().note, "");
    EXPECT_TRUE(common::ReadFile(Mine(0)) == row.then);
  }
}

TEST_F(OwnData, StartsAtOneTimeAndOneThatIsKilledLeaveWholeFiles) {
  int unfinished = 0;
  int moment = 1000;  // microseconds; half of the kills shall come too early, half too late
  for (int version = 0; version < 16; ++version) {
    Ship(version);
    const auto start = [this] { return Start().path == own_ && Start().note.empty(); };
    const pid_t killed = Fork(start);
    usleep(static_cast<useconds_t>(moment));
    kill(killed, SIGKILL);
    const bool early = StatusOf(killed) != 0;
    moment = early ? moment * 5 / 4 : moment * 3 / 4;
    if (early) ++unfinished;
    for (int file = 0; file < kFiles; ++file) {
      if (!fs::exists(Mine(file))) continue;
      const std::string found = common::ReadFile(Mine(file));
      EXPECT_TRUE(found == Version(version, file) || found == Version(version - 1, file));
    }
    const pid_t others[] = {Fork(start), Fork(start), Fork(start)};
    for (const pid_t other : others) EXPECT_EQ(StatusOf(other), 0);
    ExpectAll(version);
  }
  EXPECT_GT(unfinished, 3);
}

TEST_F(OwnData, WhatCannotBeKeptIsToldAndTheShippedFilesAreRead) {
  Ship(0);
  for (const std::string& place : {std::string(), std::string("/dev/null/zepha")}) {
    const DataFolder folder = PrepareOwnData(shipped_, place);
    EXPECT_EQ(folder.path, shipped_);
    EXPECT_NE(folder.note.find("インストールされたデータをそのまま使います。"), std::string::npos);
  }
  // A disk without room for the files.
  EXPECT_EQ(StatusOf(Fork([this] {
              std::signal(SIGXFSZ, SIG_IGN);
              const rlimit limit = {100'000, 100'000};
              setrlimit(RLIMIT_FSIZE, &limit);
              const DataFolder folder = Start();
              return folder.path == shipped_ &&
                     folder.note.find("ファイルが大きすぎます。") != std::string::npos;
            })),
            0);
  EXPECT_EQ(Start().path, own_);
  ExpectAll(0);
}

TEST(FindGuideFolder, PrefersTheOneBesideThePrograms) {
  const tests::TemporaryFolder folder;
  const std::string programs = folder / "usr/bin";
  const std::string beside = programs + "/guide";
  EXPECT_EQ(FindGuideFolder(programs), beside) << "what is missing is named as a build has it";
  fs::create_directories(InstalledFolder(programs, "guide"));
  EXPECT_EQ(FindGuideFolder(programs), folder / "usr/share/zepha/guide");
  fs::create_directories(beside);
  EXPECT_EQ(FindGuideFolder(programs), beside);
}

}  // namespace
}  // namespace shell
