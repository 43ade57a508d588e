#include "sheets/process_sheet.h"

#include <utility>

#include "common/number.h"
#include "common/text.h"
#include "data/steam.h"
#include "data/units.h"
#include "sheets/cautions.h"
#include "sheets/frm_fluid_names.h"
#include "sheets/frm_pipe_dia.h"
#include "sheets/record_fields.h"

namespace sheets {

namespace {

using common::NumberText;
using common::Val;

std::string DoubleClickTip(const std::string& does) { return "ダブルクリックで" + does; }

/// Runs a conversion of an entry that may not be complete yet; a fault leaves 0.
template <class Conversion>
Real Quietly(Conversion conversion) {
  try {
    return conversion();
  } catch (const common::RuntimeFault&) {
    return 0;
  }
}

}  // namespace

HumidityFields::HumidityFields(Form& form)
    : lbl相対湿度(form, "lbl相対湿度", "相対湿度"),
      txt相対湿度(form, "txt相対湿度", forms::NumberKeys),
      lbl相対湿度単位(form, "lbl相対湿度単位", "%", LabelStyle::kUnit),
      lbl飽和水蒸気圧(form, "lbl飽和水蒸気圧", "飽和水蒸気圧"),
      txt飽和水蒸気圧(form, "txt飽和水蒸気圧", forms::NumberKeys),
      cbo飽和水蒸気圧単位(form, "cbo飽和水蒸気圧単位") {}

VapourPressureFields::VapourPressureFields(Form& form)
    : lbl飽和蒸気圧(form, "lbl飽和蒸気圧", "飽和蒸気圧"),
      txt飽和蒸気圧(form, "txt飽和蒸気圧", forms::NumberKeys),
      cbo飽和蒸気圧単位(form, "cbo飽和蒸気圧単位") {}

CriticalPressureFields::CriticalPressureFields(Form& form)
    : lbl臨界圧力(form, "lbl臨界圧力", "臨界圧力"),
      txt臨界圧力(form, "txt臨界圧力", forms::NumberKeys),
      cbo臨界圧力単位(form, "cbo臨界圧力単位") {}

BaseFields::BaseFields(Form& form)
    : lbl計算基準(form, "lbl計算基準", "計算基準"),
      optWetBase(form, "optWetBase", "湿り基準（Wet Base）", "base"),
      optDryBase(form, "optDryBase", "乾燥基準（Dry Base）", "base") {}

ProcessSheet::ProcessSheet(shell::Workspace& workspace, const std::string& kind,
                           std::string caption)
    : Sheet(workspace, kind, std::move(caption)) {
  cbo流体.onClick = [this] { cbo流体_Click(); };
  for (ComboBox* box : {&cbo流量単位L, &cbo流量単位G, &cbo流量単位S}) {
    box->onClick = [this] { cbo流量単位_Click(); };
  }
  for (TextBox* box : {&txt圧力, &txt温度}) Watch(*box);
  for (ComboBox* box : {&cbo圧力単位, &cbo温度単位, &cbo密度単位L, &cbo密度単位G, &cbo密度単位S,
                        &cbo粘性係数単位}) {
    Watch(*box);
  }
  OfferProperty(lbl密度, txt密度, "密度");
  OfferProperty(lbl粘性係数, txt粘性係数, "粘性係数");
  txt温度.onDblClick = [this] { FillTemperature(); };
  txt温度.SetToolTip("蒸気ではダブルクリックで飽和温度を入力します。");
}

void ProcessSheet::UseFields(const OptionalFields& fields) {
  fields_ = fields;
  if (fields_.humidity != nullptr) {
    HumidityFields& humidity = *fields_.humidity;
    humidity.txt相対湿度.onChange = [this] {
      SwitchHumidity();
      StoreEntries();
      ClearResults();
    };
    Watch(humidity.txt飽和水蒸気圧);
    Watch(humidity.cbo飽和水蒸気圧単位);
    OfferEntry(humidity.lbl飽和水蒸気圧, humidity.txt飽和水蒸気圧,
               [this] { FillSaturationPressure(); });
  }
  if (fields_.base != nullptr) {
    for (OptionButton* option : {&fields_.base->optWetBase, &fields_.base->optDryBase}) {
      option->onClick = [this] {
        StoreEntries();
        ClearResults();
      };
    }
  }
  if (fields_.deviation != nullptr) {
    OfferProperty(*fields_.deviationLabel, *fields_.deviation, "偏差係数");
  }
  if (fields_.kappa != nullptr) {
    TextBox& kappa = *fields_.kappa;
    OfferProperty(*fields_.kappaLabel, kappa, "比熱比");
    kappa.onChange = [changed = kappa.onChange, &kappa] {
      kappa.SetToolTip(DoubleClickTip(kEstimates));  // a caution belongs to the value that has gone
      changed();
    };
  }
  if (fields_.vapour != nullptr) {
    VapourPressureFields& vapour = *fields_.vapour;
    Watch(vapour.cbo飽和蒸気圧単位);
    OfferProperty(vapour.lbl飽和蒸気圧, vapour.txt飽和蒸気圧, "飽和蒸気圧");
  }
  if (fields_.critical != nullptr) {
    CriticalPressureFields& critical = *fields_.critical;
    Watch(critical.cbo臨界圧力単位);
    OfferProperty(critical.lbl臨界圧力, critical.txt臨界圧力, "臨界圧力");
  }
}

void ProcessSheet::Watch(TextBox& box) {
  box.onChange = [this, &box] {
    box.SetForeColor(forms::kBlack);
    StoreEntries();
    ClearResults();
  };
}

void ProcessSheet::Watch(ComboBox& box) {
  box.onClick = [this] {
    StoreEntries();
    ClearResults();
  };
  box.onChange = box.onClick;
}

void ProcessSheet::OfferEntry(Label& label, TextBox& box, const std::function<void()>& fill,
                              const std::string& does) {
  box.onDblClick = [&box, fill] {
    if (box.Usable()) fill();
  };
  label.onClick = box.onDblClick;
  box.SetToolTip(DoubleClickTip(does));
  label.SetToolTip("クリックで" + does);
}

void ProcessSheet::OfferProperty(Label& label, TextBox& box, const char* word) {
  Watch(box);
  OfferEntry(label, box, [this, word] { FillFromFluidOrSteam(word); });
}

void ProcessSheet::FillList(ComboBox& box, const std::vector<std::string>& items) {
  box.SetItems(items);
  if (box.Count() > 0) box.SetIndex(0);
}

void ProcessSheet::MaterialsChanged() {
  const Quiet quiet(*this);
  for (ComboBox* list : materialLists_) ShowMaterialNames(*list, Tables().materials);
}

void ProcessSheet::Load() {
  const Quiet quiet(*this);
  const data::ConvertLists& lists = Tables().lists;
  FillList(cbo流体, lists.fluids);
  FillList(cbo流量単位L, lists.liquidFlowUnits);
  FillList(cbo流量単位G, lists.gasFlowUnits);
  FillList(cbo流量単位S, data::kSteamFlowUnits);
  FillList(cbo圧力単位, lists.pressureUnits);
  FillList(cbo温度単位, lists.temperatureUnits);
  FillList(cbo密度単位L, data::kLiquidDensityUnits);
  FillList(cbo密度単位G, lists.gasDensityUnits);
  FillList(cbo密度単位S, data::kSteamDensityUnits);
  FillList(cbo粘性係数単位, lists.viscosityUnits);
  if (fields_.humidity != nullptr) {
    FillList(fields_.humidity->cbo飽和水蒸気圧単位, lists.vapourPressureUnits);
  }
  if (fields_.base != nullptr) fields_.base->optWetBase.SetChecked(true);
  if (fields_.vapour != nullptr) {
    FillList(fields_.vapour->cbo飽和蒸気圧単位, lists.vapourPressureUnits);
  }
  if (fields_.critical != nullptr) {
    FillList(fields_.critical->cbo臨界圧力単位, lists.vapourPressureUnits);
  }
  ShowUnitsOfPhase();
}

void ProcessSheet::Activate() {
  Sheet::Activate();
  StoreEntries();
}

void ProcessSheet::Unload() {
  Sheet::Unload();
  if (Form* const names = Space().forms.Find(frm流体名表示::kName)) Space().forms.Unload(*names);
}

void ProcessSheet::OnFault(const forms::Control* source, const common::RuntimeFault& fault) {
  if (source != nullptr && source->Name() == "cmd計算") ClearResults();
  Sheet::OnFault(source, fault);
}

ComboBox& ProcessSheet::FlowUnitBox() {
  return IsGas() ? cbo流量単位G : IsSteam() ? cbo流量単位S : cbo流量単位L;
}

ComboBox& ProcessSheet::DensityUnitBox() {
  return IsGas() ? cbo密度単位G : IsSteam() ? cbo密度単位S : cbo密度単位L;
}

void ProcessSheet::FillPipeBore(const ComboBox& size, const ComboBox& schedule, TextBox& bore) {
  const std::optional<Real> found = Tables().pipes.InnerDiameter(size.Index(), schedule.Index());
  if (!found || *found <= 0) {
    User().Show("該当の配管はありません。");
    bore.SetText("0");
    return;
  }
  bore.SetText(NumberText(*found));
}

void ProcessSheet::OfferPipe(Label& label, ComboBox& size, ComboBox& schedule, TextBox& bore) {
  const auto fill = [this, &size, &schedule, &bore] { FillPipeBore(size, schedule, bore); };
  OfferEntry(label, bore, fill, "呼称径とスケジュールから入力します。");
  bore.onRightClick = [this] { Space().forms.Show(frmPipeDia::kName); };
  for (ComboBox* box : {&size, &schedule}) {
    box->onChange = [this] { ClearResults(); };
    box->onClick = [this, &size, &schedule, fill] {
      ClearResults();
      if (size.Index() >= 0 && schedule.Index() >= 0) fill();
    };
  }
}

void ProcessSheet::ClearData() {
  EmptyTextBoxes();
  if (cbo流体.Count() > 0) cbo流体.Pick(data::kLiquid);
  ClearResults();
  SetFocus(txtTagNo);
}

void ProcessSheet::PutRecord(int row, int fluidColumn, const TagColumns& columns) {
  shell::TagStore& tags = Space().tags;
  columns.Put(tags, row);
  RecordWriter record(tags, row);
  record.PutIndex(fluidColumn, cbo流体);
  record.Put(shell::kKindColumn, Space().activeSheetKind);
  tags.tagModified = true;
}

const shell::TagRow* ProcessSheet::GetRecord(int row, int fluidColumn,
                                             const std::function<TagColumns()>& columns) {
  const shell::TagRow& record = Space().tags.Row(row);
  if (At(record, shell::kKindColumn) != Entry().kind) return nullptr;
  ClearResults();
  Select(cbo流体, At(record, fluidColumn));
  const TagColumns named = columns();
  named.GetSelections(record);
  named.GetEntries(record);
  StoreEntries();
  named.GetResults(record);
  return &record;
}

bool ProcessSheet::Calculate(Button& button) {
  ClearResults();
  button.Click();
  return Space().calcDone && !Space().calcFailed;
}

std::vector<shell::Sheet::Calculation> ProcessSheet::OneWay(const std::string& result,
                                                            Button& button) {
  if (common::IsBlank(result)) return {};
  return {{"", [this, &button] { return Calculate(button); }}};
}

void ProcessSheet::LookUp(std::vector<int>& columns, int column, TextBox& box,
                          const std::vector<const ComboBox*>& selections) {
  const bool listed =
      std::all_of(selections.begin(), selections.end(),
                  [](const ComboBox* selection) { return selection->Index() >= 0; });
  if (!listed) return;
  box.DblClick();
  columns.push_back(column);
}

forms::Block ProcessSheet::SheetBlock(Label& heading, forms::Block body) {
  return forms::Column(
      {forms::Table({{heading}}),
       forms::Table({{lblTagNo, Cell(txtTagNo).Wide(28), lbl用途, Cell(txt用途).Wide(40)}}),
       forms::Stretched(std::move(body))});
}

void ProcessSheet::EmptyTextBoxes() {
  const Quiet quiet(*this);
  for (forms::Control* control : Controls()) {
    if (auto* const box = dynamic_cast<TextBox*>(control)) box->SetText("");
  }
}

void ProcessSheet::SwitchField(TextBox& box, bool on) {
  box.SetBackColor(on ? forms::kWhite : forms::kButtonFace);
  box.SetEnabled(on);
  if (!on) box.SetText("");
}

void ProcessSheet::ShowUnitsOfPhase() {
  const auto show = [this](ComboBox& liquid, ComboBox& gas, ComboBox& steam) {
    liquid.SetVisible(!IsGas() && !IsSteam());
    gas.SetVisible(IsGas());
    steam.SetVisible(IsSteam());
  };
  if (fields_.humidity != nullptr) {
    SwitchField(fields_.humidity->txt相対湿度, IsGas());
    SwitchHumidity();
  }
  if (fields_.deviation != nullptr) SwitchField(*fields_.deviation, IsGas());
  if (fields_.kappa != nullptr) SwitchField(*fields_.kappa, IsGas() || IsSteam());
  // A pressure left over from a liquid would be taken for one of the gas.
  if (fields_.vapour != nullptr) {
    SwitchField(fields_.vapour->txt飽和蒸気圧, IsLiquid());
    fields_.vapour->cbo飽和蒸気圧単位.SetEnabled(IsLiquid());
  }
  if (fields_.critical != nullptr) {
    SwitchField(fields_.critical->txt臨界圧力, IsLiquid());
    fields_.critical->cbo臨界圧力単位.SetEnabled(IsLiquid());
  }
  show(cbo流量単位L, cbo流量単位G, cbo流量単位S);
  show(cbo密度単位L, cbo密度単位G, cbo密度単位S);
  if (fields_.secondFlowUnit != nullptr) fields_.secondFlowUnit->SetText(FlowUnitBox().Text());
}

void ProcessSheet::cbo流体_Click() {
  Process().fluidPhase = Phase();
  ShowUnitsOfPhase();
  StoreEntries();
  ClearResults();
  SetFocus(cbo粘性係数単位);
  UpdateFluidList();
}

void ProcessSheet::cbo流量単位_Click() {
  if (fields_.secondFlowUnit != nullptr) fields_.secondFlowUnit->SetText(FlowUnitBox().Text());
  StoreEntries();
  ClearResults();
}

/// The saturation pressure and the choice of base have a meaning for a humid gas alone.
void ProcessSheet::SwitchHumidity() {
  const Real humidity = Quietly([this] { return Val(fields_.humidity->txt相対湿度.Text()); });
  const bool humid = IsGas() && humidity != 0;
  SwitchField(fields_.humidity->txt飽和水蒸気圧, humid);
  fields_.humidity->cbo飽和水蒸気圧単位.SetEnabled(humid);
  if (fields_.base == nullptr) return;
  fields_.base->optWetBase.SetEnabled(humid);
  fields_.base->optDryBase.SetEnabled(humid);
}

/// The list belongs to the sheet on top; one that nobody sees leaves it alone.
void ProcessSheet::UpdateFluidList() {
  if (Space().forms.ActiveSheet() != this) return;
  auto* const names = dynamic_cast<frm流体名表示*>(Space().forms.Find(frm流体名表示::kName));
  if (names == nullptr) return;
  if (IsSteam()) {
    Space().forms.Unload(*names);
  } else {
    names->FillNames();
  }
}

void ProcessSheet::StoreUnits() {
  data::ProcessState& process = Process();
  process.fluidPhase = Phase();
  process.flowUnit = FlowUnitBox().Index();
  process.pressureUnit = cbo圧力単位.Index();
  process.temperatureUnit = cbo温度単位.Index();
  process.densityUnit = DensityUnitBox().Index();
  process.viscosityUnit = cbo粘性係数単位.Index();
}

void ProcessSheet::ReadConditions() {
  data::ProcessState& process = Process();
  StoreUnits();
  process.pressureAbs = data::PressureToAbsolute(Val(txt圧力.Text()), process.pressureUnit);
  process.temperatureC = data::TemperatureToCelsius(process, Val(txt温度.Text()));
  process.temperatureK = process.temperatureC + 273.15;
  process.flowBasis = data::kWetBase;
  process.relativeHumidity = 0;
  process.saturationPressure = 0;
  process.compressibilityZ = 1;
}

void ProcessSheet::ReadMoisture() {
  if (!IsGas() || fields_.humidity == nullptr) return;
  data::ProcessState& process = Process();
  const HumidityFields& fields = *fields_.humidity;
  process.relativeHumidity = common::Single(Val(fields.txt相対湿度.Text()));
  if (fields_.base != nullptr) {
    process.flowBasis = fields_.base->optWetBase.Checked() ? data::kWetBase : data::kDryBase;
  }
  if (process.relativeHumidity == 0) return;
  process.saturationPressureUnit = fields.cbo飽和水蒸気圧単位.Index();
  process.saturationPressure = data::VapourPressureToAbsolute(Val(fields.txt飽和水蒸気圧.Text()),
                                                              process.saturationPressureUnit);
}

bool ProcessSheet::ReadHumidity() {
  ReadMoisture();
  if (Process().relativeHumidity == 0 || Process().saturationPressure != 0) return true;
  User().Show("飽和蒸気圧力が入力されていません");
  return false;
}

void ProcessSheet::ReadDeviation(const std::string& name) {
  if (!IsGas() || fields_.deviation == nullptr) return;
  TextBox& box = *fields_.deviation;
  if (Val(box.Text()) == 0) {
    User().Show(name + "が入力されていないので\n1として計算します");
    box.SetText("1");
  }
  Process().compressibilityZ = Val(box.Text());
}

void ProcessSheet::ReadKappa() {
  if (IsLiquid() || fields_.kappa == nullptr) return;
  if (Val(fields_.kappa->Text()) != 0) return;
  User().Show("ｱｲｾﾞﾝﾄﾛﾋﾟｯｸ指数が入力されていないので\n1.4として計算します");
  fields_.kappa->SetText("1.4");
}

void ProcessSheet::ReadDensities() {
  data::ProcessState& process = Process();
  process.waterVapourDensity = data::SaturatedWaterVapourDensity(process);
  process.densityBase = data::DensityToNormal(process, Val(txt密度.Text()));
  process.densityFlow = data::NormalDensityAtFlowState(process);
  process.viscosityCp = data::ViscosityToPoise(process, Val(txt粘性係数.Text()));
}

void ProcessSheet::StoreEntries() {
  data::ProcessState& process = Process();
  const auto value = [](const TextBox* box) {
    return box == nullptr ? Real(0) : Quietly([&] { return Val(box->Text()); });
  };
  StoreUnits();
  process.pressureAbs =
      Quietly([&] { return data::PressureToAbsolute(value(&txt圧力), process.pressureUnit); });
  process.temperatureC =
      Quietly([&] { return data::TemperatureToCelsius(process, value(&txt温度)); });
  process.temperatureK = process.temperatureC + 273.15;
  process.compressibilityZ =
      IsGas() && fields_.deviation != nullptr ? value(fields_.deviation) : Real(1);
  StoreHumidity();
  process.waterVapourDensity = Quietly([&] { return data::SaturatedWaterVapourDensity(process); });
  process.densityBase = Quietly([&] { return data::DensityToNormal(process, value(&txt密度)); });
  process.densityFlow = Quietly([&] { return data::NormalDensityAtFlowState(process); });
  process.viscosityCp =
      Quietly([&] { return data::ViscosityToPoise(process, value(&txt粘性係数)); });
}

/// Humidity and its base; of the two pressures in the vapour pressure list a sheet has one.
void ProcessSheet::StoreHumidity() {
  data::ProcessState& process = Process();
  process.relativeHumidity = 0;
  process.saturationPressure = 0;
  process.flowBasis = data::kWetBase;
  if (fields_.vapour != nullptr) {
    const VapourPressureFields& fields = *fields_.vapour;
    // The estimator writes a vapour pressure in the unit of the saturation pressure.
    process.saturationPressureUnit = fields.cbo飽和蒸気圧単位.Index();
    process.vapourPressureUnit = process.saturationPressureUnit;
    process.vapourPressure = Quietly([&] {
      return data::VapourPressureToAbsolute(Val(fields.txt飽和蒸気圧.Text()),
                                            process.vapourPressureUnit);
    });
  }
  if (fields_.critical != nullptr) {
    process.vapourPressureUnit = fields_.critical->cbo臨界圧力単位.Index();
  }
  if (!IsGas() || fields_.humidity == nullptr) return;
  const HumidityFields& fields = *fields_.humidity;
  process.relativeHumidity =
      Quietly([&] { return common::Single(Val(fields.txt相対湿度.Text())); });
  process.saturationPressureUnit = fields.cbo飽和水蒸気圧単位.Index();
  process.saturationPressure = Quietly([&] {
    return data::VapourPressureToAbsolute(Val(fields.txt飽和水蒸気圧.Text()),
                                          process.saturationPressureUnit);
  });
  if (fields_.base != nullptr && fields_.base->optDryBase.Checked()) {
    process.flowBasis = data::kDryBase;
  }
}

TextBox* ProcessSheet::FieldOf(const std::string& word) {
  if (word == "密度") return &txt密度;
  if (word == "粘性係数") return &txt粘性係数;
  if (word == "偏差係数") return fields_.deviation;
  if (word == "比熱比") return fields_.kappa;
  if (word == "飽和水蒸気圧" && fields_.humidity != nullptr) {
    return &fields_.humidity->txt飽和水蒸気圧;
  }
  if (word == "飽和蒸気圧" && fields_.vapour != nullptr) return &fields_.vapour->txt飽和蒸気圧;
  if (word == "臨界圧力" && fields_.critical != nullptr) return &fields_.critical->txt臨界圧力;
  return nullptr;
}

Real ProcessSheet::EstimateDeviation(data::PropertyEstimator& estimator, int fluidIndex) {
  return estimator.EstimateCompressibilityRatio(fluidIndex);
}

std::optional<Real> ProcessSheet::Estimate(const std::string& word, int fluidIndex) {
  data::PropertyEstimator estimator(Tables().liquids, Tables().gases, Process(), User());
  if (word == "密度") {
    return IsLiquid() ? estimator.EstimateLiquidDensity(fluidIndex)
                      : estimator.EstimateGasDensity(fluidIndex);
  }
  if (word == "粘性係数") {
    return IsLiquid() ? estimator.EstimateLiquidViscosity(fluidIndex)
                      : estimator.EstimateGasViscosity(fluidIndex);
  }
  if (word == "偏差係数") return EstimateDeviation(estimator, fluidIndex);
  if (word == "比熱比") return estimator.EstimateIsentropicExponent(fluidIndex);
  if (word == "飽和蒸気圧") return estimator.EstimateVapourPressure(fluidIndex);
  if (word == "臨界圧力") return estimator.LiquidCriticalPressureInUnit(fluidIndex);
  return std::nullopt;
}

/// A specific heat ratio that no gas can have is written all the same, in the caution colour.
void ProcessSheet::WriteProperty(const std::string& word, std::optional<Real> value) {
  TextBox* const box = FieldOf(word);
  if (box == nullptr) return;
  box->SetText(value ? NumberText(*value) : "");
  if (word != "比熱比") return;
  const bool doubtful = value && !data::IsPhysicalIsentropicExponent(*value);
  box->SetForeColor(doubtful ? forms::kMagenta : forms::kBlack);
  box->SetToolTip(doubtful ? kUnphysicalExponent : DoubleClickTip(kEstimates));
}

void ProcessSheet::FillProperty(const std::string& word, int fluidIndex) {
  StoreEntries();
  if (word == "飽和水蒸気圧") {
    FillSaturationPressure();
  } else {
    WriteProperty(word, Estimate(word, fluidIndex));
  }
}

void ProcessSheet::FillAllProperties(int fluidIndex) {
  for (const std::string& word : PropertyOrder()) FillProperty(word, fluidIndex);
}

void ProcessSheet::FillSaturationPressure() {
  if (fields_.humidity == nullptr) return;
  StoreEntries();
  HumidityFields& fields = *fields_.humidity;
  if (Val(fields.txt相対湿度.Text()) == 0) {
    fields.txt飽和水蒸気圧.SetText("");
    return;
  }
  fields.txt飽和水蒸気圧.SetText(NumberText(data::SaturatedVapourPressure(Process(), User())));
}

void ProcessSheet::FillTemperature() {
  if (!IsSteam()) return;
  StoreEntries();
  txt温度.SetText(NumberText(
      data::TemperatureFromCelsius(cbo温度単位.Index(), data::SaturationTemperature(Process()))));
}

/// Steam equations hold from about saturation upwards; 270 instead of 273.15 leaves 3.15 K.
bool ProcessSheet::IsSuperheated(const std::string& title) {
  if (data::SaturationTemperature(Process()) + 270 <= Process().temperatureK) return true;
  Beep();
  User().Show("温度が低すぎます。", title);
  return false;
}

std::optional<Real> ProcessSheet::EstimateSteam(const std::string& word) {
  data::ProcessState& process = Process();
  if (word == "比熱比") return data::SteamIsentropicExponent(process, User());
  return word == "密度" ? data::SteamDensity(process)
                        : data::SteamViscosity(Tables().steamViscosity, process);
}

void ProcessSheet::FillFromFluidOrSteam(const std::string& word) {
  const bool ofLiquids = word == "飽和蒸気圧" || word == "臨界圧力";
  if (ofLiquids && !IsLiquid()) return;
  StoreEntries();
  Space().propertyWord = word;
  if (!IsSteam()) {
    Space().forms.Show(frm流体名表示::kName);
    return;
  }
  if (word == "偏差係数") return;
  if (word == "密度" && !IsSuperheated("蒸気密度推算")) return;
  if (word == "粘性係数" && !IsSuperheated("蒸気粘性係数推算")) return;
  WriteProperty(word, EstimateSteam(word));
}

}  // namespace sheets
