#pragma once

#include "data/units.h"
#include "valve/selected_valve.h"
#include "valve/service.h"

namespace valve {

inline constexpr double kKpa = 1 / data::kKpaPerKgfCm2;  // kgf/cm2 in 1 kPa
inline constexpr double kCvPerKv = 1 / 0.865;            // IEC 60534-2-1, table 1

/// A service by inlet and outlet pressure, kgf/cm2 absolute.
inline Service Between(int phase, double p1, double p2) {
  Service service;
  service.fluidPhase = phase;
  service.p1 = p1;
  service.p2 = p2;
  service.dP = p1 - p2;
  return service;
}

/// Water of 1000 kg/m3 with the vapour data of 20 degC, 50 m3/h.
inline Service Water(double p1, double p2) {
  Service service = Between(data::kLiquid, p1, p2);
  service.w = 50000;
  service.rho = service.rho1 = 1000;
  service.t = 20;
  service.tk = 293.15;
  service.pv = 0.0238;
  service.pc = 225.6;
  return service;
}

/// Air at 20 degC, 1000 Nm3/h.
inline Service Air(double p1, double p2) {
  Service service = Between(data::kGas, p1, p2);
  service.rho = 1.2928;
  service.w = 1000 * service.rho;
  service.t = 20;
  service.tk = 293.15;
  service.rho1 = service.rho * p1 / 1.03323 * 273.15 / 293.15;
  service.k = 1.4;
  return service;
}

/// Steam, 5000 kg/h, with the inlet density of steam tables for 10 kgf/cm2 at 200 degC.
inline Service Steam(double p1, double p2, double celsius = 200, double density = 4.75) {
  Service service = Between(data::kSteam, p1, p2);
  service.w = 5000;
  service.rho = service.rho1 = density;
  service.t = celsius;
  service.tk = celsius + 273.15;
  service.k = 1.3;
  return service;
}

/// A globe valve of 2 in in pipes of its own bore.
inline SelectedValve Globe(double ratedCv, double d = 50.8) {
  SelectedValve valve;
  valve.ratedCv = ratedCv;
  valve.rangeability = 50;
  valve.characteristic = 0;
  valve.d = valve.d1 = valve.d2 = d;
  return valve;
}

}  // namespace valve
