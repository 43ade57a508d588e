#include "sheets/frm_tw.h"

#include "common/number.h"
#include "data/units.h"
#include "sheets/frm_pipe_dia.h"
#include "sheets/thermowell_dialogues.h"

namespace sheets {

namespace {

using common::Format;
using common::NumberText;
using common::RoundDigits;
using common::Val;
using temperature::Fatigue;
using temperature::FrequencyMargin;
using temperature::FrequencyMethod;
using temperature::VibrationMode;

/// The way in and the way out are rounded apart and meant so: together they give 1.0000037.
constexpr double kKgfPerNewton = 0.101972;
constexpr double kNewtonPerKgf = 9.80665;
constexpr double kMm2PerM2 = 1000000;
constexpr double kMmPerM = 1000;

/// What stands for an amplitude that cannot be calculated.
constexpr const char* kNoAmplitude = "xxxx ";

struct Judgement {
  const char* text;
  forms::Color color;
};

Judgement JudgementOf(Fatigue fatigue) {
  switch (fatigue) {
    case Fatigue::kNoStress:
      return {"応力振幅はゼロです｡疲労破壊はありません｡ ", forms::kBlack};
    case Fatigue::kBeyondRange:
      return {"疲労評価は出来ません。(Vr>5.0)", forms::kMagenta};
    case Fatigue::kNotRated:
      return {"Vr>5のため疲労評価が出来ません。", forms::kMagenta};
    case Fatigue::kExceeded:
      return {"応力振幅は許容応力の1/2を越えています。", forms::kRed};
    case Fatigue::kPassed:
      return {"応力振幅は許容応力の1/2以下です。", forms::kBlack};
    case Fatigue::kNotReached:
      break;
  }
  return {"", forms::kBlack};
}

forms::Color ColorOf(FrequencyMargin margin) {
  if (margin == FrequencyMargin::kBelow) return forms::kMagenta;
  return margin == FrequencyMargin::kNear ? forms::kRed : forms::kBlack;
}

const char* NoteOf(VibrationMode mode) {
  switch (mode) {
    case VibrationMode::kSymmetricVortices:
      return "対称渦（抗力方向)";
    case VibrationMode::kAlternateDrag:
      return "交互渦（抗力方向)";
    case VibrationMode::kAlternateLift:
      return "交互渦（揚力方向)";
    case VibrationMode::kTakenAsDrag:
      break;
  }
  return "抗力方向応力と仮定して曲げ応力を判定";
}

const char* NoteOf(FrequencyMethod method) {
  return method == FrequencyMethod::kCantilever ? "JSME S 012で計算" : "ASME PTCで計算";
}

}  // namespace

frmTW::frmTW(shell::Workspace& workspace)
    : ProcessSheet(workspace, kKind, "Thermo-Well Calculation") {
  FollowMaterials({&cbo保護管材質});
  BindHandlers();
  DeclareLayout();
}

void frmTW::BindHandlers() {
  for (TextBox* box : {&txt流量, &txt配管内径, &txt攪拌槽内径, &txt保護管密度, &txtヤング率,
                       &txt許容応力, &txt保護管長, &txt挿入長, &txt先端外径, &txt根元外径,
                       &txt保護管内径, &txtWellT, &txt臨界減衰率, &txt応力集中係数}) {
    Watch(*box);
  }
  cbo設置形式.onClick = [this] { cbo設置形式_Click(); };
  txt配管内径.onDblClick = [this] { txt配管内径_DblClick(); };
  cbo保護管材質.onClick = [this] {
    ClearResults();
    if (cbo保護管材質.Index() >= 0) FillMaterial();
  };
  cbo保護管材質.onChange = [this] { ClearResults(); };
  OfferEntry(
      lbl保護管密度, txt保護管密度, [this] { FillDensity(); }, kFromMaterial);
  OfferEntry(
      lblヤング率, txtヤング率, [this] { FillYoungsModulus(); }, kFromMaterial);
  OfferEntry(
      lbl許容応力, txt許容応力, [this] { FillAllowableStress(); }, kFromMaterial);
  txt温度.onLostFocus = [this] { RefillMaterial(); };
  cbo温度単位.onClick = [this] {
    StoreEntries();
    ClearResults();
    RefillMaterial();
  };
  cboヤング率単位.onClick = [this] { ClearResults(); };
  cbo許容応力単位.onClick = cboヤング率単位.onClick;
  OfferEntry(
      lbl応力集中係数, txt応力集中係数, [this] { Space().forms.Show(frm形状係数::kName); },
      "面取り半径から求めます。");
  txt臨界減衰率.SetToolTip("空気中の値。空欄では応力振幅を計算できません。");
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&lbl固有振動数, &lblVr, &lblCn, &cmd振動数}) {
    control->onClick = [this] { Space().forms.Show(frm振動数判定::kName); };
  }
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&lbl同期振動判定, &cmd判定条件}) {
    control->onClick = [this] { Space().forms.Show(frmTW判定条件::kName); };
  }
  pic周波数.onPaint = [this](forms::DrawSurface& surface) { DrawChart(surface); };
  cmdデータ消去.onClick = [this] { cmdデータ消去_Click(); };
  cmd計算.onClick = [this] { cmd計算_Click(); };
}

