// The program itself against a machine that fails it: full disks, folders that nobody may write in,
// files that vanish, settings that cannot be read. Nothing here is simulated.

#include <sys/stat.h>

#include <filesystem>

#include "common/file.h"
#include "tests/support/data_folder.h"
#include "tests/support/program.h"

namespace {

using nlohmann::json;
namespace fs = std::filesystem;

constexpr const char* kPlant = ZEPHA_SOURCE_DIR "/samples/plant.zph";
constexpr const char* kDucts = ZEPHA_SOURCE_DIR "/samples/ducts.dct";
constexpr const char* kNotSaved = "データは保存されていません。";

/// The texts that an answer says were shown, one behind the other.
std::string Shown(const json& answer) {
  std::string texts;
  for (const json& message : answer.value("messages", json::array())) {
    texts += message["text"].get<std::string>() + "\n";
  }
  return texts;
}

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

std::string ReadOnly(const std::string& folder) {
  return "mount --bind '" + folder + "' '" + folder + "'; mount -o remount,ro,bind '" + folder +
         "'";
}

std::string SmallDisk(const std::string& folder) {
  return "mount -t tmpfs -o size=16k small '" + folder + "'";
}

class Faults : public testing::Test {
 protected:
  Faults() {
    fs::create_directory(place);
    fs::copy(kPlant, plant);
    fs::copy(kDucts, ducts);
    common::WriteFile(place + "/file", "kept");
    fs::create_directory(folderPath);
    fs::create_symlink(place + "/none/gone", brokenLink);
    fs::create_symlink("/dev/full", full);
    mkfifo(pipe.c_str(), 0666);
  }

  /// Whether the file is read as a whole by a program of its own; what that one shows otherwise.
  std::string Refused(const std::string& path) const {
    tests::Program program({});
    if (path == ducts) program.Do("open CableDuct");
    return Shown(program.Do("load " + path));
  }

