#pragma once

#include <string>
#include <vector>

#include "flow/differential_pressure.h"
#include "sheets/calculation_page.h"
#include "sheets/element_section.h"
#include "sheets/process_sheet.h"

namespace sheets {

/// Sizes orifice plates, nozzles and venturi tubes: bore from differential pressure or the reverse.
class frmOrifice : public ProcessSheet, public PipeTarget {
 public:
  static constexpr const char* kKind = "⊿P Flow";

  // Heading and its shadow.
  forms::ControlArray<Label> lblタイトル{*this, "lblタイトル", 2, std::string(),
                                         LabelStyle::kHeading};
  Label lbl目盛流量{*this, "lbl目盛流量", "目盛流量"};
  TextBox txt目盛流量{*this, "txt目盛流量", forms::NumberKeys};
  Label lbl常用流量{*this, "lbl常用流量", "常用流量"};
  TextBox txt常用流量{*this, "txt常用流量", forms::NumberKeys};
  Label lbl常用流量単位{*this, "lbl常用流量単位", "", LabelStyle::kUnit};
  HumidityFields humidity{*this};
  BaseFields base{*this};
  Label lbl偏差係数{*this, "lbl偏差係数", "偏差係数"};
  TextBox txt偏差係数{*this, "txt偏差係数", forms::NumberKeys};
  Label lbl比熱比{*this, "lbl比熱比", "比熱比"};
  TextBox txt比熱比{*this, "txt比熱比", forms::NumberKeys};

  Label lbl絞り機構種類{*this, "lbl絞り機構種類", "絞り機構の種類"};
  ComboBox cbo絞り機構種類{*this, "cbo絞り機構種類"};
  Label lbl絞り部材質{*this, "lbl絞り部材質", "絞り機構の材質"};
  ComboBox cbo絞り部材質{*this, "cbo絞り部材質", {}, ComboBox::Style::kEditable};
  Label lbl絞り部膨張率{*this, "lbl絞り部膨張率", "絞り部の線膨張率"};
  TextBox txt絞り部膨張率{*this, "txt絞り部膨張率", forms::NumberKeys};
  Label lbl配管種類{*this, "lbl配管種類", "配管種類"};
  ComboBox cbo配管種類{*this, "cbo配管種類", {}, ComboBox::Style::kEditable};
  Label lbl配管呼称径{*this, "lbl配管呼称径", "配管呼称径"};
  ComboBox cbo配管呼称径{*this, "cbo配管呼称径", {}, ComboBox::Style::kEditable};
  Label lblSchedule{*this, "lblSchedule", "スケジュール"};
  ComboBox cboSchedule{*this, "cboSchedule", {}, ComboBox::Style::kEditable};
  Label lbl配管内径{*this, "lbl配管内径", "配管内径（20℃）"};
  TextBox txt配管内径{*this, "txt配管内径", forms::NumberKeys};
  Label lbl配管線膨張率{*this, "lbl配管線膨張率", "配管線膨張率"};
  TextBox txt配管線膨張率{*this, "txt配管線膨張率", forms::NumberKeys};

  OptionButton opt差圧_絞り径{*this, "opt差圧→絞り径", "差圧→絞り径", "mode"};
  OptionButton opt絞り径_差圧{*this, "opt絞り径→差圧", "絞り径→差圧", "mode"};
  Label lbl設計差圧{*this, "lbl設計差圧", "設計差圧"};
  TextBox txt設計差圧{*this, "txt設計差圧", forms::NumberKeys};
  UnitBox cbo設計差圧単位{*this, "cbo設計差圧単位"};
  Label lbl絞り径{*this, "lbl絞り径", "絞り径（20℃）"};
  TextBox txt絞り径{*this, "txt絞り径", forms::NumberKeys};

  forms::Picture pic断面{*this, "pic断面", 6600, 1700};

