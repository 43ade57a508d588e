#pragma once

#include <string>

#include "common/fields.h"
#include "common/real.h"

namespace common {

/// Reads a data file field by field into a table and remembers whether each field was there and,
/// where a number is due, was one. After the first bad field it gives only "" and 0, so that a
/// loader can read its whole table and ask once at the end. Fields behind the last one that the
/// loader asks for are not looked at.
class TableReader {
 public:
  /// Takes the contents of a file in CP932.
  explicit TableReader(std::string bytes) : fields_(std::move(bytes)) {}

  /// The next field as UTF-8 text; an empty field is a text, too.
  std::string Text();

  /// The next field as a number.
  Real Number();

  /// The next field as a number in single precision.
  float SingleNumber();

  /// The next field both as it stands and as a number.
  Real Number(std::string& text);

  /// Whether all fields asked for so far were good.
  bool Good() const { return good_; }

 private:
  FieldReader fields_;
  bool good_ = true;
};

}  // namespace common