void frmTW::Load() {
  ProcessSheet::Load();
  const Quiet quiet(*this);
  const auto& names = Tables().materials.names;
  FillList(cbo設置形式, data::ShownItems(Tables().lists.thermowellMountings));
  FillList(cbo保護管材質, {names.begin(), names.end()});
  FillList(cboヤング率単位, data::kStressUnits);
  FillList(cbo許容応力単位, data::kStressUnits);
  ShowInstallation();
  ClearResults();
  filledTemperature_ = TemperatureEntry();
  StoreEntries();
  SetFocus(txtTagNo);
}

void frmTW::OnFault(const forms::Control* source, const common::RuntimeFault& fault) {
  if (source == &cmd計算) {
    User().Show(fault.Text() + "\nデータを見直してください。", {}, common::Icon::kWarning);
  } else {
    ProcessSheet::OnFault(source, fault);
  }
}

void frmTW::ShowUnitsOfPhase() {
  ProcessSheet::ShowUnitsOfPhase();
  if (InTank()) {
    for (ComboBox* box : {&cbo流量単位L, &cbo流量単位G, &cbo流量単位S}) box->SetVisible(false);
  }
  lbl流量単位.SetVisible(InTank());
}

void frmTW::cbo設置形式_Click() {
  for (TextBox* box : {&txt流量, &txt配管内径, &txt攪拌槽内径}) box->SetText("");
  ShowInstallation();
  ClearResults();
}

void frmTW::ShowInstallation() {
  lbl流量.SetText(InTank() ? "攪拌機 回転数" : "流　　　　　量");
  lbl配管内径.SetText(InTank() ? "インペラー直径" : "配　管　内　径");
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&lbl攪拌槽内径, &txt攪拌槽内径, &lbl攪拌槽内径単位}) {
    control->SetVisible(InTank());
  }
  txt配管内径.SetToolTip(InTank() ? "" : "規格配管ならﾀﾞﾌﾞﾙｸﾘｯｸで入力可");
  txt流量.SetHint(InTank() ? "攪拌機の回転数。通常 10～500 rpm。" : "配管を流れる流量。");
  txt配管内径.SetHint(InTank() ? "攪拌翼（インペラー）の直径。攪拌槽内径より小さくします。"
                               : "配管の内径。通常 25～1200 mm。");
  ShowUnitsOfPhase();
}

/// An impeller is no standard pipe.
void frmTW::txt配管内径_DblClick() {
  if (!InTank()) Space().forms.Show(frmPipeDia::kName);
}

void frmTW::TakePipe(double, double, double bore) { txt配管内径.SetText(NumberText(bore)); }

bool frmTW::HasMaterial() {
  if (cbo保護管材質.Index() >= 0) return true;
  User().Show("データベースに未登録です。");
  return false;
}

void frmTW::FillMaterial() {
  FillDensity();
  FillYoungsModulus();
  FillAllowableStress();
  filledTemperature_ = TemperatureEntry();
}

void frmTW::FillDensity() {
  if (!HasMaterial()) return;
  StoreEntries();
  const Real density = data::MaterialDensity(Tables().materials, cbo保護管材質.Index(),
                                             Process().temperatureC, User());
  txt保護管密度.SetText(NumberText(RoundDigits(density, 0)));
}

void frmTW::FillYoungsModulus() {
  FillPerMm2(data::MaterialYoungsModulus, txtヤング率, cboヤング率単位, 0);
}

void frmTW::FillAllowableStress() {
  FillPerMm2(data::MaterialAllowableStress, txt許容応力, cbo許容応力単位, 1);
}

