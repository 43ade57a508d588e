#include "ducts/duct_sizing.h"

namespace ducts {

CableLoad LoadOf(const CableRun& run, Real spanM) {
  constexpr double kMetresPerKm = 1000;
  const Real area = common::kSinglePi * run.diameter * run.diameter / 4 * run.quantity;
  const Real unitWeight = run.weightPerKm * run.quantity / kMetresPerKm;
  return {area, unitWeight, unitWeight * spanM};
}

CableLoad operator+(const CableLoad& a, const CableLoad& b) {
  return {a.area + b.area, a.unitWeight + b.unitWeight, a.weight + b.weight};
}

DuctClass ClassOf(Real width, Real height) {
  const Real girth = width + 2 * height;
  if (girth < 250) return DuctClass::kSmall;
  if (girth < 1200) return DuctClass::kFolded;
  return DuctClass::kSeparate;
}

Plate PlateOf(DuctClass duct) {
  switch (duct) {
    case DuctClass::kSmall:
      return {1.6, 20};
    case DuctClass::kFolded:
      return {2.3, 20};
    case DuctClass::kSeparate:
      break;
  }
  return {3.2, 50};
}

const DuctCatalogue::Row& SmallestDuct(const DuctCatalogue& catalogue, Real cableArea) {
  const Real required = cableArea / kFillLimit;
  for (const DuctCatalogue::Row& row : catalogue.rows) {
    if (row.area > required) return row;
  }
  return catalogue.rows.back();
}

Real ClearArea(const DuctSection& duct) {
  const auto& [W, H, F, t] = duct;
  const int plates = duct.Class() == DuctClass::kSeparate ? 3 : 2;
  return (W - 2 * t) * (H - plates * t);
}

Real SteelArea(const DuctSection& duct) {
  const auto& [W, H, F, t] = duct;
  // Two developed lengths that differ on purpose: one folded plate with a flange on either side,
  // and a bottom plate with two channels of two flanges each.
  if (duct.Class() == DuctClass::kSeparate) return ((W - 2 * t) + 2 * H + 4 * (F - t)) * t;
  return (2 * (F + H) + W - 4 * t) * t;
}

Real WeightPerMetre(const DuctSection& duct) {
  constexpr double kSteelDensity = 7.845;  // g/cm3
  constexpr double kMm2MetreToCm3 = 1000;  // a metre of 1 mm2 is 1 cm3, so g/cm3 gives g
  return SteelArea(duct) * kSteelDensity / kMm2MetreToCm3;
}

Real SecondMoment(const DuctSection& duct) {
  const auto& [W, H, F, t] = duct;
  if (duct.Class() == DuctClass::kSeparate) {
    return 2 * (F * pow(H, 3) - (F - t) * pow(H - 2 * t, 3)) / 12;
  }
  const Real b1 = 2 * t;          // both sides
  const Real b2 = W - 2 * t;      // bottom between them
  const Real b3 = 2 * F - 2 * t;  // flanges at the top
  const Real area = b3 * t + b1 * H + b2 * t;
  if (area == 0) return 0;
  const Real y = (b1 * H * H + b2 * t * t + b3 * t * (2 * H - t)) / (2 * area);  // of the centroid
  const Real e1 = H - y;
  const Real e2 = y - t;
  const Real e3 = e1 - t;
  return (2 * F * pow(e1, 3) - b3 * pow(e3, 3) + W * pow(y, 3) - b2 * pow(e2, 3)) / 3;
}

std::optional<Real> Sag(Real spanM, Real totalWeight, Real pointWeight, Real secondMoment) {
  constexpr double kElasticity = 19800;  // kgf/mm2
  if (spanM == 0 || secondMoment == 0) return std::nullopt;
  const Real L = spanM * 1000;
  const Real w = totalWeight / L;
  const Real EI = kElasticity * secondMoment;
  return 5.0 / 384.0 * w * pow(L, 4) / EI + pointWeight * pow(L, 3) / (48 * EI);
}

bool SagsTooMuch(Real sag, Real spanM) { return sag > spanM * 1000 / kSagLimit; }

DuctCheck CheckDuct(const DuctSection& section, const CableLoad& cables, Real spanM, Real workers) {
  DuctCheck check;
  check.duct = section.Class();
  check.clearArea = ClearArea(section);
  if (check.clearArea != 0) check.fill = cables.area / check.clearArea * 100;
  check.ductWeight = WeightPerMetre(section) * spanM;
  check.sag =
      Sag(spanM, cables.weight + check.ductWeight, workers * kWorkerWeight, SecondMoment(section));
  check.sagsTooMuch = check.sag && SagsTooMuch(*check.sag, spanM);
  return check;
}

}  // namespace ducts
