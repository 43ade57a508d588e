// The tag record of the thermowell sheet.

#include "common/number.h"
#include "common/text.h"
#include "sheets/frm_tw.h"
#include "sheets/record_fields.h"

namespace sheets {

namespace {

using common::Val;

/// Columns of the record that are read or written by themselves.
enum Column {
  kFluid = 2,
  kInstallation = 11,
  kMaterial = 16,
  kMaterialText = 17,
  kDensity = 18,
  kModulus = 19,
  kStress = 21,
  kVelocity = 31,
  kMark = 49,
};

/// Records marked older have other columns from 28 on, which reading a file empties.
constexpr const char* kVersion = "Ver 2.2";

}  // namespace

TagColumns frmTW::RecordColumns() {
  return {{{kInstallation, &cbo設置形式},
           {4, &cbo圧力単位},
           {6, &cbo温度単位},
           {8, &DensityUnitBox()},
           {10, &cbo粘性係数単位},
           {14, &FlowUnitBox()},
           {20, &cboヤング率単位},
           {22, &cbo許容応力単位}},
          {{0, &txtTagNo},
           {1, &txt用途},
           {3, &txt圧力},
           {5, &txt温度},
           {7, &txt密度},
           {9, &txt粘性係数},
           {12, &txt配管内径},
           {13, &txt流量},
           {15, &txt攪拌槽内径},
           {kDensity, &txt保護管密度},
           {kModulus, &txtヤング率},
           {kStress, &txt許容応力},
           {23, &txt先端外径},
           {24, &txt根元外径},
           {25, &txt保護管内径},
           {26, &txt保護管長},
           {27, &txt挿入長},
           {28, &txtWellT},
           {29, &txt臨界減衰率},
           {30, &txt応力集中係数}},
          ResultColumns()};
}

std::vector<std::pair<int, Label*>> frmTW::ResultColumns() {
  return {{kVelocity, &lbl流速R},
          {32, &lblレイノルズ数R},
          {33, &lblストローハル数},
          {34, &lblカルマン渦周波数R},
          {36, &lbl固有振動数},
          {37, &lblVr},
          {38, &lblCn},
          {40, &lbl同期振動判定},
          {41, &lbl定常抗力},
          {43, &lbl定常抗力判定},
          {44, &lbl励振力},
          {46, &lbl励振力判定}};
}

std::vector<std::pair<int, Label*>> frmTW::ColourColumns() {
  return {
      {35, &lbl固有振動数}, {39, &lbl同期振動判定}, {42, &lbl定常抗力判定}, {45, &lbl励振力判定}};
}

void frmTW::addTW(int row) {
  PutRecord(row, kFluid, RecordColumns());
  RecordWriter record(Space().tags, row);
  record.PutIndex(kMaterial, cbo保護管材質);
  record.Put(kMaterialText, cbo保護管材質.Text());
  for (const auto& [column, label] : ColourColumns()) {
    record.Put(column, std::to_string(label->ForeColor()));
  }
  record.Put(kMark, kVersion);
}

/// What was stored holds: nothing is looked up and no row emptied while it is written. Phase and
/// installation fire their events, because an open fluid list and the captions follow them. A
/// selection that does not exist ends the recall; nothing of the tag before is left to be taken for
/// a result of this one.
void frmTW::GetTW(int row) {
  const shell::TagRow record = Space().tags.Row(row);
  if (At(record, shell::kKindColumn) != kKind) return;
  ClearResults();
  filledTemperature_ = TemperatureEntry();
  Select(cbo流体, At(record, kFluid));
  Select(cbo設置形式, At(record, kInstallation));
  const TagColumns columns = RecordColumns();
  {
    const Quiet quiet(*this);
    columns.GetSelections(record);
    GetMaterial(record);
    columns.GetEntries(record);
    filledTemperature_ = TemperatureEntry();
    ClearResults();  // shows the unit of the stresses
    GetResults(record);
  }
  StoreEntries();
}

/// A material that the database has lost or renamed keeps the name under which it was stored.
void frmTW::GetMaterial(const shell::TagRow& record) {
  const int index = common::IntIndex(Val(At(record, kMaterial)));
  const std::string& name = At(record, kMaterialText);
  if (index >= 0 && index < cbo保護管材質.Count() &&
      common::At(cbo保護管材質.Items(), index) == name) {
    cbo保護管材質.SetIndex(index);
  } else {
    cbo保護管材質.SetText(name);
  }
}

void frmTW::GetResults(const shell::TagRow& record) {
  for (const auto& [column, label] : ResultColumns()) label->SetText(At(record, column));
  for (const auto& [column, label] : ColourColumns()) {
    label->SetForeColor(common::IntIndex(Val(At(record, column))));
  }
  Space().calcDone = !common::IsBlank(lbl流速R.Text());
  if (!Space().calcDone) return;
  try {
    ReadConditions();
    ReadDensities();
    ReadFlow();
    ReadWell();
    common::NoMessages silent;
    temperature::AnalyseThermowell(well_, silent, findings_);
    ShowNotes();
    PrepareChart();
  } catch (const common::RuntimeFault&) {
    // A record whose entries cannot be calculated shows its results without notes and diagram.
  }
}

std::vector<shell::Sheet::Calculation> frmTW::CalculationsOf(const shell::TagRow& record) {
  return OneWay(At(record, kVelocity), cmd計算);
}

std::vector<int> frmTW::LookUpAnew() {
  std::vector<int> columns;
  LookUp(columns, kDensity, txt保護管密度, {&cbo保護管材質});
  LookUp(columns, kModulus, txtヤング率, {&cbo保護管材質});
  LookUp(columns, kStress, txt許容応力, {&cbo保護管材質});
  return columns;
}

}  // namespace sheets
