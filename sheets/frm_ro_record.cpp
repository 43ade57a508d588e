// The tag record of the restriction orifice sheet.

#include "common/number.h"
#include "sheets/frm_ro.h"

namespace sheets {

namespace {

/// Columns of the record that are read or written by themselves.
enum Column {
  kUnused = 2,
  kFluid = 3,
  kModulus = 22,
  kStress = 24,
  kPipeBore = 28,
  kRatio = 33,
};

}  // namespace

TagColumns frmRO::RecordColumns() {
  return {{{5, &FlowUnitBox()},
           {7, &cbo圧力単位},
           {9, &cbo差圧単位},
           {11, &cbo温度単位},
           {13, &DensityUnitBox()},
           {15, &cbo粘性係数単位},
           {18, &humidity.cbo飽和水蒸気圧単位},
           {23, &cboヤング率単位},
           {25, &cbo許容応力単位}},
          {{0, &txtTagNo},
           {1, &txt用途},
           {4, &txt流量},
           {6, &txt圧力},
           {8, &txt差圧},
           {10, &txt温度},
           {12, &txt密度},
           {14, &txt粘性係数},
           {16, &humidity.txt相対湿度},
           {17, &humidity.txt飽和水蒸気圧},
           {19, &txt圧縮係数},
           {20, &txt比熱比},
           {21, &cboRO材質},
           {kModulus, &txtヤング率},
           {kStress, &txt許容応力},
           {26, &cbo配管呼称径},
           {27, &cboSchedule},
           {kPipeBore, &txt配管内径},
           {29, &txtThickness}},
          {{30, &lbl流速1},
           {31, &lbl流量係数},
           {32, &lbl背圧補正},
           {kRatio, &lblβ},
           {34, &lbl絞り径},
           {35, &lbl応力係数},
           {36, &lblたわみ係数},
           {38, &lbl最大応力},
           {40, &lbl変形量},
           {42, &lblMinThickness}}};
}

std::vector<std::pair<int, Label*>> frmRO::JudgedColumns() {
  return {{37, &lbl最大応力}, {39, &lbl変形量}, {41, &lblMinThickness}};
}

void frmRO::AddRO(int row) {
  shell::TagStore& tags = Space().tags;
  PutRecord(row, kFluid, RecordColumns());
  for (const auto& [column, label] : JudgedColumns()) {
    tags.SetText(row, column, std::to_string(label->ForeColor()));
  }
  tags.SetText(row, kUnused, "");
}

void frmRO::GetRO(int row) {
  const shell::TagRow* const record = GetRecord(row, kFluid, [this] { return RecordColumns(); });
  if (record == nullptr) return;
  for (const auto& [column, label] : JudgedColumns()) {
    label->SetForeColor(common::IntIndex(common::Val(At(*record, column))));
  }
  const bool calculated = !lblβ.Text().empty();
  Space().calcDone = calculated;
  if (calculated) {
    Label5[0].SetText(flow::IsStressTangential(common::Val(lblβ.Text())) ? kTangential : kRadial);
    ShowThicknessHint();
    CautionResults();
  }
  pic断面.Redraw();
}

std::vector<shell::Sheet::Calculation> frmRO::CalculationsOf(const shell::TagRow& record) {
  return OneWay(At(record, kRatio), cmd計算);
}

std::vector<int> frmRO::LookUpAnew() {
  std::vector<int> columns;
  LookUp(columns, kModulus, txtヤング率, {&cboRO材質});
  LookUp(columns, kStress, txt許容応力, {&cboRO材質});
  LookUp(columns, kPipeBore, txt配管内径, {&cbo配管呼称径, &cboSchedule});
  return columns;
}

}  // namespace sheets
