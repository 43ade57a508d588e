#pragma once

#include <string>

#include "common/real.h"
#include "valve/opening.h"

namespace valve {

using common::Real;

/// The valve that a sizing is for, and its pipes.
struct SelectedValve {
  std::string maker;  // as the catalogue names it, "" when none is selected
  std::string model;  // likewise
  Real fl = 0.9;      // pressure recovery factor
  Real fd = 1.0;      // style modifier
  Real n = 1.4;       // noise coefficient; the rule of a micro-flow maker overwrites it
  Real ratedCv;
  Real rangeability;
  int characteristic = kNoCharacteristic;
  Real d;           // valve size, mm
  Real d1;          // bore of the upstream pipe, mm
  Real d2;          // bore of the downstream pipe, mm
  Real wallWeight;  // mass of the pipe wall by area, kg/m2; 0 for not given
};

}  // namespace valve
