#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "shell/duct_file.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

bool HasQuote(const std::vector<shell::DuctRow>& rows) {
  return std::any_of(rows.begin(), rows.end(), [](const shell::DuctRow& row) {
    return std::any_of(row.begin(), row.end(),
                       [](const std::string& text) { return text.find('"') != std::string::npos; });
  });
}

}  // namespace

/// Whatever the bytes, there are at most 20 ducts; they can be listed and saved, and are read back
/// unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  shell::DuctStore store;
  const shell::DuctFileContents read =
      shell::ParseDuctFile({reinterpret_cast<const char*>(data), size});
  store.TakeRows(read.rows);
  Require(store.Lines().size() == read.rows.size());
  store.MoveDown();
  store.MoveUp();
  const std::string saved = shell::EncodeDuctFile(store);
  if (HasQuote(read.rows)) return 0;
  const shell::DuctFileContents again = shell::ParseDuctFile(saved);
  Require(!again.fault && again.rows == read.rows);
  return 0;
}
