#include "sheets/frm_te.h"

#include <algorithm>

#include "common/number.h"
#include "common/text.h"
#include "sheets/calculation_page.h"

namespace sheets {

namespace {

using common::At;
using common::Format;
using common::Real;
using common::Val;
using forms::Cell;

constexpr const char* kTemperatureFormat = "#,##0.0";

constexpr const char* kPercent[frmTE::kLines] = {"0",  "10", "20", "30", "40", "50",
                                                 "60", "70", "80", "90", "100"};

/// Temperature at a step of the scale; the end is met exactly, so that no rounding leads out of the
/// table.
Real AtStep(Real low, Real high, int step, int steps) {
  return step == steps ? high : low + ((high - low) / steps) * step;
}

/// Columns of the record that hold no entry.
enum Column { kUnit = 6, kSensorKind = 7, kTemperatures = 8, kOutputs = 19, kUnused = 30 };

}  // namespace

frmTE::frmTE(shell::Workspace& workspace) : Sheet(workspace, kKind, "Thermo-Element Calculation") {
  BindHandlers();
  DeclareLayout();
}

void frmTE::BindHandlers() {
  for (int kind = 0; kind < optTC.Count(); ++kind) {
    optTC[kind].onClick = [this, kind] { optTC_Click(kind); };
  }
  for (const auto& box : txtScale) box->onChange = [this] { ClearCalibration(); };
  txt温度.onChange = [this] { ConvertTyped(); };
  txtEMF.onChange = [this] { ConvertTyped(); };
  cmd出力.onClick = [this] { CalcSensorOutput(); };
  cmd温度.onClick = [this] { CalcTemperature(); };
  txt温度.onEnter = [this] {
    CalcSensorOutput();
    FocusNext(txt温度);
  };
  txtEMF.onEnter = [this] {
    CalcTemperature();
    FocusNext(txtEMF);
  };
  pic特性.onPaint = [this](forms::DrawSurface& surface) { DrawChart(surface); };
  cmdInitialize.onClick = [this] { cmdInitialize_Click(); };
  cmd計算.onClick = [this] { cmd計算_Click(); };
}

void frmTE::Load() {
  const Quiet quiet(*this);
  for (int kind = 0; kind < optTC.Count(); ++kind) {
    optTC[kind].SetText(At(Sensors().sensorName, kind));
  }
  optTC[0].SetChecked(true);
  optTC_Click(0);
  SetFocus(txtTagNo);
}

void frmTE::optTC_Click(int kind) {
  sensorKind_ = kind;
  ShowKind();
  ClearCalibration();
  ConvertTyped();
}

/// Follows what is typed, silent about what has no answer; Enter and the buttons tell why.
void frmTE::ConvertTyped() {
  lbl換算出力.SetText("");
  lblTemp.SetText("");
  if (!Space().tables.IsRead("TE.dat")) return;
  try {
    const Real t = Val(txt温度.Text());
    const bool inRange =
        t >= At(Sensors().rangeLow, sensorKind_)[0] && t <= At(Sensors().rangeHigh, sensorKind_)[2];
    if (inRange) CalcSensorOutput();
    const bool ambiguous = sensorKind_ == temperature::kPt100 && Val(txtEMF.Text()) <= 0;
    if (!txtEMF.Text().empty() && !ambiguous) CalcTemperature();
  } catch (const common::RuntimeFault&) {
    // A number beyond all limits has no answer either.
  }
}

void frmTE::ShowKind() {
  const bool resistance = IsResistance();
  const std::string unit = resistance ? "Ω" : "μV";
  lblEMF.SetText(resistance ? "抵 抗 値" : "起 電 力");
  lbl出力見出し.SetText(resistance ? "抵抗値(Ω)" : "起電力(μV)");
  lblEMF単位.SetText(unit);
  lbl換算出力単位.SetText(unit);
  const char* const standard = !resistance                           ? "(JIS C 1602-1995)"
                               : sensorKind_ == temperature::kJPt100 ? "(JIS C 1604-1997 参考)"
                                                                     : "(JIS C 1604-1997)";
  lbl測温体.SetText(optTC[sensorKind_].Text() + standard);
}

void frmTE::ClearCalibration() {
  for (int i = 0; i < kLines; ++i) {
    lbl温度[i].SetText("");
    lblTE出力[i].SetText("");
  }
  characteristic_.clear();
  pic特性.Redraw();
  Space().calcDone = false;
}

void frmTE::cmdInitialize_Click() {
  for (forms::Control* control : Controls()) {
    if (auto* const box = dynamic_cast<forms::TextBox*>(control)) box->SetText("");
  }
  ClearCalibration();
  SetFocus(txtTagNo);
}

std::string frmTE::OutputText(Real output) const {
  return Format(output, IsResistance() ? "###,##0.00" : "###,##0");
}

void frmTE::cmd計算_Click() {
  Space().calcFailed = false;
  Space().calcNote.clear();
  if (!HasData({"TE.dat"})) return;
  ClearCalibration();
  const Real low = Val(txtScale[0].Text());
  const Real high = Val(txtScale[1].Text());
  if (high == low) return;
  for (int i = 0; i < kLines; ++i) {
    const Real t = AtStep(low, high, i, kLines - 1);
    lbl温度[i].SetText(Format(t, kTemperatureFormat));
    const std::optional<Real> output =
        temperature::CalcSensorOutput(Sensors(), sensorKind_, t, User(), "計器目盛較正");
    if (!output) {
      Space().calcFailed = true;
      return;
    }
    lblTE出力[i].SetText(OutputText(*output));
  }
  PrepareChart();
  Space().calcDone = true;
}

void frmTE::CalcSensorOutput() {
  lbl換算出力.SetText("");
  if (!HasData({"TE.dat"}) || txt温度.Text().empty()) return;
  const std::optional<Real> output = temperature::CalcSensorOutput(
      Sensors(), sensorKind_, Val(txt温度.Text()), User(), "温度 ⇒ 熱起電力");
  if (output) lbl換算出力.SetText(OutputText(*output));
}

void frmTE::CalcTemperature() {
  lblTemp.SetText("");
  if (!HasData({"TE.dat"})) return;
  const Real output = Val(txtEMF.Text());
  if (sensorKind_ == temperature::kPt100 && output <= 0) {
    User().Show("温度が一定値に定まりません", "起電力⇒温度");
    return;
  }
  if (output == 0) {
    lblTemp.SetText("0.0");
    return;
  }
  lblTemp.SetText(
      Format(temperature::CalcTemperature(Sensors(), sensorKind_, output), kTemperatureFormat));
}

/// A scale that cannot be drawn, as a record may hold one, has no diagram.
void frmTE::PrepareChart() {
  constexpr int kPoints = 80;
  characteristic_.clear();
  pic特性.Redraw();
  common::NoMessages silent;
  try {
    const Real low = Val(txtScale[0].Text());
    const Real high = Val(txtScale[1].Text());
    if (high == low) return;
    for (int i = 0; i <= kPoints; ++i) {
      const Real t = AtStep(low, high, i, kPoints);
      const auto output = temperature::CalcSensorOutput(Sensors(), sensorKind_, t, silent, "");
      if (!output) return characteristic_.clear();
      characteristic_.emplace_back(t, *output);
    }
  } catch (const common::RuntimeFault&) {
    characteristic_.clear();
  }
}

/// The characteristic, and the straight line between the ends of the scale for comparison.
void frmTE::DrawChart(forms::DrawSurface& surface) const {
  if (characteristic_.empty()) {
    DrawEmptyChart(surface, pic特性.Width(), pic特性.Height(), "計算すると線図を表示します。");
    return;
  }
  const auto& [t0, e0] = characteristic_.front();
  const auto& [t1, e1] = characteristic_.back();
  const auto [lowest, highest] =
      std::minmax_element(characteristic_.begin(), characteristic_.end(),
                          [](const auto& a, const auto& b) { return a.second < b.second; });
  const double reach = std::max(highest->second - lowest->second, 1e-3);
  Chart chart(
      surface, pic特性.Width(), pic特性.Height(), {"温度 (℃)", std::min(t0, t1), std::max(t0, t1)},
      {lbl出力見出し.Text(), lowest->second - 0.12 * reach, highest->second + 0.12 * reach});
  chart.Legend(lbl測温体.Text(), forms::kBlue);
  chart.Legend("両端を結ぶ直線", forms::kBlack);
  chart.DashedLine({t0, e0}, {t1, e1}, forms::kBlack);
  chart.Curve(characteristic_, forms::kBlue);
  for (const auto& [t, output] : {characteristic_.front(), characteristic_.back()}) {
    const bool lower = output < (e0 + e1) / 2;
    chart.Dot(t, output, forms::kRed);
    chart.Note(
        t, output,
        Format(t, kTemperatureFormat) + " ℃ : " + OutputText(output) + " " + lblEMF単位.Text(),
        forms::kRed, lower ? Chart::Side::kBelow : Chart::Side::kAbove);
  }
}

std::vector<std::pair<int, forms::TextBox*>> frmTE::EntryColumns() {
  return {{0, &txtTagNo}, {1, &txt用途},     {2, &txtMaker},
          {3, &txtModel}, {4, &txtScale[0]}, {5, &txtScale[1]}};
}

void frmTE::addTC(int row) {
  shell::TagStore& tags = Space().tags;
  for (const auto& [column, box] : EntryColumns()) tags.SetText(row, column, box->Text());
  tags.SetText(row, kUnit, "");
  tags.SetText(row, kSensorKind, std::to_string(sensorKind_));
  for (int i = 0; i < kLines; ++i) {
    tags.SetText(row, kTemperatures + i, lbl温度[i].Text());
    tags.SetText(row, kOutputs + i, lblTE出力[i].Text());
  }
  tags.SetText(row, kUnused, "");
  tags.SetText(row, shell::kKindColumn, Space().activeSheetKind);
  tags.tagModified = true;
}

/// The kind comes first, because choosing it empties the results, and they come last.
void frmTE::GetTC(int row) {
  const shell::TagRow record = Space().tags.Row(row);
  if (At(record, shell::kKindColumn) != kKind) return;
  const int kind = common::IntIndex(Val(At(record, kSensorKind)));
  if (kind < 0 || kind >= optTC.Count()) common::RaiseFault(common::Fault::kIndexOutOfRange);
  optTC[kind].SetChecked(true);
  optTC_Click(kind);
  for (const auto& [column, box] : EntryColumns()) box->SetText(At(record, column));
  for (forms::TextBox* box : {&txt温度, &txtEMF}) box->SetText("");
  for (int i = 0; i < kLines; ++i) {
    lbl温度[i].SetText(At(record, kTemperatures + i));
    lblTE出力[i].SetText(At(record, kOutputs + i));
  }
  const bool complete = !lblTE出力[kLines - 1].Text().empty();
  Space().calcDone = complete;
  if (complete && Space().tables.IsRead("TE.dat")) PrepareChart();
}

std::vector<shell::Sheet::Calculation> frmTE::CalculationsOf(const shell::TagRow& record) {
  if (At(record, kOutputs).empty()) return {};
  return {{"", [this] {
             ClearCalibration();
             cmd計算.Click();
             return Space().calcDone && !Space().calcFailed;
           }}};
}

bool frmTE::printTC(shell::PrintSurface& target) {
  // Bytes in which the columns of the table end.
  constexpr int kPercentEnd = 10;
  constexpr int kTemperatureEnd = 26;
  constexpr int kOutputEnd = 44;
  CalculationPage page(target);
  page.Title("ＴＨＥＲＭＯ－ＥＬＥＭＥＮＴ　ＣＡＬＣＵＬＡＴＩＯＮ");
  page.Section("入 力 デ ー タ");
  page.Line("Ｔａｇ  Ｎo．  ", txtTagNo.Text());
  page.Line("測 温 体 種 類", lbl測温体.Text());
  page.Line("用          途", txt用途.Text());
  page.Line("計  器  型  式", txtModel.Text());
  page.Line("計器ケーカー  ", txtMaker.Text());
  page.Line("計  器  目  盛", txtScale[0].Text() + " ～ " + txtScale[1].Text(), "℃");
  page.Gap();
  page.Section("計 算 結 果");
  page.Text("   指示(%)     　温度(℃）　　　 " + lbl出力見出し.Text());
  for (int i = 0; i < kLines; ++i) {
    page.Text(common::PadLeftToBytes(kPercent[i], kPercentEnd) +
              common::PadLeftToBytes(lbl温度[i].Text(), kTemperatureEnd - kPercentEnd) +
              common::PadLeftToBytes(lblTE出力[i].Text(), kOutputEnd - kTemperatureEnd));
  }
  page.Gap();
  if (!characteristic_.empty()) page.Picture(pic特性, pic特性.Width());
  return true;
}

void frmTE::DeclareLayout() {
  SetLayout(forms::Column({
      forms::Table({{lblタイトル}}),
      forms::Table({{lblTagNo, Cell(txtTagNo).Wide(28), lbl用途, Cell(txt用途).Wide(40)},
                    {lblMaker, Cell(txtMaker).Wide(28), lblModel, Cell(txtModel).Wide(40)}}),
      forms::Stretched(forms::Row({
          forms::Stretched(
              forms::Column({SensorBlock(), forms::Stretched(forms::Group(
                                                "特性曲線", forms::Table({{pic特性}})))}),
              6),
          forms::Stretched(forms::Column({CalibrationBlock(), ConversionBlock(), forms::Space(),
                                          forms::Buttons({{}, cmdInitialize, cmd計算})}),
                           5),
      })),
  }));
}

forms::Block frmTE::SensorBlock() {
  return forms::Group("測温体種類",
                      forms::Column({
                          forms::Table({{optTC[0], optTC[1], optTC[2], optTC[3]},
                                        {optTC[4], optTC[5], optTC[6], optTC[7]},
                                        {optTC[8], optTC[9], Cell(lbl測温体).Over(2)}}),
                          forms::Table({{lblScale, txtScale[0], "～", txtScale[1], "℃"}}),
                      }));
}

forms::Block frmTE::ConversionBlock() {
  return forms::Group("換算",
                      forms::Table({
                          {lbl換算温度, txt温度, "℃", "→", lbl換算出力, lbl換算出力単位, cmd出力},
                          {lblEMF, txtEMF, lblEMF単位, "→", lblTemp, "℃", cmd温度},
                      }));
}

forms::Block frmTE::CalibrationBlock() {
  std::vector<forms::Line> lines = {{"指示(%)", "温度(℃)", lbl出力見出し}};
  for (int i = 0; i < kLines; ++i) lines.push_back({kPercent[i], lbl温度[i], lblTE出力[i]});
  return forms::Results("計器目盛較正", forms::Table(std::move(lines)));
}

}  // namespace sheets
