#include "sheets/frm_integral.h"

#include "common/number.h"
#include "data/units.h"
#include "sheets/list_texts.h"

namespace sheets {

namespace {

using common::At;
using common::Format;
using common::NumberText;
using common::Val;
using data::kKpaPerMmH2O;

constexpr const char* kListKpa = "######0.00";
constexpr const char* kListMm = "########0";
constexpr const char* kDetailKpa = "#,###,##0.00";
constexpr const char* kDetailMm = "###,###,##0";

std::string TextOf(const std::optional<Real>& value, const char* format) {
  return value ? Format(*value, format) : "";
}

/// Type of Reynolds number in which a group is rated.
const char* ReynoldsKindOf(int group) { return group == 0 ? "(Red)" : "(ReD)"; }

/// A bore of the list holds a note in place of a number.
bool IsNote(const std::string& text) {
  return !text.empty() && (text.front() < '0' || text.front() > '9');
}

// Columns of the record that are neither entries nor plain results.
constexpr int kFluidColumn = 3;
constexpr int kUnusedColumns[] = {16, 21, 22, 23};
constexpr int kFirstBoreColumn = 24;
constexpr int kBoreColumn = 31;
constexpr int kPlainDPColumn = 42;
constexpr int kPlainLossColumn = 43;

}  // namespace

frmIntegral::frmIntegral(shell::Workspace& workspace)
    : ProcessSheet(workspace, kKind, "Integral Orifice Calculation") {
  UseFields({.humidity = &humidity,
             .deviationLabel = &lbl偏差係数,
             .deviation = &txt偏差係数,
             .kappaLabel = &lbl比熱比,
             .kappa = &txt比熱比,
             .secondFlowUnit = &lbl常用流量単位});
  BindHandlers();
  DeclareLayout();
}

void frmIntegral::BindHandlers() {
  for (TextBox* box : {&txt目盛流量, &txt常用流量}) Watch(*box);
  cbo計器型式.onClick = [this] { cbo計器型式_Click(); };
  cboOrificeNo.onClick = [this] { cboOrificeNo_Click(); };
  cmdデータ消去.onClick = [this] { cmdデータ消去_Click(); };
  cmd計算.onClick = [this] { cmd計算_Click(); };
}

void frmIntegral::Load() {
  ProcessSheet::Load();
  const Quiet quiet(*this);
  FillList(cbo計器型式, Tables().lists.integralModels);
  cbo計器型式_Click();
  StoreEntries();
  SetFocus(txtTagNo);
}

std::vector<std::string> frmIntegral::PropertyOrder() const {
  if (IsLiquid()) return {"密度", "粘性係数"};
  return {"比熱比", "密度", "粘性係数", "飽和水蒸気圧", "偏差係数"};
}

void frmIntegral::cbo計器型式_Click() {
  ShowBoresOfGroup();
  ClearResults();
}

/// Numbers and bores of the type; the seventh line belongs to one group alone.
void frmIntegral::ShowBoresOfGroup() {
  const flow::IntegralTable& table = Tables().integral;
  const int group = Group();
  const auto& numbers = At(table.integralNo, group);
  lblGroup.SetText(At(table.integralName, group));
  lbl空気相当流量単位.SetText(group == 2 ? "Sl/min" : "Nl/min");
  cboOrificeNo.SetItems({numbers.begin(), numbers.end()});
  for (int i = 0; i < kRows; ++i) {
    lblOrificeNo[i].SetText(At(numbers, i));
    lblOrificeDia[i].SetText(At(At(table.integralDiaText, group), i));
  }
}

void frmIntegral::cmdデータ消去_Click() {
  if (cbo計器型式.Count() > 0) cbo計器型式.Pick(0);
  ClearData();
}

void frmIntegral::ClearResults() {
  for (int i = 0; i < kRows; ++i) {
    lblDPkpa[i].SetText("");
    lblDPmm[i].SetText("");
    ColourBore(i, true);
  }
  {
    const Quiet quiet(*this);
    cboOrificeNo.SetIndex(-1);
  }
  cboOrificeNo.SetEnabled(false);
  ClearDetail();
  lbl注意.SetText("");
  rated_.reset();
  Space().calcDone = false;
}

void frmIntegral::ClearDetail() {
  for (ResultLabel* label :
       {&lblNorReynolds, &lblKaf, &lblα, &lbl膨張補正係数, &lbl水相当流量, &lbl空気相当流量,
        &lbl差圧結果[0], &lbl差圧結果[1], &lbl永久圧損[0], &lbl永久圧損[1]}) {
    label->SetText("");
    label->SetForeColor(forms::kBlack);
  }
  lblReynoldsKind.SetText("");
  detailDP_.clear();
  detailLoss_.clear();
}

bool frmIntegral::ReadInputs(flow::IntegralInputs& inputs) {
  data::ProcessState& process = Process();
  ReadConditions();
  if (!ReadHumidity()) return false;
  ReadDeviation("偏差係数");
  ReadKappa();
  ReadDensities();
  const Real flow = data::FlowToMass(process, Val(txt目盛流量.Text()));
  const Real normalFlow = data::FlowToMass(process, Val(txt常用流量.Text()));
  inputs.model = cbo計器型式.Index();
  inputs.fluidPhase = process.fluidPhase;
  inputs.p = process.pressureAbs;
  inputs.temperatureC = process.temperatureC;
  inputs.rho = process.densityFlow;
  inputs.mu = process.viscosityCp;
  inputs.kappa = Val(txt比熱比.Text());
  inputs.flow = flow;
  inputs.normalFlow = normalFlow;
  return true;
}

bool frmIntegral::CheckInputs(const flow::IntegralInputs& inputs) {
  if (!flow::IntegralTakes(inputs.model, inputs.fluidPhase)) {
    User().Show("選択した伝送器型式はスチームに適用できません。", "Integral Orifice",
                common::Icon::kWarning);
    return false;
  }
  if (inputs.normalFlow > inputs.flow) {
    User().Show("常用流量が最大目盛流量を超えています");
    return false;
  }
  return true;
}

void frmIntegral::cmd計算_Click() {
  Space().calcFailed = false;
  Space().calcNote.clear();
  ClearResults();
  flow::IntegralInputs inputs;
  if (!HasData({"Integral.dat", "ZephaConvertData.dat"}) || !ReadInputs(inputs)) return;
  if (!CheckInputs(inputs)) {
    Space().calcFailed = true;
    return;
  }
  const int bores = flow::IntegralBores(Group());
  std::vector<flow::BoreRating> ratings;
  ratings.reserve(static_cast<std::size_t>(bores));
  for (int i = 0; i < bores; ++i) {
    ratings.push_back(flow::RateBore(Tables().integral, inputs, i));
  }
  for (int i = 0; i < bores; ++i) ShowBore(i, At(ratings, i));
  CautionGas();
  cboOrificeNo.SetEnabled(true);
  rated_ = inputs;
  Space().calcDone = true;
}

void frmIntegral::ShowBore(int i, const flow::BoreRating& rating) {
  const bool usable = rating.note.empty();
  lblDPkpa[i].SetText(usable ? Format(rating.dP * kKpaPerMmH2O, kListKpa) : rating.note);
  lblDPmm[i].SetText(usable ? Format(rating.dP, kListMm) : rating.note);
  ColourBore(i, usable);
}

void frmIntegral::ColourBore(int i, bool usable) {
  for (ResultLabel* label : {&lblDPkpa[i], &lblDPmm[i]}) {
    label->SetForeColor(usable ? forms::kBlack : forms::kRed);
  }
}

/// Two groups have no expansion factor, which counts for a gas that loses much of its pressure.
void frmIntegral::CautionGas() {
  if (!IsGas() || Group() == 1) return;
  constexpr double kSmallShare = 0.1;
  for (int i = 0; i < kRows; ++i) {
    const std::string& text = lblDPmm[i].Text();
    if (text.empty() || IsNote(text)) continue;
    if (Val(text) <= kSmallShare * data::kMmH2OPerKgfCm2 * Process().pressureAbs) continue;
    lbl注意.SetForeColor(forms::kMagenta);
    lbl注意.SetText("差圧が圧力の 1 割を超える口径では、\n膨張補正がないため差圧が小さく出ます。");
    return;
  }
}

void frmIntegral::cboOrificeNo_Click() {
  if (!rated_) return;
  const int i = cboOrificeNo.Index();
  ClearDetail();
  if (i < 0 || i >= flow::IntegralBores(Group())) return;
  ShowDetail(i, flow::RateBore(Tables().integral, *rated_, i));
}

void frmIntegral::ShowDetail(int i, const flow::BoreRating& rating) {
  const int group = Group();
  const Real loss = flow::IntegralPermanentLoss(Tables().integral, group, i, rating.dP);
  lblNorReynolds.SetText(Format(rating.re, "##,###,###,##0"));
  lblReynoldsKind.SetText(ReynoldsKindOf(group));
  lblKaf.SetText(TextOf(rating.kaf, "#0.000"));
  lblα.SetText(rating.alpha ? NumberText(*rating.alpha) : "");
  lbl膨張補正係数.SetText(TextOf(rating.eps, "#0.0000"));
  (IsLiquid() ? lbl水相当流量 : lbl空気相当流量)
      .SetText(TextOf(rating.equivalentFlow, "###,##0.000"));
  lbl差圧結果[0].SetText(Format(rating.dP, kDetailMm));
  lbl差圧結果[1].SetText(Format(rating.dP * kKpaPerMmH2O, kDetailKpa));
  lbl永久圧損[0].SetText(Format(loss, kDetailMm));
  lbl永久圧損[1].SetText(Format(loss * kKpaPerMmH2O, kDetailKpa));
  for (const auto& label : lbl差圧結果) {
    label->SetForeColor(rating.note.empty() ? forms::kBlack : forms::kRed);
  }
  detailDP_ = NumberText(rating.dP);
  detailLoss_ = NumberText(loss);
}

TagColumns frmIntegral::RecordColumns() {
  TagColumns columns = {{{2, &cbo計器型式},
                         {5, &FlowUnitBox()},
                         {8, &cbo圧力単位},
                         {10, &cbo温度単位},
                         {12, &DensityUnitBox()},
                         {14, &cbo粘性係数単位},
                         {18, &humidity.cbo飽和水蒸気圧単位}},
                        {{0, &txtTagNo},
                         {1, &txt用途},
                         {4, &txt目盛流量},
                         {6, &txt常用流量},
                         {7, &txt圧力},
                         {9, &txt温度},
                         {11, &txt密度},
                         {13, &txt粘性係数},
                         {15, &humidity.txt相対湿度},
                         {17, &humidity.txt飽和水蒸気圧},
                         {19, &txt偏差係数},
                         {20, &txt比熱比}},
                        {{32, &lblNorReynolds},
                         {33, &lblKaf},
                         {34, &lblα},
                         {35, &lbl膨張補正係数},
                         {36, &lbl水相当流量},
                         {37, &lbl空気相当流量},
                         {38, &lbl差圧結果[0]},
                         {39, &lbl差圧結果[1]},
                         {40, &lbl永久圧損[0]},
                         {41, &lbl永久圧損[1]}}};
  for (int i = 0; i < kRows; ++i) columns.results.emplace_back(kFirstBoreColumn + i, &lblDPmm[i]);
  return columns;
}

void frmIntegral::AddIntegral(int row) {
  shell::TagStore& tags = Space().tags;
  PutRecord(row, kFluidColumn, RecordColumns());
  for (const int column : kUnusedColumns) tags.SetText(row, column, "");
  tags.SetText(row, kBoreColumn, std::to_string(cboOrificeNo.Index()));
  tags.SetText(row, kPlainDPColumn, detailDP_);
  tags.SetText(row, kPlainLossColumn, detailLoss_);
}

void frmIntegral::GetIntegral(int row) {
  const shell::TagRow* const record =
      GetRecord(row, kFluidColumn, [this] { return RecordColumns(); });
  if (record != nullptr) GetDetail(*record);
}

/// The list of bores holds mmH2O or notes; all else follows from it.
void frmIntegral::GetDetail(const shell::TagRow& record) {
  for (int i = 0; i < kRows; ++i) {
    const std::string text = lblDPmm[i].Text();
    const bool note = IsNote(text);
    lblDPkpa[i].SetText(note || text.empty() ? text : Format(Val(text) * kKpaPerMmH2O, kListKpa));
    ColourBore(i, !note);
  }
  CautionGas();
  detailDP_ = At(record, kPlainDPColumn);
  detailLoss_ = At(record, kPlainLossColumn);
  const int bore = common::IntIndex(Val(At(record, kBoreColumn)));
  {
    const Quiet quiet(*this);
    cboOrificeNo.SetIndex(bore);
  }
  if (bore < 0 || lblNorReynolds.Text().empty()) return;
  lblReynoldsKind.SetText(ReynoldsKindOf(Group()));
  for (const auto& label : lbl差圧結果) label->SetForeColor(lblDPmm[bore].ForeColor());
}

/// The detail is that of the bore which was picked behind the calculation.
std::vector<shell::Sheet::Calculation> frmIntegral::CalculationsOf(const shell::TagRow& record) {
  if (At(record, kFirstBoreColumn).empty()) return {};
  const int bore = common::IntIndex(Val(At(record, kBoreColumn)));
  return {{"", [this, bore] {
             if (!Calculate(cmd計算)) return false;
             if (bore >= 0) cboOrificeNo.Pick(bore);
             return true;
           }}};
}

void frmIntegral::DeclareLayout() {
  SetLayout(
      SheetBlock(lblタイトル,
                 forms::Row({
                     forms::Stretched(ProcessBlock(), 7),
                     forms::Stretched(forms::Column({BoresBlock(), forms::Space()}), 7),
                     forms::Stretched(forms::Column({DetailBlock(), forms::Space(),
                                                     forms::Buttons({{}, cmdデータ消去, cmd計算})}),
                                      7),
                 })));
}

forms::Block frmIntegral::ProcessBlock() {
  return forms::Group(
      "プロセス条件",
      forms::Table({
          {lbl計器型式, Cell(cbo計器型式).Over(2)},
          {lbl流体, Cell(cbo流体).Over(2)},
          {lbl目盛流量, txt目盛流量, FlowUnits()},
          {lbl常用流量, txt常用流量, lbl常用流量単位},
          {lbl圧力, txt圧力, cbo圧力単位},
          {lbl温度, txt温度, cbo温度単位},
          {lbl密度, txt密度, DensityUnits()},
          {lbl粘性係数, txt粘性係数, cbo粘性係数単位},
          {humidity.lbl相対湿度, humidity.txt相対湿度, humidity.lbl相対湿度単位},
          {humidity.lbl飽和水蒸気圧, humidity.txt飽和水蒸気圧, humidity.cbo飽和水蒸気圧単位},
          {lbl偏差係数, txt偏差係数},
          {lbl比熱比, txt比熱比},
      }));
}

forms::Block frmIntegral::BoresBlock() {
  std::vector<forms::Line> lines = {{"型式", "オリフィス径 (mm)", "発生差圧 (kPa)", "(mmH2O)"}};
  for (int i = 0; i < kRows; ++i) {
    lines.push_back(
        {Cell(lblOrificeNo[i]).Wide(4), Cell(lblOrificeDia[i]).Wide(8), lblDPkpa[i], lblDPmm[i]});
  }
  return forms::Results("全オリフィスの差圧",
                        forms::Column({forms::Table({{lblGroup}}), forms::Table(std::move(lines)),
                                       forms::Table({{lbl注意}})}));
}

forms::Block frmIntegral::DetailBlock() {
  return forms::Results("個別計算結果", forms::Table({
                                            {lblオリフィス番号, Cell(cboOrificeNo).Over(2)},
                                            {"常用レイノルズ数", lblNorReynolds, lblReynoldsKind},
                                            {"流量係数比（Kaf/Ka）", lblKaf},
                                            {"流量係数 α", lblα},
                                            {"膨張補正係数 ε", lbl膨張補正係数},
                                            {"水相当流量", lbl水相当流量, "l/min"},
                                            {"空気相当流量", lbl空気相当流量, lbl空気相当流量単位},
                                            {"発生差圧", lbl差圧結果[0], "mmH2O"},
                                            {"", lbl差圧結果[1], "kPa"},
                                            {"永久圧力損失", lbl永久圧損[0], "mmH2O"},
                                            {"", lbl永久圧損[1], "kPa"},
                                        }));
}

}  // namespace sheets
