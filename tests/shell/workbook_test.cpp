// Workbooks are read back by tests/support/read-workbook, which uses another library than the one
// that wrote them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

#include "common/file.h"
#include "shell/instrument_file.h"
#include "shell/workbook_export.h"
#include "shell/workspace.h"
#include "tests/support/fault_of.h"
#include "tests/support/recording_presenter.h"
#include "tests/support/temporary_folder.h"

namespace shell {
namespace {

using nlohmann::json;

struct ExpectedSheet {
  const char* kind;
  /// By column, divided by bars.
  const char* titles;
  /// Columns with 0 to 4 decimals; all others are general.
  const char* formats[5];
  /// Texts of the record that are no plain numbers; column n of all others holds "1,0nn.5".
  std::map<std::size_t, std::string> record;
  /// By column, divided by bars: "#n" the number 1000 + n + 0.5, "$n" the text of column n, "=" a
  /// number, "-" an empty cell, anything else a text.
  const char* cells;
};

const std::vector<ExpectedSheet>& Expected() {
  static const std::vector<ExpectedSheet> kExpected = {
      {"⊿P Flow",
       "Tag "
       "No.|用途|絞り機構種類|流体|目盛流量|常用流量|単位|圧力|単位|温度|単位|密度|単位|粘性係数|"
       "単位|相対湿度(%)|計算基準|"
       "飽和水蒸気圧|単位|偏差係数|比熱比|絞り部材質|絞り部膨張率|配管呼称径|配管種類|ｽｹｼﾞｭｰﾙ|"
       "配管内径|配管線膨張率|設計差圧|単位|"
       "絞り径(mm)|使用状態密度|最大ﾚｲﾉﾙｽﾞ数|常用ﾚｲﾉﾙｽﾞ数|流出係数|流量係数|膨張補正係数|β|"
       "四分円半径|下流Tap位置|永久圧損|"
       "単位|使用下限(%FS)|使用上限(%FS)",
       {"E:E,F:F,W:W,AC:AC,AH:AH,AQ:AQ,AR:AR", "J:J,AA:AA", "A:A,AD:AD,AE:AE,AO:AO", "H:H,U:U",
        "L:L,N:N,T:T,Z:Z,AF:AF,AK:AK,AL:AL"},
       {{2, "9"},
        {3, "1"},
        {5, "6"},
        {8, "3"},
        {10, "1"},
        {12, "3"},
        {14, "2"},
        {16, "False"},
        {18, "3"},
        {29, "5"},
        {39, "Uf 51.2"},
        {38, " "},
        {22, "       "}},
       "$0|$1|板金溶接入口円すい管付きベンチュリ管|気体|#4|#6|Sm3/h|#7|mmH2OG|#9|ﾟＫ|#11|kg/"
       "Sm3|#13|"
       "cSt|#15|DryBase|#17|atm|#19|#20|$21|-|$23|$24|$25|#26|#27|#28|mbar|#30|"
       "#43|#32|#33|#34|#35|#36|#37|-|Uf 51.2|#40|mbar|#41|#42"},
      {"Integral",
       "Tag "
       "No.|用途|計器型式|流体|目盛流量|常用流量|単位|圧力|単位|温度|単位|密度|単位|粘性係数|単位|"
       "相対湿度(%)||飽和水蒸気圧|"
       "単位|偏差係数|比熱比|ｵﾘﾌｨｽ番号|常用ﾚｲﾉﾙｽﾞ数|補正係数Kaf|流量係数α|膨張補正係数|水相当流量|"
       "空気相当流量|差圧(mmH2O)|"
       "差圧(kPa)|永久圧損(mmH2O)|永久圧損(kPa)",
       {"E:E,F:F,W:W,AC:AC,AE:AE", "J:J", "A:A,AD:AD,AF:AF", "H:H,U:U,AA:AA,AB:AB",
        "L:L,N:N,T:T,Z:Z,Y:Y"},
       {{2, "4"},
        {3, "0"},
        {5, "3"},
        {8, "0"},
        {10, "0"},
        {12, "1"},
        {14, "1"},
        {16, ""},
        {18, "-1"},
        {31, "6"}},
       "$0|$1|13mm系（100～40000mmH2O）|液体|#4|#6|L/min|#7|kPaG|#9|℃|#11|g/cm3|#13|cP|"
       "#15|-|#17|-|#19|#20|7|#32|#33|#34|#35|#36|#37|#38|#39|#40|#41"},
      {"Vortex",
       "Tag "
       "No.|用途|流体|目盛流量|最少流量|単位|圧力|単位|温度|単位|密度|単位|粘性係数|単位|偏差係数|"
       "飽和蒸気圧|単位|メーカー|"
       "ﾒｰﾀｰｻｲｽﾞ|測定下限(%FS)|測定上限(%FS)|圧力損失(mmH2O)|周波数(Hz)|備考",
       {"D:D,E:E,T:T,U:U,V:V", "I:I,W:W", "P:P", "G:G", ""},
       {{2, "2"},
        {4, "1"},
        {7, "6"},
        {9, "2"},
        {11, "0"},
        {13, "0"},
        {16, "6"},
        {17, "3"},
        {18, "80"},
        {19, "9.5;112.4;1250;98.7;ｷｬﾋﾞﾃｰｼｮﾝ"}},
       "$0|$1|蒸気|#3|#5|t/h|#6|psiG|#8|ﾟＦ|#10|kg/m3|#12|mPa･s|#14|#15|psiA|トキコ|"
       "=80|=9.5|=112.4|=1250|=98.7|ｷｬﾋﾞﾃｰｼｮﾝ"},
      {"TW",
       "Tag "
       "No.|用途|流体|圧力|単位|温度|単位|密度|単位|粘性係数|単位|設置形式|管内径/回転数/流速|流量/"
       "ｲﾝﾍﾟﾗｰ直径|単位|"
       "攪拌槽内径|保護管材質|保護管密度|ヤング率|単位|許容応力|単位|先端外経(mm)|根元外経(mm)|"
       "保護管内径(mm)|保護管長(mm)|"
       "挿入長(mm)|先端厚さ(mm)|臨界減衰係数|応力集中係数|流速(m/"
       "s)|レイノルズ数|ストローハル数|カルマン渦波数|1次固有振動数|換算流速(Vr)|"
       "換算減衰率(Cn)|判定|定常抗力|単位|判定|ランダム励振力|単位|判定",
       {"N:N,R:R,S:S,Z:Z,AA:AB", "F:F,U:U,AE:AH", "AD:AD,AI:AL", "D:D,AC:AC,AM:AO", ""},
       {{2, "0"},
        {4, "1"},
        {6, "0"},
        {8, "1"},
        {10, "0"},
        {11, "1"},
        {14, "1"},
        {20, "0"},
        {22, "2"},
        {39, "255"},
        {40, "同期"},
        {42, "-2147483640"},
        {43, "可"},
        {45, "0"},
        {46, "  "},
        {49, "Ver 2.2"}},
       "$0|$1|液体|#3|MPaG|#5|℃|#7|g/cm3|#9|mPa･s|攪拌槽|#13|#12|mm|#15|$17|#18|#19|"
       "kgf/mm2|#21|MPa|#23|#24|#25|#26|#27|#28|#29|#30|#31|#32|#33|#34|#36|#37|"
       "#38|　×|#41|MPa|　○|#44|MPa|判定出来ず"},
      {"測温体",
       "Tag "
       "No.|用途|Maker|Model|下限目盛|上限目盛|単位|測温体種類|0％指示|出力|１０％指示|出力|"
       "２０％指示|出力|３０％指示|"
       "出力|４０％指示|出力|５０％指示|出力|６０％指示|出力|７０％指示|出力|８０％指示|出力|"
       "９０％指示|出力|１００％指示|出力",
       {"", "", "", "", ""},
       {{6, ""}, {7, "8"}},
       "$0|$1|$2|$3|#4|#5|℃|Pt100|#8|#19|#9|#20|#10|#21|#11|#22|#12|#23|#13|#24|"
       "#14|#25|#15|#26|#16|#27|#17|#28|#18|#29"},
      {"CV",
       "Tag "
       "No.|用途|流体|最大流量|単位|圧力|単位|計算基準|差圧/"
       "下流圧|単位|温度|単位|密度|単位|粘性係数|単位|飽和蒸気圧|単位|"
       "臨界圧力|単位|偏差係数|比熱比|FCI計算Ｃv|ISA計算Ｃv|メーカー|弁モデル|ＦＬ|N係数|"
       "内弁サイズ|弁Ｆｄ|弁Ｃv|ﾚﾝｼﾞｱﾋﾞﾘﾃｨ|"
       "弁特性|弁本体呼称径|フランジ規格|弁口径(mm)|上流配管外径(mm)|上流配管厚(mm)|下流配管外径("
       "mm)|下流配管厚(mm)|配管材質|"
       "管壁単位重量|ｻｲｼﾞﾝｸﾞＣv|弁開度|下流流速|騒音",
       {"D:D,AJ:AJ,AR:AR,AT:AT", "K:K,S:S,AB:AB,AK:AN,AP:AP,AS:AS", "AA:AA,AD:AD",
        "F:F,I:I,Q:Q,V:V", "M:M,O:O"},
       {{2, "1"},
        {4, "5"},
        {6, "2"},
        {7, "True"},
        {8, "下流圧"},
        {10, "6"},
        {12, "0"},
        {14, "4"},
        {16, "0"},
        {18, "2"},
        {20, "1"},
        {28, " JPI 300#"}},
       "$0|$1|気体|#3|Nm3/h|#5|kgf/cm2G|下流圧|#9|kgf/cm2G|#11|℃|#13|比重(G)|#15|mPa･s|"
       "#17|kgf/cm2A|#19|MPaA|#21|#22|#23|#24|$25|$27|#29|#30|$31|#32|#33|#34|$35|"
       "$37| JPI 300#|#26|#38|#39|#40|#41|$42|#44|#45|#46|#47|#48"},
      {"圧力損失",
       "Tag "
       "No.|用途|流体|流量|単位|圧力|単位|温度|単位|密度|単位|粘性係数|単位|相対湿度(%)|"
       "飽和水蒸気圧|単位|偏差係数|配管呼称径|"
       "ｽｹｼﾞｭｰﾙ|配管内径|管内粗さ|配管長さ|45ﾟｴﾙﾎﾞｰ|90ﾟｴﾙﾎﾞｰ|180ﾟﾍﾞﾝﾄﾞ|ティー|ｸﾞﾛｰﾌﾞ弁|ｱﾝｸﾞﾙ弁|"
       "ｹﾞｰﾄ弁|"
       "ﾀﾞｲｱﾌﾗﾑ弁|ﾊﾞﾀﾌﾗｲ弁|ﾁｪｯｸ弁|配管入口形状|入口管径比率|入口円錐角度|出口管径比率|出口円錐角度|"
       "関係粗度|レイノルズ数|入口流速(m/s)|"
       "出口流速(m/s)|ζin|ζout|入口圧損|出口圧損|配管λ|付属品ζ|全圧力損失|単位",
       {"D:D,V:V,AM:AM", "H:H,T:T", "U:U,AH:AH,AJ:AJ,AN:AO,AU:AU", "F:F,AP:AQ",
        "J:J,L:L,O:O,AR:AR,AS:AT,AV:AV"},
       {{2, "2"},
        {4, "0"},
        {6, "3"},
        {8, "0"},
        {10, "0"},
        {12, "0"},
        {15, "5"},
        {17, "24"},
        {18, "0"}},
       "$0|$1|蒸気|#3|kg/h|#5|mmH2OG|#7|℃|#9|kg/m3|#11|mPa･s|#13|#14|barA|#16|26in|"
       "SGP|#19|#20|#21|#22|#23|#24|#25|#26|#27|#28|#29|#30|#31|#32|#33|#34|#35|"
       "#36|#37|#40|#41|#42|#43|#44|#45|#46|#39|#48|#47|mmH2O"},
      {"制限ｵﾘﾌｨｽ",
       "Tag "
       "No.|用途|流体|流量|単位|圧力|単位|差圧|単位|温度|単位|密度|単位|粘性係数|単位|相対湿度(%)|"
       "飽和水蒸気圧|単位|圧縮係数|"
       "比熱比|ＲＯ材質|ヤング率|単位|許容応力|単位|配管呼称径|ｽｹｼﾞｭｰﾙ|配管内径(mm)|板厚(mm)|"
       "入口流速(m/s)|流量係数|背圧補正|"
       "絞り比(β)|絞り径|応力係数|たわみ係数|最大応力|変形量(mm)",
       {"D:D,V:V", "J:J,X:X,AB:AB,AC:AC", "AD:AE,AH:AL", "F:F,H:H,S:S,AF:AF", "L:L,N:N,AG:AG"},
       {{3, "0"},
        {5, "2"},
        {7, "0"},
        {9, "1"},
        {11, "0"},
        {13, "0"},
        {15, "1"},
        {18, "0"},
        {23, "1"},
        {25, "0"}},
       "$0|$1|液体|#4|L/h|#6|kPaG|#8|MPa|#10|℃|#12|kg/m3|#14|cP|#16|#17|kPaA|#19|"
       "#20|$21|#22|N/mm2|#24|kgf/mm2|$26|$27|#28|#29|#30|#31|#32|#33|#34|#35|#36|"
       "#38|#40"},
  };
  return kExpected;
}

std::vector<std::string> Split(const std::string& text, char divider) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, divider);) parts.push_back(part);
  return parts;
}