  tests::TemporaryFolder folder;
  const std::string place = folder / "計器 データ (1)";
  const std::string plant = place + "/plant.zph";
  const std::string ducts = place + "/ducts.dct";
  const std::string folderPath = place + "/folder.d";
  const std::string brokenLink = place + "/broken.link";
  const std::string full = place + "/full.device";
  const std::string pipe = place + "/pipe.p";
};

/// Exchanges the first two tags or ducts.
void Change(tests::Program& program, bool duct) {
  if (duct) program.Do("menu mnuTagList");
  EXPECT_TRUE(program.Do(duct ? "pick frmDuctList!lstDuct 0" : "pick frmTagList!lstTagNo 0")["ok"]);
  EXPECT_TRUE(program.Do(duct ? "click frmDuctList!cmdDown" : "click frmTagList!cmdDown")["ok"]);
}

TEST_F(Faults, AFailedSaveIsToldAndTheTagsStay) {
  const struct {
    const char* name;
    std::string path, sentence, mounts;
  } rows[] = {
      {"full device", full, "ディスクの空き容量が不足しています。", ""},
      {"disk that fills up", folderPath + "/a.zph", "ディスクの空き容量が不足しています。",
       SmallDisk(folderPath)},
      {"read-only folder", folderPath + "/a.zph", "アクセスが許可されていません。",
       ReadOnly(folderPath)},
      {"no folder", place + "/none/a.zph", "保存先のフォルダが見つかりません。", ""},
      {"through a file", place + "/file/a.zph", "保存先のフォルダが見つかりません。", ""},
      {"link to nowhere", brokenLink, "保存先のフォルダが見つかりません。", ""},
      {"a folder", folderPath, "ファイルではなくフォルダです。", ""},
      {"a pipe that nobody reads", pipe, "通常のファイルではありません。", ""},
      {"long name", place + "/" + std::string(300, 'x') + ".zph", "ファイル名が長すぎます。", ""},
  };
  for (const bool duct : {false, true}) {
    const std::string& file = duct ? ducts : plant;
    for (const auto& row : rows) {
      SCOPED_TRACE(testing::Message() << row.name << (duct ? ", ducts" : ""));
      if (duct && !row.mounts.empty()) continue;  // four ducts fit on any disk
      if (!row.mounts.empty() && !tests::MountsAllowed()) continue;
      tests::Surroundings around;
      around.mounts = row.mounts;
      const std::string before = common::ReadFile(file);
      tests::Program program({}, around);
      if (duct) program.Do("open CableDuct");
      program.Do("load " + file);
      Change(program, duct);
      const json failed = program.Do("save " + row.path);
      EXPECT_EQ(failed["messages"].size(), 1U);
      EXPECT_TRUE(Has(Shown(failed), row.sentence)) << failed;
      EXPECT_TRUE(Has(Shown(failed), kNotSaved)) << failed;
      EXPECT_EQ(failed[duct ? "DuctModified" : "TagModified"], true);
      EXPECT_EQ(program.Do("workspace")[duct ? "DuctFileName" : "ZephaFileName"], file);
      EXPECT_TRUE(common::ReadFile(file) == before);
      const json saved = program.Do("save");
      EXPECT_EQ(Shown(saved), "");
      EXPECT_EQ(saved[duct ? "DuctModified" : "TagModified"], false);
      EXPECT_FALSE(common::ReadFile(file) == before);
      EXPECT_EQ(Refused(file), "");
      EXPECT_EQ(program.End(), 0);
    }
  }
  if (!tests::MountsAllowed()) GTEST_SKIP() << "no mounts of one's own here: two rows left out";
}

// The disk ends at any place of the file, among them the ends of records, behind which a file of
// fewer tags could end.
TEST_F(Faults, AFileCutShortIsNeverTakenForAShorterOne) {
  const std::string whole = common::ReadFile(plant);
  std::size_t record = 0;
  for (int i = 0; i < 31; ++i) record = whole.find('\n', record) + 1;
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{4096}, record - 3,
                                 record - 2, record - 1, record, record + 1, whole.size() - 1}) {
    SCOPED_TRACE(size);
    fs::copy(kPlant, plant, fs::copy_options::overwrite_existing);
    tests::Surroundings around;
    around.largestFile = size;
    tests::Program program({}, around);
    EXPECT_EQ(program.Do("load " + plant)["TagCount"], 61);
    const json failed = program.Do("save");
    EXPECT_TRUE(Has(Shown(failed), "ファイルが大きすぎます。")) << failed;
    EXPECT_TRUE(Has(Shown(failed), kNotSaved));
    // The disk no longer has what the memory has, although nothing was edited.
    EXPECT_EQ(failed["TagModified"], true);
    tests::Program next({});
    const json refused = next.Do("load " + plant);
    if (common::ReadFile(plant) == whole) continue;  // not touched at all
    EXPECT_EQ(Shown(refused), "ファイルのデータが途中で終わっています。\n");
    EXPECT_EQ(refused["TagCount"], 0);
    EXPECT_EQ(next.Do("workspace")["ZephaFileName"], "");
  }
  const std::string list = common::ReadFile(ducts);
  const std::size_t second = list.find('\n', list.find('\n') + 1) + 1;
  tests::Surroundings around;
  around.largestFile = second;
  tests::Program program({}, around);
  program.Do("open CableDuct");
  program.Do("load " + ducts);
  EXPECT_EQ(program.Do("save")["DuctModified"], true);
  tests::Program next({});
  next.Do("open CableDuct");
  const json refused = next.Do("load " + ducts);
  EXPECT_TRUE(Has(Shown(refused), "ファイルのデータが途中で終わっています。"));
  EXPECT_EQ(refused["DuctCount"], 1);  // the one that is whole
  EXPECT_EQ(next.Do("workspace")["DuctFileName"], "");
}

TEST_F(Faults, AnOpenFileMayVanish) {
  tests::Program program({});
  const std::string work = place + "/work";
  const std::string path = work + "/plant.zph";
  const auto begin = [&] {
    fs::remove_all(work);
    fs::create_directory(work);
    fs::copy(kPlant, path);
    EXPECT_EQ(program.Do("load " + path)["TagCount"], 61);
    Change(program, false);
  };
  begin();
  fs::remove(path);
  EXPECT_EQ(Shown(program.Do("save")), "");
  EXPECT_EQ(Refused(path), "");
  begin();
  fs::remove_all(work);
  EXPECT_TRUE(Has(Shown(program.Do("save")), "保存先のフォルダが見つかりません。"));
  begin();
  fs::remove(path);
  fs::create_directory(path);
  const json failed = program.Do("save");
  EXPECT_TRUE(Has(Shown(failed), kNotSaved));
  EXPECT_EQ(failed["TagModified"], true);
  EXPECT_EQ(Shown(program.Do("save " + plant)), "");
  EXPECT_EQ(Refused(plant), "");
}

