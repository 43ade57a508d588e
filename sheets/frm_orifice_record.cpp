// The tag record of the differential-pressure sheet.

#include "common/number.h"
#include "sheets/frm_orifice.h"
#include "sheets/record_fields.h"

namespace sheets {

namespace {

using common::NumberText;
using common::Val;

/// Columns of the record that are more than a field of the sheet, or that are looked at by
/// themselves.
enum Column {
  kFluid = 3,
  kWetBase = 16,
  kElementExpansion = 22,
  kPipeBore = 26,
  kPipeExpansion = 27,
  kDifferential = 28,
  kBore = 30,
  kMaxReynolds = 32,
  kOperatingDensity = 43,
  kNormalDensity = 44,
  kEquationEdition = 45,
};
constexpr int kUnused[] = {31, 46};

/// Edition of the standard whose equations stand here; a record of those of 1995 has "0".
constexpr const char* kEdition2007 = "1";

/// Digits behind the point.
std::size_t Decimals(const std::string& number) {
  const std::size_t point = number.find('.');
  return point == std::string::npos ? 0 : number.size() - point - 1;
}

}  // namespace

TagColumns frmOrifice::RecordColumns() {
  return {{{2, &cbo絞り機構種類},
           {5, &FlowUnitBox()},
           {8, &cbo圧力単位},
           {10, &cbo温度単位},
           {12, &DensityUnitBox()},
           {14, &cbo粘性係数単位},
           {18, &humidity.cbo飽和水蒸気圧単位},
           {29, &cbo設計差圧単位}},
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
           {20, &txt比熱比},
           {21, &cbo絞り部材質},
           {kElementExpansion, &txt絞り部膨張率},
           {23, &cbo配管呼称径},
           {24, &cbo配管種類},
           {25, &cboSchedule},
           {kPipeBore, &txt配管内径},
           {kPipeExpansion, &txt配管線膨張率},
           {kDifferential, &txt設計差圧},
           {kBore, &txt絞り径}},
          {{kMaxReynolds, &lblMaxReynolds},
           {33, &lblNorReynolds},
           {34, &lbl流出係数R},
           {35, &lbl流量係数R},
           {36, &lbl膨張補正係数R},
           {37, &lbl表示β},
           {38, &lbl四分円半径R},
           {39, &lbl下流Tap位置},
           {40, &lbl永久圧損R},
           {41, &lbl使用下限},
           {42, &lbl使用上限}}};
}

void frmOrifice::AddOrifice(int row) {
  PutRecord(row, kFluid, RecordColumns());
  RecordWriter record(Space().tags, row);
  record.PutFlag(kWetBase, base.optWetBase.Checked());
  record.Put(kOperatingDensity, NumberText(context_.rho));
  record.Put(kNormalDensity, NumberText(normalDensity_));
  record.Put(kEquationEdition, kEdition2007);
  for (const int column : kUnused) record.Put(column, "");
}

void frmOrifice::GetOrifice(int row) {
  const shell::TagRow* const record = GetRecord(row, kFluid, [this] { return RecordColumns(); });
  if (record == nullptr) return;
  context_.extrapolationMark.clear();
  GetResults(*record);
  StoreEntries();
}

void frmOrifice::GetResults(const shell::TagRow& record) {
  const Quiet quiet(*this);
  (IsSet(At(record, kWetBase)) ? base.optWetBase : base.optDryBase).SetChecked(true);
  lbl絞り径結果R.SetText(txt絞り径.Text());
  lbl差圧結果R.SetText(txt設計差圧.Text());
  ShowUpstreamTapOf(record);
  context_.rho = Val(At(record, kOperatingDensity));
  normalDensity_ = Val(At(record, kNormalDensity));
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
      lbl上流Tap位置.SetText(At(record, kPipeBore));
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
  if (At(record, kMaxReynolds).empty()) return {};
  const auto by = [this](OptionButton& mode) -> Calculation {
    return {mode.Text(), [this, &mode] {
              mode.Choose();
              return Calculate(cmd計算);
            }};
  };
  std::vector<Calculation> ways = {by(opt差圧_絞り径), by(opt絞り径_差圧)};
  if (Decimals(At(record, kDifferential)) > Decimals(At(record, kBore))) {
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