std::size_t ColumnOf(const std::string& letters) {
  std::size_t number = 0;
  for (const char letter : letters) number = number * 26 + static_cast<std::size_t>(letter - '@');
  return number - 1;
}

std::string PlainText(std::size_t column) {
  return (column < 10 ? "1,00" : "1,0") + std::to_string(column) + ".5";
}

TagRow RecordOf(const ExpectedSheet& sheet) {
  TagRow record;
  for (std::size_t column = 0; column < record.size(); ++column) record[column] = PlainText(column);
  for (const auto& [column, text] : sheet.record) record[column] = text;
  record[kKindColumn] = sheet.kind;
  return record;
}

/// Formats of all columns as the ranges tell them.
std::vector<std::string> FormatsOf(const ExpectedSheet& sheet, std::size_t columns) {
  const char* const texts[] = {"#,##0_ ", "#,##0.0_ ", "#,##0.00_ ", "#,##0.000_ ", "#,##0.0000_ "};
  std::vector<std::string> formats(columns, "General");
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    for (const std::string& range : Split(sheet.formats[i], ',')) {
      const auto ends = Split(range, ':');
      for (std::size_t c = ColumnOf(ends[0]); c <= ColumnOf(ends[1]); ++c) formats.at(c) = texts[i];
    }
  }
  return formats;
}

