// What the valve sheet tells about its results: cautions, limits and details.

#include "common/number.h"
#include "data/steam.h"
#include "sheets/frm_cv.h"
#include "sheets/frm_cv_correction.h"
#include "valve/noise.h"
#include "valve/required_cv.h"

namespace sheets {

namespace {

using common::NumberText;

/// Steam this far below saturation is wet or water, K; the equations do not notice it.
constexpr double kWetMargin = 2;

std::string PressureText(const char* name, Real pressure) {
  return std::string("\n　") + name + " = " + NumberText(common::RoundDigits(pressure, 4)) +
         " kgf/cm2A";
}

}  // namespace

void frmCV::ShowCautions(const valve::Service& service, const valve::SelectedValve& selected) {
  std::string cautions;
  const auto add = [&cautions](const char* caution) {
    if (!cautions.empty()) cautions += '\n';
    cautions += caution;
  };
  if (service.p2 <= 0) add("二次圧力が絶対圧0以下です。結果は成立しません。");
  if (IsSteam()) {
    if (service.t < data::SaturationTemperature(Process()) - kWetMargin) {
      add("飽和温度より低温です（湿り蒸気は計算外）。");
    }
    if (service.p2 > 0 && valve::OutletSteamDensity(service) <= 0) {
      add("下流の蒸気密度が負です。流速は成立しません。");
    }
  }
  lblVelocity.SetToolTip(cautions);
  if (!IsLiquid() && selected.wallWeight == 0) {
    add("管壁重量が0です。騒音は管内の値です。");
  }
  if (detail_.valveClass == valve::ValveClass::kOrdinary && detail_.fr && *detail_.fr < 1) {
    add("粘性補正係数Frは大きめ（危険側）に出ます。");
  }
  lbl注意.SetText(cautions);
}

void frmCV::RestoreFindings() {
  common::NoMessages unheard;
  try {
    const valve::Service service = ReadProcessInputs();
    const std::optional<valve::RequiredCv> isa = valve::IsaCv(service);
    chokedCv_ = isa && isa->choked;
    ShowMarks(service, chokedCv_);
    if (lblSizingCv.Text().empty()) return;
    const valve::SelectedValve selected = ReadValveInputs();
    const std::optional<valve::SizedCv> sized = valve::SizeCv(service, selected);
    if (!sized) return;
    ShowMarks(service, sized->choked);
    detail_ = valve::CorrectForViscosity(service, selected, *sized, unheard).detail;
    ShowCautions(service, selected);
  } catch (const common::RuntimeFault&) {
    // The record holds results that its entries do not give; they stand without a detail.
  }
}

/// The form of the viscosity rule that the sizing has followed.
void frmCV::lblSizingCv_Click() {
  if (lblSizingCv.Text().empty()) return;
  switch (detail_.valveClass) {
    case valve::ValveClass::k本山微少弁:
      Space().forms.Show(frm本山微少弁::kName);
      break;
    case valve::ValveClass::k山武微少弁:
      Space().forms.Show(frm山武微少弁::kName);
      break;
    case valve::ValveClass::kOrdinary:
      Space().forms.Show(frmCv計算補正::kName);
      break;
  }
}

/// Any change of an entry takes the sizing away, so the fields are still those of the sizing.
void frmCV::lblNoise_Click() {
  if (!IsLiquid() || lblSizingCv.Text().empty()) return;
  const valve::Service service = ReadProcessInputs();
  const Real pvc = valve::VenaContractaPressure(service, ReadValveInputs().fl);
  if (pvc >= service.p2 && service.p2 >= service.pv) return;
  User().Show(
      "液体の騒音計算式は、キャビテーションが発達した流れ\n"
      "（飽和蒸気圧力 < 二次圧力 < 縮流部圧力）だけに適用できます。\n" +
          PressureText("縮流部圧力", pvc) + PressureText("二次圧力", service.p2) +
          PressureText("飽和蒸気圧力", service.pv),
      "騒音計算", common::Icon::kInformation);
}

}  // namespace sheets
