#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sheets/calculation_page.h"
#include "sheets/process_sheet.h"
#include "sheets/valve_targets.h"
#include "valve/exit_velocity.h"
#include "valve/viscosity.h"

namespace sheets {

/// Sizes control valves: required Cv of a service, then Cv, opening, velocity and noise of a valve
/// chosen for it.
class frmCV : public ProcessSheet,
              public PipeTarget,
              public RatingTarget,
              public TrimTarget,
              public CorrectionSource,
              public CatalogueUser {
 public:
  static constexpr const char* kKind = "CV";

  Label lblタイトル{*this, "lblタイトル", "CONTROL VALVE SIZING", LabelStyle::kHeading};
  Label lbl流量{*this, "lbl流量", "流量"};
  TextBox txt流量{*this, "txt流量", forms::NumberKeys};
  Label lbl差圧{*this, "lbl差圧", "差圧"};
  TextBox txt差圧{*this, "txt差圧", forms::NumberKeys};
  UnitBox cbo差圧単位{*this, "cbo差圧単位"};
  /// Unit of the secondary pressure, which is that of the inlet; empty for a differential.
  Label lbl二次圧単位{*this, "lbl二次圧単位", "", LabelStyle::kUnit};
  VapourPressureFields vapour{*this};
  CriticalPressureFields critical{*this};
  Label lbl偏差係数{*this, "lbl偏差係数", "偏差係数"};
  TextBox txt偏差係数{*this, "txt偏差係数", forms::NumberKeys};
  Label lbl比熱比{*this, "lbl比熱比", "比熱比"};
  TextBox txt比熱比{*this, "txt比熱比", forms::NumberKeys};

  ResultLabel lblFCI計算Cv{*this, "lblFCI計算Cv"};
  ResultLabel lblISA計算Cv{*this, "lblISA計算Cv"};
  Label lblFlash{*this, "lblFlash", "フラッシング", LabelStyle::kNote};
  Label lblCritical{*this, "lblCritical", "臨界流（チョーク）", LabelStyle::kNote};

  Label lblMaker{*this, "lblMaker", "メーカー"};
  ComboBox cboMaker{*this, "cboMaker", {}, ComboBox::Style::kEditable};
  Label lblValveModel{*this, "lblValveModel", "弁モデル"};
  ComboBox cboValveModel{*this, "cboValveModel", {}, ComboBox::Style::kEditable};
  Label lblFL{*this, "lblFL", "FL"};
  TextBox txtFL{*this, "txtFL", forms::NumberKeys};
  Label lblFd{*this, "lblFd", "弁Fd"};
  TextBox txt弁Fd{*this, "txt弁Fd", forms::NumberKeys};
  Label lblN係数{*this, "lblN係数", "N係数"};
  TextBox txtN係数{*this, "txtN係数", forms::NumberKeys};
  Label lblValveSize{*this, "lblValveSize", "内弁サイズ"};
  TextBox txtValveSize{*this, "txtValveSize"};
  Label lblCvv{*this, "lblCvv", "弁Cv"};
  TextBox txtCvv{*this, "txtCvv", forms::NumberKeys};
  Label lblRangeability{*this, "lblRangeability", "ﾚﾝｼﾞｱﾋﾞﾘﾃｨ"};
  TextBox txtRangeability{*this, "txtRangeability", forms::NumberKeys};
  Label lblCharact{*this, "lblCharact", "弁特性"};
  ComboBox cboCharact{*this, "cboCharact"};
  Label lblBodySize{*this, "lblBodySize", "弁本体呼称径"};
  ComboBox cboBodySize{*this, "cboBodySize"};
  Label lbl弁口径{*this, "lbl弁口径", "弁口径"};
  TextBox txt弁口径{*this, "txt弁口径", forms::NumberKeys};
  Label lblフランジ規格{*this, "lblフランジ規格", "", LabelStyle::kUnit};

  Label lbl上流配管{*this, "lbl上流配管", "上流配管"};
  TextBox txt上流配管外径{*this, "txt上流配管外径", forms::NumberKeys};
  TextBox txt上流配管厚{*this, "txt上流配管厚", forms::NumberKeys};
  Label lbl下流配管{*this, "lbl下流配管", "下流配管"};
  TextBox txt下流配管外径{*this, "txt下流配管外径", forms::NumberKeys};
  TextBox txt下流配管厚{*this, "txt下流配管厚", forms::NumberKeys};
  Label lbl配管材質{*this, "lbl配管材質", "配管材質"};
  ComboBox cbo配管材質{*this, "cbo配管材質", {}, ComboBox::Style::kEditable};
  Label lblWallWeight{*this, "lblWallWeight", "管壁単位重量"};
  TextBox txtWallWeight{*this, "txtWallWeight", forms::NumberKeys};

  ResultLabel lblSizingCv{*this, "lblSizingCv"};
  ResultLabel lblOpening{*this, "lblOpening"};
  ResultLabel lblVelocity{*this, "lblVelocity"};
  ResultLabel lblNoise{*this, "lblNoise"};
  /// What makes a result impossible or doubtful.
  Label lbl注意{*this, "lbl注意", "", LabelStyle::kNote};
  /// Characteristic of the valve with its operating point; the help lists take its place.
  forms::Picture pic特性{*this, "pic特性", 4300, 4000};
  forms::ListBox lstFL{*this, "lstFL", 7};
  forms::ListBox lstFd{*this, "lstFd", 7};
  forms::ListBox lstN係数{*this, "lstN係数", 7};

  Button cmdCv計算{*this, "cmdCv計算", "Cv計算", forms::ButtonRole::kDefault};
  Button cmdCvData消去{*this, "cmdCvData消去", "Cv消去"};
  Button cmdSizing{*this, "cmdSizing", "サイジング", forms::ButtonRole::kDefault};
  Button cmdSizingData消去{*this, "cmdSizingData消去", "ｻｲｼﾞﾝｸﾞ消去"};
  Button cmdAllData消去{*this, "cmdAllData消去", "全データ消去"};

  explicit frmCV(shell::Workspace& workspace);

  void Load() override;
  void ClearResults() override;

  void TakePipe(double outsideDiameter, double wallThickness, double bore) override;
  int PipeStartSize() const override;
  int BodySizeIndex() const override { return cboBodySize.Index(); }
  std::string FlangeRating() const override { return flangeRating_; }
  void TakeRating(const std::string& rating, const std::string& bore) override;
  int MakerIndex() const override { return cboMaker.Index(); }
  int ModelIndex() const override { return cboValveModel.Index(); }
  void TakeTrim(int row) override;
  valve::CorrectionDetail Correction() const override { return detail_; }
  void CatalogueChanged() override;

  std::string TagNumber() const override { return txtTagNo.Text(); }
  void AddTo(int row) override { AddCV(row); }
  void GetFrom(int row) override { GetCV(row); }
  std::vector<Calculation> CalculationsOf(const shell::TagRow& record) override;
  std::vector<int> LookUpAnew() override;
  bool PrintBody(shell::PrintSurface& target) override { return PrintCV(target); }
  /// Writes entries and results into a row of the tag store.
  void AddCV(int row);
  /// Fills the sheet from a row of its kind.
  void GetCV(int row);
  /// Prints entries and results as they stand on the sheet.
  bool PrintCV(shell::PrintSurface& target);

 protected:
  std::vector<std::string> PropertyOrder() const override;

 private:
  void BindHandlers();
  void BindValveHandlers();
  /// An entry of the valve part: its change clears the sizing alone.
  void WatchValve(TextBox& box);
  void BindHelpList(Label& label, TextBox& box, forms::ListBox& list,
                    const std::vector<std::pair<const char*, const char*>>& lines);
  void OpenHelpList(TextBox& box, forms::ListBox& list);
  void CloseHelpList(forms::ListBox& list);

  void DeclareLayout();
  forms::Block ProcessBlock();
  forms::Block CvBlock();
  forms::Block ValveBlock();
  forms::Block PipeBlock();
  forms::Block SizingBlock();

  void lbl差圧_Click();
  void ShowPressureKind(bool secondary);
  void cboMaker_Click();
  void cboMaker_Change();
  void FillModels();
  void cboValveModel_Click();
  void cbo配管材質_Click();
  void txt弁口径_DblClick();
  void OpenPipes(bool downstream);
  void cmdAllData消去_Click();
  void ClearSizingResults();

  // Calculation.
  void cmdCv計算_Click();
  void CalculateCv();
  void cmdSizing_Click();
  void Size();
  void lblSizingCv_Click();
  void lblNoise_Click();
  /// Reads the process fields in internal units and writes defaults back into empty ones.
  valve::Service ReadProcessInputs();
  void ReadPressures(valve::Service& service);
  /// Reads the valve fields, likewise.
  valve::SelectedValve ReadValveInputs();
  /// Number of a field; 0 becomes `value`, which is then written into it as `text`.
  static Real ReadWithDefault(TextBox& box, double value, const char* text);
  void ShowMarks(const valve::Service& service, bool choked);
  void ShowVelocity(const valve::Service& service, Real velocity);
  /// Says what makes the results impossible or doubtful; the numbers stay.
  void ShowCautions(const valve::Service& service, const valve::SelectedValve& selected);
  /// After a recall: the marks, the correction and the cautions that belong to the results of the
  /// tag, which its record does not hold.
  void RestoreFindings();
  void DrawCharacteristic(forms::DrawSurface& surface);

  // Record.
  TagColumns RecordColumns();
  void GetValve(const shell::TagRow& record);
  void GetFindings(const shell::TagRow& record);
  int TrimRow(const std::string& size, const std::string& ratedCv) const;

  void PrintConditions(CalculationPage& page);
  void PrintValve(CalculationPage& page);
  void PrintResults(CalculationPage& page);

  /// txt差圧 holds the secondary pressure.
  bool secondaryPressure_ = false;
  /// The pipe dialogue fills the outlet.
  bool downstreamPipe_ = false;
  /// The Cv stage has found choked flow.
  bool chokedCv_ = false;
  /// Flange rating that gave the bore, "" for none.
  std::string flangeRating_;
  /// Of the last sizing.
  valve::CorrectionDetail detail_;
};

}  // namespace sheets
