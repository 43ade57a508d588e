#include "sheets/frm_unit_converter.h"

#include <algorithm>

#include "common/number.h"
#include "common/text.h"
#include "sheets/frm_move.h"
#include "sheets/frm_unit_edit.h"
#include "shell/data_file.h"
#include "shell/instrument_file.h"

namespace sheets {

namespace {

constexpr const char* kFull = "もう追加できません。一杯です";

/// Refuses what the file cannot hold, with the category that has it.
void CheckStorable(const data::UnitTable& table) {
  for (const data::UnitCategory& category : table.categories) {
    const std::string owner = "分類「" + category.categoryName + "」";
    shell::CheckStorable(owner, category.categoryName);
    for (const data::UnitEntry& unit : category.units) {
      shell::CheckStorable(owner + "の単位", unit.unitName);
    }
  }
}

std::vector<std::string> CategoryNames(const data::UnitTable& table) {
  std::vector<std::string> names;
  for (const data::UnitCategory& category : table.categories) {
    names.push_back(category.categoryName);
  }
  return names;
}

std::vector<std::string> UnitNames(const data::UnitCategory& category) {
  std::vector<std::string> names;
  for (const data::UnitEntry& unit : category.units) names.push_back(unit.unitName);
  return names;
}

/// Fills a list only where it differs, so that it keeps the lines that the user looks at.
void Fill(forms::ListControl& list, std::vector<std::string> names, int selection) {
  if (list.Items() != names) list.SetItems(std::move(names));
  list.SetIndex(selection);
}

void UnloadIfOpen(shell::FormManager& forms, const char* name) {
  if (forms::Form* const form = forms.Find(name)) forms.Unload(*form);
}

}  // namespace

frm単位換算* OpenConverter(const shell::Workspace& workspace) {
  return dynamic_cast<frm単位換算*>(workspace.forms.Find(frm単位換算::kName));
}

frm単位換算::frm単位換算(shell::Workspace& workspace)
    : Form(kName, "単位系変換", forms::FormRole::kTool), workspace_(workspace) {
  WishPlace({0, 0, 5472, 4056});
  BindHandlers();
  NameButtons();
  DeclareLayout();
}

void frm単位換算::BindHandlers() {
  lstCategory.onClick = [this] { Show(lstCategory.Index(), 0); };
  TabStrip1.onClick = [this] { Show(TabStrip1.Index(), 0); };
  lblCategory.onClick = [this] { SwitchMode(!categoryMode_); };
  lblCategory.SetTabStop();
  lblCategory.onRightClick = [this] { OpenEdit(UnitEdit::kRenameCategory); };
  lstLeft.onRightClick = [this] { OpenEdit(UnitEdit::kChangeUnit); };
  lstLeft.onClick = [this] { Convert(); };
  lstRight.onClick = lstLeft.onClick;
  txtLeft.onChange = lstLeft.onClick;
  txtLeft.onEnter = [] {};  // swallowed: the value stays under the cursor for the next one
  cmd分類挿入.onClick = [this] { OpenEdit(UnitEdit::kInsertCategory); };
  cmd分類修正.onClick = lblCategory.onRightClick;
  cmdCategory削除.onClick = [this] { cmdCategory削除_Click(); };
  cmdMoveCategory.onClick = [this] { OpenOrder(Order::kCategories); };
  cmd単位挿入.onClick = [this] { OpenEdit(UnitEdit::kInsertUnit); };
  cmd単位修正.onClick = lstLeft.onRightClick;
  cmdDelete.onClick = [this] { cmdDelete_Click(); };
  cmdMoveUnit.onClick = [this] { OpenOrder(Order::kUnits); };
  cmdSort.onClick = [this] { cmdSort_Click(); };
  cmdSave.onClick = [this] { Save(); };
}

/// The buttons are too narrow for more than a word; the rest is in their names.
void frm単位換算::NameButtons() {
  const struct {
    forms::Button& button;
    const char* name;
  } rows[] = {{cmd分類挿入, "分類を現在の位置に挿入"},
              {cmd分類修正, "分類名の修正"},
              {cmdCategory削除, "分類の削除"},
              {cmdMoveCategory, "分類名の順序変更"},
              {cmd単位挿入, "単位を変換前の単位の前に挿入"},
              {cmd単位修正, "変換前の単位の修正"},
              {cmdDelete, "変換前の単位の削除"},
              {cmdMoveUnit, "単位名の順序変更"},
              {cmdSort, "単位名の順に並べ替え"},
              {cmdSave, "単位データをファイルに保存"}};
  for (const auto& row : rows) {
    row.button.SetToolTip(row.name);
    row.button.SetAccessibleName(row.name);
  }
  lblCategory.SetToolTip("クリックで分類と単位の編集を切り替え、右クリックで分類名を修正します。");
  lstLeft.SetToolTip("右クリックで単位を修正します。");
}

void frm単位換算::Load() {
  const Quiet quiet(*this);
  ShowModified();
  SetFocus(txtLeft);
  txtLeft.SetText("1");
  Show(0, 0);
}

data::UnitCategory& frm単位換算::Category() const {
  return common::At(Table().categories, category_);
}

int frm単位換算::UnitPlace() const { return std::max(lstLeft.Index(), 0); }

void frm単位換算::Show(int category, int unit) {
  const Quiet quiet(*this);
  const int categories = static_cast<int>(Table().categories.size());
  category_ = std::clamp(category, 0, std::max(categories - 1, 0));
  const int selected = categories > 0 ? category_ : -1;
  Fill(TabStrip1, CategoryNames(Table()), selected);
  Fill(lstCategory, CategoryNames(Table()), selected);
  if (categories == 0) {
    Fill(lstLeft, {}, -1);
    Fill(lstRight, {}, -1);
  } else {
    Fill(lstLeft, UnitNames(Category()), std::clamp(unit, 0, Category().LastUnitIndex()));
    Fill(lstRight, UnitNames(Category()), Category().baseUnitIndex);
  }
  Convert();
}

void frm単位換算::Convert() {
  if (Table().Empty()) {
    lblRight.SetText("");
    return;
  }
  MarkResult(false);
  if (common::CodePoints(txtLeft.Text()).size() > data::kConverterCharacters) {
    workspace_.Shown().Show("変換前データが表示可能桁数をＯＶＥＲ");
    return;
  }
  const common::Real value = common::Val(txtLeft.Text());
  {
    const Quiet quiet(*this);
    if (lstLeft.Index() < 0) lstLeft.SetIndex(0);
    if (lstRight.Index() < 0) lstRight.SetIndex(0);
  }
  const auto result = data::ConvertUnit(Category(), lstLeft.Index(), lstRight.Index(), value);
  if (!result) {
    workspace_.Shown().Show("変換後のデータが表示可能桁数をＯＶＥＲ");
    return;
  }
  lblRight.SetText(*result);
  MarkResult(true);
}

void frm単位換算::MarkResult(bool current) {
  const bool old = !current && !lblRight.Text().empty();
  lblRight.SetForeColor(old ? forms::kMagenta : forms::kBlack);
  lblRight.SetToolTip(old ? "前回の変換結果です。" : "");
}

void frm単位換算::SwitchMode(bool categories) {
  categoryMode_ = categories;
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&lstLeft, &lstRight, &txtLeft, &cmd単位挿入,
                                              &cmd単位修正, &cmdDelete, &cmdMoveUnit, &cmdSort}) {
    control->SetEnabled(!categories);
  }
  lstCategory.SetEnabled(true);
  lblCategory.SetText(categories ? "分類の編集" : "分類");
  SetFocus(categories ? static_cast<forms::Control&>(lstCategory) : txtLeft);
}

