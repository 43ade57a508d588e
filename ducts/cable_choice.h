#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ducts/cable_table.h"

namespace ducts {

/// Groups of what lies in a duct. The last one has no table: its figures are typed.
enum class CableGroup { kControl = 0, kLead = 1, kTube = 2, kOther = 3 };
inline constexpr int kCableGroups = 4;

/// A cable by its places in the lists; -1 where nothing is chosen.
struct CableChoice {
  CableGroup group = CableGroup::kControl;
  int cable = -1;
  int cores = -1;
  int size = -1;

  bool operator==(const CableChoice&) const = default;
};

// The texts of the lists carry blanks of their own, which belong to them: rows and files hold them
// whole.

/// Names of the cables of a group.
const std::vector<std::string>& CableNames(CableGroup group);
/// Cores, pairs or tubes that a cable of the group is made with. cable: its place, or -1.
const std::vector<std::string>& CoreCounts(CableGroup group, int cable);
/// Nominal sizes of the group: mm2 of a conductor, mm of a tube.
const std::vector<std::string>& CableSizes(CableGroup group);

struct CableFigures {
  float diameter = 0;     // mm
  float weightPerKm = 0;  // kg/km
};

/// Figures of a cable; nothing while the choice is incomplete, for the last group, and where the
/// table has no cable.
std::optional<CableFigures> FiguresOf(const CableTable& table, const CableChoice& choice);

/// The choice whose texts these are; the last group, with nothing chosen, when there is none.
CableChoice FindCable(const std::string& name, const std::string& cores, const std::string& size);

}  // namespace ducts
