#include "valve/service.h"

#include "data/units.h"

namespace valve {

Real Service::SpecificGravity() const {
  return rho / (fluidPhase == data::kLiquid ? 1000.0 : data::kNormalAirDensity);
}

Real DifferentialOf(Real value, int unit) {
  constexpr int kMmHg = 4;
  const Real absolute = data::PressureToAbsolute(value, unit);
  return unit == kMmHg ? absolute : absolute - data::kNormalAtmosphere;
}

void SetSuperheat(Service& service, Real saturationTemperature) {
  service.superheat = service.t - saturationTemperature;
  service.saturated = service.superheat < 2;
  if (service.saturated) service.superheat = 0;
}

}  // namespace valve
