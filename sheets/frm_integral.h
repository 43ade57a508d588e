#pragma once

#include <optional>
#include <string>
#include <vector>

#include "flow/integral_orifice.h"
#include "sheets/calculation_page.h"
#include "sheets/process_sheet.h"

namespace sheets {

/// Rates the orifices that are built into a differential-pressure transmitter: all bores of a type
/// at once, and the detail of one.
class frmIntegral : public ProcessSheet {
 public:
  static constexpr const char* kKind = "Integral";
  static constexpr int kRows = flow::IntegralTable::kWideBores;

  Label lblタイトル{*this, "lblタイトル", "INTEGRAL ORIFICE CALCULATION", LabelStyle::kHeading};
  Label lbl計器型式{*this, "lbl計器型式", "計器型式"};
  ComboBox cbo計器型式{*this, "cbo計器型式"};
  Label lbl目盛流量{*this, "lbl目盛流量", "目盛流量"};
  TextBox txt目盛流量{*this, "txt目盛流量", forms::NumberKeys};
  Label lbl常用流量{*this, "lbl常用流量", "常用流量"};
  TextBox txt常用流量{*this, "txt常用流量", forms::NumberKeys};
  Label lbl常用流量単位{*this, "lbl常用流量単位", "", LabelStyle::kUnit};
  HumidityFields humidity{*this};
  Label lbl偏差係数{*this, "lbl偏差係数", "偏差係数"};
  TextBox txt偏差係数{*this, "txt偏差係数", forms::NumberKeys};
  Label lbl比熱比{*this, "lbl比熱比", "比熱比"};
  TextBox txt比熱比{*this, "txt比熱比", forms::NumberKeys};

  // All bores of the type.
  Label lblGroup{*this, "lblGroup", "", LabelStyle::kNote};
  forms::ControlArray<ResultLabel> lblOrificeNo{*this, "lblOrificeNo", kRows};
  forms::ControlArray<ResultLabel> lblOrificeDia{*this, "lblOrificeDia", kRows};
  forms::ControlArray<ResultLabel> lblDPkpa{*this, "lblDPkpa", kRows};
  forms::ControlArray<ResultLabel> lblDPmm{*this, "lblDPmm", kRows};

  // One bore.
  Label lblオリフィス番号{*this, "lblオリフィス番号", "オリフィス型式"};
  ComboBox cboOrificeNo{*this, "cboOrificeNo"};
  ResultLabel lblNorReynolds{*this, "lblNorReynolds"};
  Label lblReynoldsKind{*this, "lblReynoldsKind", "", LabelStyle::kUnit};
  ResultLabel lblKaf{*this, "lblKaf"};
  ResultLabel lblα{*this, "lblα"};
  ResultLabel lbl膨張補正係数{*this, "lbl膨張補正係数"};
  ResultLabel lbl水相当流量{*this, "lbl水相当流量"};
  ResultLabel lbl空気相当流量{*this, "lbl空気相当流量"};
  Label lbl空気相当流量単位{*this, "lbl空気相当流量単位", "", LabelStyle::kUnit};
  /// In mmH2O and in kPa.
  forms::ControlArray<ResultLabel> lbl差圧結果{*this, "lbl差圧結果", 2};
  forms::ControlArray<ResultLabel> lbl永久圧損{*this, "lbl永久圧損", 2};
  Label lbl注意{*this, "lbl注意", "", LabelStyle::kNote};

  Button cmdデータ消去{*this, "cmdデータ消去", "データ消去"};
  Button cmd計算{*this, "cmd計算", "計　算", forms::ButtonRole::kDefault};

  explicit frmIntegral(shell::Workspace& workspace);

  void Load() override;

  void ClearResults() override;

  std::string TagNumber() const override { return txtTagNo.Text(); }
  void AddTo(int row) override { AddIntegral(row); }
  void GetFrom(int row) override { GetIntegral(row); }
  std::vector<Calculation> CalculationsOf(const shell::TagRow& record) override;
  bool PrintBody(shell::PrintSurface& target) override { return PrintIntegral(target); }
  /// Writes entries, the list of bores and the detail into a row of the tag store.
  void AddIntegral(int row);
  /// Fills the sheet from a row of its kind. The results stand to be read; another bore can be
  /// picked after a calculation.
  void GetIntegral(int row);
  /// Prints entries and results as they stand on the sheet.
  bool PrintIntegral(shell::PrintSurface& target);

 protected:
  std::vector<std::string> PropertyOrder() const override;

 private:
  void BindHandlers();
  void DeclareLayout();
  forms::Block ProcessBlock();
  forms::Block BoresBlock();
  forms::Block DetailBlock();

  int Group() const { return flow::IntegralGroup(cbo計器型式.Index()); }
  void cbo計器型式_Click();
  void cboOrificeNo_Click();
  void cmdデータ消去_Click();
  void cmd計算_Click();
  void ShowBoresOfGroup();
  void ClearDetail();

  /// Reads the entries in internal units; false when one refuses.
  bool ReadInputs(flow::IntegralInputs& inputs);
  /// Refuses a type that does not take steam, and a normal flow above scale.
  bool CheckInputs(const flow::IntegralInputs& inputs);
  void ShowBore(int i, const flow::BoreRating& rating);
  void ColourBore(int i, bool usable);
  void ShowDetail(int i, const flow::BoreRating& rating);
  void CautionGas();

  void PrintEntries(CalculationPage& page);
  void PrintBores(CalculationPage& page, shell::PrintSurface& target);
  void PrintDetail(CalculationPage& page);

  TagColumns RecordColumns();
  void GetDetail(const shell::TagRow& record);

  /// The inputs of the results that stand on the sheet.
  std::optional<flow::IntegralInputs> rated_;
  // The detail as plain numbers, mmH2O.
  std::string detailDP_;
  std::string detailLoss_;
};

}  // namespace sheets
