#include "shell/user_programs.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "common/fault.h"
#include "common/file.h"
#include "common/text.h"
#include "tests/support/temporary_folder.h"

namespace shell {
namespace {

TEST(UserPrograms, StripsOneQuoteAtEachEnd) {
  const struct {
    const char *text, *stripped;
  } rows[] = {{"", ""},          {"\"", ""},       {"\"\"", ""},
              {"\"\"\"", "\""},  {"a b", "a b"},   {"\"a b\"", "a b"},
              {"\"a b", "a b"},  {"a b\"", "a b"}, {"\"\"a\"\"", "\"a\""},
              {" \"a\"", " \"a"}};
  for (const auto& row : rows) EXPECT_EQ(WithoutOuterQuotes(row.text), row.stripped) << row.text;
}

TEST(UserPrograms, ReadsWhatIsThere) {
  const std::string one = "\"電卓\",\"/opt/my tools/calc\"\r\n";
  const struct {
    const char* name;
    std::string text;
    int records;
  } rows[] = {
      {"empty", "", 0},
      {"one", one, 1},
      {"one and a half", one + "\"電卓\"", 1},
      {"three", one + one + one, 3},
      {"four", one + one + one + one, 3},
      {"no line ends", "\"電卓\",\"/opt/my tools/calc\",\"電卓\",\"/opt/my tools/calc\"", 2},
  };
  const tests::TemporaryFolder folder;
  const UserPrograms none;
  EXPECT_TRUE(ReadUserPrograms(folder.Path()) == none) << "no file";
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    common::WriteFile(folder / "UserProgram.dat", common::ToCp932(row.text));
    UserPrograms expected;
    std::fill_n(expected.begin(), row.records, UserProgram{"電卓", "/opt/my tools/calc"});
    EXPECT_TRUE(ReadUserPrograms(folder.Path()) == expected);
  }
}

TEST(UserPrograms, WritesCp932AndStripsCommandsAlone) {
  const tests::TemporaryFolder folder;
  UserPrograms programs = {{{"表", "\"C:\\my tools\\表.exe\""}, {"", ""}, {"b, c", "/bin/b -c"}}};
  WriteUserPrograms(folder.Path(), programs);
  EXPECT_EQ(programs[0].command, "C:\\my tools\\表.exe");
  // 表 is 95 5C in CP932; its second byte is no backslash.
  EXPECT_EQ(
      common::ReadFile(folder / "UserProgram.dat"),
      "\"\x95\x5C\",\"C:\\my tools\\\x95\x5C.exe\"\r\n\"\",\"\"\r\n\"b, c\",\"/bin/b -c\"\r\n");
  EXPECT_TRUE(ReadUserPrograms(folder.Path()) == programs);
}

TEST(UserPrograms, RefusesWhatTheFileCannotHoldAndKeepsIt) {
  const tests::TemporaryFolder folder;
  UserPrograms good = {{{"a", "b"}, {}, {}}};
  WriteUserPrograms(folder.Path(), good);
  const std::string before = common::ReadFile(folder / "UserProgram.dat");
  for (const char* const text : {"é", "\"a\", b"}) {
    UserPrograms programs = {{{"x", "y"}, {text, ""}, {}}};
    EXPECT_THROW(WriteUserPrograms(folder.Path(), programs), common::RuntimeFault);
    EXPECT_EQ(common::ReadFile(folder / "UserProgram.dat"), before);
  }
}

}  // namespace
}  // namespace shell
