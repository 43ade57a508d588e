// The row of a cable duct in the duct store.

#include "common/number.h"
#include "sheets/frm_cable.h"

namespace sheets {

namespace {

using common::Val;
using shell::CableField;

/// A stored colour; one that is none is black.
forms::Color ColorOf(const std::string& text) {
  return text == std::to_string(forms::kRed) ? forms::kRed : forms::kBlack;
}

}  // namespace

std::vector<std::pair<int, forms::Control*>> frmCable::RecordFields() {
  std::vector<std::pair<int, forms::Control*>> fields = {
      {shell::kDuctName, &txtTagNo},        {shell::kDuctSpan, &txtSpan},
      {shell::kDuctSumArea, &lblSumArea},   {shell::kDuctWorkers, &txt作業員},
      {shell::kDuctWidth, &txtWidth},       {shell::kDuctHeight, &txtHeight},
      {shell::kDuctFoldIn, &txt折込},       {shell::kDuctThickness, &txtThickness},
      {shell::kDuctArea, &lblDuctArea},     {shell::kDuctFill, &lbl占積率},
      {shell::kDuctWeight, &lblDuctWeight}, {shell::kDuctSag, &lbl撓み}};
  for (int row = 0; row < kRows; ++row) {
    fields.insert(fields.end(), {{CableField(row, shell::kCableName), &lblCable[row]},
                                 {CableField(row, shell::kCableCores), &lbl芯数[row]},
                                 {CableField(row, shell::kCableSize), &lblSize[row]},
                                 {CableField(row, shell::kCableDia), &lblCableDia[row]},
                                 {CableField(row, shell::kCableUnitWeight), &lblUnitWeight[row]},
                                 {CableField(row, shell::kCableQuantity), &txt本数[row]},
                                 {CableField(row, shell::kCableTotalArea), &lblTotalArea[row]}});
  }
  return fields;
}

shell::DuctRow frmCable::Record() {
  shell::DuctRow record;
  for (const auto& [field, control] : RecordFields()) common::At(record, field) = control->Text();
  record[shell::kDuctSagColor] = std::to_string(lbl撓み.ForeColor());
  return record;
}

void frmCable::Show(const shell::DuctRow& record) {
  const Quiet quiet(*this);
  ClearResults();
  for (const auto& [field, control] : RecordFields()) control->SetText(common::At(record, field));
  for (int row = 0; row < kRows; ++row) {
    common::At(choices_, row) =
        ducts::FindCable(lblCable[row].Text(), lbl芯数[row].Text(), lblSize[row].Text());
  }
  SetSagColor(ColorOf(record[shell::kDuctSagColor]));
  Space().calcDone = false;
  ShowStoredResults(record);
}

/// The record does not hold the weights of the cables nor the class; they are worked out anew.
void frmCable::ShowStoredResults(const shell::DuctRow& record) {
  for (int row = 0; row < kRows; ++row) ClearRowWeights(row);
  for (const int row : CountedRows()) ShowRowWeights(row);
  ShowSumWeights(TotalLoad());
  ShowClass(Section().Class());
  const std::string& fill = record[shell::kDuctFill];
  ShowDrawing(fill.empty() ? std::optional<common::Real>() : Val(fill));
}

}  // namespace sheets
