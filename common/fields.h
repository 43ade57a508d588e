#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace common {

/// Reads comma-delimited fields, quoted or bare, one after the other and wherever the line breaks
/// fall. Line ends and blanks in front of a field count for nothing; a quote ends a quoted field
/// and what follows it up to the next comma or line end is dropped. Works on CP932 bytes, whose
/// trail bytes are never quotes, commas or line ends, and gives each field as UTF-8.
class FieldReader {
 public:
  explicit FieldReader(std::string bytes);

  /// The next field, or nothing at the end.
  std::optional<std::string> Next();

  /// Whether no field is left.
  bool AtEnd();

 private:
  void SkipToField();

  std::string bytes_;
  std::size_t position_ = 0;
};

/// A field in quotes. A quote inside is written as it stands and ends the field on reading.
std::string QuotedField(std::string_view text);

/// A line of such fields with its end.
std::string QuotedLine(std::span<const std::string> texts);

}  // namespace common
