// The two stages of the valve sheet: what is read, calculated and shown.

#include "common/number.h"
#include "data/steam.h"
#include "data/units.h"
#include "sheets/frm_cv.h"
#include "valve/noise.h"
#include "valve/opening.h"
#include "valve/required_cv.h"

namespace sheets {

namespace {

using common::NumberText;
using common::RoundDigits;
using common::Val;

/// Text of a sized Cv, four figures; without a flow there is no decimal exponent.
std::string CvText(Real cv) { return NumberText(cv == 0 ? cv : valve::FourFigures(cv)); }

std::string OpeningText(Real opening) {
  if (opening <= 0) return "----";
  return opening > 1 ? "100" : NumberText(RoundDigits(100 * opening, 0));
}

std::string VelocityText(Real velocity) {
  return velocity < 0.1 ? "0.1 以下" : NumberText(RoundDigits(velocity, 1));
}

std::string NoiseText(Real level) {
  if (level == 0) return "計算式適用不能  ";
  return level <= 50 ? "50以下" : NumberText(RoundDigits(level, 0));
}

forms::Color ColorOf(valve::VelocityJudgement judgement) {
  switch (judgement) {
    case valve::VelocityJudgement::kCaution:
      return forms::kMagenta;
    case valve::VelocityJudgement::kTooFast:
      return forms::kRed;
    case valve::VelocityJudgement::kGood:
      break;
  }
  return forms::kBlack;
}

}  // namespace

Real frmCV::ReadWithDefault(TextBox& box, double value, const char* text) {
  const Real entered = Val(box.Text());
  if (entered != 0) return entered;
  box.SetText(text);
  return value;
}

/// Empty entries mean the atmosphere for the secondary pressure and no drop for the differential.
void frmCV::ReadPressures(valve::Service& service) {
  data::ProcessState& process = Process();
  service.p1 = process.pressureAbs;
  const Real entered = Val(txt差圧.Text());
  if (secondaryPressure_) {
    service.p2 = data::PressureToAbsolute(entered, process.pressureUnit);
    service.dP = service.p1 - service.p2;
  } else {
    service.dP = valve::DifferentialOf(entered, cbo差圧単位.Index());
    service.p2 = service.p1 - service.dP;
  }
}

/// Z with its default comes before the densities, which need it.
valve::Service frmCV::ReadProcessInputs() {
  const Quiet quiet(*this);  // a default is no change that clears results
  data::ProcessState& process = Process();
  valve::Service service;
  ReadConditions();
  process.waterVapourDensity = 0;  // this sheet knows no humidity
  service.fluidPhase = process.fluidPhase;
  ReadPressures(service);
  service.t = process.temperatureC;
  service.tk = process.temperatureK;
  if (IsSteam()) valve::SetSuperheat(service, data::SaturationTemperature(process));
  if (IsGas()) process.compressibilityZ = ReadWithDefault(txt偏差係数, 1, "1.0");
  process.densityBase = data::DensityToNormal(process, Val(txt密度.Text()));
  process.densityFlow = data::NormalDensityAtFlowState(process);
  process.viscosityCp = data::ViscosityToPoise(process, Val(txt粘性係数.Text()));
  service.rho = process.densityBase;
  service.rho1 = process.densityFlow;
  service.mu = process.viscosityCp;
  service.pv = data::VapourPressureToAbsolute(Val(vapour.txt飽和蒸気圧.Text()),
                                              vapour.cbo飽和蒸気圧単位.Index());
  if (!IsLiquid()) service.k = ReadWithDefault(txt比熱比, 1.4, "1.4");
  service.pc = data::VapourPressureToAbsolute(Val(critical.txt臨界圧力.Text()),
                                              critical.cbo臨界圧力単位.Index());
  service.w = data::FlowToMass(process, Val(txt流量.Text()));
  return service;
}

valve::SelectedValve frmCV::ReadValveInputs() {
  const Quiet quiet(*this);
  valve::SelectedValve selected;
  // A maker or model that is not in the catalogue follows the ordinary rules.
  if (cboMaker.Index() >= 0) selected.maker = cboMaker.Text();
  if (cboValveModel.Index() >= 0) selected.model = cboValveModel.Text();
  selected.fl = ReadWithDefault(txtFL, 0.9, "0.9");
  selected.fd = ReadWithDefault(txt弁Fd, 1, "1.0");
  selected.n = ReadWithDefault(txtN係数, 1.4, "1.4");
  selected.ratedCv = Val(txtCvv.Text());
  selected.rangeability = Val(txtRangeability.Text());
  selected.characteristic = cboCharact.Index();
  selected.d = Val(txt弁口径.Text());
  selected.d1 = Val(txt上流配管外径.Text()) - 2 * Val(txt上流配管厚.Text());
  selected.d2 = Val(txt下流配管外径.Text()) - 2 * Val(txt下流配管厚.Text());
  const int body = cboBodySize.IndexOf(txtValveSize.Text());
  if (body >= 0) cboBodySize.SetIndex(body);
  selected.wallWeight = Val(txtWallWeight.Text());
  return selected;
}

void frmCV::cmdCv計算_Click() {
  Space().calcFailed = false;
  Space().calcNote.clear();
  if (!HasData({"ZephaConvertData.dat"})) return;
  try {
    CalculateCv();
  } catch (const common::RuntimeFault& fault) {
    User().Show(fault.Text(), "Cv計算");
  }
}

void frmCV::CalculateCv() {
  const valve::Service service = ReadProcessInputs();
  if (service.p1 < service.pv) {
    User().Show("飽和蒸気圧力が流体圧力より高いので液体では存在できません。", "Cv計算");
    return;
  }
  const Real fci = valve::FciCv(service);
  lblFCI計算Cv.SetText(NumberText(valve::FourFigures(fci)));
  const std::optional<valve::RequiredCv> isa = valve::IsaCv(service);
  chokedCv_ = isa && isa->choked;
  ShowMarks(service, chokedCv_);
  lblISA計算Cv.SetText(NumberText(valve::FourFigures(isa ? isa->cv : fci)));
  Space().calcDone = true;
}

/// A liquid that leaves below its vapour pressure flashes.
void frmCV::ShowMarks(const valve::Service& service, bool choked) {
  lblCritical.SetVisible(choked);
  lblFlash.SetVisible(IsLiquid() && service.pv != 0 && service.p2 < service.pv);
}

void frmCV::cmdSizing_Click() {
  constexpr const char* kTitle = "CV Sizing";
  constexpr const char* kCheck = "\n確認してください。";
  try {
    if (Val(lblISA計算Cv.Text()) == 0) {
      User().Show("Cv値が計算されていません。", "Cvサイジング");
      return;
    }
    Space().calcFailed = false;
    Space().calcNote.clear();
    Size();
  } catch (const common::RuntimeFault& fault) {
    const bool missing = fault.Number() == common::Fault::kDivisionByZero;
    User().Show((missing ? "データ不足のようです。" : "データが異常です。") + std::string(kCheck),
                kTitle);
  }
}

/// Each result is written as soon as it is there: a fault leaves those before it.
void frmCV::Size() {
  const valve::Service service = ReadProcessInputs();
  valve::SelectedValve selected = ReadValveInputs();
  const std::optional<valve::SizedCv> sized = valve::SizeCv(service, selected);
  if (!sized) {
    User().Show("液体の飽和蒸気圧力または臨界圧力が未入力のようです。\n確認してください。",
                "CV Sizing");
    return;
  }
  ShowMarks(service, sized->choked);
  const valve::ViscosityCorrection correction =
      valve::CorrectForViscosity(service, selected, *sized, User());
  selected.n = correction.n;
  const Real cv = sized->cv / correction.fr;
  lblSizingCv.SetText(CvText(cv));
  detail_ = correction.detail;
  pic特性.Redraw();
  lblOpening.SetText(OpeningText(
      valve::Opening(selected.characteristic, cv, selected.ratedCv, selected.rangeability)));
  lblVelocity.SetForeColor(forms::kBlack);
  ShowVelocity(service, valve::ExitVelocity(service, selected.d));
  lblNoise.SetText(NoiseText(valve::NoiseLevel(service, selected, cv, User())));
  ShowCautions(service, selected);
}

void frmCV::ShowVelocity(const valve::Service& service, Real velocity) {
  lblVelocity.SetText(VelocityText(velocity));
  lblVelocity.SetForeColor(ColorOf(valve::JudgeVelocity(service, velocity)));
}

}  // namespace sheets
