#include "data/convert_lists.h"

#include "common/text.h"
#include "data/field_list.h"

namespace data {

namespace {

/// A list and its size, in file order. Without a list the items are passed over.
struct Section {
  TextList ConvertLists::*list;
  std::size_t size;
};

constexpr Section kSections[] = {
    {&ConvertLists::fluids, 3},
    {&ConvertLists::liquidFlowUnits, 5},
    {&ConvertLists::gasFlowUnits, 7},
    {&ConvertLists::reportSteamFlowUnits, 2},
    {&ConvertLists::pressureUnits, 7},
    {&ConvertLists::temperatureUnits, 3},
    {nullptr, 2},  // liquid density units; the sheets have their own
    {&ConvertLists::gasDensityUnits, 5},
    {&ConvertLists::reportSteamDensityUnits, 1},
    {&ConvertLists::viscosityUnits, 3},
    {&ConvertLists::vapourPressureUnits, 7},
    {&ConvertLists::differentialUnits, 6},
    {&ConvertLists::nominalSizes, 25},
    {&ConvertLists::schedules, 15},
    {&ConvertLists::elementKinds, 11},
    {&ConvertLists::integralModels, 5},
    {nullptr, 21},  // bores of the integral orifices
    {nullptr, 10},  // vortex meter sizes
    {&ConvertLists::thermowellMountings, 3},
    {&ConvertLists::reportStressUnits, 3},
    {nullptr, 10},  // temperature sensors
    {&ConvertLists::valveSizes, 27},
};

constexpr std::size_t TotalSize() {
  std::size_t total = 0;
  for (const Section& section : kSections) total += section.size;
  return total;
}
static_assert(TotalSize() == 181);

}  // namespace

bool ReadConvertLists(std::string bytes, ConvertLists& lists) {
  lists = {};
  const auto texts = ReadFields(std::move(bytes), TotalSize());
  if (!texts) return false;
  auto next = texts->begin();
  for (const Section& section : kSections) {
    const auto end = next + static_cast<std::ptrdiff_t>(section.size);
    if (section.list != nullptr) (lists.*section.list).assign(next, end);
    next = end;
  }
  return true;
}

TextList ShownItems(TextList list) {
  while (!list.empty() && common::IsBlank(list.back())) list.pop_back();
  return list;
}

}  // namespace data
