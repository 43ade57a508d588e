// The tag record of the valve sheet.

#include <algorithm>

#include "common/number.h"
#include "sheets/frm_cv.h"
#include "sheets/record_fields.h"

namespace sheets {

namespace {

using common::Val;

/// Columns of the record that are more than a field of the sheet, or that are looked at by
/// themselves.
enum Column {
  kFluid = 2,
  kSecondary = 7,
  kPressureKind = 8,
  kRequiredCv = 24,
  kMaker = 25,
  kValveBore = 26,
  kModel = 27,
  kFlangeRating = 28,
  kFL = 29,
  kNoiseCoefficient = 30,
  kFd = 32,
  kRatedCv = 33,
  kRangeability = 34,
  kCharacteristic = 35,
  kCharacteristicIndex = 36,
  kBodySize = 37,
  kMaterial = 42,
  kMaterialIndex = 43,
  kWallWeight = 44,
  kSizedCv = 45,
  kVelocityColour = 49,
};

}  // namespace

TagColumns frmCV::RecordColumns() {
  return {{{4, &FlowUnitBox()},
           {6, &cbo圧力単位},
           {10, &cbo差圧単位},
           {12, &cbo温度単位},
           {14, &DensityUnitBox()},
           {16, &cbo粘性係数単位},
           {18, &vapour.cbo飽和蒸気圧単位},
           {20, &critical.cbo臨界圧力単位}},
          {{0, &txtTagNo},
           {1, &txt用途},
           {3, &txt流量},
           {5, &txt圧力},
           {9, &txt差圧},
           {11, &txt温度},
           {13, &txt密度},
           {15, &txt粘性係数},
           {17, &vapour.txt飽和蒸気圧},
           {19, &critical.txt臨界圧力},
           {21, &txt偏差係数},
           {22, &txt比熱比},
           {kValveBore, &txt弁口径},
           {kFL, &txtFL},
           {kNoiseCoefficient, &txtN係数},
           {31, &txtValveSize},
           {kFd, &txt弁Fd},
           {kRatedCv, &txtCvv},
           {kRangeability, &txtRangeability},
           {38, &txt上流配管外径},
           {39, &txt上流配管厚},
           {40, &txt下流配管外径},
           {41, &txt下流配管厚},
           {kWallWeight, &txtWallWeight}},
          {{23, &lblFCI計算Cv},
           {kRequiredCv, &lblISA計算Cv},
           {kSizedCv, &lblSizingCv},
           {46, &lblOpening},
           {47, &lblVelocity},
           {48, &lblNoise}}};
}

void frmCV::AddCV(int row) {
  PutRecord(row, kFluid, RecordColumns());
  RecordWriter record(Space().tags, row);
  record.PutFlag(kSecondary, secondaryPressure_);
  record.Put(kPressureKind, lbl差圧.Text());
  record.Put(kMaker, cboMaker.Text());
  record.Put(kModel, cboValveModel.Text());
  record.Put(kFlangeRating, flangeRating_);
  record.Put(kCharacteristic, cboCharact.Text());
  record.PutIndex(kCharacteristicIndex, cboCharact);
  record.Put(kBodySize, cboBodySize.Text());
  record.Put(kMaterial, cbo配管材質.Text());
  record.PutIndex(kMaterialIndex, cbo配管材質);
  record.Put(kVelocityColour, std::to_string(lblVelocity.ForeColor()));
}

/// The selections come before the entries, which a maker, a model or a material would fill.
void frmCV::GetCV(int row) {
  const shell::TagRow& record = Space().tags.Row(row);
  if (record[shell::kKindColumn] != kKind) return;
  ClearResults();
  Select(cbo流体, record[kFluid]);
  const TagColumns columns = RecordColumns();
  columns.GetSelections(record);
  ShowPressureKind(IsSet(record[kSecondary]));
  GetValve(record);
  columns.GetEntries(record);
  StoreEntries();
  columns.GetResults(record);
  GetFindings(record);
}

/// A maker, model or material that is no longer listed keeps its text without a selection, and
/// nothing is looked up: what was stored holds.
void frmCV::GetValve(const shell::TagRow& record) {
  const Quiet quiet(*this);
  cboMaker.SetText(record[kMaker]);
  FillModels();
  cboValveModel.SetText(record[kModel]);
  const int characteristic = valve::CharacteristicIndex(record[kCharacteristicIndex]);
  if (characteristic >= 0) {
    cboCharact.SetIndex(characteristic);
  } else {
    cboCharact.SetText(record[kCharacteristic]);
  }
  cboBodySize.SetText(record[kBodySize]);
  cbo配管材質.SetText(record[kMaterial]);
  flangeRating_ = record[kFlangeRating];
  lblフランジ規格.SetText(flangeRating_);
}

void frmCV::GetFindings(const shell::TagRow& record) {
  const Quiet quiet(*this);
  lblVelocity.SetForeColor(common::IntIndex(Val(record[kVelocityColour])));
  Space().calcDone = !lblISA計算Cv.Text().empty();
  if (Space().calcDone) {
    RestoreFindings();
    // It reads as a calculation does, which fills defaults in; what was stored holds.
    GetValve(record);
    RecordColumns().GetEntries(record);
  }
  pic特性.Redraw();
}

/// A valve may have been chosen or not.
std::vector<shell::Sheet::Calculation> frmCV::CalculationsOf(const shell::TagRow& record) {
  if (record[kRequiredCv].empty()) return {};
  const bool sized = !record[kSizedCv].empty();
  return {{"", [this, sized] {
             if (!Calculate(cmdCv計算)) return false;
             if (sized) cmdSizing.Click();
             return !sized || !lblNoise.Text().empty();  // the noise is the last result
           }}};
}

std::vector<int> frmCV::LookUpAnew() {
  std::vector<int> columns;
  if (cboMaker.Index() >= 0 && cboValveModel.Index() >= 0) {
    const std::string trim = txtValveSize.Text();
    const std::string ratedCv = txtCvv.Text();
    cboValveModel_Click();
    columns = {kFL, kNoiseCoefficient, kFd, kCharacteristic};
    if (const int row = TrimRow(trim, ratedCv); row >= 0) {
      TakeTrim(row);
      columns.insert(columns.end(), {kRatedCv, kRangeability});
    }
  }
  const auto& ratings = valve::kFlangeRatings;
  const auto rating = std::find(ratings.begin(), ratings.end(), flangeRating_);
  if (rating != ratings.end() && cboBodySize.Index() >= 0) {
    txt弁口径.SetText(common::At(
        common::At(Tables().valveDiameters.valveDia, static_cast<int>(rating - ratings.begin())),
        cboBodySize.Index()));
    columns.push_back(kValveBore);
  }
  if (cbo配管材質.Index() >= 0) {
    cbo配管材質_Click();
    columns.push_back(kWallWeight);
  }
  return columns;
}

/// The catalogue's row of a trim size of the selected model, -1 for none. One size may stand there
/// with more than one Cv.
int frmCV::TrimRow(const std::string& size, const std::string& ratedCv) const {
  const valve::ValveCatalogue& valves = Tables().valves;
  const int maker = cboMaker.Index();
  const int model = cboValveModel.Index();
  const auto& sizes = common::At(common::At(valves.valveSize, maker), model);
  const auto& cvs = common::At(common::At(valves.valveCv, maker), model);
  int found = -1;
  for (int row = 0; row < valve::ValveCatalogue::kTrims; ++row) {
    if (size.empty() || common::At(sizes, row) != size) continue;
    if (common::At(cvs, row) == ratedCv) return row;
    if (found < 0) found = row;
  }
  return found;
}

}  // namespace sheets
