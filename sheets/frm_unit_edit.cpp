#include "sheets/frm_unit_edit.h"

#include "common/number.h"
#include "common/text.h"

namespace sheets {

frmUnitEdit::frmUnitEdit(shell::Workspace& workspace)
    : Form(kName, "", forms::FormRole::kDialog), workspace_(workspace) {
  txtEditCategory.SetToolTip("全角で８文字(半角で１６文字以内) 以内");
  txtConvFactor.SetToolTip("追加単位から基準単位に換算する為の係数");
  txtAddUnit.onChange = [this] { ShowEquation(); };
  txtConvFactor.onChange = txtAddUnit.onChange;
  txtConvConst.onChange = txtAddUnit.onChange;
  cmdOK.onClick = [this] { cmdOK_Click(); };
  cmdCancel.onClick = [this] { workspace_.forms.Unload(*this); };
  SetLayout(forms::Column({
      forms::Table({{lblEditCategory, forms::Cell(txtEditCategory).Wide(24)},
                    {lblAddUnit, txtAddUnit},
                    {lblBaseUnit, txtBaseUnit},
                    {lblConvFactor, txtConvFactor},
                    {lblConvConst, txtConvConst},
                    {{}, lblEquation}}),
      forms::Buttons({{}, cmdOK, cmdCancel}),
  }));
}

void frmUnitEdit::Ask(forms::TextBox& box, bool asked) {
  box.SetEnabled(asked);
  box.SetBackColor(asked ? forms::kWhite : forms::kButtonFace);
}

void frmUnitEdit::Load() {
  const frm単位換算* const converter = OpenConverter(workspace_);
  edit_ = converter != nullptr ? converter->Editing() : UnitEdit::kRenameCategory;
  const struct {
    UnitEdit edit;
    const char *caption, *categoryLabel, *unitLabel;
    bool category, unit, factors;  // what it asks for
  } kEdits[] = {
      {UnitEdit::kRenameCategory, "分類名修正", "修正分類名", "", true, false, false},
      {UnitEdit::kInsertCategory, "分類追加", "挿入分類名", "挿入単位名", true, true, false},
      {UnitEdit::kChangeUnit, "修正・変更", "分 類 名", "変更単位名", false, true, true},
      {UnitEdit::kInsertUnit, "単位挿入", "分 類 名", "挿入単位名", false, true, true}};
  for (const auto& row : kEdits) {
    if (row.edit != edit_) continue;
    SetCaption(row.caption);
    lblEditCategory.SetText(row.categoryLabel);
    lblAddUnit.SetText(row.unitLabel);
    Ask(txtEditCategory, row.category);
    Ask(txtAddUnit, row.unit);
    Ask(txtBaseUnit, false);
    Ask(txtConvFactor, row.factors);
    Ask(txtConvConst, row.factors);
    for (forms::Control* control : std::initializer_list<forms::Control*>{
             &lblAddUnit, &txtAddUnit, &lblBaseUnit, &txtBaseUnit, &lblConvFactor, &txtConvFactor,
             &lblConvConst, &txtConvConst, &lblEquation}) {
      control->SetVisible(row.unit);
    }
  }
  if (converter != nullptr) FillFields(*converter);
  ShowEquation();
  SetFocus(txtEditCategory.Enabled() ? txtEditCategory : txtAddUnit);
}

void frmUnitEdit::FillFields(const frm単位換算& converter) {
  const Quiet quiet(*this);
  txtConvFactor.SetText("1");
  txtConvConst.SetText("0");
  if (edit_ == UnitEdit::kInsertCategory) return;
  const data::UnitCategory& category = converter.Category();
  txtEditCategory.SetText(category.categoryName);
  txtBaseUnit.SetText(common::At(category.units, category.baseUnitIndex).unitName);
  if (edit_ == UnitEdit::kInsertUnit) return;
  const data::UnitEntry& unit = common::At(category.units, converter.UnitPlace());
  txtAddUnit.SetText(unit.unitName);
  txtConvFactor.SetText(common::NumberText(unit.factor));
  txtConvConst.SetText(common::NumberText(unit.offset));
}

/// The first unit of a category is its base.
void frmUnitEdit::ShowEquation() {
  if (edit_ == UnitEdit::kInsertCategory) txtBaseUnit.SetText(txtAddUnit.Text());
  if (txtAddUnit.Text().empty()) {
    lblEquation.SetText("");
    return;
  }
  lblEquation.SetText("[" + txtBaseUnit.Text() + "] ＝ [" + txtAddUnit.Text() +
                      "] × 換算係数 ＋ 定数項");
}

bool frmUnitEdit::HasNames() {
  for (forms::TextBox* box : {&txtEditCategory, &txtAddUnit}) {
    if (!box->Usable() || !box->Text().empty()) continue;
    SetFocus(*box);
    return false;
  }
  return true;
}

void frmUnitEdit::cmdOK_Click() {
  frm単位換算* const converter = OpenConverter(workspace_);
  if (!HasNames()) return;
  if (!workspace_.Shown().Ask("上記のように変更しますか？")) return;
  if (converter != nullptr) Apply(*converter);
  workspace_.forms.Unload(*this);
}

void frmUnitEdit::Apply(frm単位換算& converter) {
  const int category = converter.CategoryPlace();
  const int place = converter.UnitPlace();
  // Names are found again by text, so they take the form of a file at once.
  const std::string name = data::CutCategoryName(common::CodePageForm(txtEditCategory.Text()));
  const data::UnitEntry unit{common::CodePageForm(txtAddUnit.Text()),
                             common::Val(txtConvFactor.Text()), common::Val(txtConvConst.Text())};
  switch (edit_) {
    case UnitEdit::kRenameCategory:
      converter.Category().categoryName = name;
      return converter.Edited(category, place);
    case UnitEdit::kInsertCategory:
      data::InsertCategory(converter.Table(), category, name, unit.unitName);
      return converter.Edited(category, 0);
    case UnitEdit::kChangeUnit:
      common::At(converter.Category().units, place) = unit;
      return converter.Edited(category, place);
    case UnitEdit::kInsertUnit:
      data::InsertUnit(converter.Category(), place, unit);
      return converter.Edited(category, place);
  }
}

}  // namespace sheets
