#include "sheets/frm_material.h"

#include "common/file.h"
#include "common/number.h"
#include "tests/sheets/sheet_test.h"
#include "tests/support/data_folder.h"

namespace sheets {
namespace {

constexpr const char* kRows[] = {"txt密度L",       "txt密度H",      "txtヤング率L",
                                 "txtヤング率H",   "txt許容応力L",  "txt許容応力H",
                                 "txt線膨張係数L", "txt線膨張係数H"};

std::string Box(const char* row, int column) {
  return std::string(row) + "(" + std::to_string(column) + ")";
}

class MaterialEditor : public tests::DataFolder, public SheetTest {
 protected:
  MaterialEditor() : SheetTest(Path()) { Open(); }

  void Open() { bench.Window().Run("mnuMaterial"); }
  void Close() { bench.Forms().Unload(*bench.Forms().Find("frmMaterial")); }
  data::MaterialTable& Table() { return bench.Space().tables.materials; }
  bool Modified() { return bench.Space().materialsModified; }
  std::string FileName() { return File("Material.dat"); }
  /// What a program that is started now would read, written again.
  std::string Reloaded() {
    Workbench again(presenter, Path(), settings);
    again.Start();
    return data::WriteMaterialTable(again.Space().tables.materials);
  }
};

TEST_F(MaterialEditor, EnterWalksThroughTheArrays) {
  forms::Form& form = *bench.Forms().Active();
  form.SetFocus(Find("txt密度L(0)"));
  for (int box = 0; box < 48; ++box) {
    EXPECT_EQ(form.Focused()->Name(), Box(kRows[box / 6], box % 6));
    Find<forms::TextBox>(form.Focused()->Name()).PressKey(U'\r');
  }
  EXPECT_EQ(form.Focused()->Name(), "cmdDataSave");
  EXPECT_FALSE(Modified());
  auto& box = Find<forms::TextBox>("txt密度L(2)");
  EXPECT_TRUE(box.PressKey(U'-') && box.PressKey(U'9'));
  EXPECT_FALSE(box.PressKey(U'e'));
}

// Every cell of one material in turn: the file has it in its place, and everything else as it was.
TEST_F(MaterialEditor, ReadsItsEditsAfterARestart) {
  data::MaterialTable expected = Table();
  Choose("optMaterial(2)");
  Type("txtMaterialName", "チタン〜TTP340");
  EXPECT_EQ(Text("optMaterial(2)"), "チタン～TTP340");  // in the form that the file gives back
  expected.names[2] = "チタン～TTP340";
  int number = 100;
  for (std::size_t row = 0; row < 8; ++row) {
    for (int column = 0; column < 6; ++column) {
      const std::string text = std::to_string(++number);
      Type(Box(kRows[row], column), text);
      common::At(expected.cells[2][row], column) = text;
    }
  }
  EXPECT_TRUE(Modified());
  EXPECT_EQ(Find("cmdDataSave").BackColor(), forms::kUnsaved);
  Choose("optMaterial(0)");
  EXPECT_TRUE(Modified());
  Click("cmdDataSave");
  EXPECT_FALSE(Modified());
  EXPECT_EQ(Find("cmdDataSave").BackColor(), forms::kButtonFace);
  EXPECT_EQ(common::ReadFile(FileName()), data::WriteMaterialTable(expected));
  EXPECT_EQ(Reloaded(), data::WriteMaterialTable(expected));
  EXPECT_EQ(TakeTexts(), Texts{});
}

TEST_F(MaterialEditor, OpenSheetsCalculateWithTheEdits) {
  Close();
  bench.Window().Run("mnuMulti");
  bench.Window().Run("mnuOrifice");
  Type("txt温度", "100");
  Pick("cbo配管種類", 0);
  DblClick("txt配管線膨張率");
  EXPECT_NEAR(common::Val(Text("txt配管線膨張率")), 12.1, 0.11);  // carbon steel, ASME II-D TE-1
  Open();
  Type("txtMaterialName", "試作鋼");
  for (const char* cell : {"txt線膨張係数L(3)", "txt線膨張係数L(4)", "txt線膨張係数L(5)"}) {
    Type(cell, "0");
  }
  Type("txt線膨張係数L(2)", "9.87");
  bench.Forms().Show("frmOrifice");
  EXPECT_EQ(Text("cbo配管種類"), "試作鋼");
  EXPECT_EQ(Find<forms::ComboBox>("cbo絞り部材質").Items()[0], "試作鋼");
  EXPECT_NEAR(common::Val(Text("txt配管線膨張率")), 12.1, 0.11);  // what was entered stays
  DblClick("txt配管線膨張率");
  EXPECT_EQ(common::Val(Text("txt配管線膨張率")), 9.9);
}

}  // namespace
}  // namespace sheets