/// Value of a cell as the expectation says it.
json ValueOf(const std::string& cell) {
  if (cell == "-") return nullptr;
  if (cell[0] == '#') return 1000 + std::stod(cell.substr(1)) + 0.5;
  if (cell[0] == '$') return PlainText(std::stoul(cell.substr(1)));
  if (cell[0] == '=') return std::stod(cell.substr(1));
  return cell;
}

class WorkbookTest : public testing::Test {
 protected:
  WorkbookTest() {
    space.tables = LoadTables(ZEPHA_BUILD_DIR);
    path = folder / "計器 一覧.xlsx";
  }

  void SetTags(std::vector<TagRow> rows) {
    rows.insert(rows.begin(), TagRow());
    space.tags.TakeRows(std::move(rows));
  }

  json Written() {
    WriteWorkbook(space, path);
    const std::string command = ZEPHA_SOURCE_DIR "/tests/support/read-workbook '" + path + "'";
    const std::string read = folder / "read.json";
    if (std::system((command + " > " + read).c_str()) != 0) throw std::runtime_error(command);
    return json::parse(common::ReadFile(read));
  }

  /// A text in a column of a record, and the cell to look at.
  struct Asked {
    const char* kind;
    std::size_t column;
    std::string text;
    std::size_t cell;
  };

