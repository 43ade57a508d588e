// The tag record of the pressure loss sheet.

#include "sheets/frm_press_loss.h"
#include "sheets/record_fields.h"

namespace sheets {

namespace {

/// Columns of the record that are read or written by themselves.
enum Column {
  kFluid = 2,
  kPipeBore = 19,
  kFirstFitting = 22,
  kUnused = 38,
  kTotalLoss = 47,
  kLossUnit = 49,
};

}  // namespace

TagColumns frmPressLoss::RecordColumns() {
  TagColumns columns = {{{4, &FlowUnitBox()},
                         {6, &cbo圧力単位},
                         {8, &cbo温度単位},
                         {10, &DensityUnitBox()},
                         {12, &cbo粘性係数単位},
                         {15, &humidity.cbo飽和水蒸気圧単位},
                         {17, &cbo配管呼称径},
                         {18, &cboSchedule}},
                        {{0, &txtTagNo},
                         {1, &txt用途},
                         {3, &txt流量},
                         {5, &txt圧力},
                         {7, &txt温度},
                         {9, &txt密度},
                         {11, &txt粘性係数},
                         {13, &humidity.txt相対湿度},
                         {14, &humidity.txt飽和水蒸気圧},
                         {16, &txt偏差係数},
                         {kPipeBore, &txt配管内径},
                         {20, &txtPipeRoughness},
                         {21, &txtPipeLength},
                         {32, &txtInletType},
                         {33, &txt管径比率[kIn]},
                         {34, &txt円錐角度[kIn]},
                         {35, &txt管径比率[kOut]},
                         {36, &txt円錐角度[kOut]}},
                        {{37, &lbl関係粗度},
                         {39, &lblλ},
                         {40, &lblReynolds},
                         {41, &lblVelosityIn},
                         {42, &lblVelosityOut},
                         {43, &lblζin},
                         {44, &lblζout},
                         {45, &lblTerminalLoss[kIn]},
                         {46, &lblTerminalLoss[kOut]},
                         {kTotalLoss, &lblTotalLoss},
                         {48, &lbl付属品ζ}}};
  for (int i = 0; i < kFittings; ++i) {
    columns.entries.emplace_back(kFirstFitting + i, &txt付属品数[i]);
  }
  return columns;
}

void frmPressLoss::AddPressLoss(int row) {
  PutRecord(row, kFluid, RecordColumns());
  RecordWriter record(Space().tags, row);
  record.Put(kUnused, "");
  record.Put(kLossUnit, lbl圧損単位[0].Text());
}

/// What was stored holds: no pipe is looked up, no unit of viscosity changed. The phase alone fires
/// its event, because the selectors that the record names are those of the phase.
void frmPressLoss::GetPressLoss(int row) {
  const shell::TagRow record = Space().tags.Row(row);
  if (At(record, shell::kKindColumn) != kKind) return;
  ClearResults();  // a record that cannot be read must not leave those of the last tag
  Select(cbo流体, At(record, kFluid));
  const TagColumns columns = RecordColumns();
  {
    const Quiet quiet(*this);
    columns.GetSelections(record);
    ShowLossUnit();
  }
  columns.GetEntries(record);
  columns.GetResults(record);
  StoreEntries();
  Space().calcDone = !lblTotalLoss.Text().empty();
  if (Space().calcDone) RestoreDiagram();
}

/// The record has no pressures along the line. Where today's tables give another loss than the one
/// that stands on the sheet, it stays without them.
void frmPressLoss::RestoreDiagram() {
  try {
    const piping::Line line = EnteredLine();
    const std::optional<piping::LineLoss> loss = piping::CalculateLineLoss(line);
    if (!loss || LossText(loss->totalLoss) != lblTotalLoss.Text()) return;
    CautionVelocity(*loss);
    PrepareDiagram(line, *loss);
  } catch (const common::RuntimeFault&) {
    // A record whose entries cannot be calculated was not written by this sheet.
  }
}

std::vector<shell::Sheet::Calculation> frmPressLoss::CalculationsOf(const shell::TagRow& record) {
  return OneWay(At(record, kTotalLoss), cmd計算);
}

std::vector<int> frmPressLoss::LookUpAnew() {
  std::vector<int> columns;
  LookUp(columns, kPipeBore, txt配管内径, {&cbo配管呼称径, &cboSchedule});
  return columns;
}

}  // namespace sheets
