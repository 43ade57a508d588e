#pragma once

#include <string>
#include <vector>

namespace data {

using TextList = std::vector<std::string>;

/// The fixed lists of "ZephaConvertData.dat", which fill the sheets' combo boxes and name units in
/// reports and workbooks. Stored records hold positions in these lists, so their sizes and order
/// are fixed; the meaning of a unit's position is fixed by the conversion routines.
struct ConvertLists {
  TextList fluids;                   // 3, by fluid phase
  TextList liquidFlowUnits;          // 5
  TextList gasFlowUnits;             // 7
  TextList reportSteamFlowUnits;     // 2, for reports and workbooks
  TextList pressureUnits;            // 7
  TextList temperatureUnits;         // 3
  TextList gasDensityUnits;          // 5
  TextList reportSteamDensityUnits;  // 1, for workbooks
  TextList viscosityUnits;           // 3
  TextList vapourPressureUnits;      // 7
  TextList differentialUnits;        // 6
  TextList nominalSizes;             // 25, rows of the pipe table; sheets add "in"
  TextList schedules;                // 15; the pipe table has walls for 14, the last is blank
  TextList elementKinds;             // 11
  TextList integralModels;           // 5
  TextList thermowellMountings;      // 3; two are known, the last is blank
  TextList reportStressUnits;        // 3, for workbooks
  TextList valveSizes;               // 27; the first 25 are the nominal sizes

  bool Empty() const { return fluids.empty(); }
};

/// Reads the lists from CP932 bytes. False, with all lists left empty, unless the file has its 181
/// texts, neither fewer nor more.
bool ReadConvertLists(std::string bytes, ConvertLists& lists);

/// A list without the blank items at its end, which only keep its size in the file.
TextList ShownItems(TextList list);

// Lists that are no data.
inline const TextList kSteamFlowUnits = {"kg/h", "t/h"};
inline const TextList kLiquidDensityUnits = {"kg/m3", "g/cm3"};
inline const TextList kSteamDensityUnits = {"kg/m3"};
inline const TextList kLossUnits = {"kPa", "MPa", "kgf/cm2", "mmH2O", "mmHg", "bar", "psi"};
inline const TextList kStressUnits = {"kgf/mm2", "N/mm2", "MPa"};

}  // namespace data
