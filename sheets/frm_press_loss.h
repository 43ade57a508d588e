#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "piping/pressure_loss.h"
#include "sheets/calculation_page.h"
#include "sheets/pipe_ends.h"
#include "sheets/process_sheet.h"

namespace sheets {

/// Pressure loss of a straight pipe with its fittings, inlet and outlet.
class frmPressLoss : public ProcessSheet, public PipeTarget {
 public:
  static constexpr const char* kKind = "圧力損失";
  static constexpr int kFittings = piping::PressLossTable::kFittings;
  /// The ends of the line in the arrays of two.
  static constexpr int kIn = 0, kOut = 1;

  Label lblタイトル{*this, "lblタイトル", "PIPE PRESSURE LOSS CALCULATION", LabelStyle::kHeading};
  Label lbl流量{*this, "lbl流量", "流量"};
  TextBox txt流量{*this, "txt流量", forms::NumberKeys};
  HumidityFields humidity{*this};
  Label lbl偏差係数{*this, "lbl偏差係数", "偏差係数"};
  TextBox txt偏差係数{*this, "txt偏差係数", forms::NumberKeys};

  Label lbl配管呼称径{*this, "lbl配管呼称径", "配管呼称径"};
  ComboBox cbo配管呼称径{*this, "cbo配管呼称径"};
  Label lblSchedule{*this, "lblSchedule", "スケジュール"};
  ComboBox cboSchedule{*this, "cboSchedule"};
  Label lbl配管内径{*this, "lbl配管内径", "配管内径"};
  TextBox txt配管内径{*this, "txt配管内径", forms::NumberKeys};
  Label lblPipeRoughness{*this, "lblPipeRoughness", "管内粗さ"};
  TextBox txtPipeRoughness{*this, "txtPipeRoughness", forms::NumberKeys};
  Label lblPipeLength{*this, "lblPipeLength", "配管長さ"};
  TextBox txtPipeLength{*this, "txtPipeLength", forms::NumberKeys};

  Label Label29{*this, "Label29", "流入部形状 Type"};
  TextBox txtInletType{*this, "txtInletType", forms::InletTypeKeys};
  Button cmdInletType{*this, "cmdInletType", "形状一覧..."};
  Label lbl流入部{*this, "lbl流入部", "流入部 d2/d1"};
  Label lbl流出部{*this, "lbl流出部", "流出部 d3/d2"};
  Label lbl管径比率{*this, "lbl管径比率", "管径比率"};
  forms::ControlArray<TextBox> txt管径比率{*this, "txt管径比率", 2, forms::NumberKeys};
  Label lbl円錐角度{*this, "lbl円錐角度", "円錐角度"};
  forms::ControlArray<TextBox> txt円錐角度{*this, "txt円錐角度", 2, forms::NumberKeys};
  /// The ends as they are entered.
  forms::Picture pic管端{*this, "pic管端", 2 * kPipeEndWidth, kPipeEndHeight};
  forms::ControlArray<Label> lbl付属品{*this, "lbl付属品", kFittings};
  forms::ControlArray<TextBox> txt付属品数{*this, "txt付属品数", kFittings, forms::NumberKeys};

  ResultLabel lblλ{*this, "lblλ"};
  ResultLabel lblReynolds{*this, "lblReynolds"};
  ResultLabel lbl関係粗度{*this, "lbl関係粗度"};
  ResultLabel lblVelosityIn{*this, "lblVelosityIn"};
  ResultLabel lblVelosityOut{*this, "lblVelosityOut"};
  ResultLabel lblζin{*this, "lblζin"};
  ResultLabel lblζout{*this, "lblζout"};
  forms::ControlArray<ResultLabel> lblTerminalLoss{*this, "lblTerminalLoss", 2};
  ResultLabel lbl付属品ζ{*this, "lbl付属品ζ"};
  ResultLabel lblTotalLoss{*this, "lblTotalLoss"};
  /// Unit of the losses at the ends and of the total.
  forms::ControlArray<Label> lbl圧損単位{*this, "lbl圧損単位", 2, std::string(), LabelStyle::kUnit};
  forms::Picture pic圧力{*this, "pic圧力", 6600, 4300};

  Button cmdInitialize{*this, "cmdInitialize", "データ消去"};
  Button cmd計算{*this, "cmd計算", "計　算", forms::ButtonRole::kDefault};

  explicit frmPressLoss(shell::Workspace& workspace);

  void Load() override;
  void TakePipe(double outsideDiameter, double wallThickness, double bore) override;
  /// A kind of pipe has been chosen: its roughness, mm, as it stands in the table.
  void TakeRoughness(const std::string& roughness);
  /// An inlet shape has been chosen, which brings ratio and angle with it.
  void TakeInletType(int type);
  void OnFault(const forms::Control* source, const common::RuntimeFault& fault) override;

  void ClearResults() override;

  std::string TagNumber() const override { return txtTagNo.Text(); }
  void AddTo(int row) override { AddPressLoss(row); }
  void GetFrom(int row) override { GetPressLoss(row); }
  std::vector<Calculation> CalculationsOf(const shell::TagRow& record) override;
  std::vector<int> LookUpAnew() override;
  bool PrintBody(shell::PrintSurface& target) override { return PrintPressLoss(target); }
  /// Writes entries and results into a row of the tag store.
  void AddPressLoss(int row);
  /// Fills the sheet from a row of its kind.
  void GetPressLoss(int row);
  /// Prints entries and results as they stand on the sheet.
  bool PrintPressLoss(shell::PrintSurface& target);

 protected:
  std::vector<std::string> PropertyOrder() const override;
  void ShowUnitsOfPhase() override;

 private:
  void BindHandlers();
  void DeclareLayout();
  forms::Block ProcessBlock();
  forms::Block PipeBlock();
  forms::Block ShapeBlock();
  forms::Block FittingBlock();
  forms::Block ResultBlock();

  void EmptyFluid();
  void ShowLossUnit();
  void DrawEnds(forms::DrawSurface& surface) const;
  void cmdInitialize_Click();
  void cmd計算_Click();

  /// Reads the panel and corrects the shapes, with their messages.
  void ReadInputs();
  void CorrectShape();
  piping::Terminal EnteredTerminal(int end) const;
  /// The line as it stands on the sheet, once the panel has been read.
  piping::Line EnteredLine();
  void ShowResults(const piping::Line& line, const piping::LineLoss& loss);
  /// Marks a velocity that no pipe carries.
  void CautionVelocity(const piping::LineLoss& loss);
  /// A loss in the unit of the pressure.
  std::string LossText(Real kgfCm2) const;

  void PrepareDiagram(const piping::Line& line, const piping::LineLoss& loss);
  void DrawPressures(forms::DrawSurface& surface) const;
  /// Calculates a recalled line once more for its diagram alone.
  void RestoreDiagram();

  TagColumns RecordColumns();

  void PrintConditions(CalculationPage& page);
  void PrintPipe(CalculationPage& page);
  void PrintFittings(CalculationPage& page);
  void PrintResults(CalculationPage& page);

  /// Pressures along the line in the unit of the entry.
  struct Diagram {
    double length = 0;  // m
    double before = 0;  // the inlet
    double behind = 0;  // the outlet
    std::string unit;
    std::string pattern;
    std::vector<std::pair<double, double>> pipe;  // m from the inlet, pressure
  };
  /// Of the results on the sheet.
  std::optional<Diagram> diagram_;
};

}  // namespace sheets
