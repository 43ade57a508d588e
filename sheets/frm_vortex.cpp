#include "sheets/frm_vortex.h"

#include <algorithm>

#include "common/number.h"
#include "data/units.h"

namespace sheets {

namespace {

using common::Format;
using common::NumberText;
using common::RoundDigits;
using common::Val;

constexpr const char* kRange = "###0.0";
constexpr const char* kCavitation = "Cavitation";

// Columns of the record that are no entries.
constexpr int kFluidColumn = 2;
constexpr int kSizeColumn = 18;
constexpr int kFiguresColumn = 19;

}  // namespace

frmVortex::frmVortex(shell::Workspace& workspace)
    : ProcessSheet(workspace, kKind, "Vortex Meter Calculation") {
  UseFields({.deviationLabel = &lbl偏差係数,
             .deviation = &txt偏差係数,
             .secondFlowUnit = &lbl最少流量単位,
             .vapour = &vapour});
  BindHandlers();
  DeclareLayout();
}

void frmVortex::BindHandlers() {
  for (TextBox* box : {&txt目盛流量, &txt最少流量}) Watch(*box);
  Watch(cboMaker);
  Picture4.onPaint = [this](forms::DrawSurface& surface) {
    DrawVortexChart(chart_, surface, Picture4.Width(), Picture4.Height());
  };
  cmdデータ消去.onClick = [this] { cmdデータ消去_Click(); };
  cmd計算.onClick = [this] { cmd計算_Click(); };
}

void frmVortex::Load() {
  ProcessSheet::Load();
  const Quiet quiet(*this);
  const flow::VortexTable& table = Tables().vortex;
  FillList(cboMaker, {table.makerName.begin(), table.makerName.end()});
  for (std::size_t i = 0; i < kSizes; ++i) chart_.sizes[i] = NumberText(table.meterSize[i]);
  StoreEntries();
  SetFocus(txtTagNo);
}

std::vector<std::string> frmVortex::PropertyOrder() const {
  if (IsLiquid()) return {"密度", "粘性係数", "飽和蒸気圧"};
  return {"密度", "粘性係数", "偏差係数"};
}

void frmVortex::cmdデータ消去_Click() {
  {
    const Quiet quiet(*this);
    if (cboMaker.Count() > 0) cboMaker.SetIndex(0);
  }
  ClearData();
}

void frmVortex::ClearResults() {
  lblScale.SetText("");
  for (auto* labels : {&lblMeterSize, &lblRange, &lblDPkpa, &lblDPmm, &lblHz, &lblRemarks}) {
    for (const auto& label : *labels) label->SetText("");
  }
  for (const auto& label : lblRemarks) label->SetForeColor(forms::kBlack);
  lbl注意.SetText("");
  chart_.ratings = {};
  chart_.minimumShare = 0;
  chart_.calculated = false;
  Space().calcDone = false;
  Picture4.Redraw();
}

flow::VortexInputs frmVortex::ReadInputs() {
  data::ProcessState& process = Process();
  ReadConditions();
  ReadDeviation("偏差係数");
  ReadDensities();
  if (IsGas()) {
    // This sheet knows no humidity: terms of the vapour that the converters multiply by 0.
    process.saturationPressure = 1;
    process.waterVapourDensity = 1;
  }
  process.vapourPressureUnit = vapour.cbo飽和蒸気圧単位.Index();
  process.vapourPressure =
      data::VapourPressureToAbsolute(Val(vapour.txt飽和蒸気圧.Text()), process.vapourPressureUnit);
  flow::VortexInputs inputs;
  inputs.maker = cboMaker.Index();
  inputs.fluidPhase = process.fluidPhase;
  inputs.p = process.pressureAbs;
  inputs.t = process.temperatureC;
  inputs.rho = process.densityFlow;
  inputs.mu = process.viscosityCp;
  inputs.vapourPressure = process.vapourPressure;
  return inputs;
}

void frmVortex::cmd計算_Click() {
  Space().calcFailed = false;
  Space().calcNote.clear();
  ClearResults();
  if (!HasData({"Vortex.dat", "ZephaConvertData.dat"})) return;
  flow::VortexInputs inputs = ReadInputs();
  if (flow::IsGasTooLight(inputs)) {
    User().Show("使用状態での密度が低すぎます", "Sizing");
    Space().calcFailed = true;
    return;
  }
  data::ProcessState& process = Process();
  inputs.scaleFlow = data::FlowToMass(process, Val(txt目盛流量.Text())) / inputs.rho;
  const Real minFlow = data::FlowToMass(process, Val(txt最少流量.Text())) / inputs.rho;
  const Real share = RoundDigits(minFlow / inputs.scaleFlow * 100, 1);
  chart_.ratings = flow::RateVortexMeters(Tables().vortex, inputs);
  chart_.minimumShare = share;
  chart_.calculated = true;
  ShowResults();
  Space().calcDone = true;
}

void frmVortex::ShowResults() {
  lblScale.SetText(NumberText(chart_.minimumShare));
  for (int i = 0; i < kSizes; ++i) {
    if (common::At(chart_.ratings, i).listed) ShowSize(i);
  }
  CautionResults();
  Picture4.Redraw();
}

void frmVortex::ShowSize(int i) {
  const flow::VortexRating& rating = common::At(chart_.ratings, i);
  lblMeterSize[i].SetText(common::At(chart_.sizes, i));
  lblRange[i].SetText(Format(rating.rangeLow, kRange) + "～" + Format(rating.rangeHigh, kRange));
  lblDPkpa[i].SetText(Format(rating.pressureLoss * data::kKpaPerMmH2O, "###,##0.00"));
  lblDPmm[i].SetText(Format(rating.pressureLoss, "###,##0"));
  lblHz[i].SetText(Format(rating.frequency, "##,##0.0"));
  lblRemarks[i].SetText(rating.cavitates ? kCavitation : "");
  lblRemarks[i].SetForeColor(rating.cavitates ? forms::kMagenta : forms::kBlack);
}

/// What the list itself does not say.
void frmVortex::CautionResults() {
  const bool noLowerLimit = std::any_of(
      chart_.ratings.begin(), chart_.ratings.end(),
      [](const flow::VortexRating& rating) { return rating.listed && rating.rangeLow == 0; });
  std::string note;
  if (flow::RecommendedSize(chart_.ratings) < 0) {
    note = "このメーカーに適用できるサイズはありません。";
  }
  if (noLowerLimit) {
    note = "密度が低く、測定下限を決める式がありません\n（下限 0 は目安になりません）。";
  }
  lbl注意.SetForeColor(forms::kMagenta);
  lbl注意.SetText(note);
}

TagColumns frmVortex::RecordColumns() {
  return {{{4, &FlowUnitBox()},
           {7, &cbo圧力単位},
           {9, &cbo温度単位},
           {11, &DensityUnitBox()},
           {13, &cbo粘性係数単位},
           {16, &vapour.cbo飽和蒸気圧単位},
           {17, &cboMaker}},
          {{0, &txtTagNo},
           {1, &txt用途},
           {3, &txt目盛流量},
           {5, &txt最少流量},
           {6, &txt圧力},
           {8, &txt温度},
           {10, &txt密度},
           {12, &txt粘性係数},
           {14, &txt偏差係数},
           {15, &vapour.txt飽和蒸気圧}},
          {}};
}

std::pair<std::string, std::string> frmVortex::Recommended() const {
  const int i = flow::RecommendedSize(chart_.ratings);
  if (i < 0) return {};
  const flow::VortexRating& rating = common::At(chart_.ratings, i);
  std::string figures;
  for (const Real figure : {rating.rangeLow, rating.rangeHigh, RoundDigits(rating.pressureLoss, 0),
                            RoundDigits(rating.frequency, 1)}) {
    figures += NumberText(figure) + ";";
  }
  return {common::At(chart_.sizes, i), figures + (rating.cavitates ? kCavitation : "")};
}

void frmVortex::AddVortex(int row) {
  PutRecord(row, kFluidColumn, RecordColumns());
  const auto [size, figures] = Recommended();
  Space().tags.SetText(row, kSizeColumn, size);
  Space().tags.SetText(row, kFiguresColumn, figures);
}

void frmVortex::GetVortex(int row) {
  GetRecord(row, kFluidColumn, [this] { return RecordColumns(); });
}

void frmVortex::RestoreResults(int row) {
  if (!Space().tags.Text(row, kSizeColumn).empty()) cmd計算_Click();
}

std::vector<shell::Sheet::Calculation> frmVortex::CalculationsOf(const shell::TagRow& record) {
  return OneWay(At(record, kSizeColumn), cmd計算);
}

void frmVortex::DeclareLayout() {
  SetLayout(
      SheetBlock(lblタイトル,
                 forms::Row({
                     forms::Stretched(ProcessBlock(), 5),
                     forms::Stretched(forms::Group("測定範囲", forms::Table({{Picture4}})), 5),
                     forms::Stretched(forms::Column({ResultBlock(), forms::Space(),
                                                     forms::Buttons({{}, cmdデータ消去, cmd計算})}),
                                      7),
                 })));
}

forms::Block frmVortex::ProcessBlock() {
  return forms::Group("プロセス条件",
                      forms::Table({
                          {lbl流体, Cell(cbo流体).Over(2)},
                          {lbl目盛流量, txt目盛流量, FlowUnits()},
                          {lbl最少流量, txt最少流量, lbl最少流量単位},
                          {lbl圧力, txt圧力, cbo圧力単位},
                          {lbl温度, txt温度, cbo温度単位},
                          {lbl密度, txt密度, DensityUnits()},
                          {lbl粘性係数, txt粘性係数, cbo粘性係数単位},
                          {lbl偏差係数, txt偏差係数},
                          {vapour.lbl飽和蒸気圧, vapour.txt飽和蒸気圧, vapour.cbo飽和蒸気圧単位},
                          {lblMaker, Cell(cboMaker).Over(2)},
                      }));
}

forms::Block frmVortex::ResultBlock() {
  std::vector<forms::Line> lines = {{Cell(lbl最少流量比).Over(2), lblScale, "%"},
                                    {"サイズ", "測定範囲", "圧力損失", "", "公称周波数", "備考"},
                                    {"(mm)", "(%FS)", "(kPa)", "(mmH2O)", "(Hz)"}};
  for (int i = 0; i < kSizes; ++i) {
    lines.push_back({Cell(lblMeterSize[i]).Wide(5), Cell(lblRange[i]).Wide(11),
                     Cell(lblDPkpa[i]).Wide(8), Cell(lblDPmm[i]).Wide(7), Cell(lblHz[i]).Wide(8),
                     Cell(lblRemarks[i]).Wide(8)});
  }
  return forms::Results("計算結果",
                        forms::Column({forms::Table(std::move(lines)), forms::Table({{lbl注意}})}));
}

}  // namespace sheets
