#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>

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

}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
