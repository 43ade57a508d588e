#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace fuzz {

/// A property of a reader that does not hold ends the run as a crash would.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

inline std::string Bytes(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Whether a text has a quote, which a field can hold only when it stood without quotes; written
/// inside them it would end the field.
inline bool HasQuote(const std::string& text) { return text.find('"') != std::string::npos; }

/// Whether any field of the rows of a file has one.
template <class Row>
bool AnyHasQuote(const std::vector<Row>& rows) {
  return std::any_of(rows.begin(), rows.end(),
                     [](const Row& row) { return std::any_of(row.begin(), row.end(), HasQuote); });
}

}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
