#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace data {

/// The fields of a data file that has a fixed number of them: CP932 bytes in, UTF-8 texts out.
/// Nothing when the file has fewer or more, or NUL bytes, which no text has.
std::optional<std::vector<std::string>> ReadFields(std::string bytes, std::size_t count);

/// Whether bytes are text at all: no NUL byte.
bool IsText(std::string_view bytes);

/// The numbers of a file that has a fixed number of them, each rounded to single precision.
/// Nothing when one is missing, left over, no number or beyond single precision.
std::optional<std::vector<float>> ReadSingles(std::string bytes, std::size_t count);

}  // namespace data