void frmTW::FillPerMm2(MaterialProperty property, TextBox& box, const ComboBox& unit, int digits) {
  if (!HasMaterial()) return;
  StoreEntries();
  const Real value = property(Tables().materials, cbo保護管材質.Index(), Process(), User());
  const bool inNewton = unit.Index() > 0;
  box.SetText(NumberText(RoundDigits(inNewton ? value * kNewtonPerKgf : value, digits)));
}

void frmTW::RefillMaterial() {
  if (TemperatureEntry() == filledTemperature_ || txt温度.Text().empty()) return;
  if (cbo保護管材質.Index() >= 0) FillMaterial();
}

void frmTW::cmdデータ消去_Click() {
  {
    const Quiet quiet(*this);
    if (cbo保護管材質.Count() > 0) cbo保護管材質.SetIndex(0);
  }
  ClearData();
  filledTemperature_ = TemperatureEntry();
}

void frmTW::ClearResults() {
  for (const auto& [column, label] : ResultColumns()) {
    label->SetText("");
    label->SetForeColor(forms::kBlack);
    label->SetToolTip("");
  }
  const std::string unit = cbo許容応力単位.Text();
  lbl定常抗力単位.SetText(unit);
  lbl励振力単位.SetText(unit);
  concentratedAmplitude_.clear();
  findings_ = {};
  shedding_.reset();
  pic周波数.Redraw();
  Space().calcDone = false;
}

bool frmTW::ReadInputs() {
  try {
    // The panel has no deviation factor and no humidity; reading the conditions sets both aside,
    // whatever another sheet has left.
    ReadConditions();
    ReadDensities();
    ReadFlow();
    ReadWell();
    return true;
  } catch (const common::RuntimeFault&) {
    User().Show("データが変ですょ。 入力データを修正して下さい。");
    return false;
  }
}

void frmTW::ReadFlow() {
  data::ProcessState& process = Process();
  well_ = {};
  well_.installKind = cbo設置形式.Index();
  well_.density = process.densityFlow;
  well_.viscosity = process.viscosityCp;
  if (InTank()) {
    constexpr double kSecondsPerMinute = 60;
    well_.impellerSpeed = Val(txt流量.Text()) / kSecondsPerMinute;
    well_.impellerDiameter = Val(txt配管内径.Text()) / kMmPerM;
    well_.tankDiameter = Val(txt攪拌槽内径.Text()) / kMmPerM;
    return;
  }
  well_.volumeFlow = data::FlowToMass(process, Val(txt流量.Text())) / process.densityFlow;
  well_.pipeBore = Val(txt配管内径.Text());
  process.pipeInnerDiameter = well_.pipeBore;
}

void frmTW::ReadWell() {
  const auto metres = [](const TextBox& box) { return Val(box.Text()) / kMmPerM; };
  const auto kgfPerM2 = [](const TextBox& box, const ComboBox& unit) {
    const Real value = Val(box.Text());
    return (unit.Index() > 0 ? value * kKgfPerNewton : value) * kMm2PerM2;
  };
  well_.totalLength = metres(txt保護管長);
  well_.insertionLength = metres(txt挿入長);
  well_.tipDiameter = metres(txt先端外径);
  well_.rootDiameter = metres(txt根元外径);
  well_.bore = metres(txt保護管内径);
  well_.tipThickness = metres(txtWellT);
  well_.wellDensity = Val(txt保護管密度.Text());
  well_.youngsModulus = kgfPerM2(txtヤング率, cboヤング率単位);
  well_.allowableStress = kgfPerM2(txt許容応力, cbo許容応力単位);
  well_.dampingRatio = Val(txt臨界減衰率.Text());
  well_.stressConcentration = Val(txt応力集中係数.Text());
}

void frmTW::cmd計算_Click() {
  Space().calcNote.clear();
  Space().calcDone = false;
  Space().calcFailed = !HasData({"ZephaConvertData.dat"}) || !ReadInputs();
  if (Space().calcFailed) return;
  ClearResults();
  try {
    Space().calcFailed = !temperature::AnalyseThermowell(well_, User(), findings_);
  } catch (const common::RuntimeFault&) {
    ShowFindings();  // what stands before the fault
    throw;
  }
  ShowFindings();
  Space().calcDone = !Space().calcFailed;
}

void frmTW::ShowFindings() {
  const Quiet quiet(*this);
  ShowFrequencies();
  ShowStresses();
  ShowJudgements();
  ShowNotes();
  PrepareChart();
}