TEST_F(Faults, WhatCannotBeReadIsTold) {
  const std::string missing = "が見つかりません。";
  const struct {
    std::string path, sentence;
  } rows[] = {
      {place + "/none.zph", missing},
      {place + "/none/a.zph", missing},
      {place + "/file/a.zph", missing},
      {brokenLink, missing},
      {folderPath, "ファイルではなくフォルダです。"},
      {pipe, "通常のファイルではありません。"},
      {"/dev/zero", "通常のファイルではありません。"},
      {"/proc/self/mem",
       "ディスクまたはネットワークの読み書きに失敗しました。"},  // no page at address 0
  };
  tests::Program program({});
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path);
    EXPECT_EQ(program.Do("load " + plant)["TagCount"], 61);
    const json answer = program.Do("load " + row.path);
    EXPECT_EQ(answer["messages"].size(), 1U);
    const std::string text = row.sentence == missing
                                 ? "ＺＥＰＨＡのデータファイル\n" + row.path + "\n" + missing
                                 : row.path + "\n" + row.sentence;
    EXPECT_TRUE(Has(Shown(answer), text)) << answer;
    EXPECT_EQ(answer["TagCount"], 0);
    EXPECT_EQ(program.Do("workspace")["ZephaFileName"], "");
  }
}

// Pages and workbooks: what was not written whole is never called written.
TEST_F(Faults, PagesAndWorkbooksFailAloud) {
  const struct {
    const char* name;
    std::string path, mounts;
    rlim_t limit;
  } rows[] = {
      {"full device", full, "", RLIM_INFINITY},
      {"disk that fills up", folderPath + "/a", SmallDisk(folderPath), RLIM_INFINITY},
      {"read-only folder", folderPath + "/a", ReadOnly(folderPath), RLIM_INFINITY},
      {"largest file", place + "/a", "", 8192},
      {"no folder", place + "/none/a", "", RLIM_INFINITY},
      {"a folder", folderPath, "", RLIM_INFINITY},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    if (!row.mounts.empty() && !tests::MountsAllowed()) continue;
    tests::Surroundings around{{}, row.limit, row.mounts};
    tests::Program program({}, around);
    program.Do("load " + plant);
    program.Do("recall 1");
    for (const char* verb : {"print ", "printall ", "export "}) {
      SCOPED_TRACE(verb);
      const json answer = program.Do(verb + row.path);
      EXPECT_EQ(answer["ok"], false) << answer;
      if (row.limit != RLIM_INFINITY) continue;
      const std::string elsewhere = place + "/elsewhere";
      EXPECT_EQ(program.Do(verb + elsewhere)["ok"], true);
      EXPECT_GT(fs::file_size(elsewhere), 5000U);
      fs::remove(elsewhere);
    }
    EXPECT_EQ(program.End(), 0);
  }
}

TEST_F(Faults, AnswersThatNobodyGetsAreNoSuccess) {
  const std::string run = "echo workspace | " ZEPHA_BUILD_DIR "/zepha-headless 2>/dev/null >";
  EXPECT_EQ(std::system((run + "/dev/null").c_str()), 0);
  EXPECT_NE(std::system((run + "/dev/full").c_str()), 0);
}

// There is no printer and no program for workbooks: the user learns where the workbook is, and that
// there is none when it could not be made.
TEST_F(Faults, AWorkbookIsFoundWithoutAProgramForIt) {
  for (const bool diskFull : {false, true}) {
    SCOPED_TRACE(diskFull);
    if (diskFull && !tests::MountsAllowed()) continue;
    const std::string temporary = folderPath;
    tests::Surroundings around;
    around.environment = {{"TMPDIR", temporary}};
    if (diskFull) around.mounts = SmallDisk(temporary);
    tests::Program program({}, around);
    program.Do("load " + plant);
    program.Do("recall 1");
    EXPECT_EQ(Shown(program.Do("menu mnuPrint")), "");  // the dialogue is cancelled
    EXPECT_TRUE(program.Do("open frmZepha2Excel")["ok"]);
    const std::string shown = Shown(program.Do("click cmdExchangeStart"));
    const std::string book = temporary + "/plant.xlsx";
    const bool stands = fs::exists(book);
    fs::remove(book);
    EXPECT_EQ(Has(shown, "変換は終了しました。"), !diskFull) << shown;
    EXPECT_EQ(Has(shown, "次のファイルに保存してあります。\n" + book), !diskFull) << shown;
    EXPECT_EQ(Has(shown, "空き容量"), diskFull) << shown;
    EXPECT_EQ(stands, !diskFull);
  }
}

