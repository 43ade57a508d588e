#include "sheets/frm_edit_cv_spec.h"

#include "common/file.h"
#include "tests/sheets/sheet_test.h"
#include "tests/support/data_folder.h"

namespace sheets {
namespace {

class CatalogueEditor : public tests::DataFolder, public SheetTest {
 protected:
  CatalogueEditor() : SheetTest(Path()) { Open(); }

  void Open() { bench.Window().Run("mnuCVcatalog"); }
  valve::ValveCatalogue& Table() { return bench.Space().tables.valves; }
  bool Modified() { return bench.Space().valvesModified; }
  std::string FileName() { return File("ValveSpec.dat"); }
  /// What a program that is started now would read.
  valve::ValveCatalogue InFile() {
    valve::ValveCatalogue catalogue;
    EXPECT_TRUE(valve::ReadValveCatalogue(common::ReadFile(FileName()), catalogue));
    return catalogue;
  }
  void Scroll(int value) { Find<forms::ScrollBar>("VScroll1").SetValue(value); }
};

TEST_F(CatalogueEditor, TrimsOfAModelScroll) {
  Scroll(11);
  EXPECT_EQ(Text("lblRow(1)") + " " + Text("txt内弁Size(1)"), "13 " + Table().valveSize[0][0][12]);
  Choose("optModel(9)");
  Choose("optMaker(3)");
  EXPECT_TRUE(Find<forms::OptionButton>("optModel(0)").Checked());
  EXPECT_EQ(Text("lblRow(1)"), "2");  // from the first trim again
  EXPECT_EQ(Text("txtFL") + Text("cboCharact"), "0.98Linear");
  Choose("optModel(9)");
  EXPECT_EQ(Find<forms::ComboBox>("cboCharact").Index(), -1);  // an unused slot has none
}

TEST_F(CatalogueEditor, SavesEveryFieldAsTyped) {
  Choose("optMaker(3)");
  Choose("optModel(8)");
  Scroll(4);
  const struct {
    const char* control;
    const char* text;
    std::string& cell;
  } rows[] = {
      {"txtMaker", "本山ソ表, 能①", Table().valveMaker[3]},  // trail bytes 5C, and a comma
      {"txtModel", "06-K 試験弁", Table().valveModel[3][8]},
      {"txtFL", "0.90", Table().valveFL[3][8]},
      {"txt弁Fd", "1.0", Table().valveFd[3][8]},
      {"txtOrificeFactor", "2.2", Table().valveN[3][8]},
      {"txtRangeability", "50", Table().valveRange[3][8]},
      {"txt内弁Size(0)", "1-1/2x1", Table().valveSize[3][8][4]},
      {"txt弁Cv(10)", "11.0", Table().valveCv[3][8][14]},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.control);
    bench.Space().valvesModified = false;
    Type(row.control, row.text);
    EXPECT_TRUE(Modified());
    EXPECT_EQ(row.cell, row.text);
  }
  Pick("cboCharact", 4);
  EXPECT_EQ(Text("optMaker(3)"), "本山ソ表, 能①");
  EXPECT_EQ(Text("optModel(8)"), "06-K 試験弁");
  EXPECT_NE(Text("lbl変更"), "");
  Click("cmdDataSave");
  EXPECT_FALSE(Modified());
  EXPECT_EQ(Text("lbl変更"), "");
  const valve::ValveCatalogue saved = InFile();
  EXPECT_EQ(valve::WriteValveCatalogue(saved), valve::WriteValveCatalogue(Table()));
  EXPECT_EQ(saved.valveMaker[3], "本山ソ表, 能①");
  EXPECT_EQ(saved.valveChar[3][8], "4");
  EXPECT_EQ(saved.valveCv[3][8][14], "11.0");

