#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sheets/calculation_page.h"
#include "sheets/chart.h"
#include "sheets/process_sheet.h"
#include "temperature/thermowell.h"

namespace sheets {

/// Judges a thermowell in a pipe or in a stirred tank against vibration, bending and fatigue.
class frmTW : public ProcessSheet, public PipeTarget {
 public:
  static constexpr const char* kKind = "TW";

  Label lblタイトル{*this, "lblタイトル", "温度計保護管の振動・強度計算", LabelStyle::kHeading};
  Label lbl設置形式{*this, "lbl設置形式", "設　置　形　式"};
  ComboBox cbo設置形式{*this, "cbo設置形式"};
  Label lbl流量{*this, "lbl流量", "流　　　　　量"};
  TextBox txt流量{*this, "txt流量", forms::NumberKeys};
  Label lbl流量単位{*this, "lbl流量単位", "rpm", LabelStyle::kUnit};
  Label lbl配管内径{*this, "lbl配管内径", "配　管　内　径"};
  TextBox txt配管内径{*this, "txt配管内径", forms::NumberKeys};
  Label lbl配管内径単位{*this, "lbl配管内径単位", "mm", LabelStyle::kUnit};
  Label lbl攪拌槽内径{*this, "lbl攪拌槽内径", "攪拌槽内径"};
  TextBox txt攪拌槽内径{*this, "txt攪拌槽内径", forms::NumberKeys};
  Label lbl攪拌槽内径単位{*this, "lbl攪拌槽内径単位", "mm", LabelStyle::kUnit};

  Label lbl保護管材質{*this, "lbl保護管材質", "保護管材質"};
  ComboBox cbo保護管材質{*this, "cbo保護管材質", {}, ComboBox::Style::kEditable};
  Label lbl保護管密度{*this, "lbl保護管密度", "保護管密度"};
  TextBox txt保護管密度{*this, "txt保護管密度", forms::NumberKeys};
  Label lblヤング率{*this, "lblヤング率", "ヤング率"};
  TextBox txtヤング率{*this, "txtヤング率", forms::NumberKeys};
  UnitBox cboヤング率単位{*this, "cboヤング率単位"};
  Label lbl許容応力{*this, "lbl許容応力", "許容応力"};
  TextBox txt許容応力{*this, "txt許容応力", forms::NumberKeys};
  UnitBox cbo許容応力単位{*this, "cbo許容応力単位"};

  Label lbl保護管長{*this, "lbl保護管長", "保護管長 L"};
  TextBox txt保護管長{*this, "txt保護管長", forms::NumberKeys};
  Label lbl挿入長{*this, "lbl挿入長", "挿入長 Le"};
  TextBox txt挿入長{*this, "txt挿入長", forms::NumberKeys};
  Label lbl先端外径{*this, "lbl先端外径", "先端外径"};
  TextBox txt先端外径{*this, "txt先端外径", forms::NumberKeys};
  Label lbl根元外径{*this, "lbl根元外径", "根元外径"};
  TextBox txt根元外径{*this, "txt根元外径", forms::NumberKeys};
  Label lbl保護管内径{*this, "lbl保護管内径", "保護管内径"};
  TextBox txt保護管内径{*this, "txt保護管内径", forms::NumberKeys};
  Label lblWellT{*this, "lblWellT", "先端厚さ"};
  TextBox txtWellT{*this, "txtWellT", forms::NumberKeys};
  Label lbl臨界減衰率{*this, "lbl臨界減衰率", "臨界減衰率 ζ"};
  TextBox txt臨界減衰率{*this, "txt臨界減衰率", forms::NumberKeys};
  Label lbl応力集中係数{*this, "lbl応力集中係数", "応力集中係数 Kt"};
  TextBox txt応力集中係数{*this, "txt応力集中係数", forms::NumberKeys};

  ResultLabel lbl流速R{*this, "lbl流速R"};
  ResultLabel lblレイノルズ数R{*this, "lblレイノルズ数R"};
  ResultLabel lblストローハル数{*this, "lblストローハル数"};
  ResultLabel lblカルマン渦周波数R{*this, "lblカルマン渦周波数R"};
  ResultLabel lbl固有振動数{*this, "lbl固有振動数"};
  ResultLabel lblVr{*this, "lblVr"};
  ResultLabel lblCn{*this, "lblCn"};
  ResultLabel lbl同期振動判定{*this, "lbl同期振動判定"};
  ResultLabel lbl定常抗力{*this, "lbl定常抗力"};
  Label lbl定常抗力単位{*this, "lbl定常抗力単位", "", LabelStyle::kUnit};
  ResultLabel lbl定常抗力判定{*this, "lbl定常抗力判定"};
  ResultLabel lbl励振力{*this, "lbl励振力"};
  Label lbl励振力単位{*this, "lbl励振力単位", "", LabelStyle::kUnit};
  ResultLabel lbl励振力判定{*this, "lbl励振力判定"};
  forms::Picture pic周波数{*this, "pic周波数", 5500, 4900};

