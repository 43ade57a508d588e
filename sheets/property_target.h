#pragma once

#include <string>

namespace sheets {

/// A sheet that the fluid pick list can fill.
class PropertyTarget {
 public:
  virtual ~PropertyTarget() = default;
  /// Fills the one property of that word ("密度", "粘性係数", "偏差係数", "比熱比", "飽和蒸気圧",
  /// "飽和水蒸気圧", "臨界圧力") for a fluid of the table of the sheet's phase.
  virtual void FillProperty(const std::string& word, int fluidIndex) = 0;
  /// Fills all properties that the sheet has, in the sheet's order.
  virtual void FillAllProperties(int fluidIndex) = 0;
};

/// A form that lists the fluids of the tables.
class FluidUser {
 public:
  virtual ~FluidUser() = default;
  /// The tables have been edited while the form is open: its list is to be filled anew, results
  /// that rest on the old data go. What the user has chosen and entered stays.
  virtual void FluidsChanged() = 0;
};

/// A sheet that the pipe dialogue can fill.
class PipeTarget {
 public:
  virtual ~PipeTarget() = default;
  /// A pipe has been chosen: outside diameter, wall and bore, mm.
  virtual void TakePipe(double outsideDiameter, double wallThickness, double bore) = 0;
  /// Nominal size on which the dialogue opens; 12 is 4 in.
  virtual int PipeStartSize() const { return 12; }
};

}  // namespace sheets
