// Whatever the user's language and character set: the same answers, files, pages and workbooks.

#include <filesystem>
#include <fstream>

#include "common/file.h"
#include "tests/support/data_folder.h"
#include "tests/support/program.h"

namespace {

namespace fs = std::filesystem;

struct Results {
  std::vector<std::string> answers;
  std::string plant, plantAgain, pages, workbook;
};

class Locales : public testing::Test {
 protected:
  Locales() { fs::create_directories(place); }

  /// Enters and calculates the whole sample plant, prints and exports it, and calculates and saves
  /// on: what writes pages takes up the locale.
  Results Run(const std::string& name) {
    tests::Surroundings around;
    around.environment = {{"LC_ALL", name}, {"LANG", name}, {"LOCPATH", definitions}};
    tests::Program program({"--install-dir", data.Path(), "--settings", place + "/設定 (1).ini"},
                           around);
    Results results;
    const auto run = [&](const std::string& line) {
      results.answers.push_back(program.Do(line).dump());
    };
    std::ifstream script(ZEPHA_SOURCE_DIR "/samples/plant.script");
    for (std::string line; std::getline(script, line);) {
      if (!line.empty() && line[0] != '#' && !line.starts_with("save") && line != "quit") run(line);
    }
    run("save " + place + "/計装.zph");
    run("printall " + place + "/計算書.pdf");
    run("export " + place + "/一覧.xlsx");
    for (const char* form : {"⊿P Flow", "CV", "圧力損失"}) {
      run(std::string("open ") + form);
      run("dump");
    }
    run("recall 1");
    run("click frmOrifice!cmd計算");
    run("register");
    run("save " + place + "/再.zph");
    results.plant = Taken("計装.zph");
    results.plantAgain = Taken("再.zph");
    results.pages = tests::OutputOf("pdftotext -layout '" + place + "/計算書.pdf' -");
    results.workbook =
        tests::OutputOf(ZEPHA_SOURCE_DIR "/tests/support/read-workbook '" + place + "/一覧.xlsx'");
    EXPECT_EQ(program.End(), 0);
    for (const char* file : {"計算書.pdf", "一覧.xlsx", "設定 (1).ini"}) {
      EXPECT_TRUE(fs::remove(place + "/" + file)) << file;
    }
    return results;
  }

  std::string Taken(const std::string& file) {
    const std::string path = place + "/" + file;
    std::string bytes = common::ReadFile(path);
    fs::remove(path);
    return bytes;
  }

  const tests::DataFolder data;
  const tests::TemporaryFolder folder;
  const std::string place = folder / "計器 データ (1)";
  const std::string definitions = folder / "locales";
};

TEST_F(Locales, ChangeNothing) {
  const struct {
    const char *name, *source, *charset;
  } rows[] = {
      {"C", "", ""},
      {"de_DE.UTF-8", "de_DE", "UTF-8"},
      {"ja_JP.eucJP", "ja_JP", "EUC-JP"},
      {"xx_XX.none", "", ""},  // none that there is
  };
  const Results usual = Run("C.UTF-8");
  EXPECT_GT(usual.answers.size(), 1700U);
  EXPECT_GT(usual.workbook.size(), 10000U);
  EXPECT_TRUE(usual.plant == common::ReadFile(ZEPHA_SOURCE_DIR "/samples/plant.zph"));
  fs::create_directory(definitions);
  std::string missing;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string make = std::string("localedef -i ") + row.source + " -f " + row.charset +
                             " '" + definitions + "/" + row.name + "' >/dev/null 2>&1";
    if (row.source[0] != '\0' && std::system(make.c_str()) != 0) {
      missing.append(" ").append(row.name);
      continue;
    }
    const Results other = Run(row.name);
    ASSERT_EQ(other.answers.size(), usual.answers.size());
    for (std::size_t i = 0; i < usual.answers.size(); ++i) {
      ASSERT_EQ(other.answers[i], usual.answers[i]);
    }
    EXPECT_TRUE(other.plant == usual.plant);
    EXPECT_TRUE(other.plantAgain == usual.plantAgain);
    EXPECT_TRUE(other.pages == usual.pages);
    EXPECT_TRUE(other.workbook == usual.workbook);
  }
  if (!missing.empty()) GTEST_SKIP() << "not tried, package locales is missing:" << missing;
}

}  // namespace
