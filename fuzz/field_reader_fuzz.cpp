#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "common/fields.h"
#include "common/text.h"

namespace {

/// A property of the reader that does not hold ends the run as a crash would.
void Require(bool holds) {
  if (!holds) std::abort();
}

std::vector<std::string> FieldsOf(const std::string& bytes) {
  common::FieldReader reader(bytes);
  std::vector<std::string> fields;
  while (true) {
    const bool end = reader.AtEnd();
    auto field = reader.Next();
    Require(field.has_value() != end);
    if (!field) return fields;
    fields.push_back(std::move(*field));
  }
}

}  // namespace

/// Fields that were read, written again in quotes, are the same fields.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::vector<std::string> fields = FieldsOf(bytes);
  Require(fields.size() <= size);
  std::string written;
  for (const std::string& field : fields) {
    // Only a field that stood without quotes can hold one, and it would end there.
    if (field.find('"') != std::string::npos) return 0;
    if (common::FirstOutsideCp932(field)) std::abort();
    written += common::QuotedField(common::ToCp932(field)) + ',';
  }
  Require(FieldsOf(written) == fields);
  return 0;
}
