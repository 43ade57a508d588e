#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/duct_store.h"
#include "shell/tag_store.h"

namespace shell {

/// Rows that have not been saved, and the file that they belong to.
template <class Row>
struct Unsaved {
  /// "" for a new file.
  std::string path;
  /// Fingerprint of that file when the changes began, "" when it could not be read.
  std::string fileWas;
  std::vector<Row> rows;

  bool operator==(const Unsaved&) const = default;
};

/// Work in progress as it is kept for the case of a crash; a list without unsaved changes is not in
/// it.
struct RecoveryCopy {
  /// When it was made, in seconds since 1970 (UTC).
  std::int64_t time = 0;
  /// Header first, as in the instrument file.
  std::optional<Unsaved<TagRow>> tags;
  std::optional<Unsaved<DuctRow>> ducts;

  bool Empty() const { return !tags && !ducts; }
  int TagCount() const { return tags ? static_cast<int>(tags->rows.size()) - 1 : 0; }
  int DuctCount() const { return ducts ? static_cast<int>(ducts->rows.size()) : 0; }

  bool operator==(const RecoveryCopy&) const = default;
};

/// The bytes of a recovery file: its name and version on the first line, then every text on a line
/// behind the number of its bytes. So it holds what a file of the user's refuses: characters
/// outside CP932, quotes, line breaks, and file names that are no UTF-8.
std::string EncodeRecovery(const RecoveryCopy& copy);

/// Nothing when the bytes are not exactly a whole recovery file.
std::optional<RecoveryCopy> ParseRecovery(std::string_view bytes);

/// A text that tells the contents of files apart; "" when there is none or it cannot be read.
std::string FileFingerprint(const std::string& path);

}  // namespace shell
