// What the editors of the data files have in common.

#include <functional>

#include "common/file.h"
#include "sheets/frm_unit_converter.h"
#include "tests/sheets/sheet_test.h"
#include "tests/support/data_folder.h"

namespace sheets {
namespace {

class DataEditors : public tests::DataFolder, public SheetTest {
 protected:
  struct Editor {
    const char *menu, *form, *file, *save, *question;
    bool shell::Workspace::*modified;
    std::function<void(const std::string& text)> change;
  };

  DataEditors() : SheetTest(Path()) {}

  std::function<void(const std::string&)> TypeInto(const char* box) {
    return [this, box](const std::string& text) { Type(box, text); };
  }
  /// As its dialogue does, which refuses nothing either.
  void RenameUnit(const std::string& text) {
    bench.Space().tables.units.categories[0].units[0].unitName = text;
    bench.Space().unitsModified = true;
  }
  void Close(const Editor& editor) { bench.Forms().Unload(*bench.Forms().Find(editor.form)); }
  std::string Bytes(const Editor& editor) { return common::ReadFile(File(editor.file)); }
  bool Modified(const Editor& editor) { return bench.Space().*editor.modified; }

  const std::vector<Editor> editors_ = {
      {"mnuEditPropData", "frmEditPropData", "Liqprop.dat", "cmdSaveProp",
       "物性データが変更されています。保存しますか", &shell::Workspace::fluidsModified,
       TypeInto("txtItemData(0)")},
      {"mnuCVcatalog", "frmEditCVspec", "ValveSpec.dat", "cmdDataSave",
       "弁カタログデータが変更されています。保存します", &shell::Workspace::valvesModified,
       TypeInto("txtModel")},
      {"mnuMaterial", "frmMaterial", "Material.dat", "cmdDataSave",
       "材料データが変更されています。保存しますか", &shell::Workspace::materialsModified,
       TypeInto("txtMaterialName")},
      {"mnuUnit", frm単位換算::kName, "単位変換.dat", "cmdSave",
       "データが変更されています。保存しますか", &shell::Workspace::unitsModified,
       [this](const std::string& text) { RenameUnit(text); }}};
};

TEST_F(DataEditors, LeafingThroughIsNoChange) {
  for (const Editor& editor : editors_) {
    SCOPED_TRACE(editor.file);
    const std::string before = Bytes(editor);
    bench.Window().Run(editor.menu);
    const forms::Form& form = *bench.Forms().Find(editor.form);
    for (forms::Control* control : form.Controls()) {
      if (auto* const option = dynamic_cast<forms::OptionButton*>(control)) option->Choose();
      auto* const list = dynamic_cast<forms::ListControl*>(control);
      if (list == nullptr || dynamic_cast<forms::ComboBox*>(list) != nullptr) continue;
      for (int i = list->Count() - 1; i >= 0; --i) list->Pick(i);
    }
    EXPECT_FALSE(Modified(editor));
    Click(editor.save);
    Close(editor);
    EXPECT_EQ(TakeTexts(), Texts());
    EXPECT_EQ(Bytes(editor), before);
  }
}

TEST_F(DataEditors, AskOnClosing) {
  for (const Editor& editor : editors_) {
    SCOPED_TRACE(editor.file);
    const std::string before = Bytes(editor);
    bench.Window().Run(editor.menu);
    editor.change("試験");
    Answer(false);
    Close(editor);
    EXPECT_EQ(TakeTexts(), Texts{editor.question});
    EXPECT_TRUE(Modified(editor));  // in use all the same
    EXPECT_EQ(Bytes(editor), before);
    bench.Window().Run(editor.menu);
    const forms::Control* const mark = bench.Forms().Active()->Find("lbl変更");
    EXPECT_TRUE(mark != nullptr ? !mark->Text().empty()
                                : Find(editor.save).BackColor() == forms::kUnsaved);
    Close(editor);  // yes
    EXPECT_EQ(TakeTexts(), Texts{editor.question});
    EXPECT_NE(Bytes(editor), before);
    bench.Window().Run(editor.menu);
    Close(editor);
    EXPECT_EQ(TakeTexts(), Texts());
  }
}

TEST_F(DataEditors, KeepWhatTheFileCannotHold) {
  for (const Editor& editor : editors_) {
    SCOPED_TRACE(editor.file);
    const std::string before = Bytes(editor);
    bench.Window().Run(editor.menu);
    for (const char* text : {"弁😀", "1\",2"}) {  // not in the code page; shifts the fields
      editor.change(text);
      Click(editor.save);
      EXPECT_EQ(TakeTexts().size(), 1U) << text;
      EXPECT_TRUE(Modified(editor));
    }
    Close(editor);
    EXPECT_EQ(TakeTexts().size(), 2U);  // the question and the refusal
    EXPECT_EQ(bench.Forms().Find(editor.form), nullptr);
    EXPECT_EQ(bench.Space().activeSheetKind, "");
    EXPECT_TRUE(Modified(editor));
    EXPECT_EQ(Bytes(editor), before);
  }
}

}  // namespace
}  // namespace sheets