void frm単位換算::ShowModified() {
  cmdSave.SetBackColor(workspace_.unitsModified ? forms::kUnsaved : forms::kButtonFace);
}

void frm単位換算::Edited(int category, int unit) {
  workspace_.unitsModified = true;
  ShowModified();
  // An event of this form, even when a dialogue has made the edit: a unit that cannot be converted
  // is told here and does not keep the dialogue open.
  RunEvent(nullptr, [&] { Show(category, unit); });
}

void frm単位換算::OpenEdit(UnitEdit edit) {
  const bool inserts = edit == UnitEdit::kInsertCategory;
  if (Table().Empty() && !inserts) return;
  const bool full = inserts ? Table().categories.size() >= data::UnitTable::kMaxCategories
                            : edit == UnitEdit::kInsertUnit &&
                                  Category().units.size() >= data::UnitTable::kMaxUnits;
  if (full) {
    workspace_.Shown().Show(kFull);
    return;
  }
  editing_ = edit;
  workspace_.forms.Show(frmUnitEdit::kName);
}

void frm単位換算::OpenOrder(Order order) {
  if (Table().Empty()) return;
  moving_ = order;
  workspace_.forms.Show(frmMove::kName);
}

/// The last category stays: without one there is nothing to show or to convert.
void frm単位換算::cmdCategory削除_Click() {
  if (Table().categories.size() < 2) return;
  if (!workspace_.Shown().Ask("分類　《" + Category().categoryName +
                              "》　を削除してもいいですか")) {
    return;
  }
  Table().categories.erase(Table().categories.begin() + category_);
  Edited(category_, 0);
}

void frm単位換算::cmdDelete_Click() {
  if (Table().Empty()) return;
  const int unit = UnitPlace();
  if (unit == Category().baseUnitIndex) {
    workspace_.Shown().Show("基準単位です\n削除してはいけません");
    return;
  }
  if (!workspace_.Shown().Ask(
          "単位名【" + common::At(Category().units, unit).unitName + "】を削除してもいいですか",
          "単位系編集")) {
    return;
  }
  data::RemoveUnit(Category(), unit);
  Edited(category_, unit);
}

void frm単位換算::cmdSort_Click() {
  if (!Table().Empty() && data::SortUnits(Category())) Edited(category_, 0);
}

void frm単位換算::Save() {
  shell::SaveDataFile(workspace_, "単位変換.dat", workspace_.unitsModified, [this] {
    CheckStorable(Table());
    return data::WriteUnitTable(Table());
  });
  ShowModified();
}

void frm単位換算::Unload() {
  UnloadIfOpen(workspace_.forms, frmUnitEdit::kName);
  UnloadIfOpen(workspace_.forms, frmMove::kName);
  if (workspace_.unitsModified &&
      workspace_.Shown().Ask("データが変更されています。保存しますか")) {
    Save();
  }
}

/// Made to be seen whole in the place that it wishes for, with the smallest letters.
void frm単位換算::DeclareLayout() {
  constexpr int kListColumns = 12;
  SetLayout(forms::Column({
      forms::Table({{TabStrip1}}),
      forms::Stretched(forms::Table({
          {lblCategory, lblLeft, lblRightUnit},
          {forms::Cell(lstCategory).Wide(kListColumns), forms::Cell(lstLeft).Wide(kListColumns),
           forms::Cell(lstRight).Wide(kListColumns)},
          {{}, txtLeft, lblRight},
      })),
      forms::Table({
          {lblEditCategory, cmd分類挿入, cmd分類修正, cmdCategory削除, cmdMoveCategory, cmdSave},
          {lblEditUnit, cmd単位挿入, cmd単位修正, cmdDelete, cmdMoveUnit, cmdSort},
      }),
  }));
}

}  // namespace sheets
