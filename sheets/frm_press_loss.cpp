#include "sheets/frm_press_loss.h"

#include <algorithm>
#include <cmath>

#include "common/number.h"
#include "data/units.h"
#include "forms/placed_surface.h"
#include "sheets/chart.h"
#include "sheets/frm_pipe_dia.h"
#include "sheets/list_texts.h"
#include "sheets/pressure_loss_dialogues.h"

namespace sheets {

namespace {

using common::Format;
using common::NumberText;
using common::Val;

/// Commercial steel, mm.
constexpr const char* kStartRoughness = "0.05";
constexpr int kCp = 1;
constexpr int kCst = 2;

/// Decimals of a loss by pressure unit: kPa, MPa, kgf/cm2, mmH2O, mmHg, bar, psi.
constexpr int kLossDecimals[] = {3, 5, 4, 0, 3, 4, 3};

std::string LossPattern(int unit) {
  const int decimals = common::At(kLossDecimals, unit);
  const std::string whole = "#,###,##0";
  return decimals == 0 ? whole : whole + "." + std::string(static_cast<std::size_t>(decimals), '0');
}

}  // namespace

frmPressLoss::frmPressLoss(shell::Workspace& workspace)
    : ProcessSheet(workspace, kKind, "Pressure Loss Calculation") {
  UseFields({.humidity = &humidity, .deviationLabel = &lbl偏差係数, .deviation = &txt偏差係数});
  BindHandlers();
  DeclareLayout();
}

void frmPressLoss::BindHandlers() {
  for (TextBox* box :
       {&txt流量, &txt配管内径, &txtPipeRoughness, &txtPipeLength, &txtInletType, &txt管径比率[kIn],
        &txt管径比率[kOut], &txt円錐角度[kIn], &txt円錐角度[kOut]}) {
    Watch(*box);
  }
  for (const auto& box : txt付属品数) Watch(*box);
  cbo流体.onClick = [this, panel = cbo流体.onClick] {
    EmptyFluid();
    panel();
  };
  cbo圧力単位.onClick = [this, panel = cbo圧力単位.onClick] {
    ShowLossUnit();
    panel();
  };
  cbo粘性係数単位.onClick = [this, panel = cbo粘性係数単位.onClick] {
    if (IsGas() && cbo粘性係数単位.Index() == kCst) cbo粘性係数単位.SetIndex(kCp);
    panel();
  };
  cbo粘性係数単位.SetToolTip("[cst]はサポートしていません");
  OfferPipe(lbl配管内径, cbo配管呼称径, cboSchedule, txt配管内径);
  txtPipeRoughness.onDblClick = [this] { Space().forms.Show(frmRoughness::kName); };
  txtPipeRoughness.SetToolTip("ダブルクリックで配管の種類から選びます。");
  Label29.onClick = [this] { Space().forms.Show(frmInletType::kName); };
  Label29.SetToolTip("クリックで形状の図から選びます。");
  txtInletType.onDblClick = Label29.onClick;
  txtInletType.onRightClick = Label29.onClick;
  cmdInletType.onClick = Label29.onClick;
  txtInletType.SetToolTip("ダブルクリックで形状の図から選びます。");
  pic管端.onPaint = [this](forms::DrawSurface& surface) { DrawEnds(surface); };
  pic管端.onClick = Label29.onClick;
  pic管端.SetToolTip(Label29.ToolTip());
  pic圧力.onPaint = [this](forms::DrawSurface& surface) { DrawPressures(surface); };
  cmdInitialize.onClick = [this] { cmdInitialize_Click(); };
  cmd計算.onClick = [this] { cmd計算_Click(); };
}

void frmPressLoss::Load() {
  ProcessSheet::Load();
  const Quiet quiet(*this);
  FillList(cbo配管呼称径, NominalSizeTexts(Tables().lists));
  FillList(cboSchedule, ScheduleTexts(Tables().lists));
  for (int i = 0; i < kFittings; ++i) {
    lbl付属品[i].SetText(common::At(Tables().pressLoss.fittingTable, i).name);
  }
  txtPipeRoughness.SetText(kStartRoughness);
  ShowLossUnit();
  StoreEntries();
  SetFocus(txtTagNo);
}

/// A liquid and steam have neither moisture nor a deviation factor.
void frmPressLoss::ShowUnitsOfPhase() {
  ProcessSheet::ShowUnitsOfPhase();
  for (forms::Control* control : std::initializer_list<forms::Control*>{
           &humidity.lbl相対湿度, &humidity.txt相対湿度, &humidity.lbl相対湿度単位,
           &humidity.lbl飽和水蒸気圧, &humidity.txt飽和水蒸気圧, &humidity.cbo飽和水蒸気圧単位,
           &lbl偏差係数, &txt偏差係数}) {
    control->SetVisible(IsGas());
  }
}

void frmPressLoss::OnFault(const forms::Control* source, const common::RuntimeFault& fault) {
  if (source != &cmd計算) {
    ProcessSheet::OnFault(source, fault);
    return;
  }
  ClearResults();
  User().Show("データを見直してください。", {}, common::Icon::kWarning);
}

std::vector<std::string> frmPressLoss::PropertyOrder() const {
  if (IsLiquid()) return {"密度", "粘性係数"};
  return {"密度", "粘性係数", "飽和水蒸気圧", "偏差係数"};
}

/// The properties of one fluid must not stay for another.
void frmPressLoss::EmptyFluid() {
  const Quiet quiet(*this);
  for (TextBox* box :
       {&txt密度, &txt粘性係数, &humidity.txt相対湿度, &humidity.txt飽和水蒸気圧, &txt偏差係数}) {
    box->SetText("");
  }
}

void frmPressLoss::ShowLossUnit() {
  const int unit = cbo圧力単位.Index();
  for (const auto& label : lbl圧損単位) {
    label->SetText(unit < 0 ? std::string() : common::At(data::kLossUnits, unit));
  }
}

void frmPressLoss::TakePipe(double, double, double bore) { txt配管内径.SetText(NumberText(bore)); }

void frmPressLoss::TakeRoughness(const std::string& roughness) {
  txtPipeRoughness.SetText(roughness);
}

void frmPressLoss::TakeInletType(int type) {
  const auto take = [this](const char* ratio, const char* angle) {
    txt管径比率[kIn].SetText(ratio);
    txt円錐角度[kIn].SetText(angle);
  };
  txtInletType.SetText(std::to_string(type));
  switch (type) {
    case piping::kStraightInlet:
      take("1", "0");
      break;
    case piping::kConicalInlet:
      take("", "");
      break;
    default:
      take("0.01", "180");  // a vessel, a hundred times as wide as the pipe
  }
}

void frmPressLoss::cmdInitialize_Click() {
  ClearData();
  txtPipeRoughness.SetText(kStartRoughness);
}

void frmPressLoss::ClearResults() {
  for (Label* label : std::initializer_list<Label*>{
           &lblλ, &lblReynolds, &lbl関係粗度, &lblVelosityIn, &lblVelosityOut, &lblζin, &lblζout,
           &lblTerminalLoss[kIn], &lblTerminalLoss[kOut], &lbl付属品ζ, &lblTotalLoss}) {
    label->SetText("");
  }
  lblVelosityOut.SetForeColor(forms::kBlack);
  lblVelosityOut.SetToolTip("");
  diagram_.reset();
  for (forms::Picture* picture : {&pic圧力, &pic管端}) picture->Redraw();
  Space().calcDone = false;
}

void frmPressLoss::ReadInputs() {
  ReadConditions();
  ReadMoisture();
  ReadDeviation("偏差係数");
  Process().pipeInnerDiameter = Val(txt配管内径.Text());
  CorrectShape();
}

void frmPressLoss::CorrectShape() {
  piping::ShapeEntries shape{txtInletType.Text(),
                             {txt管径比率[kIn].Text(), txt円錐角度[kIn].Text()},
                             {txt管径比率[kOut].Text(), txt円錐角度[kOut].Text()}};
  piping::CorrectShape(shape, User());
  txtInletType.SetText(shape.inletType);
  txt管径比率[kIn].SetText(shape.inlet.ratio);
  txt円錐角度[kIn].SetText(shape.inlet.angle);
  txt管径比率[kOut].SetText(shape.outlet.ratio);
  txt円錐角度[kOut].SetText(shape.outlet.angle);
}

piping::Terminal frmPressLoss::EnteredTerminal(int end) const {
  return {Val(txt管径比率[end].Text()), Val(txt円錐角度[end].Text())};
}

piping::Line frmPressLoss::EnteredLine() {
  data::ProcessState& process = Process();
  piping::Line line;
  line.inletType = common::IntIndex(Val(txtInletType.Text()));
  line.inlet = EnteredTerminal(kIn);
  line.outlet = EnteredTerminal(kOut);
  line.roughness = Val(txtPipeRoughness.Text());
  line.pipeLength = Val(txtPipeLength.Text());
  ReadDensities();
  line.massFlow = data::FlowToMass(process, Val(txt流量.Text()));
  line.fluidPhase = process.fluidPhase;
  line.pressureAbs = process.pressureAbs;
  line.temperatureK = process.temperatureK;
  line.densityFlow = process.densityFlow;
  line.viscosityCp = process.viscosityCp;
  line.innerDiameter = Val(txt配管内径.Text());
  std::array<Real, kFittings> counts;
  for (int i = 0; i < kFittings; ++i) common::At(counts, i) = Val(txt付属品数[i].Text());
  line.fittingLoss = piping::FittingLoss(Tables().pressLoss, counts);
  return line;
}

void frmPressLoss::cmd計算_Click() {
  Space().calcFailed = false;
  Space().calcNote.clear();
  ClearResults();
  if (!HasData({"PressLoss.dat", "ZephaConvertData.dat"})) return;
  ReadInputs();
  const piping::Line line = EnteredLine();
  const std::optional<piping::LineLoss> loss = piping::CalculateLineLoss(line);
  if (!loss) {
    Space().calcFailed = true;
    User().Show("圧力損失が流体圧力を超えるので\n計算を中止します。");
    return;
  }
  ShowResults(line, *loss);
  Space().calcDone = true;
}

std::string frmPressLoss::LossText(Real kgfCm2) const {
  return Format(data::PressureDifferenceInUnit(Process(), kgfCm2),
                LossPattern(Process().pressureUnit));
}

void frmPressLoss::ShowResults(const piping::Line& line, const piping::LineLoss& loss) {
  constexpr const char* kVelocityFormat = "##0.###";
  lblλ.SetText(Format(loss.frictionFactor, "0.000000"));
  lblReynolds.SetText(Format(loss.reynolds, "###,###,###,##0"));
  lbl関係粗度.SetText(Format(line.roughness / line.innerDiameter, "0.000000"));
  lblVelosityIn.SetText(Format(loss.velocityIn, kVelocityFormat));
  lblVelosityOut.SetText(Format(loss.velocityOut, kVelocityFormat));
  lblζin.SetText(NumberText(loss.inletZeta));
  lblζout.SetText(NumberText(loss.outletZeta));
  lblTerminalLoss[kIn].SetText(LossText(loss.inletLoss));
  lblTerminalLoss[kOut].SetText(LossText(loss.outletLoss));
  lbl付属品ζ.SetText(NumberText(line.fittingLoss));
  lblTotalLoss.SetText(LossText(loss.totalLoss));
  CautionVelocity(loss);
  PrepareDiagram(line, loss);
}

void frmPressLoss::CautionVelocity(const piping::LineLoss& loss) {
  if (!loss.choked) return;
  lblVelosityOut.SetForeColor(forms::kMagenta);
  lblVelosityOut.SetToolTip(
      "等温流れの限界流速 √(P/ρ) を超えています。この流量は配管を流れません。");
}

void frmPressLoss::DrawEnds(forms::DrawSurface& surface) const {
  DrawInlet(surface, common::IntIndex(Val(txtInletType.Text())), EnteredTerminal(kIn));
  forms::PlacedSurface right(surface, kPipeEndWidth, 0, 1, 1);
  DrawOutlet(right, EnteredTerminal(kOut));
}

void frmPressLoss::PrepareDiagram(const piping::Line& line, const piping::LineLoss& loss) {
  if (line.pipeLength <= 0) return;
  // The entered pressure less the losses, so that the diagram speaks in the unit of the entry.
  const auto shown = [this, entered = Val(txt圧力.Text())](Real lost) {
    return static_cast<double>(entered - data::PressureDifferenceInUnit(Process(), lost));
  };
  Diagram diagram;
  diagram.length = line.pipeLength;
  diagram.before = shown(0);
  diagram.behind = shown(loss.totalLoss);
  diagram.unit = cbo圧力単位.Text();
  diagram.pattern = LossPattern(Process().pressureUnit);
  const auto steps = static_cast<double>(loss.pressures.size() - 1);
  for (const Real p : loss.pressures) {
    const auto i = static_cast<double>(diagram.pipe.size());
    diagram.pipe.emplace_back(diagram.length * i / steps, shown(line.pressureAbs - p));
  }
  diagram_ = std::move(diagram);
  pic圧力.Redraw();
}

void frmPressLoss::DrawPressures(forms::DrawSurface& surface) const {
  constexpr double kBeside = 0.08;  // of the length, for what leads in and out
  if (!diagram_) {
    DrawEmptyChart(surface, pic圧力.Width(), pic圧力.Height(), "計算すると圧力線図を表示します。");
    return;
  }
  const auto& [length, before, behind, unit, pattern, pipe] = *diagram_;
  // A loss too small to be told from the pressure still needs a range to be drawn in.
  const double range = std::max(before - behind, 1e-6 * std::max(std::abs(before), 1.0));
  const double from = -kBeside * length;
  const double to = (1 + kBeside) * length;
  Chart chart(surface, pic圧力.Width(), pic圧力.Height(), {"配管長さ (m)", from, to},
              {"圧力 (" + unit + ")", behind - 0.2 * range, before + 0.2 * range});
  chart.Legend("圧力", forms::kBlue);
  chart.Upright(0, forms::kBlack, "流入部");
  chart.Upright(length, forms::kBlack, "流出部");
  chart.Curve({{from, before}, {0, before}}, forms::kBlue);
  chart.Curve(pipe, forms::kBlue);
  chart.Curve({{length, behind}, {to, behind}}, forms::kBlue);
  const double inletLoss = before - pipe.front().second;
  const double outletLoss = pipe.back().second - behind;
  if (inletLoss > 0 || outletLoss > 0) {
    chart.Legend("流入部・流出部の損失", forms::kMagenta);
    chart.Curve({{0, before}, {0, pipe.front().second}}, forms::kMagenta, 3);
    chart.Curve({{length, pipe.back().second}, {length, behind}}, forms::kMagenta, 3);
  }
  chart.Note(0, before, Format(before, pattern), forms::kBlue);
  chart.Note(length, behind, Format(behind, pattern), forms::kBlue, Chart::Side::kBelow);
}

void frmPressLoss::DeclareLayout() {
  SetLayout(SheetBlock(
      lblタイトル,
      forms::Row({
          forms::Stretched(forms::Column({ProcessBlock(), PipeBlock(), forms::Space()}), 6),
          forms::Stretched(forms::Column({ShapeBlock(), FittingBlock(), forms::Space()}), 6),
          forms::Stretched(
              forms::Column({ResultBlock(),
                             forms::Stretched(forms::Group("圧力線図", forms::Table({{pic圧力}}))),
                             forms::Buttons({{}, cmdInitialize, cmd計算})}),
              7),
      })));
}

forms::Block frmPressLoss::ProcessBlock() {
  return forms::Group(
      "プロセス条件",
      forms::Table({
          {lbl流体, Cell(cbo流体).Over(2)},
          {lbl流量, txt流量, FlowUnits()},
          {lbl圧力, txt圧力, cbo圧力単位},
          {lbl温度, txt温度, cbo温度単位},
          {lbl密度, txt密度, DensityUnits()},
          {lbl粘性係数, txt粘性係数, cbo粘性係数単位},
          {humidity.lbl相対湿度, humidity.txt相対湿度, humidity.lbl相対湿度単位},
          {humidity.lbl飽和水蒸気圧, humidity.txt飽和水蒸気圧, humidity.cbo飽和水蒸気圧単位},
          {lbl偏差係数, txt偏差係数},
      }));
}

forms::Block frmPressLoss::PipeBlock() {
  return forms::Group("配管", forms::Table({
                                  {lbl配管呼称径, Cell(cbo配管呼称径).Over(2)},
                                  {lblSchedule, Cell(cboSchedule).Over(2)},
                                  {lbl配管内径, txt配管内径, "mm"},
                                  {lblPipeRoughness, txtPipeRoughness, "mm"},
                                  {lblPipeLength, txtPipeLength, "m"},
                              }));
}

forms::Block frmPressLoss::ShapeBlock() {
  return forms::Group("流入部・流出部", forms::Table({
                                            {Label29, txtInletType, Cell(cmdInletType).Over(2)},
                                            {"", lbl流入部, lbl流出部},
                                            {lbl管径比率, txt管径比率[kIn], txt管径比率[kOut], ""},
                                            {lbl円錐角度, txt円錐角度[kIn], txt円錐角度[kOut], "°"},
                                            {Cell(pic管端).Over(4)},
                                        }));
}

forms::Block frmPressLoss::FittingBlock() {
  std::vector<forms::Line> lines;
  for (int i = 0; i < kFittings; i += 2) {
    lines.push_back({lbl付属品[i], txt付属品数[i], lbl付属品[i + 1], txt付属品数[i + 1]});
  }
  return forms::Group("配管付属品の数", forms::Table(std::move(lines)));
}

forms::Block frmPressLoss::ResultBlock() {
  return forms::Results(
      "計算結果",
      forms::Table({
          {"レイノルズ数", lblReynolds, "管摩擦係数 λ", lblλ},
          {"関係粗度", lbl関係粗度, "付属品の損失係数 ζ", lbl付属品ζ},
          {"流速（流入）", lblVelosityIn, "流速（流出）", lblVelosityOut, "m/s"},
          {"損失係数 ζ（流入）", lblζin, "損失係数 ζ（流出）", lblζout},
          {"流入部損失", lblTerminalLoss[kIn], "流出部損失", lblTerminalLoss[kOut], lbl圧損単位[0]},
          {"", "", "全圧力損失", lblTotalLoss, lbl圧損単位[1]},
      }));
}

}  // namespace sheets
