// Lines that the printed pages of several sheets have in common.

#include "common/number.h"
#include "data/units.h"
#include "sheets/calculation_page.h"
#include "sheets/process_sheet.h"

namespace sheets {

namespace {

constexpr int kDensityDecimals = 4;

/// A density that was worked out, not typed; blank before any calculation.
std::string DensityText(Real density) {
  return density == 0 ? "" : common::NumberText(common::RoundDigits(density, kDensityDecimals));
}

}  // namespace

/// Which of the two densities of a gas was entered shows in its unit.
void ProcessSheet::PrintDensities(CalculationPage& page, Real normal, Real operating) {
  const std::string unit = DensityUnitBox().Text();
  if (!IsGas()) {
    page.Line("密度", txt密度.Text(), unit);
    return;
  }
  if (DensityUnitBox().Index() == data::kNormalDensityUnit) {
    page.Line("標準状態密度(乾燥)", txt密度.Text(), unit);
  } else {
    page.Line("入   力   密   度", txt密度.Text(), unit);
    page.Line("標準状態密度(乾燥)", DensityText(normal), "    kg/Nm3");
  }
  page.Line("使 用 状 態 密 度", DensityText(operating), "kg/m3");
}

void ProcessSheet::PrintGas(CalculationPage& page, const std::string& deviationLabel) {
  page.Line("粘性係数", txt粘性係数.Text(), cbo粘性係数単位.Text());
  if (IsGas()) {
    if (fields_.humidity != nullptr) {
      HumidityFields& humidity = *fields_.humidity;
      page.Line("相 　対 　湿 　度", humidity.txt相対湿度.Text(), "％");
      page.Line("飽和水蒸気圧", humidity.txt飽和水蒸気圧.Text(),
                humidity.cbo飽和水蒸気圧単位.Text());
    }
    page.Line(deviationLabel, fields_.deviation->Text());
  }
  if (!IsLiquid()) page.Line("ｱｲｾﾞﾝﾄﾛﾋﾟｯｸ 指数", fields_.kappa->Text());
}

}  // namespace sheets
