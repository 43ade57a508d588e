#pragma once

#include <string>
#include <vector>

#include "flow/restriction_orifice.h"
#include "sheets/calculation_page.h"
#include "sheets/element_section.h"
#include "sheets/process_sheet.h"

namespace sheets {

/// Sizes a restriction orifice: the bore that loses a differential pressure, and whether its plate
/// bears that.
class frmRO : public ProcessSheet, public PipeTarget {
 public:
  static constexpr const char* kKind = "制限ｵﾘﾌｨｽ";

  Label lblタイトル{*this, "lblタイトル", "RESTRICTION ORIFICE CALCULATION", LabelStyle::kHeading};
  Label lbl流量{*this, "lbl流量", "流量"};
  TextBox txt流量{*this, "txt流量", forms::NumberKeys};
  Label lbl差圧{*this, "lbl差圧", "差圧"};
  TextBox txt差圧{*this, "txt差圧", forms::NumberKeys};
  UnitBox cbo差圧単位{*this, "cbo差圧単位"};
  HumidityFields humidity{*this};
  Label lbl圧縮係数{*this, "lbl圧縮係数", "圧縮係数"};
  TextBox txt圧縮係数{*this, "txt圧縮係数", forms::NumberKeys};
  Label lbl比熱比{*this, "lbl比熱比", "比熱比"};
  TextBox txt比熱比{*this, "txt比熱比", forms::NumberKeys};

  Label lblRO材質{*this, "lblRO材質", "Ｒ.Ｏ. 材質"};
  ComboBox cboRO材質{*this, "cboRO材質", {}, ComboBox::Style::kEditable};
  Label lblヤング率{*this, "lblヤング率", "ヤング率"};
  TextBox txtヤング率{*this, "txtヤング率", forms::NumberKeys};
  UnitBox cboヤング率単位{*this, "cboヤング率単位"};
  Label lbl許容応力{*this, "lbl許容応力", "許容応力"};
  TextBox txt許容応力{*this, "txt許容応力", forms::NumberKeys};
  UnitBox cbo許容応力単位{*this, "cbo許容応力単位"};
  Label lbl配管呼称径{*this, "lbl配管呼称径", "配管呼称径"};
  ComboBox cbo配管呼称径{*this, "cbo配管呼称径", {}, ComboBox::Style::kEditable};
  Label lblSchedule{*this, "lblSchedule", "スケジュール"};
  ComboBox cboSchedule{*this, "cboSchedule", {}, ComboBox::Style::kEditable};
  Label lbl配管内径{*this, "lbl配管内径", "配管内径"};
  TextBox txt配管内径{*this, "txt配管内径", forms::NumberKeys};
  Label lblThickness{*this, "lblThickness", "板厚"};
  TextBox txtThickness{*this, "txtThickness", forms::NumberKeys};

  forms::Picture pic断面{*this, "pic断面", 6600, 3300};

  ResultLabel lbl流速1{*this, "lbl流速1"};
  ResultLabel lbl流量係数{*this, "lbl流量係数"};
  ResultLabel lbl背圧補正{*this, "lbl背圧補正"};
  ResultLabel lblβ{*this, "lblβ"};
  ResultLabel lbl絞り径{*this, "lbl絞り径"};
  ResultLabel lblたわみ係数{*this, "lblたわみ係数"};
  ResultLabel lbl応力係数{*this, "lbl応力係数"};
  ResultLabel lbl最大応力{*this, "lbl最大応力"};
  Label lbl最大応力単位{*this, "lbl最大応力単位", "", LabelStyle::kUnit};
  /// Where and in which direction the greatest stress acts.
  forms::ControlArray<Label> Label5{*this, "Label5", 1, std::string(), LabelStyle::kUnit};
  ResultLabel lblMinThickness{*this, "lblMinThickness"};
  ResultLabel lbl変形量{*this, "lbl変形量"};
  Label lbl注意{*this, "lbl注意", "", LabelStyle::kNote};

  Button cmdデータ消去{*this, "cmdデータ消去", "データ消去"};
  Button cmd計算{*this, "cmd計算", "計　算", forms::ButtonRole::kDefault};

  explicit frmRO(shell::Workspace& workspace);

  void Load() override;
  void TakePipe(double outsideDiameter, double wallThickness, double bore) override;
  void OnFault(const forms::Control* source, const common::RuntimeFault& fault) override;

  void ClearResults() override;

  std::string TagNumber() const override { return txtTagNo.Text(); }
  void AddTo(int row) override { AddRO(row); }
  void GetFrom(int row) override { GetRO(row); }
  std::vector<Calculation> CalculationsOf(const shell::TagRow& record) override;
  std::vector<int> LookUpAnew() override;
  bool PrintBody(shell::PrintSurface& target) override { return PrintRO(target); }
  /// Writes entries, results and the colours of the judgements into a row of the tag store.
  void AddRO(int row);
  /// Fills the sheet from a row of its kind.
  void GetRO(int row);
  /// Prints entries and results as they stand on the sheet.
  bool PrintRO(shell::PrintSurface& target);

 protected:
  std::vector<std::string> PropertyOrder() const override;
  Real EstimateDeviation(data::PropertyEstimator& estimator, int fluidIndex) override;

 private:
  // Direction of the greatest stress.
  static constexpr const char* kTangential = "(円周方向)";
  static constexpr const char* kRadial = "(半径方向)";

  void BindHandlers();
  void DeclareLayout();
  forms::Block ProcessBlock();
  forms::Block PlateBlock();
  forms::Block ResultBlock();

  void OpenLimitsOfUse();
  void FillFromMaterial(TextBox& box, const ComboBox& unit, int decimals,
                        MaterialProperty property);
  void txtヤング率_DblClick();
  void txt許容応力_DblClick();
  void cmdデータ消去_Click();
  void cmd計算_Click();

  /// The entered differential in kgf/cm2.
  Real Differential() const;
  /// Reads the entries in internal units; false when one refuses.
  bool ReadInputs(flow::RestrictionInputs& inputs);
  void ShowResults(const flow::RestrictionResult& result);
  /// Says beside the results what they do not tell: what cannot be built, and where the equations
  /// end. Works on the texts of the sheet, so also after a recall.
  void CautionResults();
  void ShowThicknessHint();
  ElementSection Section() const;

  void PrintEntries(CalculationPage& page);
  void PrintResults(CalculationPage& page, shell::PrintSurface& target);

  TagColumns RecordColumns();
  /// The judged results with the columns of their colours; their texts stand one column behind.
  std::vector<std::pair<int, Label*>> JudgedColumns();
};

}  // namespace sheets
