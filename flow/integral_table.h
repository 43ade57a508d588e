#pragma once

#include <array>
#include <string>

#include "common/real.h"

namespace flow {

using common::Real;

/// Integral orifice models, as they stand in Integral.dat. Indices: g group, t transmitter model
/// (list index), p phase (0 liquid, 1 gas), i bore. Groups 0 and 1 have six bores, group 2 seven.
struct IntegralTable {
  static constexpr int kGroups = 3;
  static constexpr int kModels = 4;       // models with a law
  static constexpr int kGroup2Law = 3;    // the model whose law is that of group 2
  static constexpr int kNamedModels = 3;  // models of group 0
  static constexpr int kPhases = 2;
  static constexpr int kBores = 6;
  static constexpr int kWideBores = 7;  // bores of group 2

  template <class Value>
  using ByBore = std::array<Value, kWideBores>;

  std::array<std::string, kGroups> integralName;             // [g]
  std::array<ByBore<std::string>, kGroups> integralNo;       // [g][i]
  std::array<ByBore<std::string>, kGroups> integralDiaText;  // [g][i], mm
  std::array<ByBore<Real>, kGroups> integralDia{};           // [g][i], mm
  std::array<ByBore<Real>, kGroups> integralBeta{};          // [g][i]
  std::array<std::string, kNamedModels> integralModelName;   // [t]

  // The law dP = a Q^b, [t][p][i]; t = kGroup2Law holds group 2.
  std::array<std::array<ByBore<Real>, kPhases>, kModels> integralA{};
  std::array<std::array<ByBore<Real>, kPhases>, kModels> integralB{};

  // Coefficient ratio of group 0: quadratic in ln Re and its Reynolds range, [p][i].
  std::array<std::array<Real, kBores>, kPhases> kafC2{};
  std::array<std::array<Real, kBores>, kPhases> kafC1{};
  std::array<std::array<Real, kBores>, kPhases> kafC0{};
  std::array<std::array<Real, kBores>, kPhases> kafReLow{};
  std::array<std::array<Real, kBores>, kPhases> kafReHigh{};

  // Group 1: coefficient and lowest Reynolds number, [i].
  std::array<Real, kBores> integralK{};
  std::array<Real, kBores> integralReLow{};

  bool Empty() const { return integralDia[0][0] == 0; }
};

/// Reads the contents of Integral.dat (CP932); beta of groups 0 and 2 is worked out from the bore
/// in a body of 14 and 13 mm. False when the file is short or a number is none; the table is then
/// empty.
bool ReadIntegralTable(std::string bytes, IntegralTable& table);

}  // namespace flow
