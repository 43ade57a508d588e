#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "ducts/cable_choice.h"
#include "ducts/duct_sizing.h"
#include "forms/controls.h"
#include "sheets/calculation_page.h"
#include "sheets/duct_picture.h"
#include "shell/sheet.h"

namespace sheets {

/// A cable as its editor hands it over.
struct CableEntry {
  ducts::CableChoice choice;
  std::string name;
  std::string cores;
  std::string size;
  std::string diameter;
  std::string unitWeight;
  std::string quantity;
};

/// Sizes a steel cable duct for up to twenty kinds of cable: section, weight, fill and sag.
class frmCable : public shell::Sheet {
  using Label = forms::Label;
  using TextBox = forms::TextBox;
  using ResultLabel = forms::ResultLabel;

 public:
  static constexpr const char* kKind = "CableDuct";
  static constexpr const char* kName = "frmCable";
  static constexpr int kRows = shell::kDuctCables;

  Label lblTagNo{*this, "lblTagNo", "ダクト名称"};
  TextBox txtTagNo{*this, "txtTagNo", forms::AnyKey, 26};
  Label lblSpan{*this, "lblSpan", "支持スパン"};
  TextBox txtSpan{*this, "txtSpan", forms::NumberKeys};
  Label lbl作業員{*this, "lbl作業員", "作業員"};
  TextBox txt作業員{*this, "txt作業員", forms::NumberKeys};

  forms::ControlArray<forms::Button> cmd編集{*this, "cmd編集", kRows, std::string()};
  forms::ControlArray<ResultLabel> lblCable{*this, "lblCable", kRows, ResultLabel::Holds::kWords};
  forms::ControlArray<ResultLabel> lbl芯数{*this, "lbl芯数", kRows, ResultLabel::Holds::kWords};
  forms::ControlArray<ResultLabel> lblSize{*this, "lblSize", kRows, ResultLabel::Holds::kWords};
  forms::ControlArray<ResultLabel> lblCableDia{*this, "lblCableDia", kRows};
  forms::ControlArray<ResultLabel> lblUnitWeight{*this, "lblUnitWeight", kRows};
  forms::ControlArray<TextBox> txt本数{*this, "txt本数", kRows, forms::NumberKeys};
  forms::ControlArray<ResultLabel> lblTotalArea{*this, "lblTotalArea", kRows};
  forms::ControlArray<ResultLabel> lblWeight1{*this, "lblWeight1", kRows};
  forms::ControlArray<ResultLabel> lblTotalWeight{*this, "lblTotalWeight", kRows};
  ResultLabel lblSumArea{*this, "lblSumArea"};
  ResultLabel lblUnitWeightSub{*this, "lblUnitWeightSub"};
  ResultLabel lblSumWeight{*this, "lblSumWeight"};

  Label lblWidth{*this, "lblWidth", "幅"};
  TextBox txtWidth{*this, "txtWidth", forms::NumberKeys};
  Label lblHeight{*this, "lblHeight", "深さ"};
  TextBox txtHeight{*this, "txtHeight", forms::NumberKeys};
  Label lbl折込{*this, "lbl折込", "折込"};
  TextBox txt折込{*this, "txt折込", forms::NumberKeys};
  Label lblThickness{*this, "lblThickness", "板厚"};
  TextBox txtThickness{*this, "txtThickness", forms::NumberKeys};
  forms::Button cmd寸法{*this, "cmd寸法", "寸法選択"};

  ResultLabel lblDuctArea{*this, "lblDuctArea"};
  ResultLabel lbl占積率{*this, "lbl占積率"};
  ResultLabel lblDuctWeight{*this, "lblDuctWeight"};
  ResultLabel lbl撓み{*this, "lbl撓み"};
  Label lbl区分{*this, "lbl区分", "", forms::LabelStyle::kNote};
  Label lbl未計算{*this, "lbl未計算", "", forms::LabelStyle::kNote};
  forms::Picture pic断面{*this, "pic断面", 5400, 3600};

  forms::Button cmdDuct初期化{*this, "cmdDuct初期化", "初期化"};
  forms::Button cmd断面図{*this, "cmd断面図", "断面図"};
  forms::Button cmd計算{*this, "cmd計算", "計　算", forms::ButtonRole::kDefault};

  explicit frmCable(shell::Workspace& workspace);

  void Load() override;
  void Unload() override;
  std::string TagNumber() const override { return txtTagNo.Text(); }
  bool PrintBody(shell::PrintSurface& target) override {
    PrintCableList(target);
    return true;
  }

  /// The sheet as a row of the duct store, and back.
  shell::DuctRow Record();
  void Show(const shell::DuctRow& record);

  /// The row whose editor is open.
  int EditedRow() const { return editedRow_; }
  CableEntry Cable(int row) const;
  /// Puts a cable into a row, whose results go.
  void SetCable(int row, const CableEntry& entry);

  /// Width, height, thickness and fold-in as texts, checked again as one change.
  void SetSize(const std::array<std::string, 4>& size);

  const DuctPicture& Drawing() const { return drawing_; }

  /// Prints the cables and the duct as they stand on the sheet.
  void PrintCableList(shell::PrintSurface& target) const;

 private:
  void PrintCables(CalculationPage& page) const;
  void PrintDuct(CalculationPage& page) const;

  void BindHandlers();
  void DeclareLayout();
  forms::Block CableBlock();
  forms::Block SizeBlock();
  forms::Block ResultBlock();

  /// Opens the editor of a cable row.
  void EditRow(int row);
  void cmdDuct初期化_Click();
  void cmd計算_Click();
  /// Checks the duct in the boxes with the cables in the rows; also while they are typed.
  void Evaluate();
  /// Cables or span are other than those of the results.
  void TellUncalculated();

  ducts::CableRun Run(int row) const;
  /// The rows that count: those with a name and a number of cables.
  std::vector<int> CountedRows() const;
  ducts::CableLoad LoadOf(int row) const;
  ducts::CableLoad TotalLoad() const;
  ducts::DuctSection Section() const;
  void ShowRow(int row);
  void ShowRowWeights(int row);
  void ShowSums(const ducts::CableLoad& sum);
  void ShowSumWeights(const ducts::CableLoad& sum);
  void ShowClass(ducts::DuctClass duct);
  void ShowSag(const ducts::DuctCheck& check);
  void SetSagColor(forms::Color color);
  void RedrawDuct();
  void ClearResults();
  void ShowDrawing(const std::optional<ducts::Real>& fill);
  void ClearRowResults(int row);
  void ClearRowWeights(int row);

  /// Fields of the record that hold a text as it stands in a control.
  std::vector<std::pair<int, forms::Control*>> RecordFields();
  void ShowStoredResults(const shell::DuctRow& record);

  std::array<ducts::CableChoice, kRows> choices_;
  int editedRow_ = 0;
  DuctPicture drawing_;
};

/// The sheet if it is open; null otherwise.
frmCable* OpenCableSheet(const shell::Workspace& workspace);

}  // namespace sheets
