#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "common/file.h"
#include "data/fluid_table.h"
#include "data/material_table.h"
#include "data/unit_table.h"

namespace tests {

/// Bytes of a data file as the build puts it beside the programs.
inline std::string ShippedFile(const std::string& name) {
  return common::ReadFile(common::JoinPath(ZEPHA_BUILD_DIR, name));
}

inline data::FluidTable ShippedFluids(const std::string& name) {
  data::FluidTable table;
  EXPECT_TRUE(data::ReadFluidTable(ShippedFile(name), table));
  return table;
}

inline int IndexOf(const std::vector<std::string>& names, const std::string& name) {
  const auto found = std::find(names.begin(), names.end(), name);
  EXPECT_NE(found, names.end()) << name;
  return static_cast<int>(found - names.begin());
}

/// Files that no parser of a fixed format may accept, built from a good one. They must neither
/// raise nor hang.
inline std::vector<std::string> DamagedFiles(const std::string& good) {
  std::string withNul = good;
  withNul[withNul.size() / 2] = '\0';
  return {"",
          "\r\n\r\n",
          "\"",
          ",,,,",
          std::string(100, '\0'),
          std::string(1000, '\xFF'),
          "\"" + std::string(5'000'000, 'x'),
          std::string(5'000'000, '9'),
          good.substr(0, good.size() / 2),
          withNul};
}

}  // namespace tests
