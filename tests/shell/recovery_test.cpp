#include "shell/recovery.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <random>

#include "common/file.h"
#include "tests/shell/temporary_folder.h"

namespace shell {
namespace {

std::vector<TagRow> TagRows(int tags, const std::string& text) {
  std::vector<TagRow> rows(static_cast<std::size_t>(tags) + 1);
  for (TagRow& row : rows) row.fill(text);
  return rows;
}

void Fill(TagStore& store, int tags, const std::string& text) {
  store.TakeRows(TagRows(tags, text));
  store.tagModified = true;
}

int FilesIn(const tests::TemporaryFolder& folder) {
  const std::filesystem::directory_iterator files(folder.Path());
  return static_cast<int>(std::distance(begin(files), end(files)));
}

TEST(RecoveryCopy, HoldsEveryTextAndNothingButAWholeFile) {
  std::string everyByte;
  for (int byte = 0; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  RecoveryCopy copy;
  copy.time = -1;
  copy.tags = {"/計装/\xFF.zph", "1-2", {{}, {"FE-1\",\r\n", "é😀", everyByte, "3:abc\n"}}};
  copy.ducts = {"", "", {{"CD-1"}}};
  const std::string bytes = EncodeRecovery(copy);
  const auto read = ParseRecovery(bytes);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->time, copy.time);
  EXPECT_EQ(read->tags, copy.tags);
  EXPECT_EQ(read->ducts, copy.ducts);
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    EXPECT_FALSE(ParseRecovery(bytes.substr(0, length))) << length;
  }
}

TEST(RecoveryCopy, RefusesWhatDoesNotFit) {
  const std::string head = "ZEPHA recovery 1\n";
  RecoveryCopy tooMany;
  tooMany.tags = {"", "", TagRows(kMaxTags + 1, "")};
  const std::string rows[] = {EncodeRecovery(tooMany),
                              head + "1:5\n4:tags\n0:\n0:\n1:1\n3:end\n",
                              head + "1:5\n5:ducts\n0:\n0:\n2:99\n3:end\n",
                              head + "1:5\n5:other\n3:end\n",
                              head + "1:5\n3:end\n3:end\n",
                              head + "1:x\n3:end\n",
                              head + "18446744073709551615:5\n3:end\n",
                              head + "99999999999999999999999:5\n3:end\n",
                              head + "-1:5\n3:end\n"};
  for (const std::string& row : rows) EXPECT_FALSE(ParseRecovery(row)) << row.substr(0, 60);
  EXPECT_TRUE(ParseRecovery(head + "1:5\n3:end\n")->Empty());
}

TEST(Recovery, WritesWhatChangedAndRemovesWhatIsSaved) {
  const tests::TemporaryFolder folder;
  Recovery recovery;
  recovery.UseFolder(folder.Path());
  recovery.clock = [time = 0]() mutable { return ++time; };
  TagStore tags;
  DuctStore ducts;
  const auto timeAfterKeep = [&] {
    recovery.Keep(tags, ducts);
    return recovery.Kept() ? recovery.Kept()->time : 0;
  };
  EXPECT_EQ(timeAfterKeep(), 0);
  tags.tagModified = true;
  EXPECT_EQ(timeAfterKeep(), 0) << "an empty list is no work";
  EXPECT_EQ(FilesIn(folder), 0);
  Fill(tags, 3, "a");
  EXPECT_EQ(timeAfterKeep(), 1);
  EXPECT_EQ(timeAfterKeep(), 1) << "nothing changed";
  tags.SetText(2, 7, "b");
  EXPECT_EQ(timeAfterKeep(), 2);
  ducts.TakeRows({{"CD-1"}});
  ducts.ductModified = true;
  tags.zephaFileName = folder / "named.zph";
  EXPECT_EQ(timeAfterKeep(), 3);
  tags.tagModified = false;
  EXPECT_EQ(timeAfterKeep(), 4);
  EXPECT_FALSE(recovery.Kept()->tags);
  ducts.ductModified = false;
  EXPECT_EQ(timeAfterKeep(), 0);
  EXPECT_EQ(FilesIn(folder), 1) << "the lock alone";
  tags.tagModified = true;
  recovery.Keep(tags, ducts);
  recovery.End();
  recovery.Keep(tags, ducts);
  EXPECT_EQ(FilesIn(folder), 0);
}

TEST(Recovery, ProgramsSideBySideDoNotSeeEachOthersCopies) {
  const tests::TemporaryFolder folder;
  DuctStore ducts;
  std::vector<std::unique_ptr<Recovery>> living;
  for (int i = 0; i < 3; ++i) {
    living.push_back(std::make_unique<Recovery>());
    living.back()->UseFolder(folder.Path());
    living.back()->clock = [i] { return i == 1 ? 900 : 100 + i; };
    TagStore tags;
    Fill(tags, 10 + i, "x");
    living.back()->Keep(tags, ducts);
  }
  Recovery other;
  other.UseFolder(folder.Path());
  EXPECT_TRUE(other.Leftovers().empty());
  living.clear();  // without End, as a crash does
  common::WriteFile(folder / "recovery-7.copy", "no recovery file");
  {
    const auto found = other.Leftovers();
    ASSERT_EQ(found.size(), 3U);
    const int newestFirst[] = {found[0].copy.TagCount(), found[1].copy.TagCount(),
                               found[2].copy.TagCount()};
    EXPECT_EQ(testing::PrintToString(newestFirst), "{ 11, 12, 10 }");
    Recovery third;
    third.UseFolder(folder.Path());
    EXPECT_TRUE(third.Leftovers().empty()) << "locked while they are looked at";
    other.SetAside(found[0]);
    other.Discard(found[1]);
  }
  EXPECT_TRUE(std::filesystem::exists(folder / "recovery-7.refused"));
  auto left = other.Leftovers();
  ASSERT_EQ(left.size(), 1U);
  other.Continue(std::move(left[0]));
  EXPECT_EQ(other.Kept()->TagCount(), 10);
  other.End();
  EXPECT_EQ(FilesIn(folder), 2) << "both refused";
}

TEST(Recovery, AFolderThatCannotBeWrittenIsToldOnce) {
  const tests::TemporaryFolder folder;
  common::WriteFile(folder / "file", "");
  TagStore tags;
  DuctStore ducts;
  Fill(tags, 300, "some text");
  Recovery recovery;
  int told = 0;
  recovery.onTrouble = [&told](const std::string&) { ++told; };
  recovery.UseFolder(folder / "file/below");
  for (int i = 0; i < 3; ++i) recovery.Keep(tags, ducts);
  EXPECT_EQ(told, 1);
  EXPECT_FALSE(recovery.Kept());

  recovery.UseFolder(folder / "new/folder");
  recovery.Keep(tags, ducts);
  EXPECT_EQ(recovery.Trouble(), "");
  // A disk that fills up, as a process may see it; the old copy stands.
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit full{1000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  tags.SetText(1, 1, "changed");
  recovery.Keep(tags, ducts);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_NE(recovery.Trouble(), "");
  EXPECT_EQ(told, 1);
  EXPECT_EQ(recovery.Kept()->tags->rows[1][1], "some text");
  EXPECT_FALSE(std::filesystem::exists(folder / "new/folder/recovery-1.copy.new"));
  // Somebody clears the folder away: the next copy is made anew.
  std::filesystem::remove_all(folder / "new");
  recovery.Keep(tags, ducts);
  EXPECT_EQ(
      ParseRecovery(common::ReadFile(folder / "new/folder/recovery-1.copy"))->tags->rows[1][1],
      "changed");
}

/// Goes on with the copy that is there and replaces it without a pause, by contents that tell their
/// number in every text. Writes a byte when it begins.
[[noreturn]] void WriteCopies(const std::string& folder, int begun) {
  Recovery recovery;
  recovery.UseFolder(folder);
  auto found = recovery.Leftovers();
  int number = found.empty() ? 0 : std::stoi(found[0].copy.tags->rows[0][0]);
  if (!found.empty()) recovery.Continue(std::move(found[0]));
  for (bool first = true;; first = false) {
    TagStore tags;
    Fill(tags, kMaxTags, std::to_string(++number));
    if (first && write(begun, "!", 1) != 1) _exit(1);
    recovery.Keep(tags, {});
  }
}

/// In memory where there is such a folder, because the kill is tested and not the disk.
TEST(Recovery, KilledAtAnyMomentItLeavesAWholeCopy) {
  const bool memory = access("/dev/shm", W_OK) == 0;
  const tests::TemporaryFolder folder(memory ? "/dev/shm" : testing::TempDir());
  const std::filesystem::path passing = folder / "recovery-1.copy.new";
  int begun[2];
  ASSERT_EQ(pipe(begun), 0);
  std::mt19937 random(1);
  std::uniform_int_distribution<useconds_t> microseconds(0, 5000);
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
  EXPECT_GT(cutShort, 0) << "no kill came while a copy was being written";
}

}  // namespace
}  // namespace shell
