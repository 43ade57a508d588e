#pragma once

#include <string_view>

#include "data/process_state.h"

namespace flow {

/// Differential-pressure elements. The value is the position in the sheet's list and what a tag
/// record stores.
enum ElementType : int {
  kFlangeTapOrifice = 0,
  kDAndHalfDTapOrifice = 1,
  kCornerTapOrifice = 2,
  kVenaContractaTapOrifice = 3,
  kQuarterCircleOrifice = 4,
  kIsaNozzle = 5,
  kLongRadiusNozzle = 6,
  kAsCastVenturi = 7,
  kMachinedVenturi = 8,
  kWeldedVenturi = 9,
  kVenturiNozzle = 10,
};

inline constexpr int kElementTypes = 11;

using enum data::FluidPhase;

enum class ElementFamily { kOrificePlate, kNozzle, kVenturi };

constexpr ElementFamily FamilyOf(ElementType type) {
  if (type <= kQuarterCircleOrifice) return ElementFamily::kOrificePlate;
  return type <= kLongRadiusNozzle ? ElementFamily::kNozzle : ElementFamily::kVenturi;
}

/// Heading of the sheet for a family.
constexpr std::string_view HeadingOf(ElementFamily family) {
  switch (family) {
    case ElementFamily::kOrificePlate:
      return "ORIFICE PLATE CALCULATION";
    case ElementFamily::kNozzle:
      return "FLOW NOZZLE CALCULATION";
    case ElementFamily::kVenturi:
      break;
  }
  return "VENTURI TUBE CALCULATION";
}

/// Whether the coefficient shown is C; types 3 and 4 show the flow coefficient alpha instead.
constexpr bool HasDischargeCoefficient(ElementType type) {
  return type != kVenaContractaTapOrifice && type != kQuarterCircleOrifice;
}

}  // namespace flow
