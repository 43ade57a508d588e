#include "shell/recovery.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <random>

#include "common/file.h"
#include "tests/support/temporary_folder.h"

namespace shell {
namespace {

std::vector<TagRow> TagRows(int tags, const std::string& text) {
  std::vector<TagRow> rows(static_cast<std::size_t>(tags) + 1);
  for (TagRow& row : rows) row.fill(text);
  return rows;
}

/// A run with tags that are not saved.
struct Editing {
  Editing(const std::string& folder, int tags, std::int64_t time = 1) {
    store.TakeRows(TagRows(tags, "text"));
    store.tagModified = true;
    recovery.UseFolder(folder);
    recovery.clock = [time]() mutable { return time++; };
  }
  /// Time of the copy, 0 for none.
  std::int64_t Keep() {
    recovery.Keep(store, {});
    return recovery.Kept() ? recovery.Kept()->time : 0;
  }
  TagStore store;
  Recovery recovery;
};

std::ptrdiff_t FilesIn(const tests::TemporaryFolder& folder) {
  const std::filesystem::directory_iterator files(folder.Path());
  return std::distance(begin(files), end(files));
}

TEST(RecoveryCopy, HoldsEveryTextAndNothingButAWholeFile) {
  std::string everyByte;
  for (int byte = 0; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  RecoveryCopy copy;
  copy.time = -1;
  copy.tags = {"/計装/\xFF.zph", "1-2", {{}, {"FE-1\",\r\n", "é😀", everyByte, "3:abc\n"}}};
  copy.ducts = {"", "", {{"CD-1"}}};
  const std::string bytes = EncodeRecovery(copy);
  EXPECT_TRUE(ParseRecovery(bytes) == copy);
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    EXPECT_FALSE(ParseRecovery(bytes.substr(0, length))) << length;
  }
  RecoveryCopy tooMany;
  tooMany.tags = {"", "", TagRows(kMaxTags + 1, "")};
  EXPECT_FALSE(ParseRecovery(EncodeRecovery(tooMany)));
  const std::string head = "ZEPHA recovery 1\n";
  for (const char* rest : {"1:5\n4:tags\n0:\n0:\n1:1\n3:end\n", "1:5\n5:other\n3:end\n",
                           "1:5\n3:end\n3:end\n", "1:x\n3:end\n", "18446744073709551615:5\n3:end\n",
                           "99999999999999999999999:5\n3:end\n", "-1:5\n3:end\n"}) {
    EXPECT_FALSE(ParseRecovery(head + rest)) << rest;
  }
}

TEST(Recovery, WritesWhatChangedAndRemovesWhatIsSaved) {
  const tests::TemporaryFolder folder;
  Editing run(folder.Path(), 0);
  EXPECT_EQ(run.Keep(), 0) << "an empty list is no work";
  EXPECT_EQ(FilesIn(folder), 0);
  run.store.TakeRows(TagRows(3, "a"));
  EXPECT_EQ(run.Keep(), 1);
  EXPECT_EQ(run.Keep(), 1) << "nothing changed";
  run.store.SetText(2, 7, "b");
  EXPECT_EQ(run.Keep(), 2);
  run.store.zephaFileName = folder / "named.zph";
  EXPECT_EQ(run.Keep(), 3);
  run.store.tagModified = false;
  EXPECT_EQ(run.Keep(), 0);
  EXPECT_EQ(FilesIn(folder), 1) << "the lock alone";
  run.store.tagModified = true;
  EXPECT_EQ(run.Keep(), 4);
  run.recovery.End();
  EXPECT_EQ(run.Keep(), 0);
  EXPECT_EQ(FilesIn(folder), 0);
}

TEST(Recovery, ProgramsSideBySideDoNotSeeEachOthersCopies) {
  const tests::TemporaryFolder folder;
  Recovery other;
  other.UseFolder(folder.Path());
  {
    Editing runs[] = {{folder.Path(), 10, 100}, {folder.Path(), 11, 900}, {folder.Path(), 12, 102}};
    for (Editing& run : runs) run.Keep();
    EXPECT_TRUE(other.Leftovers().empty());
  }  // without End, as a crash does
  common::WriteFile(folder / "recovery-7.copy", "no recovery file");
  {
    const auto found = other.Leftovers();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].copy.TagCount(), 11) << "the newest first";
    EXPECT_EQ(found[1].copy.TagCount(), 12);
    EXPECT_TRUE(Editing(folder.Path(), 1).recovery.Leftovers().empty()) << "locked while looked at";
    other.SetAside(found[0]);
    other.Discard(found[1]);
  }
  auto left = other.Leftovers();
  ASSERT_EQ(left.size(), 1U);
  other.Continue(std::move(left[0]));
  EXPECT_EQ(other.Kept()->TagCount(), 10);
  other.End();
  EXPECT_EQ(FilesIn(folder), 2) << "recovery-2.refused, recovery-7.refused";
}

