#include "shell/settings.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "common/file.h"
#include "tests/support/temporary_folder.h"

namespace shell {
namespace {

void CheckStore(SettingsStore& settings) {
  EXPECT_EQ(settings.Get("ExeScrn", "WinTop"), "");
  EXPECT_TRUE(settings.Set("ExeScrn", "ZephaFile", "/data/計装.zph"));
  EXPECT_TRUE(settings.Set("User", "Company", "株式会社"));
  EXPECT_EQ(settings.Get("ExeScrn", "zephaFile"), "/data/計装.zph");
  EXPECT_EQ(settings.Get("EXESCRN", "ZEPHAFILE"), "/data/計装.zph");
  EXPECT_EQ(settings.Get("User", "ZephaFile"), "") << "sections are apart";
  EXPECT_TRUE(settings.Set("exescrn", "zephafile", ""));
  EXPECT_EQ(settings.Get("ExeScrn", "ZephaFile"), "");
  EXPECT_EQ(settings.Get("User", "Company"), "株式会社");
}

TEST(Settings, BothStoresCompareKeysWithoutCase) {
  MemorySettings memory;
  CheckStore(memory);
  const tests::TemporaryFolder folder;
  FileSettings file(folder / "new/folders/settings.ini");
  CheckStore(file);
}

TEST(Settings, AnyTextSurvivesTheFile) {
  std::string everyByte;
  for (int byte = 0; byte < 256; ++byte) everyByte += static_cast<char>(byte);
  const std::string texts[] = {"",
                               " ",
                               "  blanks at both ends ",
                               "\ttab\t",
                               "two\nlines\r\n",
                               "[section]",
                               "a=b;c#d",
                               "C:\\new\\x41\\計装.zph",
                               "\\",
                               "\\\\",
                               "〜①㎥é😀",
                               "\xEF\xBB\xBF",
                               everyByte,
                               std::string(100'000, 'x')};
  const tests::TemporaryFolder folder;
  const std::string path = folder / "settings.ini";
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    FileSettings(path).Set("User", "key" + std::to_string(i), texts[i]);
    FileSettings(path).Set(texts[i], texts[i], "value" + std::to_string(i));
  }
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(FileSettings(path).Get("User", "key" + std::to_string(i)), texts[i]);
    EXPECT_EQ(FileSettings(path).Get(texts[i], texts[i]), "value" + std::to_string(i));
  }
}

TEST(Settings, ADamagedFileLosesOnlyWhatCannotBeRead) {
  const std::string good = "[User]\nCompany=A\n[ExeScrn]\nWinTop=105\nDataNo=3\n";
  const struct {
    const char* name;
    std::string text, company, top, number;
  } rows[] = {
      {"good", good, "A", "105", "3"},
      {"empty", "", "", "", ""},
      {"CR LF, byte order mark, blanks",
       "\xEF\xBB\xBF[ User ]\r\n Company = A \r\n\r\n; [x]\r\n[ExeScrn]\r\nWinTop=105", "A", "105",
       ""},
      {"cut", good.substr(0, good.find("105") + 1), "A", "1", ""},
      {"line without value", "[User]\nCompany\n[ExeScrn]\nWinTop=105\n", "", "105", ""},
      {"damaged heading", "[User\nCompany=A\n[ExeScrn]\nWinTop=105\n", "", "105", ""},
      {"damaged second heading", "[ExeScrn]\nWinTop=105\n[User\nCompany=A\nWinTop=7\n", "", "105",
       ""},
      {"no heading", "Company=A\n[ExeScrn]\nWinTop=105\n", "", "105", ""},
      {"twice", "[User]\nCompany=B\n[user]\ncompany=A\n", "A", "", ""},
      {"binary in between",
       "[User]\nCompany=A\n" + std::string(3, '\0') + "\xFF\xFE=\n" + "[ExeScrn]\nDataNo=3\n", "A",
       "", "3"},
      {"bad escapes", "[User]\nCompany=\\xG1\\q\\\n[ExeScrn]\nDataNo=3\n", "\\xG1\\q\\", "", "3"},
      {"one line of 5 MB",
       "[User]\nCompany=A\n" + std::string(5'000'000, 'x') + "\n[ExeScrn]\n" + "DataNo=3\n", "A",
       "", "3"},
  };
  const tests::TemporaryFolder folder;
  const std::string path = folder / "settings.ini";
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    common::WriteFile(path, row.text);
    FileSettings settings(path);
    for (const bool written : {false, true}) {
      SCOPED_TRACE(written);
      EXPECT_EQ(settings.Get("User", "Company"), row.company);
      EXPECT_EQ(settings.Get("ExeScrn", "WinTop"), row.top);
      EXPECT_EQ(settings.Get("ExeScrn", "DataNo"), row.number);
      EXPECT_TRUE(settings.Set("ExeScrn", "WinState", "2"));
    }
  }
}

TEST(Settings, WritingLeavesNothingBesideAndKeepsLinks) {
  const tests::TemporaryFolder folder;
  common::WriteFile(folder / "kept elsewhere", "");
  std::filesystem::create_symlink(folder / "kept elsewhere", folder / "settings.ini");
  FileSettings settings(folder / "settings.ini");
  EXPECT_TRUE(settings.Set("User", "Company", "A"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "settings.ini"));
  EXPECT_EQ(common::ReadFile(folder / "kept elsewhere"), "[User]\nCompany=A\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 2);
}

TEST(Settings, DefaultPath) {
  const struct {
    const char *config, *home, *path;
  } rows[] = {
      {"/conf", "/home/a", "/conf/zepha/settings.ini"},
      {nullptr, "/home/a", "/home/a/.config/zepha/settings.ini"},
      {"", "/home/a", "/home/a/.config/zepha/settings.ini"},
      {"relative", "/home/a", "/home/a/.config/zepha/settings.ini"},
      {nullptr, nullptr, ""},
  };
  const auto set = [](const char* name, const char* value) {
    value != nullptr ? setenv(name, value, 1) : unsetenv(name);
  };
  const char* const before = std::getenv("HOME");
  const std::string home = before != nullptr ? before : "";
  for (const auto& row : rows) {
    set("XDG_CONFIG_HOME", row.config);
    set("HOME", row.home);
    EXPECT_EQ(DefaultSettingsPath(), row.path);
  }
  set("XDG_CONFIG_HOME", nullptr);
  set("HOME", home.c_str());
}

TEST(Settings, RowNumbers) {
  const struct {
    const char* text;
    int number;
  } rows[] = {{"", 0},      {"abc", 0}, {"12", 12}, {"32767", 32767}, {"32768", 0},
              {"99999", 0}, {"-3", -3}, {"3x", 0},  {"1.5", 0}};
  for (const auto& row : rows) EXPECT_EQ(RowNumberSetting(row.text), row.number) << row.text;
}

}  // namespace
}  // namespace shell
