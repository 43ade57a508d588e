#pragma once

#include <string>

#include "forms/controls.h"
#include "shell/sheet.h"
#include "valve/valve_catalogue.h"

namespace sheets {

/// Edits the valve catalogue: a page for one model of one maker. Every change goes into the table
/// at once, so that open sheets calculate with it; the file is written by command.
class frmEditCVspec : public shell::Sheet {
 public:
  static constexpr const char* kKind = "EditCV";
  /// Trims that the page shows at a time.
  static constexpr int kShownTrims = 11;

  forms::ControlArray<forms::OptionButton> optMaker{
      *this, "optMaker", valve::ValveCatalogue::kMakers, std::string(), std::string("maker")};
  forms::ControlArray<forms::OptionButton> optModel{
      *this, "optModel", valve::ValveCatalogue::kModels, std::string(), std::string("model")};

  forms::Label lblMaker{*this, "lblMaker", "メーカー名"};
  forms::TextBox txtMaker{*this, "txtMaker"};
  forms::Label lblModel{*this, "lblModel", "型式"};
  forms::TextBox txtModel{*this, "txtModel"};
  forms::Label lblFL{*this, "lblFL", "圧力回復係数 FL"};
  forms::TextBox txtFL{*this, "txtFL", forms::DigitKeys};
  forms::Label lbl弁Fd{*this, "lbl弁Fd", "弁形式修正係数 Fd"};
  forms::TextBox txt弁Fd{*this, "txt弁Fd", forms::DigitKeys};
  forms::Label lblOrificeFactor{*this, "lblOrificeFactor", "騒音係数 n"};
  forms::TextBox txtOrificeFactor{*this, "txtOrificeFactor", forms::DigitKeys};
  forms::Label lblRangeability{*this, "lblRangeability", "レンジアビリティ"};
  forms::TextBox txtRangeability{*this, "txtRangeability", forms::DigitKeys};
  forms::Label lblCharact{*this, "lblCharact", "流量特性"};
  forms::ComboBox cboCharact{*this, "cboCharact"};

  forms::Label lbl内弁Size{*this, "lbl内弁Size", "内弁サイズ"};
  forms::Label lbl弁Cv{*this, "lbl弁Cv", "定格Cv"};
  forms::ControlArray<forms::Label> lblRow{*this, "lblRow", kShownTrims};
  forms::ControlArray<forms::TextBox> txt内弁Size{*this, "txt内弁Size", kShownTrims};
  forms::ControlArray<forms::TextBox> txt弁Cv{*this, "txt弁Cv", kShownTrims, forms::DigitKeys};
  forms::ScrollBar VScroll1{*this, "VScroll1", forms::ScrollBar::Direction::kVertical,
                            valve::ValveCatalogue::kTrims - kShownTrims};

  forms::Label lbl変更{*this, "lbl変更", "", forms::LabelStyle::kNote};
  forms::Button cmdDeleteMaker{*this, "cmdDeleteMaker", "メーカー削除"};
  forms::Button cmdDeleteModel{*this, "cmdDeleteModel", "型式削除"};
  forms::Button cmdDataSave{*this, "cmdDataSave", "保　存", forms::ButtonRole::kDefault};

  explicit frmEditCVspec(shell::Workspace& workspace);

  void Load() override;
  void Unload() override;

 private:
  void HandleTrims();
  void DeclareLayout();

  /// Trim that stands in a row of the page now.
  std::size_t TrimIn(int row) const;
  /// The field writes its text into this cell of the table.
  template <class CellOf>
  void Edits(forms::TextBox& box, CellOf cellOf);
  void ChangeCell(std::string& cell, const std::string& text);
  void Changed();

  void optMaker_Click(int maker);
  void optModel_Click(int model);
  void ShowModelNames();
  void ShowModel();
  void ShowTrims();
  void ShowModified();
  bool MoveTrims(forms::Arrow arrow, forms::ControlArray<forms::TextBox>& column, int row);

  void EmptyModel(std::size_t model);
  void cmdDeleteMaker_Click();
  void cmdDeleteModel_Click();
  void Save();

  valve::ValveCatalogue& Catalogue() const { return Space().tables.valves; }

  std::size_t maker_ = 0;
  std::size_t model_ = 0;
};

}  // namespace sheets
