#pragma once

#include "flow/context.h"
#include "flow/orifice_table.h"
#include "tests/data/shipped_data.h"

namespace flow {

/// The shipped limits and tables.
inline const OrificeTable& ShippedTable() {
  static const OrificeTable kTable = tests::Shipped(ReadOrificeTable, "Orifice.dat");
  return kTable;
}

/// A service that every element accepts at beta 0.5 in a pipe of 200 mm: water, air or steam, with
/// a viscosity that keeps the quarter circle plate below its upper Reynolds limit.
inline Context Service(ElementType type, int phase) {
  Context context;
  context.elementType = type;
  context.fluidPhase = phase;
  context.p = 10;
  context.t = 20;
  context.pipeBore20 = 200;
  context.pipeBore = 200;
  context.kappa = phase == kSteam ? 1.3 : 1.4;
  context.rho = phase == kLiquid ? 998.0 : phase == kGas ? 11.65 : 5.05;
  context.mu = phase == kLiquid ? 0.3 : 0.018;
  if (type == kQuarterCircleOrifice) context.mu *= 30;
  context.bore = 100;
  context.dP = 1000;
  context.qMax = phase == kLiquid ? 80000 : phase == kGas ? 8400 : 5600;
  if (FamilyOf(type) != ElementFamily::kOrificePlate) context.qMax *= 1.6;
  context.qNor = context.qMax * 0.8;
  return context;
}

}  // namespace flow
