#pragma once

#include "forms/controls.h"
#include "sheets/frm_cable.h"

namespace sheets {

/// Edits one cable of the duct sheet: picked from the lists, or typed.
class frmDataInput : public forms::Form {
  using ComboBox = forms::ComboBox;
  using TextBox = forms::TextBox;
  using ResultLabel = forms::ResultLabel;

 public:
  static constexpr const char* kName = "frmDataInput";

  // The row as it stands on the sheet.
  ResultLabel lblCable{*this, "lblCable", ResultLabel::Holds::kWords};
  ResultLabel lbl芯数{*this, "lbl芯数", ResultLabel::Holds::kWords};
  ResultLabel lblSize{*this, "lblSize", ResultLabel::Holds::kWords};
  ResultLabel lblCableDia{*this, "lblCableDia"};
  ResultLabel lblUnitWeight{*this, "lblUnitWeight"};
  ResultLabel lbl本数{*this, "lbl本数"};

  forms::ControlArray<forms::OptionButton> Opt種類{*this, "Opt種類", ducts::kCableGroups,
                                                   std::string()};
  ComboBox cboCable{*this, "cboCable", {}, ComboBox::Style::kEditable};
  ComboBox cbo芯数{*this, "cbo芯数", {}, ComboBox::Style::kEditable};
  ComboBox cboSize{*this, "cboSize", {}, ComboBox::Style::kEditable};
  TextBox txtCableDia{*this, "txtCableDia", forms::NumberKeys};
  TextBox txtUnitWeight{*this, "txtUnitWeight", forms::NumberKeys};
  TextBox txt本数{*this, "txt本数", forms::NumberKeys};
  forms::Button cmdErase{*this, "cmdErase", "消　去"};
  forms::Button cmdOK{*this, "cmdOK", "決　定", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmDataInput(shell::Workspace& workspace);
  void Load() override;

 private:
  ducts::CableChoice Choice() const;
  void DeclareLayout();
  void ShowRow(const CableEntry& entry);
  void FillLists();
  void FillCores();
  void ChooseGroup(ducts::CableGroup group);
  void cboCable_Change();
  void LookUp();
  void Leave(const CableEntry& entry);

  shell::Workspace& workspace_;
  ducts::CableGroup group_ = ducts::CableGroup::kControl;
};

/// Chooses the dimensions of the duct from those that ducts are made in.
class frmSetDuctSize : public forms::Form {
 public:
  static constexpr const char* kName = "frmSetDuctSize";

  forms::ListBox lstWidth{*this, "lstWidth", 9};
  forms::ListBox lstHeight{*this, "lstHeight", 9};
  forms::ListBox lstThickness{*this, "lstThickness", 9};
  forms::ListBox lst折込{*this, "lst折込", 9};
  forms::Button cmdOK{*this, "cmdOK", "決定", forms::ButtonRole::kDefault};
  forms::Button cmdCancel{*this, "cmdCancel", "キャンセル", forms::ButtonRole::kCancel};

  explicit frmSetDuctSize(shell::Workspace& workspace);
  void Load() override;

 private:
  struct Dimension {
    forms::ListBox* list;
    const forms::TextBox* box;
  };
  /// Lists and boxes in the order of SetSize.
  std::array<Dimension, 4> Dimensions(const frmCable& sheet);
  void cmdOK_Click();

  shell::Workspace& workspace_;
};

/// The duct's section with its cables.
class frmDuctDraw : public forms::Form {
 public:
  static constexpr const char* kName = "frmDuctDraw";

  forms::Picture picDuct{*this, "picDuct", 10500, 6000};
  forms::Button cmdReturn{*this, "cmdReturn", "戻　る", forms::ButtonRole::kDefault};

  explicit frmDuctDraw(shell::Workspace& workspace);
};

}  // namespace sheets
