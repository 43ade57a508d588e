#include "sheets/frm_properties.h"

#include <array>

#include "common/number.h"
#include "common/text.h"
#include "data/steam.h"
#include "data/units.h"
#include "sheets/calculation_page.h"
#include "sheets/cautions.h"
#include "sheets/list_texts.h"

namespace sheets {

namespace {

using common::Format;
using common::NumberText;
using common::RoundDigits;
using common::Val;

/// A line of the results; one without a name is not used in its phase.
struct RowText {
  const char* name;
  const char* unit;
};

struct PhaseTexts {
  const char* caption;
  std::array<RowText, frm物性::kRows> rows;
};

const PhaseTexts& TextsOf(data::FluidPhase phase) {
  static const PhaseTexts kLiquidTexts = {"液体物性推算",
                                          {{{"標準状態密度", "kg/m3"},
                                            {"使用状態密度", "kg/m3"},
                                            {"標準状態粘性係数", "mPa･S"},
                                            {"使用状態粘性係数", "mPa･S"},
                                            {"臨界圧力(Ｐc)", "kPaA"},
                                            {"飽和蒸気圧", "kPaA"},
                                            {"", ""}}}};
  static const PhaseTexts kGasTexts = {"気体物性推算",
                                       {{{"標準状態密度", "kg/Nm3"},
                                         {"使用状態密度", "kg/m3"},
                                         {"標準状態粘性係数", "mPa･S"},
                                         {"使用状態粘性係数", "mPa･S"},
                                         {"標準状態圧縮係数", ""},
                                         {"使用状態圧縮係数", ""},
                                         {"比熱比（Ｃp/Ｃv）", ""}}}};
  static const PhaseTexts kSteamTexts = {"蒸気物性推算",
                                         {{{"使用状態密度", "kg/m3"},
                                           {"使用状態粘性係数", "mPa･S"},
                                           {"比熱比（Ｃp/Ｃv）", ""},
                                           {"飽和圧力(於入力温度)", "kPaA"},
                                           {"飽和温度(於入力圧力)", "℃"},
                                           {"", ""},
                                           {"", ""}}}};
  return phase == data::kLiquid ? kLiquidTexts : phase == data::kGas ? kGasTexts : kSteamTexts;
}

void FillEmpty(forms::TextBox& box) {
  if (common::IsBlank(box.Text())) box.SetText("0");
}

}  // namespace

frm物性::frm物性(shell::Workspace& workspace) : Sheet(workspace, kKind, "簡易物性推算") {
  opt液体.onClick = [this] { ShowPhase(data::kLiquid); };
  opt気体.onClick = [this] { ShowPhase(data::kGas); };
  opt蒸気.onClick = [this] { ShowPhase(data::kSteam); };
  for (forms::TextBox* box : {&txtPress, &txtTemp}) box->onChange = [this] { Entry_Change(); };
  for (forms::ComboBox* box : {&cboPressUnit, &cboTempUnit}) {
    box->onClick = [this] { Entry_Change(); };
  }
  lst流体名称.onClick = [this] {
    ShowFluidName();
    ClearResults();
  };
  cmd計算.onClick = [this] { cmd計算_Click(); };
  lst流体名称.onDblClick = cmd計算.onClick;
  lst流体名称.onEnter = cmd計算.onClick;
  DeclareLayout();
}

void frm物性::Load() {
  const Quiet quiet(*this);
  cboPressUnit.SetItems({"kPaG", "MPaG", "kgf/cm2G", "mmH2O", "mmHgA", "barG", "psiG"});
  cboTempUnit.SetItems({"℃", "ﾟＫ", "ﾟＦ"});
  cboPressUnit.SetIndex(0);
  cboTempUnit.SetIndex(0);
  opt液体.SetChecked(true);
  ShowPhase(data::kLiquid);
}

void frm物性::Activate() {
  Sheet::Activate();
  StoreConditions();
}

void frm物性::ShowPhase(data::FluidPhase phase) {
  const Quiet quiet(*this);
  phase_ = phase;
  const PhaseTexts& texts = TextsOf(phase);
  SetCaption(texts.caption);
  for (int row = 0; row < kRows; ++row) {
    const RowText& text = common::At(texts.rows, row);
    lbl物性[row].SetText(text.name);
    lbl単位[row].SetText(text.unit);
    lbl物性値[row].SetVisible(!lbl物性[row].Text().empty());
  }
  FillNames();
  if (lst流体名称.Count() > 0) lst流体名称.SetIndex(0);
  ShowFluidName();
  ClearResults();
  StoreConditions();
}

void frm物性::FillNames() {
  if (phase_ == data::kSteam) {
    lst流体名称.SetItems({"水蒸気"});
  } else {
    lst流体名称.SetItems(FluidTexts(phase_ == data::kGas ? Tables().gases : Tables().liquids));
  }
}

void frm物性::ShowFluidName() {
  const std::string& line = lst流体名称.Text();
  lbl流体名.SetText(line.starts_with(' ') ? line.substr(1) : line);
}

void frm物性::FluidsChanged() {
  if (phase_ == data::kSteam) return;
  const Quiet quiet(*this);
  const int fluid = lst流体名称.Index();
  FillNames();
  if (fluid < lst流体名称.Count()) lst流体名称.SetIndex(fluid);
  ShowFluidName();
  ClearResults();
}

void frm物性::Entry_Change() {
  StoreConditions();
  ClearResults();
}

/// An entry that is no number yet leaves the values of the one before: nobody is disturbed while he
/// types.
void frm物性::StoreConditions() {
  data::ProcessState& process = Process();
  process.fluidPhase = phase_;
  process.pressureUnit = cboPressUnit.Index();
  process.temperatureUnit = cboTempUnit.Index();
  process.relativeHumidity = 0;
  process.flowBasis = data::kWetBase;
  process.compressibilityZ = 1;
  try {
    process.pressureAbs = data::PressureToAbsolute(Val(txtPress.Text()), process.pressureUnit);
    StoreTemperature(data::TemperatureToCelsius(process, Val(txtTemp.Text())));
  } catch (const common::RuntimeFault&) {
    // The calculation reads the entries again and tells.
  }
}

void frm物性::StoreTemperature(Real celsius) {
  Process().temperatureC = celsius;
  Process().temperatureK = celsius + 273.15;
}

template <class Estimate>
auto frm物性::AtStandardState(Estimate estimate) {
  const Real celsius = Process().temperatureC;
  StoreTemperature(0);
  const auto value = estimate();
  StoreTemperature(celsius);
  return value;
}

void frm物性::cmd計算_Click() {
  FillEmpty(txtPress);
  FillEmpty(txtTemp);
  ClearResults();
  const char* const file = phase_ == data::kLiquid ? "Liqprop.dat"
                           : phase_ == data::kGas  ? "Gasprop.dat"
                                                   : "Steam.dat";
  if (!HasData({file})) return;
  data::ProcessState& process = Process();
  StoreConditions();
  process.pressureAbs = data::PressureToAbsolute(Val(txtPress.Text()), process.pressureUnit);
  StoreTemperature(data::TemperatureToCelsius(process, Val(txtTemp.Text())));
  process.saturationPressureUnit = 0;
  process.vapourPressureUnit = 0;
  process.densityUnit = 0;
  process.viscosityUnit = 0;
  data::PropertyEstimator estimator(Tables().liquids, Tables().gases, process, User());
  switch (phase_) {
    case data::kSteam:
      return EstimateSteam();
    case data::kGas:
      return EstimateGas(estimator, lst流体名称.Index());
    case data::kLiquid:
      return EstimateLiquid(estimator, lst流体名称.Index());
  }
}

void frm物性::EstimateSteam() {
  data::ProcessState& process = Process();
  const Real saturation = data::SaturationTemperature(process);
  if (saturation > process.temperatureC) {
    User().Show("温度が低すぎるか、あるいは圧力が高すぎます");
  } else {
    ShowText(0, Format(data::SteamDensity(process), "###,##0.000"));
    process.densityBase = GroupedNumber(lbl物性値[0].Text());
    if (process.densityBase <= 0) ShowCaution(0, "密度が正の値になりません。式の適用範囲外です。");
    ShowValue(1, data::SteamViscosity(Tables().steamViscosity, process));
    ShowExponent(2, data::SteamIsentropicExponent(process, User()));
  }
  ShowText(3, Format(data::SaturatedVapourPressure(process, User()), "#,###,##0"));
  ShowValue(4, saturation);
}

void frm物性::EstimateGas(data::PropertyEstimator& estimator, int fluid) {
  data::ProcessState& process = Process();
  ShowValue(0, estimator.EstimateGasDensity(fluid));
  process.densityBase = data::DensityToNormal(process, Val(lbl物性値[0].Text()));
  process.compressibilityZ = estimator.EstimateCompressibilityRatio(fluid);
  if (process.compressibilityZ <= 0) process.compressibilityZ = 1;
  ShowValue(
      1, RoundDigits(process.densityBase * process.pressureAbs / data::kNormalAtmosphere *
                         data::kNormalTemperature / process.temperatureK / process.compressibilityZ,
                     3));
  const auto viscosity = [&] { return estimator.EstimateGasViscosity(fluid); };
  const std::optional<Real> standard = AtStandardState(viscosity);
  ShowText(2, standard ? NumberText(*standard) : " ");
  const std::optional<Real> operating = viscosity();
  ShowText(3, operating ? NumberText(*operating) : " ");
  ShowText(4, Tables().gases.Cell(fluid, data::kGasNormalCompressibility));
  const Real z = estimator.GeneralizedCompressibility(
      process.pressureAbs, process.temperatureK,
      Val(Tables().gases.Cell(fluid, data::kGasCriticalPressure)) * 1000 / data::kKpaPerKgfCm2,
      Val(Tables().gases.Cell(fluid, data::kGasCriticalTemperature)));
  ShowText(5, z < 0 ? std::string() : NumberText(RoundDigits(z, 3)));
  ShowExponent(6, estimator.EstimateIsentropicExponent(fluid));
}

void frm物性::EstimateLiquid(data::PropertyEstimator& estimator, int fluid) {
  const auto density = [&] { return estimator.EstimateLiquidDensity(fluid); };
  const auto viscosity = [&] { return estimator.EstimateLiquidViscosity(fluid); };
  AtStandardState([&] {
    if (const auto value = density()) ShowValue(0, *value);
    ShowValue(2, viscosity());
    return true;
  });
  if (const auto value = density()) ShowValue(1, *value);
  ShowValue(3, viscosity());
  const Real critical = Val(Tables().liquids.Cell(fluid, data::kLiquidCriticalPressure)) * 1000;
  ShowText(4, critical == 0 ? "未登録" : Format(critical, "##,###,##0"));
  const Real vapourPressure = estimator.EstimateVapourPressure(fluid);
  ShowText(5, vapourPressure == 0 ? std::string() : NumberText(vapourPressure));
  if (vapourPressure / data::kKpaPerKgfCm2 > Process().pressureAbs) ShowText(1, "Vapor");
}

void frm物性::ClearResults() {
  for (int row = 0; row < kRows; ++row) ShowText(row, "");
}

void frm物性::ShowText(int row, const std::string& text) {
  lbl物性値[row].SetText(text);
  lbl物性値[row].SetForeColor(forms::kBlack);
  lbl物性値[row].SetToolTip("");
}

void frm物性::ShowValue(int row, Real value) { ShowText(row, NumberText(value)); }

void frm物性::ShowExponent(int row, std::optional<Real> exponent) {
  ShowText(row, exponent ? NumberText(*exponent) : std::string());
  if (exponent && !data::IsPhysicalIsentropicExponent(*exponent)) {
    ShowCaution(row, kUnphysicalExponent);
  }
}

void frm物性::ShowCaution(int row, const std::string& reason) {
  lbl物性値[row].SetForeColor(forms::kMagenta);
  lbl物性値[row].SetToolTip(reason);
}

bool frm物性::PrintBody(shell::PrintSurface& target) {
  CalculationPage page(target);
  page.Title("【" + Caption() + "】");
  page.Section("入 力 デ ー タ");
  page.Line("流　　体", lbl流体名.Text());
  page.Line("圧　　力", txtPress.Text(), cboPressUnit.Text());
  page.Line("温　　度", txtTemp.Text(), cboTempUnit.Text());
  page.Gap();
  page.Section("計 算 結 果");
  for (int row = 0; row < kRows; ++row) {
    if (lbl物性[row].Text().empty()) continue;
    page.Line(lbl物性[row].Text(), lbl物性値[row].Text(), lbl単位[row].Text());
  }
  return true;
}

void frm物性::DeclareLayout() {
  std::vector<forms::Line> results;
  results.reserve(kRows);
  for (int row = 0; row < kRows; ++row) {
    results.push_back({lbl物性[row], lbl物性値[row], lbl単位[row]});
  }
  SetLayout(forms::Row({
      forms::Stretched(forms::Column({
          forms::Group(
              "入力データ",
              forms::Table({
                  {lblTagNo, forms::Cell(txtTagNo).Over(2)},
                  {"流体の種類", forms::Cell::Side({&opt液体, &opt気体, &opt蒸気}).Over(2)},
                  {lblPress, txtPress, cboPressUnit},
                  {lblTemp, txtTemp, cboTempUnit},
              })),
          forms::Stretched(forms::Group("流体名称", forms::Table({{lst流体名称}}))),
      })),
      forms::Stretched(forms::Column({
          forms::Stretched(forms::Results("推算結果", forms::Column({
                                                          forms::Table({{lbl流体名}}),
                                                          forms::Table(std::move(results)),
                                                          forms::Space(),
                                                      }))),
          forms::Buttons({{}, cmd計算}),
      })),
  }));
}

}  // namespace sheets
