#include "valve/viscosity.h"

#include "common/number.h"
#include "data/units.h"
#include "valve/quotient.h"

namespace valve {

using common::exp;
using common::Log10;
using common::pow;
using common::sqrt;

namespace {

/// Kinematic viscosity, cSt, of viscosity cP and density kg/m3.
Real CentiStokes(Real mu, Real rho) { return Quotient(mu, rho) * 1000; }

/// Valve Reynolds number of a liquid by ISA S75.01, size d in mm. 0.00214 is N2 for mm
/// (890 / 645^2), so the 645 in the bracket converts once more: Re comes out 4 to 16 times too
/// high, on the unsafe side. It stays, so that results agree with records.
Real IsaReynoldsNumber(const Service& service, const SelectedValve& valve, const SizedCv& sized) {
  const Real q = Quotient(service.w, service.rho1);
  const Real nu = CentiStokes(service.mu, service.rho1);
  const Real fp = sized.fp;
  const Real fl = valve.fl;
  const Real cv = sized.cv;
  return Quotient(76000 * valve.fd * q, nu * sqrt(fp * fl * cv)) *
         pow(pow(fp * fl * 645 * cv, 2) / (0.00214 * pow(valve.d, 4)) + 1, Real(0.25));
}

void CorrectByIsa(const Service& service, const SelectedValve& valve, const SizedCv& sized,
                  common::Messages& messages, ViscosityCorrection& correction) {
  const Real re = IsaReynoldsNumber(service, valve, sized);
  if (re < 0.01) {
    messages.Show("Re＝" + common::NumberText(re) +
                  "はISAの粘度補正データの範囲外(<0.01)です。\n"
                  "レイノルズ補正係数は規格下限値（Fr＝0.0055）とします｡ ");
  } else if (re <= 1000000) {
    correction.fr = IsaReynoldsFactor(re);
  }
  correction.detail.re = re;
  correction.detail.fr = correction.fr;
}

/// Style modifier of the micro-flow trims of "本山" by rated Cv; 0 for one that is not listed.
Real MicroFlowStyleModifier(std::string_view model, Real ratedCv) {
  if (model.starts_with("06-M")) {
    if (ratedCv <= 0.01) return 0.75;
    if (ratedCv <= 0.05) return 0.54;
    if (ratedCv == 0.1) return 0.38;
    if (ratedCv == 0.15) return 0.31;
  }
  if (model.starts_with("06-L")) {
    constexpr struct {
      double ratedCv, fd;
    } kTrims[] = {{0.02, 0.08}, {0.05, 0.11}, {0.1, 0.14}, {0.15, 0.17}, {0.2, 0.19}, {0.4, 0.29}};
    for (const auto& trim : kTrims) {
      if (ratedCv == trim.ratedCv) return trim.fd;
    }
  }
  return 0;
}

/// Kinematic viscosity in the rule of "本山": cSt for a liquid; for gas and steam without the
/// factor 1000, which is meant.
Real MicroFlowViscosity(const Service& service) {
  if (service.fluidPhase == data::kLiquid) return CentiStokes(service.mu, service.rho);
  return Quotient(service.mu, service.fluidPhase == data::kGas ? service.rho1 : service.rho);
}

void CorrectBy本山(const Service& service, const SelectedValve& valve, const SizedCv& sized,
                   ViscosityCorrection& correction) {
  const Real q = Quotient(service.w, service.rho);
  const Real fdM = MicroFlowStyleModifier(valve.model, valve.ratedCv);
  const Real re = common::Int(
      Quotient(76000 * fdM * q / MicroFlowViscosity(service), sqrt(valve.fl * sized.cv)));
  if (re <= 10000) {
    // The exponent of the rule, which the noise reads in place of the valve's coefficient.
    correction.n = re <= 130 ? Real(2) : Log10(re) + 1;
    correction.fr = pow(re / 10000, 1 / correction.n);
  }
  correction.detail.re = re;
  correction.detail.fr = correction.fr;
}

void CorrectBy山武(const Service& service, const SizedCv& sized, ViscosityCorrection& correction) {
  constexpr double kStandardTemperature = 288.15;  // K, of the gas flow in this rule
  const bool isLiquid = service.fluidPhase == data::kLiquid;
  const Real s = service.SpecificGravity();  // of steam, too, to air
  const Real a = isLiquid ? 770000.0 : 33.0;
  Real q = Quotient(service.w, isLiquid ? service.rho1 : service.rho);
  if (service.fluidPhase == data::kGas) q = q * kStandardTemperature / data::kNormalTemperature;
  const Real rv = a * sized.cv * sqrt(pow(s * q / service.mu, 3));
  const Real fm = rv < 1 ? 1.6818 * pow(rv, Real(-0.25)) : 1 / sqrt(2 * rv) + 1;
  correction.fr = 1 / fm;
  correction.detail.rv = rv;
  correction.detail.fm = fm;
}

}  // namespace

ValveClass ClassOf(std::string_view maker, std::string_view model) {
  if (model.find("微少") == std::string_view::npos) return ValveClass::kOrdinary;
  if (maker.starts_with("本山") && model.starts_with("06-")) return ValveClass::k本山微少弁;
  if (maker.starts_with("山武") && model.starts_with("VSM")) return ValveClass::k山武微少弁;
  return ValveClass::kOrdinary;
}

Real IsaReynoldsFactor(Real re) {
  const Real l = Log10(re) + 3;
  const Real fr =
      exp(0.00338 * pow(l, 4) - 0.07131 * pow(l, 3) + 0.40333 * pow(l, 2) + 0.33922 * l - 5.87446);
  return fr > 1 ? Real(1) : fr;
}

ViscosityCorrection CorrectForViscosity(const Service& service, const SelectedValve& valve,
                                        const SizedCv& sized, common::Messages& messages) {
  ViscosityCorrection correction;
  correction.n = valve.n;
  CorrectionDetail& detail = correction.detail;
  detail.valveClass = ClassOf(valve.maker, valve.model);
  detail.fluidPhase = service.fluidPhase;
  detail.choked = sized.choked;
  detail.fp = sized.fp;
  detail.flp = sized.flp;
  detail.y = sized.y;
  if (service.mu == 0) return correction;
  if (detail.valveClass == ValveClass::k本山微少弁) {
    CorrectBy本山(service, valve, sized, correction);
  } else if (detail.valveClass == ValveClass::k山武微少弁) {
    CorrectBy山武(service, sized, correction);
  } else if (service.fluidPhase == data::kLiquid) {
    CorrectByIsa(service, valve, sized, messages, correction);
  }
  return correction;
}

}  // namespace valve
