// The tag record of the differential-pressure sheet.

#include "common/number.h"
#include "sheets/frm_orifice.h"
#include "sheets/record_fields.h"

namespace sheets {

namespace {

using common::NumberText;
using common::Val;

/// Columns of the record. What is not named here is a text in the order of the tables below.
enum Column {
  kElementType = 2,
  kFluid = 3,
  kFlowUnit = 5,
  kPressureUnit = 8,
  kTemperatureUnit = 10,
  kDensityUnit = 12,
  kViscosityUnit = 14,
  kWetBase = 16,
  kSaturationUnit = 18,
  kElementExpansion = 22,
  kPipeBore = 26,
  kPipeExpansion = 27,
  kDifferential = 28,
  kDifferentialUnit = 29,
  kBore = 30,
  kUnused1 = 31,
  kMaxReynolds = 32,
  kDownstreamTap = 39,
  kOperatingDensity = 43,
  kNormalDensity = 44,
  kEquationEdition = 45,
  kUnused2 = 46,
};

/// Digits behind the point.
std::size_t Decimals(const std::string& number) {
  const std::size_t point = number.find('.');
  return point == std::string::npos ? 0 : number.size() - point - 1;
}

}  // namespace

void frmOrifice::AddOrifice(int row) {
  RecordWriter record(Space().tags, row);
  record.PutTexts(EntryColumns());
  record.PutTexts(ResultColumns());
  record.PutIndex(kElementType, cbo絞り機構種類);
  record.PutIndex(kFluid, cbo流体);
  record.PutIndex(kFlowUnit, FlowUnitBox());
  record.PutIndex(kPressureUnit, cbo圧力単位);
  record.PutIndex(kTemperatureUnit, cbo温度単位);
  record.PutIndex(kDensityUnit, DensityUnitBox());
  record.PutIndex(kViscosityUnit, cbo粘性係数単位);
  record.PutFlag(kWetBase, base.optWetBase.Checked());
  record.PutIndex(kSaturationUnit, humidity.cbo飽和水蒸気圧単位);
  record.PutIndex(kDifferentialUnit, cbo設計差圧単位);
  record.Put(kUnused1, "");
  record.Put(kOperatingDensity, NumberText(context_.rho));
  record.Put(kNormalDensity, NumberText(normalDensity_));
  record.Put(kEquationEdition, equationEdition_);
  record.Put(kUnused2, "");
  record.Put(shell::kKindColumn, Space().activeSheetKind);
  Space().tags.tagModified = true;
}

std::vector<std::pair<int, forms::Control*>> frmOrifice::EntryColumns() {
  return {{0, &txtTagNo},
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
          {20, &txt比熱比},
          {21, &cbo絞り部材質},
          {kElementExpansion, &txt絞り部膨張率},
          {23, &cbo配管呼称径},
          {24, &cbo配管種類},
          {25, &cboSchedule},
          {kPipeBore, &txt配管内径},
          {kPipeExpansion, &txt配管線膨張率},
          {kDifferential, &txt設計差圧},
          {kBore, &txt絞り径}};
}

std::vector<std::pair<int, Label*>> frmOrifice::ResultColumns() {
  return {{kMaxReynolds, &lblMaxReynolds},
          {33, &lblNorReynolds},
          {34, &lbl流出係数R},
          {35, &lbl流量係数R},
          {36, &lbl膨張補正係数R},
          {37, &lbl表示β},
          {38, &lbl四分円半径R},
          {kDownstreamTap, &lbl下流Tap位置},
          {40, &lbl永久圧損R},
          {41, &lbl使用下限},
          {42, &lbl使用上限}};
}

void frmOrifice::GetOrifice(int row) {
  const shell::TagRow record = Space().tags.Row(row);
  if (record[shell::kKindColumn] != kKind) return;
  ClearResults();
  context_.extrapolationMark.clear();
  GetSelections(record);
  GetEntries(record);
  GetResults(record);
  StoreEntries();
}

void frmOrifice::GetSelections(const shell::TagRow& record) {
  Select(cbo絞り機構種類, record[kElementType]);
  Select(cbo流体, record[kFluid]);
  Select(FlowUnitBox(), record[kFlowUnit]);
  Select(cbo圧力単位, record[kPressureUnit]);
  Select(cbo温度単位, record[kTemperatureUnit]);
  Select(DensityUnitBox(), record[kDensityUnit]);
  Select(cbo粘性係数単位, record[kViscosityUnit]);
  Select(humidity.cbo飽和水蒸気圧単位, record[kSaturationUnit]);
  Select(cbo設計差圧単位, record[kDifferentialUnit]);
  (IsSet(record[kWetBase]) ? base.optWetBase : base.optDryBase).SetChecked(true);
}

/// Material and pipe stand as texts, and finding them must not look anything up: what was stored
/// holds. The humidity comes before the saturation pressure, whose field it switches on.
void frmOrifice::GetEntries(const shell::TagRow& record) {
  for (const auto& [column, control] : EntryColumns()) {
    const std::string& text = record[static_cast<std::size_t>(column)];
    if (dynamic_cast<ComboBox*>(control) != nullptr) {
      const Quiet quiet(*this);
      control->SetText(text);
    } else {
      control->SetText(text);
    }
  }
}

void frmOrifice::GetResults(const shell::TagRow& record) {
  const Quiet quiet(*this);
  for (const auto& [column, label] : ResultColumns()) {
    label->SetText(record[static_cast<std::size_t>(column)]);
  }
  lbl絞り径結果R.SetText(txt絞り径.Text());
  lbl差圧結果R.SetText(txt設計差圧.Text());
  ShowUpstreamTapOf(record);
  context_.rho = Val(record[kOperatingDensity]);
  normalDensity_ = Val(record[kNormalDensity]);
  const bool calculated = !lblMaxReynolds.Text().empty();
  Space().calcDone = calculated;
  if (calculated) CautionLoss();
  pic断面.Redraw();
}

/// The record has no upstream tap; the element tells where it is.
void frmOrifice::ShowUpstreamTapOf(const shell::TagRow& record) {
  switch (cbo絞り機構種類.Index()) {
    case flow::kFlangeTapOrifice:
      lbl上流Tap位置.SetText("25.4");
      break;
    case flow::kDAndHalfDTapOrifice:
    case flow::kVenaContractaTapOrifice:
      lbl上流Tap位置.SetText(record[kPipeBore]);
      break;
    case flow::kCornerTapOrifice:
      lbl上流Tap位置.SetText("0");
      break;
    default:
      lbl上流Tap位置.SetText(kNoTap);
  }
}

/// What was entered has few decimals, what was calculated those to which it is rounded.
std::vector<shell::Sheet::Calculation> frmOrifice::CalculationsOf(const shell::TagRow& record) {
  if (common::At(record, kMaxReynolds).empty()) return {};
  const auto by = [this](OptionButton& mode) -> Calculation {
    return {mode.Text(), [this, &mode] {
              mode.Choose();
              return Calculate(cmd計算);
            }};
  };
  std::vector<Calculation> ways = {by(opt差圧_絞り径), by(opt絞り径_差圧)};
  if (Decimals(common::At(record, kDifferential)) > Decimals(common::At(record, kBore))) {
    std::swap(ways[0], ways[1]);
  }
  return ways;
}

std::vector<int> frmOrifice::LookUpAnew() {
  std::vector<int> columns;
  LookUp(columns, kElementExpansion, txt絞り部膨張率, {&cbo絞り部材質});
  LookUp(columns, kPipeExpansion, txt配管線膨張率, {&cbo配管種類});
  LookUp(columns, kPipeBore, txt配管内径, {&cbo配管呼称径, &cboSchedule});
  return columns;
}

}  // namespace sheets