  // The wave dash of an input method and that of the code page are one character in the file, from
  // which a started program has the names that it compares with those of saved tags.
  Type("txtModel", "1〜2");
  Click("cmdDataSave");
  EXPECT_EQ(TakeTexts(), Texts{});
  Workbench again(presenter, Path(), settings);
  again.Start();
  EXPECT_EQ(again.Space().tables.valves.valveModel, Table().valveModel);
}

TEST_F(CatalogueEditor, DeletesAModelOrAMakerAndKeepsTheRecords) {
  const std::string name = Text("txtModel");
  Answer(false);
  Click("cmdDeleteModel");
  EXPECT_EQ(Text("txtModel"), name);
  EXPECT_FALSE(Modified());
  Click("cmdDeleteModel");
  EXPECT_EQ(presenter.messages.shown.back().icon, common::Icon::kQuestion);
  EXPECT_EQ(TakeTexts(), Texts(2, "【 " + name + " 】を削除してもいいですか"));
  EXPECT_EQ(Text("txtModel") + Text("txtFL") + Text("txt内弁Size(0)") + Text("optModel(0)"), "");
  Choose("optMaker(4)");
  Choose("optModel(2)");
  Click("cmdDeleteMaker");
  EXPECT_EQ(TakeTexts(), Texts{"【 山武（標準値） 】を削除してもいいですか"});
  EXPECT_EQ(Text("optMaker(4)") + Text("optModel(3)") + Text("txtMaker"), "");
  Click("cmdDataSave");
  const valve::ValveCatalogue saved = InFile();
  EXPECT_EQ(saved.valveChar[0][0], "-1");
  EXPECT_NE(saved.valveModel[0][1] + saved.valveMaker[3], "");
  for (std::size_t model = 0; model < 10; ++model) {
    EXPECT_EQ(saved.valveModel[4][model] + saved.valveRange[4][model], "");
    EXPECT_EQ(saved.valveChar[4][model], "-1");
    EXPECT_EQ(saved.valveSize[4][model][0] + saved.valveCv[4][model][0], "");
  }
}

TEST_F(CatalogueEditor, NumberFieldsTakeDigitsAndThePoint) {
  for (const char* name :
       {"txtFL", "txt弁Fd", "txtOrificeFactor", "txtRangeability", "txt弁Cv(3)"}) {
    auto& box = Find<forms::TextBox>(name);
    EXPECT_TRUE(box.PressKey(U'7') && box.PressKey(U'.')) << name;
    EXPECT_FALSE(box.PressKey(U'/') || box.PressKey(U'-') || box.PressKey(U'e')) << name;
  }
  EXPECT_TRUE(Find<forms::TextBox>("txt内弁Size(3)").PressKey(U'/'));
}

TEST_F(CatalogueEditor, ArrowsAndEnterReachEveryTrim) {
  forms::Form& form = *bench.Forms().Active();
  const auto press = [&](forms::Arrow arrow) {
    dynamic_cast<forms::TextBox&>(*form.Focused()).PressArrow(arrow);
  };
  form.SetFocus(Find("txt弁Cv(2)"));
  press(forms::Arrow::kDown);  // the grid moves under the cursor
  EXPECT_EQ(form.Focused()->Name(), "txt弁Cv(2)");
  EXPECT_EQ(Text("lblRow(2)"), "4");
  for (int i = 0; i < 30; ++i) press(forms::Arrow::kDown);
  EXPECT_EQ(form.Focused()->Name(), "txt弁Cv(10)");
  EXPECT_EQ(Text("lblRow(10)"), "22");
  for (int i = 0; i < 30; ++i) press(forms::Arrow::kUp);
  EXPECT_EQ(form.Focused()->Name(), "txt弁Cv(0)");
  EXPECT_EQ(Text("lblRow(0)"), "1");

  form.SetFocus(Find("txt弁Cv(10)"));
  for (int i = 0; i < 22; ++i) dynamic_cast<forms::TextBox&>(*form.Focused()).PressKey(U'\r');
  EXPECT_EQ(Text("lblRow(10)"), "22");
  EXPECT_EQ(form.Focused()->Name(), "txt弁Cv(10)");
}

}  // namespace
}  // namespace sheets