/// The editors of the data files beside the program.
struct Editor {
  const char *file, *menu, *change, *save;
};
constexpr Editor kEditors[] = {
    {"Liqprop.dat", "mnuEditPropData", "type txtItemData(2) 1234.5", "click cmdSaveProp"},
    {"ValveSpec.dat", "mnuCVcatalog", "type txtFL 0.517", "click cmdDataSave"},
    {"Material.dat", "mnuMaterial", "type txtMaterialName 鋼 1", "click cmdDataSave"},
    {"単位変換.dat", "mnuUnit", "click cmdSort", "click cmdSave"},
    {"UserProgram.dat", "mnuUserProgram", "type txtUserProTitle(0) 電卓", "click cmd登録"},
};

TEST_F(Faults, EditorsKeepWhatTheFolderOfTheProgramRefuses) {
  for (const bool readOnly : {false, true}) {
    if (readOnly && !tests::MountsAllowed()) continue;
    for (const Editor& editor : kEditors) {
      SCOPED_TRACE(std::string(editor.file) + (readOnly ? ", read-only" : ", full"));
      const tests::DataFolder data;
      const std::string path = data.File(editor.file);
      common::WriteFile(data.File("UserProgram.dat"), "\"a\",\"b\"\r\n");
      const std::string before = common::ReadFile(path);
      tests::Surroundings around;
      if (readOnly) around.mounts = ReadOnly(data.Path());
      tests::Program program({"--install-dir", data.Path()}, around);
      EXPECT_EQ(Shown(*program.started), "");
      EXPECT_TRUE(program.Do(std::string("menu ") + editor.menu)["ok"]);
      EXPECT_TRUE(program.Do(editor.change)["ok"]);
      if (!readOnly) {
        fs::remove(path);
        fs::create_symlink("/dev/full", path);
      }
      const json failed = program.Do(editor.save);
      EXPECT_EQ(failed["messages"].size(), 1U);
      EXPECT_TRUE(Has(Shown(failed), path)) << failed;
      EXPECT_TRUE(Has(Shown(failed), readOnly ? "アクセスが許可されていません。"
                                              : "ディスクの空き容量が不足しています。"));
      EXPECT_TRUE(Has(Shown(failed), kNotSaved)) << failed;
      if (!readOnly) {
        fs::remove(path);
        EXPECT_EQ(Shown(program.Do(editor.save)), "");
        EXPECT_FALSE(common::ReadFile(path) == before);
        tests::Program next({"--install-dir", data.Path()});
        EXPECT_EQ(Shown(*next.started), "");
      } else {
        EXPECT_TRUE(common::ReadFile(path) == before);
      }
      EXPECT_EQ(program.End(), 0);
    }
  }
}

TEST_F(Faults, SettingsThatCannotBeUsedStopNothing) {
  const std::string huge = place + "/huge";
  common::WriteFile(huge, "[User]\n");
  fs::resize_file(huge, 65U << 20);
  const struct {
    std::string path, mounts;
  } rows[] = {
      {folderPath, ""},
      {place + "/file/settings.ini", ""},
      {brokenLink, ""},
      {pipe, ""},
      {"/proc/self/mem", ""},
      {full, ""},
      {huge, ""},
      {folderPath + "/a/settings.ini", ReadOnly(place)},
      {"/dev/null/settings.ini", ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path);
    if (!row.mounts.empty() && !tests::MountsAllowed()) continue;
    tests::Surroundings around;
    around.mounts = row.mounts;
    tests::Program program({"--settings", row.path}, around);
    ASSERT_TRUE(program.started.has_value());
    EXPECT_EQ(Shown(*program.started), "");
    EXPECT_EQ(program.Do("load " + plant)["TagCount"], 61);
    EXPECT_EQ(program.Do("quit")["ok"], true);
    EXPECT_EQ(program.End(), 0);
  }
  EXPECT_EQ(fs::file_size(huge), 65U << 20);
  for (const auto& entry : fs::directory_iterator(place)) {
    EXPECT_FALSE(entry.path().extension() == ".new") << entry.path();
  }
}

}  // namespace
