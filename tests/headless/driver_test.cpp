#include "headless/driver.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/program.h"
#include "tests/support/temporary_folder.h"

namespace headless {
namespace {

using tests::OutputOf;

class DriverTest : public testing::Test {
 protected:
  DriverTest() { EXPECT_TRUE(driver.Start()["ok"]); }

  Json Do(const std::string& line) {
    Json answer = driver.Execute(line);
    EXPECT_EQ(answer["do"], line);
    return answer;
  }

  tests::TemporaryFolder folder;
  shell::MemorySettings settings;
  Driver driver{ZEPHA_BUILD_DIR, settings};
};

TEST_F(DriverTest, NamesWhatItDoesNotKnow) {
  const struct {
    const char* line;
    const char* named;
  } rows[] = {
      {"open frmOrifise", "frmOrifice"},  {"get txtTag", "No form"}, {"jump txtTagNo", "jump"},
      {"menu mnuOrifices", "mnuOrifice"}, {"button 99", "99"},       {"answer maybe", "maybe"},
      {"export", "path of a workbook"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.line);
    const Json answer = Do(row.line);
    EXPECT_EQ(answer["ok"], false);
    EXPECT_NE(answer["error"].get<std::string>().find(row.named), std::string::npos);
  }
  EXPECT_TRUE(driver.Misunderstood());
}

TEST_F(DriverTest, RefusesWhatAUserCannotReach) {
  Do("menu mnuOrifice");
  EXPECT_EQ(Do("click txt飽和水蒸気圧")["error"], "txt飽和水蒸気圧 is disabled.");
  EXPECT_EQ(Do("click cbo流量単位G")["error"], "cbo流量単位G is not visible.");
  EXPECT_EQ(Do("menu mnuVenturi")["error"], "mnuVenturi is disabled.");
  EXPECT_EQ(Do("pick cbo流体 3")["ok"], false);
  Do("menu mnuCompany");
  EXPECT_EQ(Do("menu mnuTagList")["error"],
            "The main window is locked while frmRegCompany is open.");
  Do("click cmdCancel");
  EXPECT_EQ(Do("pick txt温度 0")["ok"], false);
  Do("open frm振動数判定");
  EXPECT_EQ(Do("pick grd振動数 0")["error"], "grd振動数 has entries 0 to -1.");
}

TEST_F(DriverTest, PressesKeysAndWalksWithEnter) {
  Do("button 11");
  const Json keys = Do("keys txt圧力 1-2a3");
  EXPECT_EQ(keys["beeps"], 2);
  EXPECT_EQ(keys["text"], "123");
  EXPECT_EQ(Do("enter txt圧力")["focus"], "cbo圧力単位");
  Do("pick cbo流体 1");
  EXPECT_EQ(Do("enter txt目盛流量")["focus"], "cbo流量単位G");
  // Without humidity the saturation pressure and the choice of base are passed over.
  EXPECT_EQ(Do("enter txt相対湿度")["focus"], "txt偏差係数");
}

TEST_F(DriverTest, AnswersQuestionsFromTheQueue) {
  for (const char* line : {"open ⊿P Flow", "type txt目盛流量 5000", "type txt常用流量 5000",
                           "type txt圧力 500", "type txt密度 998", "type txt粘性係数 1",
                           "type txt配管内径 45", "type txt設計差圧 25", "answer no"}) {
    EXPECT_TRUE(Do(line)["ok"]) << line;
  }
  const Json refused = Do("click cmd計算");
  ASSERT_EQ(refused["messages"].size(), 1U);
  EXPECT_EQ(refused["messages"][0]["answer"], "no");
  EXPECT_EQ(refused["messages"][0]["buttons"], "yesno");
  EXPECT_EQ(refused["messages"][0]["icon"], "critical");
  EXPECT_EQ(Do("click cmd計算")["messages"][0]["answer"], "yes");
  EXPECT_EQ(Do("get lbl外挿")["text"], "（外挿計算）");
}

TEST_F(DriverTest, DumpsTheActiveForm) {
  Do("open ⊿P Flow");
  const Json dump = Do("dump");
  EXPECT_EQ(dump["form"], "frmOrifice");
  std::vector<std::string> names;
  for (const Json& control : dump["controls"]) names.push_back(control["control"]);
  const auto at = [&](const char* name) {
    return std::find(names.begin(), names.end(), name) - names.begin();
  };
  EXPECT_LT(at("txtTagNo"), at("cbo流体"));
  EXPECT_LT(at("txt密度"), at("txt粘性係数"));
  EXPECT_LT(at("lblタイトル(1)"), static_cast<std::ptrdiff_t>(names.size()));
  EXPECT_EQ(Do("forms")["forms"], Json({"frmOrifice"}));
  Do("close");
  EXPECT_EQ(Do("forms")["forms"], Json::array());
  Do("quit");
  EXPECT_TRUE(driver.Ended());
}

TEST_F(DriverTest, TellsThePageOfTheSheetOnTop) {
  EXPECT_EQ(Do("print")["messages"][0]["text"], "印刷対象がありません。");
  Do("load " ZEPHA_SOURCE_DIR "/samples/plant.zph");
  Do("recall 1");
  const Json items = Do("print")["items"];
  int lines = 0;
  std::string title;
  for (const Json& item : items) {
    if (item.contains("line")) {
      ++lines;
      EXPECT_EQ(item["line"].size(), 4U);
      EXPECT_EQ(item["width"], 1);
    } else if (item["bold"] == true) {
      title = item["text"];
      EXPECT_EQ(item["font"], "ＭＳ 明朝");
      EXPECT_EQ(item["size"], 11);
      EXPECT_EQ(item["color"], 0);
    }
  }
  EXPECT_EQ(lines, 8);  // frame, heading, foot, date box
  EXPECT_EQ(title, "ＯＲＩＦＩＣＥ　ＰＬＡＴＥ　ＣＡＬＣＵＬＡＴＩＯＮ ＳＨＥＥＴ");
}

TEST_F(DriverTest, PdfReadsBackAsTextWithItsFonts) {
  const std::string pdf = folder / "page.pdf";
  Do("load " ZEPHA_SOURCE_DIR "/samples/plant.zph");
  EXPECT_EQ(Do("recall FE-9999")["error"], "There is no tag FE-9999.");
  Do("recall FE-1204");
  ASSERT_EQ(Do("print " + pdf)["ok"], true);
  const std::string text = OutputOf("pdftotext -layout " + pdf + " -");
  for (const char* part : {"入 力 デ ー タ", "JIS Z 8762-2007", "FE-1204", "燃焼用空気（湿り）",
                           "飽和水蒸気圧", "ｱｲｾﾞﾝﾄﾛﾋﾟｯｸ 指数", "0.69835", "343.71"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part << "\n" << text;
  }
  const std::string fonts = OutputOf("pdffonts " + pdf);
  EXPECT_NE(fonts.find("Mincho"), std::string::npos) << fonts;
  EXPECT_NE(fonts.find("Identity-H       yes no  yes"), std::string::npos) << fonts;  // embedded
  EXPECT_NE(OutputOf("pdfinfo " + pdf).find("(A4)"), std::string::npos);
}

TEST_F(DriverTest, PrintsEveryTagIntoOneFile) {
  const std::string pdf = folder / "all.pdf";
  Do("load " ZEPHA_SOURCE_DIR "/samples/plant.zph");
  const int tags = Do("workspace")["TagCount"];
  const Json answer = Do("printall " + pdf);
  EXPECT_EQ(answer["pages"], tags);
  EXPECT_EQ(answer["left"], Json::array());
  EXPECT_NE(OutputOf("pdfinfo " + pdf).find("Pages:           " + std::to_string(tags)),
            std::string::npos);
  Do("recall 1");
  Do("file " + pdf);
  EXPECT_EQ(Do("menu mnuPrint")["ok"], true);
  EXPECT_NE(OutputOf("pdfinfo " + pdf).find("Pages:           1\n"), std::string::npos);
}

TEST_F(DriverTest, FilesAreThoseOfTheDuctsWhileTheirSheetIsOnTop) {
  const std::string path = folder / "a.dct";
  Do("open CableDuct");
  EXPECT_EQ(Do("load " ZEPHA_SOURCE_DIR "/samples/ducts.dct")["DuctCount"], 4);
  const Json row = Do("ductrow 1")["row"];
  ASSERT_EQ(row.size(), 153U);
  EXPECT_EQ(row[0], "CD-1102 給水ポンプ");
  EXPECT_EQ(Do("ductrow 19")["row"][0], "");
  EXPECT_FALSE(Do("ductrow 20")["ok"]);
  Do("pick lstDuct 1");
  Do("click cmdDelete");
  EXPECT_EQ(Do("workspace")["DuctModified"], true);
  EXPECT_EQ(Do("save " + path)["DuctModified"], false);
  EXPECT_EQ(Do("load " + path)["DuctCount"], 3);
  const Json workspace = Do("workspace");
  EXPECT_EQ(workspace["DuctCount"], 3);
  EXPECT_EQ(workspace["DuctFileName"], path);
  EXPECT_EQ(workspace["TagCount"], 0);
}

TEST_F(DriverTest, RecalculatesAndWritesWhenItIsTold) {
  Do("load " ZEPHA_SOURCE_DIR "/samples/plant.zph");
  Json answer = Do("recalculate");
  EXPECT_EQ(answer["tags"], 61);
  EXPECT_EQ(answer["changes"], Json::array());
  EXPECT_EQ(answer["notes"][0]["tag"], "TW-2201");
  EXPECT_EQ(answer["messages"], nullptr);
  driver.Bench().Space().tags.SetText(3, 32, "1,000");
  const Json change = {{"row", 3},
                       {"tag", "FE-1103"},
                       {"field", "最大ﾚｲﾉﾙｽﾞ数"},
                       {"old", "1,000"},
                       {"new", "823,849"}};
  EXPECT_EQ(Do("recalculate")["changes"], Json::array({change}));
  EXPECT_EQ(Do("row 3")["row"][32], "1,000");
  EXPECT_EQ(Do("workspace")["TagModified"], false);
  EXPECT_EQ(Do("recalculate write")["changes"], Json::array({change}));
  EXPECT_EQ(Do("row 3")["row"][32], "823,849");
  EXPECT_EQ(Do("workspace")["TagModified"], true);
  EXPECT_EQ(Do("recalculate all")["ok"], false);
}

}  // namespace
}  // namespace headless
