#pragma once

#include <optional>

#include "common/real.h"
#include "ducts/cable_table.h"

namespace ducts {

using common::Real;

/// Share of the clear section that cables may fill.
inline constexpr double kFillLimit = 0.3;
/// Weight of a worker who steps on a duct, kg.
inline constexpr double kWorkerWeight = 75;
/// A duct may sag by its support span over this.
inline constexpr double kSagLimit = 1000;

/// Cables of one kind in a duct.
struct CableRun {
  Real diameter;     // finished outside diameter, mm
  Real weightPerKm;  // kg/km
  Real quantity;     // number of cables
};

/// What cables add to a duct.
struct CableLoad {
  Real area;        // mm2
  Real unitWeight;  // kg/m
  Real weight;      // kg, over the whole span
};

/// Section and weight of cables of one kind over a support span in m. The section is that of round
/// cables without the gaps between them, with pi in single precision as the cable sheets have it.
CableLoad LoadOf(const CableRun& run, Real spanM);

CableLoad operator+(const CableLoad& a, const CableLoad& b);

/// How a duct is made: from one folded plate, or from a bottom plate between two channels.
enum class DuctClass { kSmall = 0, kFolded = 1, kSeparate = 2 };

/// Class by the girth W + 2H in mm: below 250 small, below 1200 folded, otherwise separate.
DuctClass ClassOf(Real width, Real height);

/// Plate and fold-in that go with a class, mm.
struct Plate {
  Real thickness;
  Real foldIn;
};
Plate PlateOf(DuctClass duct);

/// The first duct of the catalogue whose area is greater than the cables' section (mm2) over
/// kFillLimit; the largest one when there is none.
const DuctCatalogue::Row& SmallestDuct(const DuctCatalogue& catalogue, Real cableArea);

/// A duct's section in mm: outside width and height, flange that is folded in at the top (and, in
/// the separate class, at the bottom) of each side, and plate thickness. Any number is taken; a
/// section that cannot be made gives areas and moments that can be negative.
struct DuctSection {
  Real width;
  Real height;
  Real foldIn;
  Real thickness;

  DuctClass Class() const { return ClassOf(width, height); }
};

/// Room for cables, mm2: (W - 2t)(H - 2t), in the separate class, whose channels stand on the
/// bottom plate, (W - 2t)(H - 3t).
Real ClearArea(const DuctSection& duct);

/// Section of the steel, mm2, as the developed length of the plates times their thickness.
Real SteelArea(const DuctSection& duct);

/// Weight of an empty duct, kg/m, with 7.845 g/cm3 for steel.
Real WeightPerMetre(const DuctSection& duct);

/// Second moment of area about the horizontal axis of the parts that carry, mm4: the whole open
/// section of a folded duct about its centroid; the two side channels of a separate one, whose
/// bottom plate is not counted. 0 without steel.
Real SecondMoment(const DuctSection& duct);

/// Sag of a beam on two supports, mm: uniform load of totalWeight kg over the span and a load of
/// pointWeight kg in its middle,
///   5/384 w L^4 / (E I) + P L^3 / (48 E I), E 19800 kgf/mm2.
/// Nothing when span or second moment is 0.
std::optional<Real> Sag(Real spanM, Real totalWeight, Real pointWeight, Real secondMoment);

/// Whether a sag in mm is more than the limit for its span in m.
bool SagsTooMuch(Real sag, Real spanM);

/// What is found about a duct with its cables and workers.
struct DuctCheck {
  DuctClass duct = DuctClass::kSmall;
  Real clearArea;            // mm2
  std::optional<Real> fill;  // percent; nothing without room
  Real ductWeight;           // kg, over the whole span
  std::optional<Real> sag;   // mm
  bool sagsTooMuch = false;
};

/// Checks a duct with its cables over a support span in m and with a number of workers in its
/// middle.
DuctCheck CheckDuct(const DuctSection& section, const CableLoad& cables, Real spanM, Real workers);

}  // namespace ducts
