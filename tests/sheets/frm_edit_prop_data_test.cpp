#include "sheets/frm_edit_prop_data.h"

#include "common/file.h"
#include "shell/page_recorder.h"
#include "tests/sheets/sheet_test.h"
#include "tests/support/data_folder.h"

namespace sheets {
namespace {

using data::FluidTable;

class FluidEditor : public tests::DataFolder, public SheetTest {
 protected:
  FluidEditor() : SheetTest(Path()) { Open(); }

  void Open() { bench.Window().Run("mnuEditPropData"); }
  void Close() {
    bench.Forms().Unload(*bench.Forms().Find("frmEditPropData"));
    bench.Forms().CollectClosed();
  }
  FluidTable& Liquids() { return bench.Space().tables.liquids; }
  FluidTable& Gases() { return bench.Space().tables.gases; }
  bool Modified() { return bench.Space().fluidsModified; }
  static std::string Box(int field) { return "txtItemData(" + std::to_string(field) + ")"; }
  void Edit(int field, const std::string& text) { Type(Box(field), text); }
  std::string Bytes(const char* name) { return common::ReadFile(File(name)); }
  /// What a program that is started now would read.
  FluidTable InFile(const char* name) {
    FluidTable table;
    EXPECT_TRUE(data::ReadFluidTable(Bytes(name), table));
    return table;
  }
  void ExpectPageShows(const FluidTable& table, int fluid) {
    for (int field = 0; field < 24; ++field) {
      EXPECT_EQ(Text("lblItemName(" + std::to_string(field) + ")"),
                table.headers[static_cast<std::size_t>(field)]);
      EXPECT_EQ(Text(Box(field)), table.Cell(fluid, field));
    }
  }
  /// Density of the liquid at the front of a property sheet, at 0 degC.
  std::string EstimatedDensity() {
    bench.Window().Run("mnuBussei");
    Click("cmd計算");
    std::string text = Text("lbl物性値(0)");
    TakeTexts();
    return text;
  }
};

TEST_F(FluidEditor, SavesEveryFieldAsTyped) {
  const struct {
    const char* option;
    int fluid, field;
    const char* typed;
    const char* stored;
  } rows[] = {{"Option1", 0, 0, "水, ソ表能①", "水, ソ表能①"},  // trail bytes 5C, and a comma
              {"Option1", 49, 1, "     ", "     "},
              {"Option1", 49, 6, "", ""},
              {"Option1", 18, 3, " -1.5E-3", " -1.5E-3"},
              {"Option1", 18, 23, "1〜2", "1～2"},  // an input method's wave dash
              {"Option2", 8, 4, "304.1282", "304.1282"},
              {"Option2", 49, 0, "試験ガス", "試験ガス"},
              {"Option2", 49, 13, "not a number", "not a number"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.typed);
    Choose(row.option);
    Pick("TabStrip1", row.fluid);
    Edit(row.field, "x");
    EXPECT_TRUE(Modified());
    Edit(row.field, row.typed);
    if (row.field == 0) {
      EXPECT_EQ(Find<forms::ListControl>("TabStrip1").Text(), row.typed);
    }
  }
  EXPECT_NE(Text("lbl変更"), "");
  Click("cmdSaveProp");
  EXPECT_EQ(TakeTexts(), Texts{});
  EXPECT_FALSE(Modified());
  EXPECT_EQ(Text("lbl変更"), "");
  Workbench again(presenter, Path(), settings);
  again.Load();
  EXPECT_TRUE(again.Space().tables.unread.empty());
  for (const auto& row : rows) {
    const FluidTable& table = row.option == std::string("Option1") ? again.Space().tables.liquids
                                                                   : again.Space().tables.gases;
    EXPECT_EQ(table.Cell(row.fluid, row.field), row.stored);
  }
  EXPECT_EQ(again.Space().tables.liquids.fluids, Liquids().fluids);
  EXPECT_EQ(again.Space().tables.gases.fluids, Gases().fluids);
}

TEST_F(FluidEditor, DeletedFluidLeavesItsNeighboursWhole) {
  const std::vector<FluidTable::Record> before = Liquids().fluids;
  Pick("TabStrip1", 5);
  Answer(false);
  Click("cmdDeleteProp");
  EXPECT_EQ(Liquids().fluids, before);
  EXPECT_FALSE(Modified());
  Click("cmdDeleteProp");
  EXPECT_EQ(TakeTexts(), Texts(2, "【 " + before[5][0] + " 】の物性データを削除してもいいですか"));
  EXPECT_TRUE(Modified());
  ExpectPageShows(Liquids(), 5);
  // To and fro between fluids and tables: nothing of the page may be stored where it does not
  // belong.
  Pick("TabStrip1", 7);
  Choose("Option2");
  Choose("Option1");
  Pick("TabStrip1", 5);
  std::vector<FluidTable::Record> expected = before;
  expected.erase(expected.begin() + 5);
  expected.emplace_back();
  EXPECT_EQ(Liquids().fluids, expected);
  EXPECT_EQ(Find<forms::TabStrip>("TabStrip1").Items(), Liquids().Names());
  Click("cmdSaveProp");
  EXPECT_EQ(InFile("Liqprop.dat").fluids, expected);
  EXPECT_EQ(InFile("Gasprop.dat").fluids, Gases().fluids);
}

// A file that could not be read may still be mended: it is not written over with an empty table.
TEST_F(FluidEditor, LeavesAnUnreadFileAlone) {
  Close();
  common::WriteFile(File("Liqprop.dat"), "\"cut sho");
  bench.Load();
  Open();
  EXPECT_EQ(TakeTexts(),
            Texts{"次のデータファイルが読み込まれていないため、編集できません。\nLiqprop.dat"});
  EXPECT_FALSE(Find("Option1").Enabled());
  EXPECT_EQ(Text(Box(0)), Gases().Cell(0, 0));
  Edit(1, "29");
  Click("cmdSaveProp");
  EXPECT_EQ(TakeTexts(), Texts{});
  EXPECT_EQ(InFile("Gasprop.dat").Cell(0, 1), "29");
  EXPECT_EQ(Bytes("Liqprop.dat"), "\"cut sho");
}

TEST_F(FluidEditor, RunningSheetsAndANewStartSeeTheEdit) {
  bench.Window().Run("mnuMulti");
  EXPECT_EQ(EstimatedDensity(), "999.9");
  bench.Forms().Show("frmEditPropData");
  Edit(1, "1");
  Edit(2, "1111");
  Edit(3, "0");
  Edit(0, "新しい水");
  bench.Forms().Show("frm物性");
  EXPECT_EQ(Text("lbl物性値(0)"), "");  // what rested on the old data is gone
  EXPECT_EQ(Text("lbl流体名"), "新しい水");
  EXPECT_EQ(Find<forms::ListBox>("lst流体名称").Items()[0], " 新しい水");
  Click("cmd計算");
  EXPECT_EQ(Text("lbl物性値(0)"), "1111");
  bench.Forms().Show("frmEditPropData");
  Click("cmdSaveProp");
  Close();

  SheetTest::presenter.messages.shown.clear();
  Workbench again(presenter, Path(), settings);
  again.Start();
  again.Window().Run("mnuBussei");
  forms::Form& sheet = *again.Forms().Find("frm物性");
  sheet.Find("cmd計算")->Click();
  EXPECT_EQ(sheet.Find("lbl物性値(0)")->Text(), "1111");
}

TEST_F(FluidEditor, MarksWhatTheEstimatorsCannotUse) {
  const struct {
    int field;
    const char* text;
    bool marked;
  } rows[] = {
      {2, "1,234", true}, {2, "1234", false}, {1, "9", true}, {1, "1", false}, {23, "?", false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    Edit(row.field, row.text);
    EXPECT_EQ(Find(Box(row.field)).BackColor() == forms::kDoubtful, row.marked);
    EXPECT_EQ(Find(Box(row.field)).ToolTip().empty(), row.field != 1 && !row.marked);
  }
  Edit(2, "abc");
  Click("cmdSaveProp");  // is never refused for it
  EXPECT_EQ(TakeTexts(), Texts{});
  EXPECT_EQ(InFile("Liqprop.dat").Cell(0, 2), "abc");
  Pick("TabStrip1", 1);
  EXPECT_EQ(Find(Box(2)).BackColor(), forms::kWhite);
}

TEST_F(FluidEditor, DrawsTheCurveThatTheFieldsGive) {
  const auto drawn = [&](int plot) {
    shell::PageRecorder recorder;
    Find<forms::Picture>("picProperty(" + std::to_string(plot) + ")").onPaint(recorder);
    std::size_t points = 0;
    for (const auto& item : recorder.Items()) {
      const auto* const line = std::get_if<shell::PageRecorder::LineItem>(&item);
      if (line != nullptr && line->pen.color == forms::kBlue) points = line->points.size();
    }
    return points;
  };
  for (int plot = 0; plot < 3; ++plot) EXPECT_EQ(drawn(plot), 81U);
  // Ranges that no axis can be labelled with, and one that is wider than a number, of a constant.
  const char* const constant[] = {"3", "1000", "0", "0", "500"};
  for (int i = 0; i < 5; ++i) Edit(1 + i, constant[i]);
  for (const char* end : {"4e299", "1e308"}) {
    Edit(6, end == std::string("1e308") ? "-1e308" : "3e299");
    Edit(7, end);
    EXPECT_EQ(drawn(0), 0U);
    EXPECT_EQ(TakeTexts(), Texts{});
  }
  Edit(6, "0");
  Edit(7, "100");
  EXPECT_EQ(drawn(0), 81U);
  Edit(1, "no such code");
  EXPECT_EQ(drawn(0), 0U);
  Choose("Option2");
  for (int plot = 0; plot < 3; ++plot) EXPECT_EQ(drawn(plot), 81U);
}

TEST_F(FluidEditor, EnterAndArrowsStepThroughTheFields) {
  forms::Form& form = *bench.Forms().Active();
  const auto focused = [&]() -> forms::TextBox& {
    return dynamic_cast<forms::TextBox&>(*form.Focused());
  };
  form.SetFocus(Find(Box(0)));
  for (int i = 0; i < 23; ++i) focused().PressKey(U'\r');
  EXPECT_EQ(focused().Name(), Box(23));
  for (int i = 0; i < 30; ++i) focused().PressArrow(forms::Arrow::kUp);
  EXPECT_EQ(focused().Name(), Box(0));
  for (int i = 0; i < 30; ++i) focused().PressArrow(forms::Arrow::kDown);
  EXPECT_EQ(focused().Name(), Box(23));
  EXPECT_FALSE(focused().PressArrow(forms::Arrow::kLeft));
  EXPECT_FALSE(Modified());
}

}  // namespace
}  // namespace sheets
