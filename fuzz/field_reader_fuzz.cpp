#include <string>
#include <vector>

#include "common/fields.h"
#include "common/text.h"
#include "fuzz/fuzz.h"

namespace {

using fuzz::Require;

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
  const std::vector<std::string> fields = FieldsOf(fuzz::Bytes(data, size));
  Require(fields.size() <= size);
  std::string written;
  for (const std::string& field : fields) {
    if (fuzz::HasQuote(field)) return 0;
    Require(!common::FirstOutsideCp932(field));
    written += common::QuotedField(common::ToCp932(field)) + ',';
  }
  Require(FieldsOf(written) == fields);
  return 0;
}