  ResultLabel lblMaxReynolds{*this, "lblMaxReynolds"};
  ResultLabel lblNorReynolds{*this, "lblNorReynolds"};
  ResultLabel lbl流出係数R{*this, "lbl流出係数R"};
  ResultLabel lbl流量係数R{*this, "lbl流量係数R"};
  ResultLabel lbl膨張補正係数R{*this, "lbl膨張補正係数R"};
  ResultLabel lbl表示β{*this, "lbl表示β"};
  ResultLabel lbl絞り径結果R{*this, "lbl絞り径結果R"};
  ResultLabel lbl差圧結果R{*this, "lbl差圧結果R"};
  Label lbl差圧結果単位{*this, "lbl差圧結果単位", "", LabelStyle::kUnit};
  ResultLabel lbl四分円半径R{*this, "lbl四分円半径R"};
  ResultLabel lbl永久圧損R{*this, "lbl永久圧損R"};
  Label lbl永久圧損単位{*this, "lbl永久圧損単位", "", LabelStyle::kUnit};
  ResultLabel lbl上流Tap位置{*this, "lbl上流Tap位置"};
  ResultLabel lbl下流Tap位置{*this, "lbl下流Tap位置"};
  ResultLabel lbl使用下限{*this, "lbl使用下限"};
  ResultLabel lbl使用上限{*this, "lbl使用上限"};
  Label lbl外挿{*this, "lbl外挿", "", LabelStyle::kNote};

  Button cmdデータ消去{*this, "cmdデータ消去", "データ消去"};
  Button cmd計算{*this, "cmd計算", "計　算", forms::ButtonRole::kDefault};

  explicit frmOrifice(shell::Workspace& workspace);

  void Load() override;
  void TakePipe(double outsideDiameter, double wallThickness, double bore) override;

  void ClearResults() override;

  std::string TagNumber() const override { return txtTagNo.Text(); }
  void AddTo(int row) override { AddOrifice(row); }
  void GetFrom(int row) override { GetOrifice(row); }
  std::vector<Calculation> CalculationsOf(const shell::TagRow& record) override;
  std::vector<int> LookUpAnew() override;
  bool PrintBody(shell::PrintSurface& target) override { return PrintOrifice(target); }
  /// Writes entries and results into a row of the tag store.
  void AddOrifice(int row);
  /// Fills the sheet from a row of its kind.
  void GetOrifice(int row);
  /// Prints entries and results as they stand on the sheet.
  bool PrintOrifice(shell::PrintSurface& target);

 protected:
  std::vector<std::string> PropertyOrder() const override;

 private:
  /// What stands for the tap position of an element that has none to tell.
  static constexpr const char* kNoTap = "       ";

  void BindHandlers();
  void DeclareLayout();
  forms::Block ProcessBlock();
  forms::Block ElementBlock();
  forms::Block ModeBlock();
  forms::Block SectionBlock();
  forms::Block ResultBlock();

  void cbo絞り機構種類_Click();
  void cbo設計差圧単位_Click();
  void SwitchMode();
  void txt絞り部膨張率_DblClick();
  void txt配管線膨張率_DblClick();
  void FillExpansion(const ComboBox& material, TextBox& box);
  void cmdデータ消去_Click();

  void cmd計算_Click();
  /// Reads the entries in internal units, in the order in which refusals and defaults speak; false
  /// when one refuses.
  bool ReadInputs();
  void ShowResults(const flow::SizingResult& result);
  void ShowCalculatedEntry(const flow::SizingResult& result);
  void ShowTaps(const flow::SizingResult& result);
  /// Marks a loss that the element's equations cannot tell.
  void CautionLoss();
  /// What the picture shows: pipe and bore as far as they are entered or calculated.
  ElementSection Section() const;

  TagColumns RecordColumns();
  /// What the record tells beside its columns.
  void GetResults(const shell::TagRow& record);
  void ShowUpstreamTapOf(const shell::TagRow& record);

  void PrintConditions(CalculationPage& page);
  void PrintElement(CalculationPage& page);
  void PrintResults(CalculationPage& page);

  flow::Context context_;
  /// Normal density at the last reading, kg/m3; the operating one stands in the context.
  Real normalDensity_;
};

}  // namespace sheets