  /// The cells of a workbook with a tag for each question.
  std::vector<json> CellsOf(const std::vector<Asked>& questions) {
    std::vector<TagRow> records;
    for (const Asked& asked : questions) {
      TagRow& record = records.emplace_back();
      record[kTagNumberColumn] = "TAG";
      record[asked.column] = asked.text;
      record[kKindColumn] = asked.kind;
    }
    SetTags(std::move(records));
    std::map<std::string, json> rows;
    for (const json& sheet : Written()) rows[sheet["name"]] = sheet["rows"];
    std::vector<json> cells;
    std::map<std::string, std::size_t> next;
    for (const Asked& asked : questions) {
      cells.push_back(rows[asked.kind].at(++next[asked.kind]).at(asked.cell));
    }
    return cells;
  }

  tests::RecordingPresenter user;
  MemorySettings settings;
  Workspace space{user, settings, nullptr};
  tests::TemporaryFolder folder;
  std::string path;
};

TEST_F(WorkbookTest, EveryColumnOfEveryKindHasItsTitleFormatAndValue) {
  std::vector<TagRow> records;
  for (const ExpectedSheet& sheet : Expected()) records.push_back(RecordOf(sheet));
  std::reverse(records.begin(), records.end());  // the order of the worksheets is fixed
  SetTags(records);
  const json book = Written();
  ASSERT_EQ(book.size(), Expected().size());
  for (std::size_t i = 0; i < book.size(); ++i) {
    const ExpectedSheet& expected = Expected()[i];
    SCOPED_TRACE(expected.kind);
    EXPECT_EQ(book[i]["name"], expected.kind);
    const auto titles = Split(expected.titles, '|');
    const auto cells = Split(expected.cells, '|');
    const auto formats = FormatsOf(expected, titles.size());
    const json& rows = book[i]["rows"];
    ASSERT_EQ(rows.size(), 2U);
    ASSERT_EQ(rows[0].size(), titles.size());
    ASSERT_EQ(cells.size(), titles.size());
    EXPECT_EQ(book[i]["frozen"], "B2");
    EXPECT_TRUE(book[i]["filter"].get<std::string>().starts_with("A1:"));
    for (std::size_t c = 0; c < titles.size(); ++c) {
      SCOPED_TRACE(titles[c]);
      EXPECT_EQ(rows[0][c].is_null() ? json("") : rows[0][c][0], titles[c]);
      const json& cell = rows[1][c];
      EXPECT_EQ(cell.is_null() ? cell : cell[0], ValueOf(cells[c]));
      if (cell.is_null()) continue;
      EXPECT_EQ(cell[1], formats[c]);
      EXPECT_EQ(cell[2] == "n", ValueOf(cells[c]).is_number());
    }
  }
}