  Button cmd判定条件{*this, "cmd判定条件", "判定条件"};
  Button cmd振動数{*this, "cmd振動数", "高次振動数"};
  Button cmdデータ消去{*this, "cmdデータ消去", "データ消去"};
  Button cmd計算{*this, "cmd計算", "計　算", forms::ButtonRole::kDefault};

  explicit frmTW(shell::Workspace& workspace);

  void Load() override;
  void TakePipe(double outsideDiameter, double wallThickness, double bore) override;
  void OnFault(const forms::Control* source, const common::RuntimeFault& fault) override;

  void ClearResults() override;

  std::string TagNumber() const override { return txtTagNo.Text(); }
  void AddTo(int row) override { addTW(row); }
  void GetFrom(int row) override { GetTW(row); }
  std::vector<Calculation> CalculationsOf(const shell::TagRow& record) override;
  std::vector<int> LookUpAnew() override;
  bool PrintBody(shell::PrintSurface& target) override { return PrintTW(target); }
  /// Writes entries and results into a row of the tag store.
  void addTW(int row);
  /// Fills the sheet from a row of its kind.
  void GetTW(int row);
  /// Prints entries, results and judgements from the texts on the sheet.
  bool PrintTW(shell::PrintSurface& target);

  /// Frequency, Vr and Cn of the three modes as texts, as far as they are known.
  std::vector<std::vector<std::string>> ModeRows() const;

 protected:
  std::vector<std::string> PropertyOrder() const override { return {"密度", "粘性係数"}; }
  void ShowUnitsOfPhase() override;

 private:
  void BindHandlers();
  void DeclareLayout();
  forms::Block ProcessBlock();
  forms::Block FlowBlock();
  forms::Block MaterialBlock();
  forms::Block WellBlock();
  forms::Block ResultBlock();

  bool InTank() const { return cbo設置形式.Index() == temperature::kInTank; }
  void cbo設置形式_Click();
  /// Captions, units and the tank's row of the kind of installation.
  void ShowInstallation();
  void txt配管内径_DblClick();
  void cmdデータ消去_Click();

  void FillMaterial();
  void FillDensity();
  void FillYoungsModulus();
  void FillAllowableStress();
  /// Fills a modulus or stress, kgf/mm2 or N/mm2 by the unit selected.
  void FillPerMm2(MaterialProperty property, TextBox& box, const ComboBox& unit, int digits);
  bool HasMaterial();
  /// Material values belong to a temperature: filled anew once it has changed.
  void RefillMaterial();
  std::string TemperatureEntry() const { return txt温度.Text() + cbo温度単位.Text(); }

  void cmd計算_Click();
  /// Reads the entries in internal units; false, with a message, when they cannot be converted.
  bool ReadInputs();
  void ReadWell();
  void ReadFlow();
  void ShowFindings();
  void ShowFrequencies();
  void ShowStresses();
  void ShowJudgements();
  /// What belongs to the results without standing in a text of the record: tool tips and the
  /// amplitude that is printed.
  void ShowNotes();
  void ShowVibrationMode();
  std::string DragNote() const;
  /// A stress in kgf/m2 in the unit of the allowable stress, per mm2: three, two or one decimals by
  /// the size of what is shown.
  std::string StressText(Real stress, const char* smallFormat) const;

  /// What the chart shows: nothing before there is a flow.
  void PrepareChart();
  void DrawChart(forms::DrawSurface& surface) const;
  void DrawVrLimits(Chart& chart) const;

  /// Without the material, which stands as position and name.
  TagColumns RecordColumns();
  std::vector<std::pair<int, Label*>> ResultColumns();
  /// Judged labels by the column of their colour.
  std::vector<std::pair<int, Label*>> ColourColumns();
  void GetMaterial(const shell::TagRow& record);
  void GetResults(const shell::TagRow& record);

  void PrintConditions(CalculationPage& page);
  void PrintWell(CalculationPage& page);
  void PrintResults(shell::PrintSurface& target, CalculationPage& page);

  temperature::Thermowell well_;
  temperature::ThermowellFindings findings_;
  /// Amplitude with stress concentration as it is printed.
  std::string concentratedAmplitude_;
  /// Temperature for which the material was filled last.
  std::string filledTemperature_;

  struct Shedding {
    std::vector<temperature::SheddingPoint> curve;
    Real naturalFrequency;
    Real meanDiameter;
    Real enteredFlow;  // in the unit of its list, in a tank rpm
    std::string flowTitle;
  };
  std::optional<Shedding> shedding_;
};

}  // namespace sheets
