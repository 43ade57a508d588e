#include "sheets/frm_unit_converter.h"

#include "common/file.h"
#include "common/text.h"
#include "tests/sheets/sheet_test.h"
#include "tests/support/data_folder.h"

namespace sheets {
namespace {

constexpr const char* kChangeQuestion = "上記のように変更しますか？";

class UnitConverter : public tests::DataFolder, public SheetTest {
 protected:
  UnitConverter() : SheetTest(Path()) { Open(); }

  void Open() { bench.Window().Run("mnuUnit"); }
  void Close() { bench.Forms().Unload(*bench.Forms().Find(frm単位換算::kName)); }
  void Reopen() {
    Close();
    Open();
  }
  void PickText(const std::string& list, const std::string& text) {
    Pick(list, Find<forms::ListControl>(list).IndexOf(text));
  }
  forms::ListControl& List(const std::string& name) { return Find<forms::ListControl>(name); }
  data::UnitTable& Table() { return bench.Space().tables.units; }
  data::UnitCategory& Category(int index) { return common::At(Table().categories, index); }
  bool Modified() { return bench.Space().unitsModified; }
  std::string FileName() { return File("単位変換.dat"); }
  /// What a program that is started now would read, written again.
  std::string Reloaded() {
    Workbench again(presenter, Path(), settings);
    again.Start();
    return data::WriteUnitTable(again.Space().tables.units);
  }
  std::string Caption() { return bench.Forms().Active()->Caption(); }
};

TEST_F(UnitConverter, OpensOnTheFirstCategoryInItsPlace) {
  const forms::Form& form = *bench.Forms().Active();
  ASSERT_TRUE(form.Role() == forms::FormRole::kTool && form.WantedPlace());
  EXPECT_EQ(form.WantedPlace()->width, 5472);
  EXPECT_EQ(form.WantedPlace()->height, 4056);
  EXPECT_EQ(Text("lstCategory") + Text("TabStrip1") + Text("lstRight"), "長さ長さm");
  EXPECT_EQ(List("lstLeft").Index(), 0);
  for (const bool categories : {true, false}) {
    Click("lblCategory");
    for (const char* name : {"lstLeft", "lstRight", "txtLeft"}) {
      EXPECT_EQ(Find(name).Enabled(), !categories) << name;
    }
  }
  auto& box = Find<forms::TextBox>("txtLeft");
  EXPECT_TRUE(box.PressKey(U'-') && box.PressKey(U'.') && !box.PressKey(U'\r'));
  EXPECT_FALSE(box.PressKey(U'\t'));
  EXPECT_EQ(presenter.beeps, 0);
  EXPECT_FALSE(box.PressKey(U'e') || box.PressKey(U','));
  EXPECT_EQ(presenter.beeps, 2);
}

TEST_F(UnitConverter, ConvertsAsTheListsSay) {
  const struct {
    const char *category, *left, *right, *value, *result;
  } rows[] = {{"温度", "°F", "℃", "212", "100"},
              {"温度", "℃", "K", "-273.15", "0"},
              {"圧力", "kgf/cm2", "MPa", "10", "0.980665"},
              {"圧力", "atm", "Pa", "1/2", "101,325"},  // the numeric prefix
              {"長さ", "in", "in", "1.23456789", "1.23457"},
              {"長さ", "m", "μm", "9999999999", "does not fit"},
              {"エネルギー", "kWh", "kcal", "", "0"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.left) + " " + row.value);
    PickText("TabStrip1", row.category);
    EXPECT_EQ(Text("lstCategory"), row.category);
    PickText("lstLeft", row.left);
    PickText("lstRight", row.right);
    Type("txtLeft", "7");
    const std::string old = Text("lblRight");
    TakeTexts();
    Type("txtLeft", row.value);
    const bool fits = std::string(row.result) != "does not fit";
    EXPECT_EQ(TakeTexts(), fits ? Texts{} : Texts{"変換後のデータが表示可能桁数をＯＶＥＲ"});
    EXPECT_EQ(Text("lblRight"), fits ? row.result : old);
    EXPECT_EQ(Find("lblRight").ForeColor(), fits ? forms::kBlack : forms::kMagenta);
    Type("txtLeft", "7");
  }
  Type("txtLeft", "12345678901234567");
  EXPECT_EQ(TakeTexts(), Texts{"変換前データが表示可能桁数をＯＶＥＲ"});
}

TEST_F(UnitConverter, ReadsItsEditsAfterARestart) {
  const std::string shipped = common::ReadFile(FileName());
  // A category with its first unit, in front of 面積.
  PickText("lstCategory", "面積");
  Click("cmd分類挿入");
  EXPECT_EQ(Caption() + Text("lblEditCategory") + Text("lblAddUnit"),
            "分類追加挿入分類名挿入単位名");
  Click("cmdOK");  // nothing is asked without a name
  EXPECT_EQ(bench.Forms().Active()->Focused(), &Find("txtEditCategory"));
  Type("txtEditCategory", "濃度、表面の一二三四五六");
  Click("cmdOK");
  EXPECT_EQ(bench.Forms().Active()->Focused(), &Find("txtAddUnit"));
  EXPECT_EQ(TakeTexts(), Texts{});
  Type("txtAddUnit", "ppm");
  EXPECT_EQ(Text("txtBaseUnit"), "ppm");
  Answer(false);
  Click("cmdOK");
  EXPECT_FALSE(Modified());
  Click("cmdOK");
  EXPECT_EQ(TakeTexts(), Texts(2, kChangeQuestion));
  EXPECT_TRUE(Modified());
  EXPECT_EQ(Find("cmdSave").BackColor(), forms::kUnsaved);
  EXPECT_EQ(Text("lstCategory"), "濃度、表面の一二三四五");
  EXPECT_EQ(List("lstCategory").Index(), 1);
  EXPECT_EQ(Text("lstLeft") + Text("lstRight"), "ppmppm");

  // Two more units; the base stays.
  const struct {
    const char *name, *factor, *offset;
  } units[] = {{"vol%", "10000", ""}, {"〜1/2", "1.5E-03", "-2"}};
  for (const auto& unit : units) {
    Click("cmd単位挿入");
    EXPECT_EQ(Caption() + Text("lblEditCategory") + Text("lblAddUnit"),
              "単位挿入分 類 名挿入単位名");
    EXPECT_FALSE(Find("txtEditCategory").Enabled() || Find("txtBaseUnit").Enabled());
    EXPECT_EQ(Text("txtBaseUnit"), "ppm");
    Type("txtAddUnit", unit.name);
    Type("txtConvFactor", unit.factor);
    Type("txtConvConst", unit.offset);
    Click("cmdOK");
  }
  EXPECT_EQ(Text("lstRight"), "ppm");
  PickText("lstLeft", "vol%");
  Type("txtLeft", "2.5");
  EXPECT_EQ(Text("lblRight"), "25,000");

  // A unit that is there gets another name and factor by the right button.
  Find("lstLeft").RightClick();
  EXPECT_EQ(Caption() + Text("lblAddUnit") + Text("txtAddUnit") + Text("txtConvFactor"),
            "修正・変更変更単位名vol%10000");
  Type("txtAddUnit", "mg/L");
  Type("txtConvFactor", "0.5");
  Click("cmdOK");
  EXPECT_EQ(Text("lblRight"), "1.25");
  Find("lblCategory").RightClick();
  EXPECT_EQ(Caption() + Text("lblEditCategory"), "分類名修正修正分類名");
  EXPECT_FALSE(Find("txtAddUnit").Visible());
  Type("txtEditCategory", "濃度");
  Click("cmdOK");
  EXPECT_EQ(Text("TabStrip1"), "濃度");
  TakeTexts();

  Click("cmdSave");
  EXPECT_FALSE(Modified());
  EXPECT_EQ(Find("cmdSave").BackColor(), forms::kButtonFace);
  const std::string expected =
      common::ToCp932("\"濃度\",2,2\r\n\"～1/2\",0.0015,-2\r\n\"mg/L\",0.5,0\r\n\"ppm\",1,0\r\n");
  std::string written = common::ReadFile(FileName());
  EXPECT_EQ(Reloaded(), written);
  const auto place = written.find(expected);
  ASSERT_NE(place, std::string::npos);
  EXPECT_EQ(written.erase(place, expected.size()), shipped);  // everything else as it was
  Close();
  EXPECT_EQ(TakeTexts(), Texts{});
}

TEST_F(UnitConverter, DeletesSortsAndMoves) {
  PickText("lstCategory", "温度");
  Click("cmdDelete");  // the base
  EXPECT_EQ(TakeTexts(), Texts{"基準単位です\n削除してはいけません"});
  PickText("lstLeft", "K");
  Answer(false);
  Click("cmdDelete");
  EXPECT_FALSE(Modified());
  Click("cmdDelete");
  EXPECT_EQ(presenter.messages.shown.back().title, "単位系編集");
  EXPECT_EQ(TakeTexts(), Texts(2, "単位名【K】を削除してもいいですか"));
  EXPECT_EQ(List("lstLeft").Items(), (Texts{"℃", "°F", "°R"}));
  Click("cmdSort");
  EXPECT_EQ(List("lstLeft").Items(), (Texts{"°F", "°R", "℃"}));
  EXPECT_EQ(Text("lstRight"), "℃");

  Click("cmdMoveUnit");
  EXPECT_EQ(Caption() + Text("lblMove"),
            "【温度】 －　単位名順序変更単位名を指定後、移動キーで移動");
  Click("cmdUp");  // the first one stays
  Pick("lstMove", 2);
  Click("cmdUp");
  EXPECT_EQ(Text("lstMove"), "℃");
  Click("cmdOK");
  EXPECT_EQ(List("lstLeft").Items(), (Texts{"°F", "℃", "°R"}));
  EXPECT_EQ(Text("lstRight"), "℃");

  Click("cmdMoveCategory");
  EXPECT_EQ(Caption() + Text("lblMove"), "   分類名順序変更分類名を指定後、移動キーで移動");
  EXPECT_EQ(Text("lstMove"), "温度");
  Click("cmdDown");
  Click("cmdOK");
  EXPECT_EQ(Category(6).categoryName + Category(7).categoryName, "流量(体積)温度");
  EXPECT_EQ(Text("lstCategory"), "温度");

  Click("cmdCategory削除");
  EXPECT_EQ(TakeTexts(), Texts{"分類　《温度》　を削除してもいいですか"});
  EXPECT_EQ(Text("lstCategory"), "流量(質量)");
  Click("cmdSave");
  EXPECT_EQ(Reloaded(), data::WriteUnitTable(Table()));
}

TEST_F(UnitConverter, RefusesWhatIsFull) {
  while (Table().categories.size() < 30) data::InsertCategory(Table(), 0, "c", "u");
  while (Category(0).units.size() < 51) data::InsertUnit(Category(0), 1, {"v", 2, 0});
  Reopen();
  Click("cmd分類挿入");
  Click("cmd単位挿入");
  EXPECT_EQ(TakeTexts(), Texts(2, "もう追加できません。一杯です"));
  EXPECT_EQ(bench.Forms().Active()->Name(), frm単位換算::kName);
}

// A unit without a factor is told of and can be mended.
TEST_F(UnitConverter, SurvivesAFactorOfZero) {
  const int m = List("lstLeft").IndexOf("m");
  common::At(Category(0).units, m).factor = 0;
  Pick("lstLeft", 1);
  EXPECT_EQ(TakeTexts(), Texts{"0 で除算しました。"});
  EXPECT_EQ(Find("lblRight").ForeColor(), forms::kMagenta);
  Pick("lstLeft", m);
  Click("cmd単位修正");
  Type("txtConvFactor", "1");
  Click("cmdOK");
  Pick("lstLeft", 1);
  EXPECT_EQ(Text("lblRight"), "0.001");
}

TEST_F(UnitConverter, BeginsATableOfItsOwn) {
  Table() = {};  // as after a start without the file
  Reopen();
  for (const char* name : {"cmd分類修正", "cmdCategory削除", "cmdMoveCategory", "cmd単位挿入",
                           "cmd単位修正", "cmdDelete", "cmdMoveUnit", "cmdSort"}) {
    Click(name);
    EXPECT_EQ(bench.Forms().Active()->Name(), frm単位換算::kName) << name;
  }
  Type("txtLeft", "5");
  EXPECT_EQ(TakeTexts(), Texts{});
  Click("cmd分類挿入");
  Type("txtEditCategory", "a");
  Type("txtAddUnit", "b");
  Click("cmdOK");
  EXPECT_EQ(Text("lblRight"), "5");
  Click("cmdCategory削除");  // the last one stays
  Click("cmdSave");
  EXPECT_EQ(common::ReadFile(FileName()), "\"a\",0,0\r\n\"b\",1,0\r\n");
}

}  // namespace
}  // namespace sheets
