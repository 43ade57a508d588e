#pragma once

#include <string>
#include <vector>

#include "sheets/calculation_page.h"
#include "sheets/process_sheet.h"
#include "sheets/vortex_chart.h"

namespace sheets {

/// Tries all nominal sizes of a maker's vortex meters on a service and lists those that fit.
class frmVortex : public ProcessSheet {
 public:
  static constexpr const char* kKind = "Vortex";
  static constexpr int kSizes = flow::VortexTable::kSizes;

  Label lblタイトル{*this, "lblタイトル", "VORTEX METER CALCULATION", LabelStyle::kHeading};
  Label lbl目盛流量{*this, "lbl目盛流量", "目盛流量"};
  TextBox txt目盛流量{*this, "txt目盛流量", forms::NumberKeys};
  Label lbl最少流量{*this, "lbl最少流量", "最少流量"};
  TextBox txt最少流量{*this, "txt最少流量", forms::NumberKeys};
  Label lbl最少流量単位{*this, "lbl最少流量単位", "", LabelStyle::kUnit};
  Label lbl偏差係数{*this, "lbl偏差係数", "偏差係数"};
  TextBox txt偏差係数{*this, "txt偏差係数", forms::NumberKeys};
  VapourPressureFields vapour{*this};
  Label lblMaker{*this, "lblMaker", "メーカー"};
  ComboBox cboMaker{*this, "cboMaker"};

  forms::Picture Picture4{*this, "Picture4", 4300, 5800};

  Label lbl最少流量比{*this, "lbl最少流量比", "最少流量／目盛流量"};
  ResultLabel lblScale{*this, "lblScale"};
  forms::ControlArray<ResultLabel> lblMeterSize{*this, "lblMeterSize", kSizes};
  forms::ControlArray<ResultLabel> lblRange{*this, "lblRange", kSizes};
  forms::ControlArray<ResultLabel> lblDPkpa{*this, "lblDPkpa", kSizes};
  forms::ControlArray<ResultLabel> lblDPmm{*this, "lblDPmm", kSizes};
  forms::ControlArray<ResultLabel> lblHz{*this, "lblHz", kSizes};
  forms::ControlArray<ResultLabel> lblRemarks{*this, "lblRemarks", kSizes};
  Label lbl注意{*this, "lbl注意", "", LabelStyle::kNote};

  Button cmdデータ消去{*this, "cmdデータ消去", "データ消去"};
  Button cmd計算{*this, "cmd計算", "計　算", forms::ButtonRole::kDefault};

  explicit frmVortex(shell::Workspace& workspace);

  void Load() override;

  void ClearResults() override;

  std::string TagNumber() const override { return txtTagNo.Text(); }
  void AddTo(int row) override { AddVortex(row); }
  void GetFrom(int row) override { GetVortex(row); }
  std::vector<Calculation> CalculationsOf(const shell::TagRow& record) override;
  /// The record names the recommended size alone; the list and the chart are worked out again.
  void RestoreResults(int row) override;
  bool PrintBody(shell::PrintSurface& target) override { return PrintVortex(target); }
  /// Writes the entries into a row of the tag store, and the recommended size with its numbers.
  void AddVortex(int row);
  /// Fills the entries from a row of its kind; the results are calculated anew.
  void GetVortex(int row);
  /// Prints entries and results as they stand on the sheet.
  bool PrintVortex(shell::PrintSurface& target);

 protected:
  std::vector<std::string> PropertyOrder() const override;

 private:
  void BindHandlers();
  void DeclareLayout();
  forms::Block ProcessBlock();
  forms::Block ResultBlock();

  void cmdデータ消去_Click();
  void cmd計算_Click();
  /// Reads the entries in internal units; the share of the minimum flow goes to the chart.
  flow::VortexInputs ReadInputs();
  void ShowResults();
  void ShowSize(int i);
  void CautionResults();

  void PrintEntries(CalculationPage& page);
  std::string PageLine(int i) const;

  TagColumns RecordColumns();
  /// The recommended size and "low;high;loss;frequency;remark" of it, both "" without one.
  std::pair<std::string, std::string> Recommended() const;

  VortexChart chart_;
};

}  // namespace sheets
