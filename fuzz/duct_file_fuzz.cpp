#include "fuzz/fuzz.h"
#include "shell/duct_file.h"

using fuzz::Require;

/// Whatever the bytes, there are at most 20 ducts; they can be listed and saved, and are read back
/// unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  shell::DuctStore store;
  const shell::DuctFileContents read = shell::ParseDuctFile(fuzz::Bytes(data, size));
  store.TakeRows(read.rows);
  Require(store.Lines().size() == read.rows.size());
  store.MoveDown();
  store.MoveUp();
  const std::string saved = shell::EncodeDuctFile(store);
  if (fuzz::AnyHasQuote(read.rows)) return 0;
  const shell::DuctFileContents again = shell::ParseDuctFile(saved);
  Require(!again.fault && again.rows == read.rows);
  return 0;
}
