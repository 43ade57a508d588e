#include "shell/recovery_copy.h"

#include <utility>

#include "common/fault.h"
#include "common/file.h"
#include "common/parse.h"

namespace shell {

namespace {

using common::Fault;
using common::RuntimeFault;

constexpr std::string_view kName = "ZEPHA recovery 1\n";
constexpr std::string_view kTags = "tags";
constexpr std::string_view kDucts = "ducts";
constexpr std::string_view kEnd = "end";

void Append(std::string& bytes, std::string_view text) {
  bytes += std::to_string(text.size());
  bytes += ':';
  bytes += text;
  bytes += '\n';
}

template <class Row>
void Append(std::string& bytes, std::string_view name, const std::optional<Unsaved<Row>>& list) {
  if (!list) return;
  Append(bytes, name);
  Append(bytes, list->path);
  Append(bytes, list->fileWas);
  Append(bytes, std::to_string(list->rows.size()));
  for (const Row& row : list->rows) {
    for (const std::string& text : row) Append(bytes, text);
  }
}

void Require(bool holds) {
  if (!holds) throw RuntimeFault(Fault::kFileAccess);
}

template <class Number>
Number NumberIn(std::string_view text) {
  const auto number = common::ParseNumber<Number>(text);
  Require(number.has_value());
  return *number;
}

/// Takes texts off the bytes; raises kFileAccess where there is none.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {}

  std::string_view Next() {
    const auto colon = rest_.find(':');
    Require(colon != std::string_view::npos);
    const auto length = NumberIn<std::size_t>(rest_.substr(0, colon));
    rest_.remove_prefix(colon + 1);
    Require(length < rest_.size() && rest_[length] == '\n');
    const std::string_view text = rest_.substr(0, length);
    rest_.remove_prefix(length + 1);
    return text;
  }

  template <class Row>
  Unsaved<Row> NextList(std::size_t fewest, std::size_t most) {
    Unsaved<Row> list;
    list.path = Next();
    list.fileWas = Next();
    const auto count = NumberIn<std::size_t>(Next());
    Require(count >= fewest && count <= most);
    for (std::size_t i = 0; i < count; ++i) {
      for (std::string& text : list.rows.emplace_back()) text = Next();
    }
    return list;
  }

  bool AtEnd() const { return rest_.empty(); }

 private:
  std::string_view rest_;
};

RecoveryCopy Read(std::string_view bytes) {
  Require(bytes.starts_with(kName));
  Reader reader(bytes.substr(kName.size()));
  RecoveryCopy copy;
  copy.time = NumberIn<std::int64_t>(reader.Next());
  for (std::string_view name = reader.Next(); name != kEnd; name = reader.Next()) {
    if (name == kTags && !copy.tags) {
      copy.tags = reader.NextList<TagRow>(2, kMaxTags + 1);
    } else {
      Require(name == kDucts && !copy.ducts);
      copy.ducts = reader.NextList<DuctRow>(1, kMaxDucts);
    }
  }
  Require(reader.AtEnd());
  return copy;
}

/// FNV-1a, 64 bits, and the length.
std::string FingerprintOf(std::string_view bytes) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return std::to_string(hash) + "-" + std::to_string(bytes.size());
}

}  // namespace

std::string EncodeRecovery(const RecoveryCopy& copy) {
  std::string bytes(kName);
  Append(bytes, std::to_string(copy.time));
  Append(bytes, kTags, copy.tags);
  Append(bytes, kDucts, copy.ducts);
  Append(bytes, kEnd);
  return bytes;
}

std::optional<RecoveryCopy> ParseRecovery(std::string_view bytes) {
  try {
    return Read(bytes);
  } catch (const RuntimeFault&) {
    return std::nullopt;
  }
}

std::string FileFingerprint(const std::string& path) {
  if (path.empty()) return {};
  try {
    return FingerprintOf(common::ReadFile(path));
  } catch (const RuntimeFault&) {
    return {};
  }
}

}  // namespace shell
