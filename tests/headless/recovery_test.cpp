#include <filesystem>

#include "common/file.h"
#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

namespace {

using Json = nlohmann::json;
using tests::Program;
namespace fs = std::filesystem;

/// What the start of the program asked or told.
std::string QuestionOf(const std::unique_ptr<Program>& program) {
  const Json& start = program->started.value();
  return start.contains("messages") ? start["messages"][0]["text"] : "";
}

class RecoveryOfProcess : public testing::Test {
 protected:
  RecoveryOfProcess() { fs::copy_file(sample_, plant_); }

  std::unique_ptr<Program> Start(std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"--settings", folder_ / "settings.ini"});
    return std::make_unique<Program>(std::move(more));
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
  later->End();

  for (int crash = 0; crash < 2; ++crash) {
    const auto program = Start({"--answer", "yes"});
    const std::string question = QuestionOf(program);
    EXPECT_NE(question.find("計装データ：62件\nファイル：" + plant_ + "\n\n復元"),
              std::string::npos)
        << question;
    const Json state = program->Do("workspace");
    EXPECT_EQ(state["TagCount"], kTags + 1);
    EXPECT_EQ(state["TagModified"], true);
    EXPECT_EQ(state["ZephaFileName"], plant_);
    EXPECT_EQ(program->Do("row 2")["row"][0], "FE-é");
    EXPECT_EQ(QuestionOf(Start()), "") << "the copy belongs to a living program";
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
  EXPECT_EQ(QuestionOf(Start()), "");
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
  EXPECT_NE(QuestionOf(Start()).find("※このファイルは、編集を始めた後に書き換えられています。"),
            std::string::npos);
  fs::remove(plant_);
  const auto program = Start();
  EXPECT_NE(QuestionOf(program).find("※このファイルは、見つからないか"), std::string::npos);
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
    if (!row.killed) program->End();
    program.reset();
    EXPECT_EQ(QuestionOf(Start()), "");
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
  EXPECT_NE(QuestionOf(program).find("ケーブルダクト：3件"), std::string::npos);
  const Json state = program->Do("workspace");
  EXPECT_EQ(state["DuctCount"], 3);
  EXPECT_EQ(state["DuctModified"], true);
}

}  // namespace
