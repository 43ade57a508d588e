#include "ducts/cable_choice.h"

#include <algorithm>

#include "common/real.h"

namespace ducts {

namespace {

using Texts = std::vector<std::string>;

int PlaceOf(const Texts& texts, const std::string& text) {
  const auto found = std::find(texts.begin(), texts.end(), text);
  return found == texts.end() ? -1 : static_cast<int>(found - texts.begin());
}

float Entry(const CableTable::ByCable& table, const CableChoice& choice) {
  return common::At(common::At(common::At(table, choice.cable), choice.cores), choice.size);
}

}  // namespace

const Texts& CableNames(CableGroup group) {
  static const Texts kNames[kCableGroups] = {{"CVV     ", "CVV-S   ", "CVV-SB  "},
                                             {"TX-G(VV)", "JX-G(VV)", "KX-G(VV)"},
                                             {"被覆銅管"},
                                             {""}};
  return common::At(kNames, static_cast<int>(group));
}

const Texts& CoreCounts(CableGroup group, int cable) {
  static const Texts kCores = {" 2c", " 3c", " 4c", " 5c", " 6c", " 7c",
                               " 8c", "10c", "12c", "15c", "20c", "30c"};
  static const Texts kPairs = {" 1P", " 2P", " 3P", " 4P", " 5P", " 6P",
                               " 7P", "10P", "12P", "15P", "19P"};
  static const Texts kTubes = {" 1本", " 2本", " 3本", " 4本", " 7本", "10本", "12本"};
  static const Texts kNone = {" "};
  switch (group) {
    case CableGroup::kControl:
      return cable > 0 ? kPairs : kCores;  // only the unshielded cable is made of single cores
    case CableGroup::kLead:
      return kPairs;
    case CableGroup::kTube:
      return kTubes;
    case CableGroup::kOther:
      break;
  }
  return kNone;
}

const Texts& CableSizes(CableGroup group) {
  static const Texts kSizes[kCableGroups] = {
      {"0.9", "1.25", "2.0", "3.5 "}, {"1.25", "1.3", "2.0", "2.3"}, {"6/4"}, {""}};
  return common::At(kSizes, static_cast<int>(group));
}

std::optional<CableFigures> FiguresOf(const CableTable& table, const CableChoice& choice) {
  if (choice.cable < 0 || choice.cores < 0 || choice.size < 0) return std::nullopt;
  CableFigures figures;
  switch (choice.group) {
    case CableGroup::kControl:
      figures = {Entry(table.controlCableDia, choice), Entry(table.controlCableWeight, choice)};
      break;
    case CableGroup::kLead:
      figures = {Entry(table.leadCableDia, choice), Entry(table.leadCableWeight, choice)};
      break;
    case CableGroup::kTube:
      figures = {common::At(table.copperTubeDia, choice.cores),
                 common::At(table.copperTubeWeight, choice.cores)};
      break;
    case CableGroup::kOther:
      break;
  }
  if (figures.diameter == 0) return std::nullopt;
  return figures;
}

CableChoice FindCable(const std::string& name, const std::string& cores, const std::string& size) {
  for (const CableGroup group : {CableGroup::kControl, CableGroup::kLead, CableGroup::kTube}) {
    CableChoice choice = {group, PlaceOf(CableNames(group), name), -1, -1};
    if (choice.cable < 0) continue;
    choice.cores = PlaceOf(CoreCounts(group, choice.cable), cores);
    choice.size = PlaceOf(CableSizes(group), size);
    if (choice.cores >= 0 && choice.size >= 0) return choice;
  }
  return {CableGroup::kOther, -1, -1, -1};
}

}  // namespace ducts
