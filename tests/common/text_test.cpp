#include "common/text.h"

#include <gtest/gtest.h>

#include "common/fields.h"

namespace common {
namespace {

TEST(Cp932, CarriesTheTextsOfTheSystem) {
  EXPECT_EQ(ToCp932("⊿P"), "\x87\x99P");
  EXPECT_EQ(FromCp932("\x81\x60\x5C"), "～\\");
  for (const char* text : {"⊿P Flow", "制限ｵﾘﾌｨｽ", "mPa･S", "㎜№", "ε－～α", "℃", "設　計"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(FromCp932(ToCp932(text)), text);
    EXPECT_FALSE(FirstOutsideCp932(text).has_value());
  }
}

TEST(Cp932, NamesWhatItLacksAndBearsDamage) {
  EXPECT_EQ(FirstOutsideCp932("kg/m³ é"), "³");
  EXPECT_EQ(ToCp932("m³"), "m?");
  EXPECT_EQ(FromCp932("a\x81"), "a?");
  EXPECT_EQ(FromCp932("\xFF\xFE"), "??");
}

TEST(Cp932Length, CountsColumns) {
  EXPECT_EQ(Cp932Length("FT-101"), 6);
  EXPECT_EQ(Cp932Length("流量ﾒｰﾀ"), 7);
  EXPECT_EQ(PadToBytes("流量", 6), "流量  ");
  EXPECT_EQ(PadLeftToBytes("流量", 6), "  流量");
  EXPECT_EQ(PadToBytes("流量計", 4), "流量計");
}

TEST(TruncateToBytes, KeepsTheCharacterThatCrossesTheLimit) {
  const std::string twentyFive(25, 'x');
  EXPECT_EQ(TruncateToBytes(twentyFive + "あい", 26), twentyFive + "あ");
  EXPECT_EQ(TruncateToBytes(std::string(30, 'x'), 26), std::string(26, 'x'));
  EXPECT_EQ(TruncateToBytes("短い", 26), "短い");
  EXPECT_EQ(TruncateToBytes("", 26), "");
}

TEST(CodePoints, SurvivesDamage) {
  EXPECT_EQ(CodePoints("aβ流𠮷"), U"aβ流𠮷");
  EXPECT_EQ(Utf8(U"aβ流𠮷"), "aβ流𠮷");
  EXPECT_EQ(CodePoints("\xE6\xB5"), U"\uFFFD");
  EXPECT_EQ(CodePoints("\x80z"), U"\uFFFDz");
}

TEST(FileNameOf, EndsTheFolderAtEitherSeparator) {
  EXPECT_EQ(FileNameOf("C:\\plant\\unit1.zph"), "unit1.zph");
  EXPECT_EQ(FileNameOf("/home/a b/unit1.zph"), "unit1.zph");
  EXPECT_EQ(FileNameOf("unit1.zph"), "unit1.zph");
}

std::vector<std::string> FieldsOf(const std::string& bytes) {
  FieldReader reader(bytes);
  std::vector<std::string> fields;
  while (const auto field = reader.Next()) fields.push_back(*field);
  EXPECT_TRUE(reader.AtEnd());
  return fields;
}

TEST(FieldReader, ReadsFieldsWhereverTheLinesBreak) {
  using Fields = std::vector<std::string>;
  EXPECT_EQ(FieldsOf(""), Fields());
  EXPECT_EQ(FieldsOf("\"a\",\"b\"\r\n\"c\""), Fields({"a", "b", "c"}));
  EXPECT_EQ(FieldsOf("\"a\",\n\n \"b\" \n"), Fields({"a", "b"}));
  EXPECT_EQ(FieldsOf("1.5, -2 ,x\n"), Fields({"1.5", "-2", "x"}));
  EXPECT_EQ(FieldsOf("\"1,3-x\",\"\",\"     \""), Fields({"1,3-x", "", "     "}));
  EXPECT_EQ(FieldsOf("\"1/2\"\",\"b\""), Fields({"1/2", "b"}));
  EXPECT_EQ(FieldsOf("\"open"), Fields({"open"}));
  EXPECT_EQ(FieldsOf("\xEF\xBB\xBF\"a\""), Fields({"a"}));
  EXPECT_EQ(FieldsOf(std::string("\"a\0b\"", 5)), Fields({std::string("a\0b", 3)}));
  EXPECT_EQ(FieldsOf(ToCp932("\"表示\",\"流\"")), Fields({"表示", "流"}));  // 表 ends in 5C
}

}  // namespace
}  // namespace common
