#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/controls.h"
#include "sheets/chart.h"
#include "sheets/tag_record.h"
#include "shell/sheet.h"
#include "temperature/sensor.h"

namespace sheets {

/// Converts between temperature and output of thermocouples and resistance bulbs, and tabulates the
/// calibration of an instrument's scale.
class frmTE : public shell::Sheet {
 public:
  static constexpr const char* kKind = "測温体";
  static constexpr int kLines = 11;

  forms::Label lblタイトル{*this, "lblタイトル", "熱電対・測温抵抗体", forms::LabelStyle::kHeading};
  forms::Label lblTagNo{*this, "lblTagNo", "Tag No."};
  forms::TextBox txtTagNo{*this, "txtTagNo", forms::AnyKey, kTagNumberBytes};
  forms::Label lbl用途{*this, "lbl用途", "用途"};
  forms::TextBox txt用途{*this, "txt用途"};
  forms::Label lblMaker{*this, "lblMaker", "計器メーカー"};
  forms::TextBox txtMaker{*this, "txtMaker"};
  forms::Label lblModel{*this, "lblModel", "計器型式"};
  forms::TextBox txtModel{*this, "txtModel"};

  forms::ControlArray<forms::OptionButton> optTC{*this, "optTC", temperature::SensorTable::kKinds,
                                                 "", "kind"};
  forms::Label lbl測温体{*this, "lbl測温体", "", forms::LabelStyle::kNote};

  forms::Label lblScale{*this, "lblScale", "計器目盛"};
  forms::ControlArray<forms::TextBox> txtScale{*this, "txtScale", 2, forms::SignedNumberKeys};

  forms::Label lbl換算温度{*this, "lbl換算温度", "温　度"};
  forms::TextBox txt温度{*this, "txt温度", forms::SignedNumberKeys};
  forms::ResultLabel lbl換算出力{*this, "lbl換算出力"};
  forms::Label lbl換算出力単位{*this, "lbl換算出力単位", "", forms::LabelStyle::kUnit};
  forms::Label lblEMF{*this, "lblEMF"};
  forms::TextBox txtEMF{*this, "txtEMF", forms::SignedNumberKeys};
  forms::Label lblEMF単位{*this, "lblEMF単位", "", forms::LabelStyle::kUnit};
  forms::ResultLabel lblTemp{*this, "lblTemp"};
  forms::Button cmd出力{*this, "cmd出力", "温度から換算"};
  forms::Button cmd温度{*this, "cmd温度", "出力から換算"};

  forms::Label lbl出力見出し{*this, "lbl出力見出し"};
  forms::ControlArray<forms::ResultLabel> lbl温度{*this, "lbl温度", kLines};
  forms::ControlArray<forms::ResultLabel> lblTE出力{*this, "lblTE出力", kLines};
  forms::Picture pic特性{*this, "pic特性", 7200, 4800};

  forms::Button cmdInitialize{*this, "cmdInitialize", "データ消去"};
  forms::Button cmd計算{*this, "cmd計算", "計　算", forms::ButtonRole::kDefault};

  explicit frmTE(shell::Workspace& workspace);

  void Load() override;

  std::string TagNumber() const override { return txtTagNo.Text(); }
  void AddTo(int row) override { addTC(row); }
  void GetFrom(int row) override { GetTC(row); }
  std::vector<Calculation> CalculationsOf(const shell::TagRow& record) override;
  bool PrintBody(shell::PrintSurface& target) override { return printTC(target); }
  /// Writes entries and results into a row of the tag store.
  void addTC(int row);
  /// Fills the sheet from a row of its kind.
  void GetTC(int row);
  /// Prints the calibration table and the characteristic.
  bool printTC(shell::PrintSurface& target);

 private:
  void BindHandlers();
  void DeclareLayout();
  forms::Block SensorBlock();
  forms::Block ConversionBlock();
  forms::Block CalibrationBlock();

  bool IsResistance() const { return temperature::IsResistance(sensorKind_); }
  const temperature::SensorTable& Sensors() const { return Space().tables.sensors; }
  void optTC_Click(int kind);
  /// Captions and units of the kind.
  void ShowKind();
  void ClearCalibration();
  void ConvertTyped();
  void cmdInitialize_Click();

  void cmd計算_Click();
  void CalcSensorOutput();
  void CalcTemperature();
  std::string OutputText(common::Real output) const;
  void PrepareChart();
  void DrawChart(forms::DrawSurface& surface) const;

  std::vector<std::pair<int, forms::TextBox*>> EntryColumns();

  int sensorKind_ = 0;
  /// Output over the scale, once the calibration stands.
  Chart::Points characteristic_;
};

}  // namespace sheets
