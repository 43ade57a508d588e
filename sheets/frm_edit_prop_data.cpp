#include "sheets/frm_edit_prop_data.h"

#include "common/text.h"
#include "data/fluid_check.h"
#include "sheets/property_target.h"
#include "shell/data_file.h"
#include "shell/instrument_file.h"

namespace sheets {

namespace {

using data::FluidProperty;
using data::FluidTable;

constexpr const char* kLiquidFile = "Liqprop.dat";
constexpr const char* kGasFile = "Gasprop.dat";

struct Plot {
  FluidProperty property;
  const char* title;
};

constexpr std::array<Plot, frmEditPropData::kPlots> kLiquidPlots = {{
    {FluidProperty::kLiquidDensity, "密度 kg/m3"},
    {FluidProperty::kLiquidViscosity, "粘性係数 mPa･S"},
    {FluidProperty::kVapourPressure, "飽和蒸気圧 kPaA"},
}};
constexpr std::array<Plot, frmEditPropData::kPlots> kGasPlots = {{
    {FluidProperty::kGasDensity, "密度 kg/m3（1気圧）"},
    {FluidProperty::kGasViscosity, "粘性係数 mPa･S（1気圧）"},
    {FluidProperty::kHeatRatio, "比熱比"},
}};

/// What fields of the table hold, from one to the other.
struct FieldsHint {
  int first;
  int last;
  const char* hint;
};

constexpr FieldsHint kLiquidHints[] = {
    {data::kLiquidName, data::kLiquidName, "流体名。シートの流体の一覧に表示されます。"},
    {data::kLiquidDensityCode, data::kLiquidDensityCode, "密度推算式の種類。"},
    {data::kLiquidDensityA, data::kLiquidDensityLow - 1, "密度推算式の係数（結果は kg/m3）。"},
    {data::kLiquidDensityLow, data::kLiquidDensityHigh, "密度推算式を使える温度の範囲。"},
    {data::kLiquidViscosityCode, data::kLiquidViscosityCode, "粘性係数推算式の種類。"},
    {data::kLiquidViscosityA, data::kLiquidViscosityLow - 1,
     "粘性係数推算式の係数（結果は mPa･s）。"},
    {data::kLiquidViscosityLow, data::kLiquidViscosityHigh, "粘性係数推算式を使える温度の範囲。"},
    {data::kLiquidCriticalPressure, data::kLiquidCriticalPressure,
     "臨界圧力（絶対圧）。通常 2～22 MPa。"},
    {data::kLiquidVapourCode, data::kLiquidVapourCode, "蒸気圧推算式の種類。"},
    {data::kLiquidVapourA, data::kLiquidVapourLow - 1, "蒸気圧推算式の係数（結果は kgf/cm2A）。"},
    {data::kLiquidVapourLow, data::kLiquidVapourHigh, "蒸気圧推算式を使える温度の範囲。"},
    {data::kLiquidVapourHigh + 1, frmEditPropData::kFields - 1, "備考。計算には使いません。"}};

constexpr FieldsHint kGasHints[] = {
    {data::kGasName, data::kGasName, "流体名。シートの流体の一覧に表示されます。"},
    {data::kGasMolecularWeight, data::kGasMolecularWeight, "分子量。通常 2～200。"},
    {data::kGasNormalDensity, data::kGasNormalDensity,
     "標準状態（0 ℃、1 気圧）の密度。0 では分子量から求めます。"},
    {data::kGasCriticalPressure, data::kGasCriticalPressure,
     "臨界圧力（絶対圧）。通常 0.2～22 MPa。"},
    {data::kGasCriticalTemperature, data::kGasCriticalTemperature,
     "臨界温度（絶対温度）。通常 5～700 K。"},
    {data::kGasNormalCompressibility, data::kGasNormalCompressibility,
     "標準状態の圧縮係数。通常 0.95～1、0 では臨界値から求めます。"},
    {data::kGasViscosityCode, data::kGasViscosityCode, "粘性係数推算式の種類。"},
    {data::kGasViscosityA, data::kGasViscosityLow - 1, "粘性係数推算式の係数（結果は mPa･s）。"},
    {data::kGasViscosityLow, data::kGasViscosityHigh, "粘性係数推算式を使える温度の範囲。"},
    {data::kGasHeatCode, data::kGasHeatCode, "比熱比推算式の種類。"},
    {data::kGasHeatA, data::kGasHeatLow - 1, "比熱比推算式の係数（理想気体の比熱）。"},
    {data::kGasHeatLow, data::kGasHeatHigh, "比熱比推算式を使える温度の範囲。"},
    {data::kGasHeatHigh + 1, frmEditPropData::kFields - 1, "備考など。計算には使いません。"}};

/// Refuses what the file cannot hold, with the fluid that has it.
void CheckStorable(const FluidTable& table) {
  for (const FluidTable::Record& fluid : table.fluids) {
    for (const std::string& text : fluid) {
      shell::CheckStorable("流体「" + fluid[data::kLiquidName] + "」", text);
    }
  }
}

}  // namespace

frmEditPropData::frmEditPropData(shell::Workspace& workspace)
    : Sheet(workspace, kKind, "物性推算用データベース") {
  Option1.onClick = [this] { Option_Click(data::kLiquid); };
  Option2.onClick = [this] { Option_Click(data::kGas); };
  TabStrip1.onClick = [this] { TabStrip1_Click(); };
  for (int field = 0; field < kFields; ++field) {
    txtItemData[field].onChange = [this, field] { txtItemData_Change(field); };
    txtItemData[field].onArrow = [this, field](forms::Arrow arrow) {
      return StepFrom(field, arrow);
    };
  }
  for (int plot = 0; plot < kPlots; ++plot) {
    picProperty[plot].onPaint = [this, plot](forms::DrawSurface& surface) {
      DrawPropertyCurve(surface, picProperty[plot], common::At(curves_, plot));
    };
  }
  cmdDeleteProp.onClick = [this] { cmdDeleteProp_Click(); };
  cmdSaveProp.onClick = [this] { Save(); };
  DeclareLayout();
}

void frmEditPropData::Load() {
  const Quiet quiet(*this);
  // What could not be read is neither edited nor written over.
  std::string unread;
  for (const auto& [option, file] : {std::pair(&Option1, kLiquidFile), {&Option2, kGasFile}}) {
    option->SetEnabled(Space().tables.IsRead(file));
    if (!option->Enabled()) unread += std::string("\n") + file;
  }
  if (!unread.empty()) {
    User().Show("次のデータファイルが読み込まれていないため、編集できません。" + unread, {},
                common::Icon::kWarning);
  }
  phase_ = Option1.Enabled() || !Option2.Enabled() ? data::kLiquid : data::kGas;
  (phase_ == data::kLiquid ? Option1 : Option2).SetChecked(true);
  ShowTable();
  ShowModified();
}

data::FluidTable& frmEditPropData::Table() const {
  return phase_ == data::kLiquid ? Space().tables.liquids : Space().tables.gases;
}

std::string& frmEditPropData::Cell(int field) const {
  return common::At(common::At(Table().fluids, fluid_), field);
}

void frmEditPropData::Option_Click(data::FluidPhase phase) {
  phase_ = phase;
  ShowTable();
}

void frmEditPropData::TabStrip1_Click() {
  fluid_ = TabStrip1.Index();
  ShowFluid();
}

void frmEditPropData::ShowTable() {
  const Quiet quiet(*this);
  for (int field = 0; field < kFields; ++field) {
    lblItemName[field].SetText(common::At(Table().headers, field));
  }
  const auto tell = [this](const auto& hints) {
    for (const FieldsHint& row : hints) {
      for (int field = row.first; field <= row.last; ++field) txtItemData[field].SetHint(row.hint);
    }
  };
  if (phase_ == data::kLiquid) {
    tell(kLiquidHints);
  } else {
    tell(kGasHints);
  }
  TabStrip1.SetItems(Table().Names());
  if (TabStrip1.Count() > 0) TabStrip1.SetIndex(0);
  TabStrip1_Click();
}

void frmEditPropData::ShowFluid() {
  const Quiet quiet(*this);
  for (int field = 0; field < kFields; ++field) {
    forms::TextBox& box = txtItemData[field];
    box.SetEnabled(IsShown());
    box.SetText(IsShown() ? Cell(field) : std::string());
  }
  cmdDeleteProp.SetEnabled(IsShown());
  ShowJudgement();
}

void frmEditPropData::ShowJudgement() {
  for (int field = 0; field < kFields; ++field) {
    const std::string remark =
        IsShown() ? data::FluidCellRemark(phase_, common::At(Table().fluids, fluid_), field)
                  : std::string();
    const std::string codes = data::EquationCodes(phase_, field);
    std::string tip = remark;
    if (!remark.empty() && !codes.empty()) tip += '\n';
    tip += codes;
    txtItemData[field].SetBackColor(remark.empty() ? forms::kWhite : forms::kDoubtful);
    txtItemData[field].SetToolTip(tip);
  }
  for (int plot = 0; plot < kPlots; ++plot) {
    common::At(curves_, plot) = CurveOf(plot);
    picProperty[plot].SetAccessibleName(common::At(curves_, plot).title + " の推算曲線");
    picProperty[plot].Redraw();
  }
}

PropertyCurve frmEditPropData::CurveOf(int plot) const {
  const Plot& shown = common::At(phase_ == data::kLiquid ? kLiquidPlots : kGasPlots, plot);
  PropertyCurve curve;
  curve.title = shown.title;
  curve.logarithmic = shown.property == FluidProperty::kVapourPressure;
  if (!IsShown()) return curve;
  const shell::Tables& tables = Space().tables;
  curve.points = data::PropertyOverRange(tables.liquids, tables.gases, fluid_, shown.property);
  const std::string& code = Cell(data::FieldsOf(shown.property).code);
  const bool hasEquation = code.find_first_not_of(" 0") != std::string::npos;
  curve.hint = curve.title + (hasEquation ? "：図を描けません" : "：推算式なし");
  return curve;
}

void frmEditPropData::txtItemData_Change(int field) {
  if (!IsShown()) return;
  // Names are shown and compared by text, so they take the form of a file at once.
  const std::string stored = common::CodePageForm(txtItemData[field].Text());
  if (Cell(field) == stored) return;
  Cell(field) = stored;
  if (field == data::kLiquidName) TabStrip1.SetItem(fluid_, stored);
  Changed();
}

/// Up and down walk through the fields in the order of the file; left and right are the field's.
bool frmEditPropData::StepFrom(int field, forms::Arrow arrow) {
  if (arrow != forms::Arrow::kUp && arrow != forms::Arrow::kDown) return false;
  const int next = field + (arrow == forms::Arrow::kDown ? 1 : -1);
  if (next >= 0 && next < kFields) SetFocus(txtItemData[next]);
  return true;
}

void frmEditPropData::cmdDeleteProp_Click() {
  if (!IsShown()) return;
  if (!User().Ask("【 " + Cell(data::kLiquidName) + " 】の物性データを削除してもいいですか")) {
    return;
  }
  std::vector<FluidTable::Record>& fluids = Table().fluids;
  fluids.erase(fluids.begin() + fluid_);
  fluids.emplace_back();
  // The page now shows the fluid that has moved up.
  for (int fluid = 0; fluid < TabStrip1.Count(); ++fluid) {
    TabStrip1.SetItem(fluid, common::At(fluids, fluid)[data::kLiquidName]);
  }
  ShowFluid();
  Changed();
}

void frmEditPropData::Changed() {
  Space().fluidsModified = true;
  ShowModified();
  ShowJudgement();
  for (forms::Form* form : Space().forms.Open()) {
    if (auto* const user = dynamic_cast<FluidUser*>(form)) user->FluidsChanged();
  }
}

void frmEditPropData::ShowModified() {
  lbl変更.SetText(Space().fluidsModified ? "保存していない変更があります。" : "");
}

/// Writes both files. A failed save is told and gives nothing up: the edits stay in the tables,
/// marked as unsaved, even when the form is about to go.
void frmEditPropData::Save() {
  const shell::Tables& tables = Space().tables;
  for (const auto& [file, table] :
       {std::pair(kLiquidFile, &tables.liquids), {kGasFile, &tables.gases}}) {
    if (!tables.IsRead(file)) continue;
    const bool saved =
        shell::SaveDataFile(Space(), file, Space().fluidsModified, [&tables, table = table] {
          // Both, so that one that cannot be saved leaves both files alone.
          for (const FluidTable* each : {&tables.liquids, &tables.gases}) CheckStorable(*each);
          return data::WriteFluidTable(*table);
        });
    if (!saved) return;
  }
  ShowModified();
}

void frmEditPropData::Unload() {
  if (Space().fluidsModified && User().Ask("物性データが変更されています。保存しますか")) Save();
  Sheet::Unload();
}

void frmEditPropData::DeclareLayout() {
  constexpr int kRows = kFields / kPlots;
  std::vector<forms::Block> columns;
  for (int plot = 0; plot < kPlots; ++plot) {
    std::vector<forms::Line> lines;
    for (int field = plot * kRows; field < (plot + 1) * kRows; ++field) {
      lines.push_back({lblItemName[field], forms::Cell(txtItemData[field]).Wide(11)});
    }
    columns.push_back(
        forms::Stretched(forms::Group("", forms::Column({
                                              forms::Table(std::move(lines)),
                                              forms::Stretched(forms::Table({{picProperty[plot]}})),
                                          }))));
  }
  SetLayout(forms::Column({
      forms::Stretched(forms::Row({
          forms::Group("流体", forms::Column({
                                   forms::Table({{Option1, Option2}}),
                                   forms::Stretched(forms::Table({{TabStrip1}})),
                               })),
          forms::Stretched(forms::Row(std::move(columns))),
      })),
      forms::Buttons({cmdDeleteProp, {}, lbl変更, cmdSaveProp}),
  }));
}

}  // namespace sheets