TEST_F(WorkbookTest, AnEmptyStoreHasTitlesAlone) {
  for (const bool header : {true, false}) {  // without one the number of tags is -1
    SetTags({});
    if (!header) space.tags.TakeRows({});
    const json book = Written();
    ASSERT_EQ(book.size(), 8U);
    for (const json& sheet : book) EXPECT_EQ(sheet["rows"].size(), 1U) << sheet["name"];
  }
}

TEST_F(WorkbookTest, AnUnknownKindEndsItAtItsRowAndLeavesTheFileAlone) {
  TagRow known, unknown;
  known[kKindColumn] = "CV";
  unknown[kKindColumn] = "CableDuct";
  SetTags({known, unknown, known});
  TagExport work(space);
  EXPECT_EQ(work.Steps(), 12);
  const auto goOn = [&work] {
    while (work.Next()) continue;
  };
  EXPECT_EQ(tests::FaultOf(goOn).value().Text(), "該当するカテゴリーがありません。");
  EXPECT_EQ(work.Done(), 11);
  common::WriteFile(path, "kept");
  EXPECT_THROW(WriteWorkbook(space, path), common::RuntimeFault);
  EXPECT_EQ(common::ReadFile(path), "kept");
}

TEST_F(WorkbookTest, ATagBecomesNeitherFormulaNorDamage) {
  const std::string wide = "　";
  std::string longest;
  for (int i = 0; i < 40000; ++i) longest += "弁";
  const struct {
    std::string text;
    json number, words;  // as a cell of numbers, as one of texts
  } rows[] = {
      {"=1+1", "=1+1", "=1+1"},
      {"+81", 81, "+81"},
      {"=HYPERLINK(\"http://a\")", "=HYPERLINK(\"http://a\")", "=HYPERLINK(\"http://a\")"},
      {"http://a", "http://a", "http://a"},
      {"1-1/2", "1-1/2", "1-1/2"},
      {"-1,234,567.25", -1234567.25, "-1,234,567.25"},
      {"1E-05", 1e-5, "1E-05"},
      {" 2. ", 2, " 2. "},
      {"12,34", "12,34", "12,34"},
      {"1,2345", "1,2345", "1,2345"},
      {"1e999", "1e999", "1e999"},
      {"nan", "nan", "nan"},
      {"0x10", "0x10", "0x10"},
      {"1 2", "1 2", "1 2"},
      {"<a & \"b\">", "<a & \"b\">", "<a & \"b\">"},
      {"a\x01z\x1B", "a z ", "a z "},
      {"a\r\nb", "a\nb", "a\nb"},
      {std::string("a\0b", 3), "a b", "a b"},
      {"\xFF", "\uFFFD", "\uFFFD"},
      {"\uFFFF", "\uFFFD", "\uFFFD"},
      {wide + " \r\n", nullptr, nullptr},
      {longest, longest.substr(0, 3 * 32767), longest.substr(0, 3 * 32767)},
  };
  std::vector<Asked> questions;
  for (const auto& row : rows) {
    questions.push_back({"測温体", 4, row.text, 4});
    questions.push_back({"測温体", 2, row.text, 2});
  }
  const std::vector<json> cells = CellsOf(questions);
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(rows[i].text.substr(0, 40));
    const json& number = cells[2 * i];
    const json& words = cells[2 * i + 1];
    EXPECT_EQ(number.is_null() ? number : number[0], rows[i].number);
    EXPECT_EQ(words.is_null() ? words : words[0], rows[i].words);
    EXPECT_TRUE(words.is_null() || words[2] == "s") << words[2];
  }
}

