#include "sheets/frm_ro.h"

#include "common/number.h"
#include "data/units.h"
#include "sheets/list_texts.h"

namespace sheets {

namespace {

using common::Format;
using common::NumberText;
using common::RoundDigits;
using common::Val;

/// Unit of stresses and moduli without conversion.
constexpr int kKgfPerMm2 = 0;
constexpr double kKgfPerNewton = 0.101972;
constexpr double kNewtonPerKgf = 9.80665;  // 0.99999961 times the reciprocal; both are meant
constexpr int kMmHgAbsolute = 4;           // unit of a pressure that counts no atmosphere
constexpr int kClearedMaterial = 7;

/// A stress or modulus in kgf/mm2.
Real ReadStress(const TextBox& box, const ComboBox& unit) {
  const Real value = Val(box.Text());
  return unit.Index() == kKgfPerMm2 ? value : value * kKgfPerNewton;
}

}  // namespace

frmRO::frmRO(shell::Workspace& workspace)
    : ProcessSheet(workspace, kKind, "Restriction Orifice Calculation") {
  UseFields({.humidity = &humidity,
             .deviationLabel = &lbl圧縮係数,
             .deviation = &txt圧縮係数,
             .kappaLabel = &lbl比熱比,
             .kappa = &txt比熱比});
  FollowMaterials({&cboRO材質});
  BindHandlers();
  DeclareLayout();
}

void frmRO::BindHandlers() {
  for (TextBox* box :
       {&txt流量, &txt差圧, &txtヤング率, &txt許容応力, &txt配管内径, &txtThickness}) {
    Watch(*box);
  }
  for (ComboBox* box : {&cbo差圧単位, &cboヤング率単位}) Watch(*box);
  cbo許容応力単位.onClick = [this] {
    lbl最大応力単位.SetText(cbo許容応力単位.Text());
    ClearResults();
  };
  OfferEntry(
      lblヤング率, txtヤング率, [this] { txtヤング率_DblClick(); }, kFromMaterial);
  OfferEntry(
      lbl許容応力, txt許容応力, [this] { txt許容応力_DblClick(); }, kFromMaterial);
  OfferPipe(lbl配管内径, cbo配管呼称径, cboSchedule, txt配管内径);
  cboRO材質.onChange = [this] { ClearResults(); };
  cboRO材質.onClick = [this] {
    ClearResults();
    if (cboRO材質.Index() < 0) return;
    txtヤング率_DblClick();
    txt許容応力_DblClick();
  };
  pic断面.onPaint = [this](forms::DrawSurface& surface) {
    DrawElementSection(Section(), surface, pic断面);
  };
  cmdデータ消去.onClick = [this] { cmdデータ消去_Click(); };
  cmd計算.onClick = [this] { cmd計算_Click(); };
}

void frmRO::Load() {
  ProcessSheet::Load();
  const Quiet quiet(*this);
  const data::ConvertLists& lists = Tables().lists;
  const auto& names = Tables().materials.names;
  FillList(cbo差圧単位, data::kLossUnits);
  FillList(cboRO材質, {names.begin(), names.end()});
  FillList(cboヤング率単位, data::kStressUnits);
  FillList(cbo許容応力単位, data::kStressUnits);
  FillList(cbo配管呼称径, NominalSizeTexts(lists));
  FillList(cboSchedule, ScheduleTexts(lists));
  lbl最大応力単位.SetText(cbo許容応力単位.Text());
  OpenLimitsOfUse();
  StoreEntries();
  SetFocus(txtTagNo);
}

/// Puts the limits of use of the two nozzles over those of flange and D and D/2 taps, for the rest
/// of the run. This sheet reads none of them; the differential-pressure sheet has always met them
/// so once this one was opened, and stored tags rest on it.
void frmRO::OpenLimitsOfUse() {
  struct Limits {
    double betaMin, betaMax, pipeMin, pipeMax;  // pipes in mm
  };
  constexpr Limits kNozzles[] = {{0.3, 0.8, 50, 500}, {0.2, 0.8, 50, 630}};
  flow::OrificeTable& table = Space().tables.orifice;
  for (std::size_t row = 0; row < std::size(kNozzles); ++row) {
    table.betaMin[row] = kNozzles[row].betaMin;
    table.betaMax[row] = kNozzles[row].betaMax;
    table.pipeMin[row] = kNozzles[row].pipeMin;
    table.pipeMax[row] = kNozzles[row].pipeMax;
  }
}

void frmRO::OnFault(const forms::Control* source, const common::RuntimeFault& fault) {
  if (source != &cmd計算) {
    ProcessSheet::OnFault(source, fault);
    return;
  }
  ClearResults();
  User().Show(std::string(fault.Text()) + "\nデータを見直してください。", {},
              common::Icon::kWarning);
}

std::vector<std::string> frmRO::PropertyOrder() const {
  if (IsLiquid()) return {"密度", "粘性係数"};
  return {"比熱比", "密度", "粘性係数", "飽和水蒸気圧", "偏差係数", "比熱比"};
}

/// The compressibility factor itself: the molar mass is worked out from the density at normal
/// state.
Real frmRO::EstimateDeviation(data::PropertyEstimator& estimator, int fluidIndex) {
  return estimator.EstimateCompressibility(fluidIndex);
}

void frmRO::FillFromMaterial(TextBox& box, const ComboBox& unit, int decimals,
                             MaterialProperty property) {
  StoreEntries();
  const std::string name = cboRO材質.Text();
  if (cboRO材質.Index() < 0 || name.empty()) {
    User().Show(name.empty() ? "データベースに未登録です。"
                             : "データベースに登録されていないオリフィス材料です");
    box.SetText("");
    return;
  }
  const Real value = property(Tables().materials, cboRO材質.Index(), Process(), User());
  box.SetText(NumberText(
      unit.Index() == kKgfPerMm2 ? value : RoundDigits(value * kNewtonPerKgf, decimals)));
}

void frmRO::txtヤング率_DblClick() {
  FillFromMaterial(txtヤング率, cboヤング率単位, 0, data::MaterialYoungsModulus);
}

void frmRO::txt許容応力_DblClick() {
  FillFromMaterial(txt許容応力, cbo許容応力単位, 1, data::MaterialAllowableStress);
}

void frmRO::TakePipe(double, double, double bore) { txt配管内径.SetText(NumberText(bore)); }

void frmRO::cmdデータ消去_Click() {
  {
    const Quiet quiet(*this);
    if (kClearedMaterial < cboRO材質.Count()) cboRO材質.SetIndex(kClearedMaterial);
  }
  ClearData();
}

void frmRO::ClearResults() {
  for (ResultLabel* label :
       {&lbl流速1, &lbl流量係数, &lbl背圧補正, &lblβ, &lbl絞り径, &lblたわみ係数, &lbl応力係数,
        &lbl最大応力, &lblMinThickness, &lbl変形量}) {
    label->SetText("");
    label->SetForeColor(forms::kBlack);
    label->SetToolTip("");
  }
  txtThickness.SetToolTip("");
  Label5[0].SetText("");
  lbl注意.SetText("");
  Space().calcDone = false;
  pic断面.Redraw();
}

/// The differential is converted like a pressure, which adds an atmosphere in all units but one.
Real frmRO::Differential() const {
  const int unit = cbo差圧単位.Index();
  const Real value = data::PressureToAbsolute(Val(txt差圧.Text()), unit);
  return unit == kMmHgAbsolute ? value : value - data::kNormalAtmosphere;
}

bool frmRO::ReadInputs(flow::RestrictionInputs& inputs) {
  data::ProcessState& process = Process();
  ReadConditions();
  if (!ReadHumidity()) return false;
  ReadDeviation("圧縮係数");
  ReadKappa();
  ReadDensities();
  inputs.fluidPhase = process.fluidPhase;
  inputs.p = process.pressureAbs;
  inputs.temperatureK = process.temperatureK;
  inputs.dP = Differential();
  process.differentialPressure = inputs.dP * data::kMmH2OPerKgfCm2;
  inputs.z = process.compressibilityZ;
  inputs.kappa = Val(txt比熱比.Text());
  inputs.q = data::FlowToMass(process, Val(txt流量.Text()));
  inputs.normalDensity = process.densityBase;
  inputs.rho = process.densityFlow;
  inputs.youngsModulus = ReadStress(txtヤング率, cboヤング率単位);
  inputs.allowableStress = ReadStress(txt許容応力, cbo許容応力単位);
  inputs.pipeBore = Val(txt配管内径.Text());
  process.pipeInnerDiameter = inputs.pipeBore;
  inputs.thickness = Val(txtThickness.Text());
  return true;
}

void frmRO::cmd計算_Click() {
  Space().calcFailed = false;
  Space().calcNote.clear();
  ClearResults();
  flow::RestrictionInputs inputs;
  if (!HasData({"ZephaConvertData.dat"}) || !ReadInputs(inputs)) return;
  ShowResults(flow::CalculateRestriction(inputs));
  Space().calcDone = true;
}

void frmRO::ShowResults(const flow::RestrictionResult& result) {
  const bool inKgf = cbo許容応力単位.Index() == kKgfPerMm2;
  lbl流速1.SetText(Format(result.velocity, "#,##0.00"));
  lbl流量係数.SetText(Format(result.bore.coefficient, "##0.00"));
  lbl背圧補正.SetText(result.bore.backPressure ? Format(*result.bore.backPressure, "##0.00") : "");
  lblβ.SetText(Format(result.beta, "#0.00###"));
  lbl絞り径.SetText(Format(result.bore.bore, "#,##0.00"));
  lblたわみ係数.SetText(Format(result.deflectionCoefficient, "#0.00"));
  lbl応力係数.SetText(Format(result.stressCoefficient, "##0.00"));
  lbl最大応力.SetText(inKgf ? Format(result.stress, "##0.00")
                            : Format(result.stress * kNewtonPerKgf, "##0.0"));
  lblMinThickness.SetText(NumberText(result.minThickness));
  lbl変形量.SetText(Format(result.deflection, "##0.00"));
  Label5[0].SetText(flow::IsStressTangential(result.beta) ? kTangential : kRadial);
  const auto judge = [](Label& label, bool failed) {
    label.SetForeColor(failed ? forms::kRed : forms::kBlack);
  };
  judge(lbl最大応力, result.overstressed);
  judge(lblMinThickness, result.overstressed);
  judge(lbl変形量, result.overdeflected);
  ShowThicknessHint();
  CautionResults();
  pic断面.Redraw();
}

void frmRO::ShowThicknessHint() {
  const std::string hint = "板厚は" + lblMinThickness.Text() + "mm以上必要です。";
  lbl最大応力.SetToolTip(hint);
  txtThickness.SetToolTip(hint);
}

void frmRO::CautionResults() {
  const Real beta = Val(lblβ.Text());
  const Real bore = GroupedNumber(lbl絞り径.Text());
  std::string note;
  const auto caution = [&note](const std::string& text,
                               std::initializer_list<Label*> doubtful = {}) {
    note += (note.empty() ? "" : "\n") + text;
    for (Label* label : doubtful) {
      label->SetForeColor(forms::kMagenta);
      label->SetToolTip(text);
    }
  };
  if (beta >= 1) {
    caution("絞り径が配管内径以上です。\nこの条件では製作できません。", {&lbl絞り径, &lblβ});
  } else if (beta > 0.8) {
    caution("β が 0.8 を超え、応力・たわみの式の範囲外です。", {&lblβ, &lblたわみ係数});
  } else if (Val(lblたわみ係数.Text()) == 0) {
    caution("このβではたわみの式が 0 になり、\n変形量は目安になりません。", {&lblたわみ係数});
  }
  if (Differential() >= Process().pressureAbs) {
    caution("差圧が上流の絶対圧力以上です。", {&lbl絞り径});
  }
  if (IsSteam()) {
    caution("蒸気は使用状態の密度から分子量を求めるため、\n絞り径が小さく出ます。");
  } else if (IsLiquid() && Val(txtThickness.Text()) >= bore) {
    caution("板厚が絞り径以上です。\n流量係数 1 は実際（約 0.8）より大きめです。");
  }
  lbl注意.SetForeColor(forms::kMagenta);
  lbl注意.SetText(note);
}

ElementSection frmRO::Section() const {
  ElementSection section;
  section.shape = ElementSection::Shape::kRestrictionPlate;
  section.pipeBore = Val(txt配管内径.Text());
  section.thickness = Val(txtThickness.Text());
  section.bore = GroupedNumber(lbl絞り径.Text());
  return section;
}

void frmRO::DeclareLayout() {
  SetLayout(SheetBlock(
      lblタイトル,
      forms::Row({
          forms::Stretched(ProcessBlock(), 7),
          forms::Stretched(forms::Column({PlateBlock(), forms::Stretched(forms::Group(
                                                            "断面図", forms::Table({{pic断面}})))}),
                           8),
          forms::Stretched(forms::Column({ResultBlock(), forms::Space(),
                                          forms::Buttons({{}, cmdデータ消去, cmd計算})}),
                           6),
      })));
}

forms::Block frmRO::ProcessBlock() {
  return forms::Group(
      "プロセス条件",
      forms::Table({
          {lbl流体, Cell(cbo流体).Over(2)},
          {lbl流量, txt流量, FlowUnits()},
          {lbl圧力, txt圧力, cbo圧力単位},
          {lbl差圧, txt差圧, cbo差圧単位},
          {lbl温度, txt温度, cbo温度単位},
          {lbl密度, txt密度, DensityUnits()},
          {lbl粘性係数, txt粘性係数, cbo粘性係数単位},
          {humidity.lbl相対湿度, humidity.txt相対湿度, humidity.lbl相対湿度単位},
          {humidity.lbl飽和水蒸気圧, humidity.txt飽和水蒸気圧, humidity.cbo飽和水蒸気圧単位},
          {lbl圧縮係数, txt圧縮係数},
          {lbl比熱比, txt比熱比},
      }));
}

forms::Block frmRO::PlateBlock() {
  return forms::Group("制限オリフィス・配管", forms::Table({
                                                  {lblRO材質, Cell(cboRO材質).Over(2)},
                                                  {lblヤング率, txtヤング率, cboヤング率単位},
                                                  {lbl許容応力, txt許容応力, cbo許容応力単位},
                                                  {lbl配管呼称径, Cell(cbo配管呼称径).Over(2)},
                                                  {lblSchedule, Cell(cboSchedule).Over(2)},
                                                  {lbl配管内径, txt配管内径, "mm"},
                                                  {lblThickness, txtThickness, "mm"},
                                              }));
}

forms::Block frmRO::ResultBlock() {
  return forms::Results("計算結果", forms::Table({
                                        {"絞り径", lbl絞り径, "mm"},
                                        {"絞り比 β", lblβ},
                                        {"流量係数", lbl流量係数},
                                        {"背圧補正", lbl背圧補正},
                                        {"流速（上流配管）", lbl流速1, "m/s"},
                                        {"応力係数", lbl応力係数, Label5[0]},
                                        {"最大応力", lbl最大応力, lbl最大応力単位},
                                        {"必要板厚", lblMinThickness, "mm"},
                                        {"たわみ係数", lblたわみ係数},
                                        {"変形量", lbl変形量, "mm"},
                                        {Cell(lbl注意).Over(3)},
                                    }));
}

}  // namespace sheets
