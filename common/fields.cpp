#include "common/fields.h"

#include <algorithm>

#include "common/text.h"

namespace common {

FieldReader::FieldReader(std::string bytes) : bytes_(std::move(bytes)) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes_.starts_with(kByteOrderMark)) position_ = kByteOrderMark.size();
}

void FieldReader::SkipToField() {
  position_ = std::min(bytes_.find_first_not_of(" \t\r\n", position_), bytes_.size());
}

bool FieldReader::AtEnd() {
  SkipToField();
  return position_ == bytes_.size();
}

std::optional<std::string> FieldReader::Next() {
  if (AtEnd()) return std::nullopt;
  std::string_view field;
  if (bytes_[position_] == '"') {
    const std::size_t begin = position_ + 1;
    const std::size_t end = std::min(bytes_.find('"', begin), bytes_.size());
    field = std::string_view(bytes_).substr(begin, end - begin);
    position_ = std::min(bytes_.find_first_of(",\r\n", end), bytes_.size());
  } else {
    const std::size_t end = std::min(bytes_.find_first_of(",\r\n", position_), bytes_.size());
    field = std::string_view(bytes_).substr(position_, end - position_);
    field = field.substr(0, field.find_last_not_of(" \t") + 1);
    position_ = end;
  }
  if (position_ < bytes_.size()) ++position_;
  return FromCp932(field);
}

std::string QuotedField(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string QuotedLine(std::span<const std::string> texts) {
  std::string line;
  for (const std::string& text : texts) {
    if (!line.empty()) line += ',';
    line += QuotedField(text);
  }
  return line + "\r\n";
}

}  // namespace common
