#pragma once

#include "data/unit_table.h"
#include "forms/controls.h"
#include "shell/workspace.h"

namespace sheets {

/// The unit converter: a value in one unit of a category shown in another. It edits its table, too;
/// every edit counts at once, the file is written by command.
class frm単位換算 : public forms::Form {
 public:
  static constexpr const char* kName = "frm単位換算";

  /// What the unit edit dialogue is opened for.
  enum class UnitEdit { kRenameCategory, kInsertCategory, kChangeUnit, kInsertUnit };
  /// What the order dialogue moves.
  enum class Order { kCategories, kUnits };

  forms::TabStrip TabStrip1{*this, "TabStrip1"};
  forms::Label lblCategory{*this, "lblCategory", "分類"};
  forms::ListBox lstCategory{*this, "lstCategory", kListLines};
  forms::Label lblLeft{*this, "lblLeft", "変換前"};
  forms::ListBox lstLeft{*this, "lstLeft", kListLines};
  forms::Label lblRightUnit{*this, "lblRightUnit", "変換後"};
  forms::ListBox lstRight{*this, "lstRight", kListLines};
  forms::TextBox txtLeft{*this, "txtLeft", forms::SignedNumberKeys};
  forms::ResultLabel lblRight{*this, "lblRight"};

  forms::Label lblEditCategory{*this, "lblEditCategory", "分類"};
  forms::Button cmd分類挿入{*this, "cmd分類挿入", "挿入"};
  forms::Button cmd分類修正{*this, "cmd分類修正", "修正"};
  forms::Button cmdCategory削除{*this, "cmdCategory削除", "削除"};
  forms::Button cmdMoveCategory{*this, "cmdMoveCategory", "順序"};
  forms::Label lblEditUnit{*this, "lblEditUnit", "単位"};
  forms::Button cmd単位挿入{*this, "cmd単位挿入", "挿入"};
  forms::Button cmd単位修正{*this, "cmd単位修正", "修正"};
  forms::Button cmdDelete{*this, "cmdDelete", "削除"};
  forms::Button cmdMoveUnit{*this, "cmdMoveUnit", "順序"};
  forms::Button cmdSort{*this, "cmdSort", "ソート"};
  forms::Button cmdSave{*this, "cmdSave", "保存"};

  explicit frm単位換算(shell::Workspace& workspace);

  void Load() override;
  void Unload() override;

  UnitEdit Editing() const { return editing_; }
  Order Moving() const { return moving_; }
  data::UnitTable& Table() const { return workspace_.tables.units; }
  /// The category shown. Only while there is one.
  data::UnitCategory& Category() const;
  /// Place of the category shown, 0 in an empty table.
  int CategoryPlace() const { return category_; }
  /// Place of the unit before the conversion, 0 in an empty table.
  int UnitPlace() const;
  /// The table has been edited: shows this category with this unit on the left, and marks the table
  /// as unsaved.
  void Edited(int category, int unit);

 private:
  static constexpr int kListLines = 5;

  void BindHandlers();
  void NameButtons();
  void DeclareLayout();

  void Show(int category, int unit);
  void Convert();
  /// Whether the result belongs to the entry; an old one is shown with caution.
  void MarkResult(bool current);
  void SwitchMode(bool categories);
  void ShowModified();
  void OpenEdit(UnitEdit edit);
  void OpenOrder(Order order);
  void cmdCategory削除_Click();
  void cmdDelete_Click();
  void cmdSort_Click();
  void Save();

  shell::Workspace& workspace_;
  int category_ = 0;
  bool categoryMode_ = false;
  UnitEdit editing_ = UnitEdit::kRenameCategory;
  Order moving_ = Order::kCategories;
};

/// The converter behind its dialogues, or null.
frm単位換算* OpenConverter(const shell::Workspace& workspace);

}  // namespace sheets
