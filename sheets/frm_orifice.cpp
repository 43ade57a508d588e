#include "sheets/frm_orifice.h"

#include "common/number.h"
#include "data/material_table.h"
#include "data/units.h"
#include "sheets/list_texts.h"

namespace sheets {

namespace {

using common::Format;
using common::NumberText;
using common::RoundDigits;
using common::Val;

constexpr const char* kReynoldsFormat = "###,###,###,##0";
constexpr const char* kExpansionUnit = "×10-6/℃";
constexpr double kPerExpansionUnit = 1e6;
/// Element and material that clearing the sheet selects.
constexpr int kClearedElement = 10;
constexpr int kClearedMaterial = 7;

/// Stands before a distance that counts from the upstream face of the plate.
constexpr const char* kFromUpstreamFace = "Uf ";

/// Decimals of the differential and of the loss by unit: kPa, mmH2O, kgf/cm2, mmHg, psi, mbar.
constexpr int kDifferentialDecimals[] = {3, 1, 5, 3, 4, 2};
constexpr int kLossDecimals[] = {2, 0, 4, 2, 3, 1};

std::string Rounded(Real value, int digits) { return NumberText(RoundDigits(value, digits)); }

std::string Rounded(const std::optional<Real>& value, int digits) {
  return value ? Rounded(*value, digits) : "";
}

/// A differential in mmH2O in a unit of the list: four figures by the converter's own rule, then
/// the decimals of the unit.
std::string DifferentialText(Real mmH2O, int unit, const int (&decimals)[6]) {
  return Rounded(data::DifferentialFromMmH2O(unit, mmH2O), common::At(decimals, unit));
}

}  // namespace

frmOrifice::frmOrifice(shell::Workspace& workspace)
    : ProcessSheet(workspace, kKind, "Orifice Plates, Nozzles, Venturi-Tubes Calculation") {
  UseFields({.humidity = &humidity,
             .base = &base,
             .deviationLabel = &lbl偏差係数,
             .deviation = &txt偏差係数,
             .kappaLabel = &lbl比熱比,
             .kappa = &txt比熱比,
             .secondFlowUnit = &lbl常用流量単位});
  FollowMaterials({&cbo絞り部材質, &cbo配管種類});
  BindHandlers();
  DeclareLayout();
}

void frmOrifice::BindHandlers() {
  for (TextBox* box : {&txt目盛流量, &txt常用流量, &txt絞り部膨張率, &txt配管線膨張率, &txt配管内径,
                       &txt設計差圧, &txt絞り径}) {
    Watch(*box);
  }
  cbo絞り機構種類.onClick = [this] { cbo絞り機構種類_Click(); };
  cbo設計差圧単位.onClick = [this] { cbo設計差圧単位_Click(); };
  opt差圧_絞り径.onClick = [this] { SwitchMode(); };
  opt絞り径_差圧.onClick = [this] { SwitchMode(); };
  OfferEntry(
      lbl絞り部膨張率, txt絞り部膨張率, [this] { txt絞り部膨張率_DblClick(); }, kFromMaterial);
  OfferEntry(
      lbl配管線膨張率, txt配管線膨張率, [this] { txt配管線膨張率_DblClick(); }, kFromMaterial);
  OfferPipe(lbl配管内径, cbo配管呼称径, cboSchedule, txt配管内径);
  for (ComboBox* box : {&cbo絞り部材質, &cbo配管種類}) {
    box->onChange = [this] { ClearResults(); };
  }
  cbo絞り部材質.onClick = [this] {
    ClearResults();
    if (cbo絞り部材質.Index() >= 0) txt絞り部膨張率_DblClick();
  };
  cbo配管種類.onClick = [this] {
    ClearResults();
    if (cbo配管種類.Index() >= 0) txt配管線膨張率_DblClick();
  };
  pic断面.onPaint = [this](forms::DrawSurface& surface) {
    DrawElementSection(Section(), surface, pic断面);
  };
  cmdデータ消去.onClick = [this] { cmdデータ消去_Click(); };
  cmd計算.onClick = [this] { cmd計算_Click(); };
}

void frmOrifice::Load() {
  ProcessSheet::Load();
  const Quiet quiet(*this);
  const data::ConvertLists& lists = Tables().lists;
  const auto& names = Tables().materials.names;
  const std::vector<std::string> materials(names.begin(), names.end());
  cbo絞り機構種類.SetItems(lists.elementKinds);
  if (Space().elementKind < cbo絞り機構種類.Count()) {
    cbo絞り機構種類.SetIndex(Space().elementKind);
  }
  FillList(cbo絞り部材質, materials);
  FillList(cbo配管種類, materials);
  FillList(cbo配管呼称径, NominalSizeTexts(lists));
  FillList(cboSchedule, ScheduleTexts(lists));
  FillList(cbo設計差圧単位, lists.differentialUnits);
  opt差圧_絞り径.SetChecked(true);
  cbo絞り機構種類_Click();
  cbo設計差圧単位_Click();
  SwitchMode();
  StoreEntries();
  SetFocus(txtTagNo);
}

std::vector<std::string> frmOrifice::PropertyOrder() const {
  if (IsLiquid()) return {"密度", "粘性係数"};
  return {"比熱比", "密度", "粘性係数", "飽和水蒸気圧", "偏差係数", "比熱比"};
}

void frmOrifice::cbo絞り機構種類_Click() {
  const int type = cbo絞り機構種類.Index();
  if (type >= 0) {
    Space().elementKind = type;
    const auto family = flow::FamilyOf(static_cast<flow::ElementType>(type));
    for (const auto& label : lblタイトル) label->SetText(std::string(flow::HeadingOf(family)));
  }
  ClearResults();
}

void frmOrifice::cbo設計差圧単位_Click() {
  Process().diffPressureUnit = cbo設計差圧単位.Index();
  lbl差圧結果単位.SetText(cbo設計差圧単位.Text());
  lbl永久圧損単位.SetText(cbo設計差圧単位.Text());
  ClearResults();
}

/// One of differential and bore is entered, the other one is calculated.
void frmOrifice::SwitchMode() {
  const bool boreEntered = opt絞り径_差圧.Checked();
  const auto enter = [](Label& label, TextBox& box, bool on) {
    label.SetEnabled(on);
    box.SetEnabled(on);
    box.SetBackColor(on ? forms::kWhite : forms::kButtonFace);
  };
  enter(lbl設計差圧, txt設計差圧, !boreEntered);
  enter(lbl絞り径, txt絞り径, boreEntered);
  SetFocus(boreEntered ? txt絞り径 : txt設計差圧);
  pic断面.Redraw();
}

void frmOrifice::FillExpansion(const ComboBox& material, TextBox& box) {
  StoreEntries();
  if (material.Index() < 0 || material.Text().empty()) {
    User().Show(material.Text().empty() ? "データベースに未登録です。"
                                        : "データベースに登録されていないオリフィス材質です");
    box.SetText("");
    return;
  }
  box.SetText(NumberText(
      data::MaterialLinearExpansion(Tables().materials, material.Index(), Process(), User())));
}

void frmOrifice::txt絞り部膨張率_DblClick() { FillExpansion(cbo絞り部材質, txt絞り部膨張率); }

void frmOrifice::txt配管線膨張率_DblClick() { FillExpansion(cbo配管種類, txt配管線膨張率); }

void frmOrifice::TakePipe(double, double, double bore) { txt配管内径.SetText(NumberText(bore)); }

void frmOrifice::cmdデータ消去_Click() {
  {
    const Quiet quiet(*this);  // a material must not look its expansion up
    const auto select = [](ComboBox& box, int index) {
      if (index < box.Count()) box.SetIndex(index);
    };
    select(cbo絞り機構種類, kClearedElement);
    select(cbo絞り部材質, kClearedMaterial);
    select(cbo配管種類, kClearedMaterial);
  }
  cbo絞り機構種類_Click();
  context_.extrapolationMark.clear();
  ClearData();
}

void frmOrifice::ClearResults() {
  for (ResultLabel* label :
       {&lblMaxReynolds, &lblNorReynolds, &lbl流出係数R, &lbl流量係数R, &lbl膨張補正係数R,
        &lbl表示β, &lbl絞り径結果R, &lbl差圧結果R, &lbl四分円半径R, &lbl永久圧損R, &lbl上流Tap位置,
        &lbl下流Tap位置, &lbl使用下限, &lbl使用上限}) {
    label->SetText("");
  }
  lbl永久圧損R.SetForeColor(forms::kBlack);
  lbl永久圧損R.SetToolTip("");
  lbl外挿.SetText("");
  Space().calcDone = false;
  pic断面.Redraw();
}

bool frmOrifice::ReadInputs() {
  data::ProcessState& process = Process();
  context_.boreToDifferential = opt絞り径_差圧.Checked();
  context_.elementType = static_cast<flow::ElementType>(cbo絞り機構種類.Index());
  ReadConditions();
  if (!ReadHumidity()) return false;
  ReadDeviation("偏差係数");
  ReadKappa();
  context_.fluidPhase = process.fluidPhase;
  context_.p = process.pressureAbs;
  context_.t = process.temperatureC;
  context_.kappa = Val(txt比熱比.Text());
  context_.aElem = Val(txt絞り部膨張率.Text()) / kPerExpansionUnit;
  const Real aPipe = Val(txt配管線膨張率.Text()) / kPerExpansionUnit;
  context_.pipeBore20 = Val(txt配管内径.Text());
  process.pipeInnerDiameter = context_.pipeBore20;
  context_.pipeBore = flow::PipeBoreAtTemperature(context_.pipeBore20, aPipe, context_.t);
  context_.dP = data::DifferentialToMmH2O(cbo設計差圧単位.Index(), Val(txt設計差圧.Text()));
  process.differentialPressure = context_.dP;
  context_.bore = flow::BoreAtTemperature(Val(txt絞り径.Text()), context_.aElem, context_.t);
  context_.Beta();  // an empty pipe bore ends the event here, before any question about the pipe
  ReadDensities();
  context_.rho = process.densityFlow;
  normalDensity_ = process.densityBase;
  context_.mu = process.viscosityCp;
  context_.qMax = data::FlowToMass(process, Val(txt目盛流量.Text()));
  context_.qNor = data::FlowToMass(process, Val(txt常用流量.Text()));
  return true;
}

void frmOrifice::cmd計算_Click() {
  Space().calcFailed = false;
  Space().calcNote.clear();
  context_.extrapolationMark.clear();
  ClearResults();
  if (!HasData({"Orifice.dat", "ZephaConvertData.dat"}) || !ReadInputs()) return;
  const std::optional<flow::SizingResult> result =
      flow::Calculate(context_, Tables().orifice, User());
  Space().calcFailed = context_.calcFailed;
  Space().calcNote = context_.extrapolationMark;
  if (!result) return;
  ShowResults(*result);
  Space().calcDone = true;
}

/// Works all texts out before it shows the first: a fault on the way leaves the sheet blank.
void frmOrifice::ShowResults(const flow::SizingResult& result) {
  const Quiet quiet(*this);
  const std::string loss = DifferentialText(result.loss, cbo設計差圧単位.Index(), kLossDecimals);
  const bool showsC = flow::HasDischargeCoefficient(context_.elementType);
  lblMaxReynolds.SetText(Format(result.reMax, kReynoldsFormat));
  lblNorReynolds.SetText(Format(result.reNor, kReynoldsFormat));
  lbl流出係数R.SetText(Rounded(result.c, 5));
  lbl流量係数R.SetText(showsC ? "" : Rounded(result.alpha, 5));
  lbl膨張補正係数R.SetText(Rounded(result.eps, 5));
  lbl表示β.SetText(Rounded(result.beta, 5));
  ShowCalculatedEntry(result);
  lbl四分円半径R.SetText(Rounded(result.radius, 2));
  lbl永久圧損R.SetText(loss);
  CautionLoss();
  ShowTaps(result);
  lbl使用下限.SetText(NumberText(100 * result.useLow));
  lbl使用上限.SetText(result.useHigh ? NumberText(100 * *result.useHigh) : "");
  lbl外挿.SetText(context_.extrapolationMark);
  pic断面.Redraw();
}

/// A bore stands in its field after a calculation that has been cleared, too; it counts while it is
/// an entry or a result.
ElementSection frmOrifice::Section() const {
  const auto type = static_cast<flow::ElementType>(std::max(cbo絞り機構種類.Index(), 0));
  const bool calculated = !lbl絞り径結果R.Text().empty();
  ElementSection section;
  section.shape = ShapeOf(type);
  section.pipeBore = Val(txt配管内径.Text());
  if (calculated || opt絞り径_差圧.Checked()) section.bore = Val(txt絞り径.Text());
  section.radius = Val(lbl四分円半径R.Text());
  if (!calculated || type > flow::kVenaContractaTapOrifice) return section;
  const std::string& downstream = lbl下流Tap位置.Text();
  section.downstreamFromUpstreamFace = downstream.starts_with(kFromUpstreamFace);
  section.upstreamTap = Val(lbl上流Tap位置.Text());
  section.downstreamTap = Val(section.downstreamFromUpstreamFace
                                  ? downstream.substr(std::string(kFromUpstreamFace).size())
                                  : downstream);
  return section;
}

void frmOrifice::CautionLoss() {
  if (cbo絞り機構種類.Index() != flow::kVenaContractaTapOrifice) return;
  lbl永久圧損R.SetForeColor(forms::kMagenta);
  lbl永久圧損R.SetToolTip(
      "縮流タップでは流出係数を計算しないため、永久圧力損失は目安になりません。");
}

void frmOrifice::ShowCalculatedEntry(const flow::SizingResult& result) {
  if (context_.boreToDifferential) {
    txt設計差圧.SetText(
        DifferentialText(result.dP, cbo設計差圧単位.Index(), kDifferentialDecimals));
  } else {
    txt絞り径.SetText(Rounded(result.d20, 3));
  }
  lbl絞り径結果R.SetText(txt絞り径.Text());
  lbl差圧結果R.SetText(txt設計差圧.Text());
}

void frmOrifice::ShowTaps(const flow::SizingResult& result) {
  const bool distanceFromPlate = context_.elementType == flow::kDAndHalfDTapOrifice ||
                                 context_.elementType == flow::kVenaContractaTapOrifice;
  const auto text = [](const std::optional<Real>& tap) {
    return tap ? NumberText(*tap) : std::string(kNoTap);
  };
  lbl上流Tap位置.SetText(text(result.upstreamTap));
  lbl下流Tap位置.SetText((distanceFromPlate ? kFromUpstreamFace : "") + text(result.downstreamTap));
}

void frmOrifice::DeclareLayout() {
  SetLayout(SheetBlock(
      lblタイトル[0],
      forms::Row({
          forms::Stretched(ProcessBlock(), 7),
          forms::Stretched(
              forms::Column({ElementBlock(), ModeBlock(), forms::Stretched(SectionBlock())}), 7),
          forms::Stretched(forms::Column({ResultBlock(), forms::Space(),
                                          forms::Buttons({{}, cmdデータ消去, cmd計算})}),
                           5),
      })));
}

forms::Block frmOrifice::ProcessBlock() {
  return forms::Group(
      "プロセス条件",
      forms::Table({
          {lbl流体, Cell(cbo流体).Over(2)},
          {lbl目盛流量, txt目盛流量, FlowUnits()},
          {lbl常用流量, txt常用流量, lbl常用流量単位},
          {lbl圧力, txt圧力, cbo圧力単位},
          {lbl温度, txt温度, cbo温度単位},
          {lbl密度, txt密度, DensityUnits()},
          {lbl粘性係数, txt粘性係数, cbo粘性係数単位},
          {humidity.lbl相対湿度, humidity.txt相対湿度, humidity.lbl相対湿度単位},
          {base.lbl計算基準, Cell(base.optWetBase).Over(2)},
          {"", Cell(base.optDryBase).Over(2)},
          {humidity.lbl飽和水蒸気圧, humidity.txt飽和水蒸気圧, humidity.cbo飽和水蒸気圧単位},
          {lbl偏差係数, txt偏差係数},
          {lbl比熱比, txt比熱比},
      }));
}

forms::Block frmOrifice::ElementBlock() {
  return forms::Group("絞り機構・配管", forms::Table({
                                            {lbl絞り機構種類, Cell(cbo絞り機構種類).Over(2)},
                                            {lbl絞り部材質, Cell(cbo絞り部材質).Over(2)},
                                            {lbl絞り部膨張率, txt絞り部膨張率, kExpansionUnit},
                                            {lbl配管種類, Cell(cbo配管種類).Over(2)},
                                            {lbl配管呼称径, Cell(cbo配管呼称径).Over(2)},
                                            {lblSchedule, Cell(cboSchedule).Over(2)},
                                            {lbl配管内径, txt配管内径, "mm"},
                                            {lbl配管線膨張率, txt配管線膨張率, kExpansionUnit},
                                        }));
}

forms::Block frmOrifice::ModeBlock() {
  return forms::Group("計算モード", forms::Table({
                                        {"", opt差圧_絞り径, opt絞り径_差圧},
                                        {lbl設計差圧, txt設計差圧, cbo設計差圧単位},
                                        {lbl絞り径, txt絞り径, "mm"},
                                    }));
}

forms::Block frmOrifice::SectionBlock() { return forms::Group("", forms::Table({{pic断面}})); }

forms::Block frmOrifice::ResultBlock() {
  return forms::Results("計算結果", forms::Table({
                                        {"レイノルズ数（最大）", lblMaxReynolds},
                                        {"レイノルズ数（常用）", lblNorReynolds},
                                        {"流出係数 C", lbl流出係数R},
                                        {"流量係数 α", lbl流量係数R},
                                        {"膨張補正係数 ε", lbl膨張補正係数R},
                                        {"絞り比 β", lbl表示β},
                                        {"絞り径", lbl絞り径結果R, "mm"},
                                        {"差圧", lbl差圧結果R, lbl差圧結果単位},
                                        {"四分円半径", lbl四分円半径R, "mm"},
                                        {"永久圧力損失", lbl永久圧損R, lbl永久圧損単位},
                                        {"上流タップ位置", lbl上流Tap位置, "mm"},
                                        {"下流タップ位置", lbl下流Tap位置, "mm"},
                                        {"使用流量範囲（下限）", lbl使用下限, "%FS"},
                                        {"使用流量範囲（上限）", lbl使用上限, "%FS"},
                                        {"", Cell(lbl外挿).Over(2)},
                                    }));
}

}  // namespace sheets