void frmTW::ShowFrequencies() {
  const temperature::ThermowellFindings& found = findings_;
  if (found.velocity) lbl流速R.SetText(NumberText(RoundDigits(*found.velocity, 2)));
  if (found.reynolds) lblレイノルズ数R.SetText(Format(*found.reynolds, "###,###,##0"));
  if (found.strouhal) lblストローハル数.SetText(NumberText(*found.strouhal));
  if (found.vortexFrequency) {
    lblカルマン渦周波数R.SetText(Format(*found.vortexFrequency, "###,##0.0"));
  }
  if (found.natural) {
    lbl固有振動数.SetText(Format(found.natural->hertz[0], "###,##0.0"));
  }
  if (found.margin) lbl固有振動数.SetForeColor(ColorOf(*found.margin));
  if (found.reducedVelocity) lblVr.SetText(Format((*found.reducedVelocity)[0], "##0.00"));
  if (found.dampingParameter) lblCn.SetText(Format(*found.dampingParameter, "##,##0.00"));
}

std::string frmTW::StressText(Real stress, const char* smallFormat) const {
  const Real value = stress / kMm2PerM2 * (cbo許容応力単位.Index() > 0 ? kNewtonPerKgf : 1);
  return Format(value, value < 10 ? smallFormat : value < 100 ? "##0.00" : "###0.0");
}

void frmTW::ShowStresses() {
  if (findings_.dragStress) lbl定常抗力.SetText(StressText(*findings_.dragStress, "#0.000"));
  if (!findings_.randomStress) return;
  const Real amplitude = *findings_.randomStress;
  if (amplitude == 0) {
    lbl励振力.SetText(well_.insertionLength == 0 ? "0" : kNoAmplitude);
  } else {
    lbl励振力.SetText(StressText(amplitude, "##0.000"));
  }
}

void frmTW::ShowJudgements() {
  if (findings_.lockInAvoided) {
    const bool met = *findings_.lockInAvoided;
    lbl同期振動判定.SetForeColor(met ? forms::kBlack : forms::kRed);
    lbl同期振動判定.SetText(met ? "同期振動発生の回避･抑制条件は満足されます。"
                                : "同期振動発生の回避･抑制条件は満足されません。");
  }
  if (findings_.bending) {
    const bool passed = findings_.bending->passed;
    const std::string word = findings_.bending->withRandomForce ? "曲げ応力" : "定常抗力";
    lbl定常抗力判定.SetForeColor(passed ? forms::kBlack : forms::kRed);
    lbl定常抗力判定.SetText(word +
                            (passed ? "は許容応力以下です。" : "は許容応力を超えています。"));
  }
  const Judgement fatigue = JudgementOf(findings_.fatigue);
  lbl励振力判定.SetForeColor(fatigue.color);
  lbl励振力判定.SetText(fatigue.text);
}

void frmTW::ShowNotes() {
  if (findings_.natural) lbl固有振動数.SetToolTip(NoteOf(findings_.natural->method));
  if (findings_.randomStress) {
    concentratedAmplitude_ =
        StressText(*findings_.randomStress * well_.stressConcentration, "##0.000");
  }
  if (findings_.bending) ShowVibrationMode();
}

void frmTW::ShowVibrationMode() {
  const bool rated = !lbl励振力.Text().starts_with("xxxx");
  const std::string mode =
      rated ? NoteOf(temperature::ModeOf((*findings_.reducedVelocity)[0])) : "";
  const std::string drag = DragNote();
  lbl励振力判定.SetToolTip(mode);
  lbl定常抗力判定.SetToolTip(mode.empty() || drag.empty() ? mode + drag : mode + "\n\n" + drag);
}

std::string frmTW::DragNote() const {
  if (!findings_.drag || findings_.drag->value == 0) return {};
  return "抗力係数Cd\nRe =" + Format(*findings_.reynolds, "#,##0") +
         "，　挿入長/外径 = " + Format(findings_.drag->lengthRatio, "#,##0") + "の場合、" +
         "【Cd = " + NumberText(findings_.drag->value) +
         "】程度になりますが、\nZEPHAでの定常抗力の計算には、\n"
         "日本機械学会基準(JSME S 012)に従って、【Cd = 1.2】を使用します。";
}

