// The program is killed at random moments of its saves. ZEPHA_KILLS sets how often, 100 by default.

#include <chrono>
#include <filesystem>
#include <random>
#include <thread>

#include "common/file.h"
#include "shell/instrument_file.h"
#include "shell/settings.h"
#include "shell/tables.h"
#include "tests/support/program.h"
#include "tests/support/scripted_messages.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

/// The same changes in memory as the program's, so that the file of every save is known.
class Model {
 public:
  explicit Model(const shell::Tables& tables) {
    store_.TakeRows(shell::ParseInstrumentFile(
        common::ReadFile(ZEPHA_SOURCE_DIR "/samples/plant.zph"), tables.pipes, tables.lists));
  }
  std::string Bytes() const { return shell::EncodeInstrumentFile(store_); }
  /// Moves a tag down the list; at the end of the list the next one.
  void Change(int save) {
    store_.SelectLine(LineOf(save));
    store_.MoveDown();
  }
  int LineOf(int save) const { return save % (store_.TagCount() - 1); }

 private:
  shell::TagStore store_;
};

class KilledSaves : public testing::Test {
 protected:
  /// Starts the program and lets it save until it is killed in the middle of one save; gives how
  /// many it said were done.
  int SaveUntilKilled(std::chrono::microseconds moment, int saves) {
    fs::copy(ZEPHA_SOURCE_DIR "/samples/plant.zph", path, fs::copy_options::overwrite_existing);
    tests::Program program({"--settings", settings});
    program.Do("load " + path);
    const Model model(tables);
    for (int save = 0; save < saves; ++save) {
      program.Do("pick frmTagList!lstTagNo " + std::to_string(model.LineOf(save)));
      program.Do("click frmTagList!cmdDown");
      if (save + 1 == saves) break;
      EXPECT_EQ(program.Do("save")["TagModified"], false);
    }
    const Clock::time_point end = Clock::now() + moment;
    program.Send("save");
    while (Clock::now() < end) continue;  // finer than sleeping
    program.Kill();
    const auto answer = program.Answer();  // what it had written before it died
    const bool told = answer.has_value() && (*answer)["TagModified"] == false;
    return told ? saves : saves - 1;
  }

  /// Whether the file on disk is one that may stand there after so many saves.
  void Judge(int told) {
    Model model(tables);
    for (int save = 0; save < told; ++save) model.Change(save);
    const std::string old =
        told == 0 ? common::ReadFile(ZEPHA_SOURCE_DIR "/samples/plant.zph") : model.Bytes();
    model.Change(told);
    const std::string next = model.Bytes();
    const std::string found = common::ReadFile(path);
    tests::ScriptedMessages messages;
    shell::TagStore store;
    const bool read = shell::OpenInstrumentFile(store, path, tables.pipes, tables.lists, messages);
    if (found == old) {
      ++olds;
    } else if (found == next) {
      ++news;
    } else {
      ++cuts;
      EXPECT_FALSE(read);
      EXPECT_EQ(messages.Texts(),
                std::vector<std::string>{"ファイルのデータが途中で終わっています。"});
      EXPECT_EQ(store.TagCount(), 0);
      EXPECT_TRUE(found.substr(1) == old.substr(1) || next.substr(1).starts_with(found.substr(1)));
      return;
    }
    EXPECT_TRUE(read);
    EXPECT_EQ(store.TagCount(), 61);
  }

  const tests::TemporaryFolder folder;
  const std::string path = folder / "計器 データ (1).zph";
  const std::string settings = folder / "settings.ini";
  const shell::Tables tables = shell::LoadTables(ZEPHA_BUILD_DIR);
  int olds = 0;
  int news = 0;
  int cuts = 0;
};

TEST_F(KilledSaves, LeaveTheOldFileTheNewOneOrOneThatIsRefused) {
  const char* const wish = std::getenv("ZEPHA_KILLS");
  const int kills = wish == nullptr ? 100 : std::atoi(wish);
  std::mt19937 random(20240229);
  int longest = 400;  // microseconds that a save takes at most, learnt below
  for (int kill = 0; kill < kills; ++kill) {
    const int saves = 1 + static_cast<int>(random() % 3);
    const int moment = static_cast<int>(random() % static_cast<unsigned>(longest));
    SCOPED_TRACE(testing::Message() << "save " << saves << " after " << moment << " us");
    const int told = SaveUntilKilled(std::chrono::microseconds(moment), saves);
    Judge(told);
    // Half of the kills shall come too early for the answer, half too late.
    longest = told == saves ? std::max(longest * 95 / 100, 50) : longest * 105 / 100;
    EXPECT_NE(shell::FileSettings(settings).Get("Recent", "File1"), "") << "settings";
    if (HasFailure()) break;
  }
  std::cout << kills << " kills: " << olds << " old files, " << news << " new ones, " << cuts
            << " cut short and refused\n";
}

}  // namespace
