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

template <class Table>
using Reader = bool (*)(std::string bytes, Table& table);

/// A table of the data files.
template <class Table>
Table Shipped(Reader<Table> read, const std::string& name) {
  Table table;
  EXPECT_TRUE(read(ShippedFile(name), table)) << name;
  return table;
}

inline data::FluidTable ShippedFluids(const std::string& name) {
  return Shipped(data::ReadFluidTable, name);
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

/// That a reader refuses damaged files, also those that lack a field, and leaves an empty table,
/// whatever it held.
template <class Table>
void ExpectRefusals(Reader<Table> read, const std::string& good,
                    const std::vector<std::string>& more = {}) {
  std::vector<std::string> files = DamagedFiles(good);
  // Without the last field; byte 0 makes way for it, as the texts of some tables may hold any byte.
  files.back() = good.substr(0, good.find_last_of(",\n", good.size() - 3));
  files.insert(files.end(), more.begin(), more.end());
  for (const std::string& bytes : files) {
    SCOPED_TRACE(bytes.substr(0, 40));
    Table table;
    EXPECT_TRUE(read(good, table));
    EXPECT_FALSE(read(bytes, table));
    EXPECT_TRUE(table.Empty());
  }
}

/// The same of a reader that counts its fields and takes no byte 0.
template <class Table>
void ExpectStrictRefusals(Reader<Table> read, const std::string& good,
                          std::vector<std::string> more = {}) {
  more.push_back(good + "\"1\"");
  more.push_back(DamagedFiles(good).back());
  ExpectRefusals(read, good, more);
}

}  // namespace tests