std::vector<std::vector<std::string>> frmTW::ModeRows() const {
  std::vector<std::vector<std::string>> rows = {
      {"1", lbl固有振動数.Text(), lblVr.Text(), lblCn.Text()},
      {"2", "", "", ""},
      {"3", "", "", ""}};
  if (!findings_.dampingParameter) return rows;
  for (std::size_t mode = 1; mode < temperature::kModes; ++mode) {
    rows[mode][1] = Format(findings_.natural->hertz[mode], "###,##0.0");
    rows[mode][2] = Format((*findings_.reducedVelocity)[mode], "##0.00");
    rows[mode][3] = lblCn.Text();  // the damping parameter is that of all modes
  }
  return rows;
}

void frmTW::DeclareLayout() {
  SetLayout(SheetBlock(
      lblタイトル,
      forms::Row({
          forms::Stretched(
              forms::Column({ProcessBlock(), FlowBlock(), MaterialBlock(), forms::Space()}), 6),
          forms::Stretched(forms::Column({WellBlock(), forms::Stretched(forms::Group(
                                                           "固有振動数とカルマン渦周波数",
                                                           forms::Table({{pic周波数}})))}),
                           7),
          forms::Stretched(forms::Column({ResultBlock(), forms::Space(),
                                          forms::Buttons({cmd判定条件, cmd振動数}),
                                          forms::Buttons({{}, cmdデータ消去, cmd計算})}),
                           6),
      })));
}

forms::Block frmTW::ProcessBlock() {
  return forms::Group("プロセス条件", forms::Table({
                                          {lbl流体, Cell(cbo流体).Over(2)},
                                          {lbl圧力, txt圧力, cbo圧力単位},
                                          {lbl温度, txt温度, cbo温度単位},
                                          {lbl密度, txt密度, DensityUnits()},
                                          {lbl粘性係数, txt粘性係数, cbo粘性係数単位},
                                      }));
}

/// The tank's row comes last, so that its place at the foot of the group is empty for a pipe.
forms::Block frmTW::FlowBlock() {
  const Cell flowUnits = Cell::OneOf({&cbo流量単位L, &cbo流量単位G, &cbo流量単位S, &lbl流量単位});
  return forms::Group("設置・流れ", forms::Table({
                                        {lbl設置形式, Cell(cbo設置形式).Over(2)},
                                        {lbl流量, txt流量, flowUnits},
                                        {lbl配管内径, txt配管内径, lbl配管内径単位},
                                        {lbl攪拌槽内径, txt攪拌槽内径, lbl攪拌槽内径単位},
                                    }));
}

forms::Block frmTW::MaterialBlock() {
  return forms::Group("保護管材質", forms::Table({
                                        {lbl保護管材質, Cell(cbo保護管材質).Over(2)},
                                        {lbl保護管密度, txt保護管密度, "kg/m3"},
                                        {lblヤング率, txtヤング率, cboヤング率単位},
                                        {lbl許容応力, txt許容応力, cbo許容応力単位},
                                    }));
}

forms::Block frmTW::WellBlock() {
  constexpr int kNarrow = 7;
  const auto field = [](TextBox& box) { return Cell(box).Wide(kNarrow); };
  return forms::Group(
      "保護管寸法",
      forms::Table({
          {lbl保護管長, field(txt保護管長), "mm", lbl挿入長, field(txt挿入長), "mm"},
          {lbl先端外径, field(txt先端外径), "mm", lbl根元外径, field(txt根元外径), "mm"},
          {lbl保護管内径, field(txt保護管内径), "mm", lblWellT, field(txtWellT), "mm"},
          {lbl臨界減衰率, field(txt臨界減衰率), "", lbl応力集中係数, field(txt応力集中係数), ""},
      }));
}

forms::Block frmTW::ResultBlock() {
  return forms::Results("計算結果", forms::Table({
                                        {"流速", lbl流速R, "m/s"},
                                        {"レイノルズ数", lblレイノルズ数R, ""},
                                        {"ストローハル数", lblストローハル数, ""},
                                        {"カルマン渦周波数", lblカルマン渦周波数R, "Hz"},
                                        {"固有振動数（1次）", lbl固有振動数, "Hz"},
                                        {"換算流速 Vr", lblVr, ""},
                                        {"換算減衰率 Cn", lblCn, ""},
                                        {Cell(lbl同期振動判定).Over(3)},
                                        {"定常抗力による応力", lbl定常抗力, lbl定常抗力単位},
                                        {Cell(lbl定常抗力判定).Over(3)},
                                        {"ﾗﾝﾀﾞﾑ励振力による応力振幅", lbl励振力, lbl励振力単位},
                                        {Cell(lbl励振力判定).Over(3)},
                                    }));
}

}  // namespace sheets