TEST_F(WorkbookTest, PositionsOutsideTheirListGiveNothingAndTextsStand) {
  const std::vector<std::pair<Asked, json>> rows = {
      {{"圧力損失", 17, "8B", 17}, "8B"},    {{"圧力損失", 17, "25", 17}, nullptr},
      {{"圧力損失", 18, "14", 18}, nullptr}, {{"測温体", 7, "熱電対", 7}, "熱電対"},
      {{"TW", 11, "2", 11}, nullptr},        {{"CV", 10, "6", 9}, "psi"},
      {{"CV", 28, "True", 34}, nullptr},     {{"⊿P Flow", 16, "-1", 16}, "WetBase"},
      {{"TW", 39, "", 37}, "判定出来ず"},    {{"TW", 39, "0", 37}, "判定出来ず"},
  };
  std::vector<Asked> questions;
  for (const auto& [asked, value] : rows) questions.push_back(asked);
  const std::vector<json> cells = CellsOf(questions);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(std::string(rows[i].first.kind) + " " + rows[i].first.text);
    EXPECT_EQ(cells[i].is_null() ? cells[i] : cells[i][0], rows[i].second);
  }
}

TEST_F(WorkbookTest, ThreeHundredTagsKeepTheirOrderAndColumnsTheirWidth) {
  OpenInstrumentFile(space.tags, ZEPHA_SOURCE_DIR "/samples/plant.zph", space.tables.pipes,
                     space.tables.lists, user);
  std::vector<TagRow> rows;
  std::map<std::string, std::vector<std::string>> tags;
  for (int i = 0; i < kMaxTags; ++i) {
    rows.push_back(space.tags.Row(1 + i % space.tags.TagCount()));
    rows.back()[0] = std::to_string(i);
    tags[rows.back()[kKindColumn]].push_back(rows.back()[0]);
  }
  rows[0][1] = "とても長い用途の記述、例えば冷却水戻りヘッダー";
  SetTags(rows);
  for (const json& sheet : Written()) {
    const auto& expected = tags[sheet["name"]];
    ASSERT_EQ(sheet["rows"].size(), expected.size() + 1);
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(sheet["rows"][i + 1][0][0], expected[i]);
    }
    if (sheet["name"] != "⊿P Flow") continue;
    EXPECT_GT(sheet["widths"]["B"], 46);  // full-width characters of two digits each
    EXPECT_LT(sheet["widths"]["D"], 12);
  }
}

TEST_F(WorkbookTest, ANewFileGetsAFreeName) {
  setenv("TMPDIR", folder.Path().c_str(), 1);
  EXPECT_EQ(NewWorkbookPath("C:\\計装\\plant.zph"), folder / "plant.xlsx");
  EXPECT_EQ(NewWorkbookPath("/plant.zph"), folder / "plant(2).xlsx");
  EXPECT_EQ(NewWorkbookPath(""), folder / "ZEPHA.xlsx");
  unsetenv("TMPDIR");
}

}  // namespace
}  // namespace shell