TEST(Recovery, AFolderThatCannotBeWrittenIsToldOnce) {
  const tests::TemporaryFolder folder;
  common::WriteFile(folder / "file", "");
  Editing run(folder / "file/below", 300);
  int told = 0;
  run.recovery.onTrouble = [&told](const std::string&) { ++told; };
  for (int i = 0; i < 3; ++i) EXPECT_EQ(run.Keep(), 0);
  EXPECT_EQ(told, 1);

  run.recovery.UseFolder(folder / "new/folder");
  const auto before = run.Keep();
  EXPECT_EQ(run.recovery.Trouble(), "");
  // A disk that fills up, as a process may see it; the old copy stands.
  rlimit room{};
  getrlimit(RLIMIT_FSIZE, &room);
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit full{1000, room.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  run.store.SetText(1, 1, "changed");
  EXPECT_EQ(run.Keep(), before);
  setrlimit(RLIMIT_FSIZE, &room);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_NE(run.recovery.Trouble(), "");
  EXPECT_EQ(told, 1);
  EXPECT_FALSE(std::filesystem::exists(folder / "new/folder/recovery-1.copy.new"));
  // Somebody clears the folder away: the next copy is made anew.
  std::filesystem::remove_all(folder / "new");
  EXPECT_GT(run.Keep(), before);
  EXPECT_TRUE(std::filesystem::exists(folder / "new/folder/recovery-1.copy"));
}

/// Goes on with the copy that is there and replaces it without a pause, by contents that tell their
/// number in every text. Writes a byte when it begins.
[[noreturn]] void WriteCopies(const std::string& folder, int begun) {
  Editing run(folder, kMaxTags);
  auto found = run.recovery.Leftovers();
  int number = found.empty() ? 0 : std::stoi(found[0].copy.tags->rows[0][0]);
  if (!found.empty()) run.recovery.Continue(std::move(found[0]));
  if (write(begun, "!", 1) != 1) _exit(1);
  while (true) {
    run.store.TakeRows(TagRows(kMaxTags, std::to_string(++number)));
    run.Keep();
  }
}

/// How long a few copies take here, at least 5 ms.
useconds_t TimeOfCopies(const std::string& folder) {
  const auto start = std::chrono::steady_clock::now();
  Editing run(folder, kMaxTags);
  for (int number = 1; number <= 3; ++number) {
    run.store.TakeRows(TagRows(kMaxTags, std::to_string(number)));
    run.Keep();
  }
  const auto taken = std::chrono::steady_clock::now() - start;
  const auto microseconds = std::chrono::duration_cast<std::chrono::microseconds>(taken).count();
  return static_cast<useconds_t>(std::clamp<std::int64_t>(microseconds, 5000, 100000));
}

/// In memory where there is such a folder, because the kill is tested and not the disk.
TEST(Recovery, KilledAtAnyMomentItLeavesAWholeCopy) {
  const bool memory = access("/dev/shm", W_OK) == 0;
  const tests::TemporaryFolder folder(memory ? "/dev/shm" : testing::TempDir());
  const std::filesystem::path passing = folder / "recovery-1.copy.new";
  int begun[2];
  ASSERT_EQ(pipe(begun), 0);
  std::mt19937 random(1);
  std::uniform_int_distribution<useconds_t> microseconds(0, TimeOfCopies(folder / "timed"));
  int number = 0;
  int cutShort = 0;
  for (int run = 0; run < 200; ++run) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) WriteCopies(folder.Path(), begun[1]);
    char byte = 0;
    ASSERT_EQ(read(begun[0], &byte, 1), 1);
    usleep(microseconds(random));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    cutShort += std::filesystem::remove(passing) ? 1 : 0;
    Recovery recovery;
    recovery.UseFolder(folder.Path());
    const auto found = recovery.Leftovers();
    if (found.empty() && number == 0) continue;
    ASSERT_EQ(found.size(), 1U) << run;
    const int now = std::stoi(found[0].copy.tags->rows[0][0]);
    EXPECT_GE(now, number);
    number = now;
    EXPECT_EQ(found[0].copy.tags->rows, TagRows(kMaxTags, std::to_string(number)));
  }
  for (const int end : begun) close(end);
  EXPECT_GT(number, 20);
  RecordProperty("cut short", cutShort);
  if (cutShort == 0) GTEST_SKIP() << "no kill came while a copy was being written";
}

}  // namespace
}  // namespace shell
