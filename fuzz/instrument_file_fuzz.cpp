#include <string>
#include <vector>

#include "common/fault.h"
#include "fuzz/fuzz.h"
#include "shell/instrument_file.h"

namespace {

using fuzz::Require;

data::PipeTable Pipes() {
  data::PipeTable pipes;
  pipes.rows.resize(data::PipeTable::kSizes);
  for (auto& row : pipes.rows) row.fill(2.5F);
  return pipes;
}

data::ConvertLists Lists() {
  data::ConvertLists lists;
  lists.valveSizes.assign(27, "1/2");
  return lists;
}

}  // namespace

/// Bytes are either refused with a fault or give rows that can be listed, saved, and read back
/// unchanged but for the version.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const data::PipeTable pipes = Pipes();
  static const data::ConvertLists lists = Lists();
  static shell::TagStore store;
  std::vector<shell::TagRow> rows;
  try {
    rows = shell::ParseInstrumentFile(fuzz::Bytes(data, size), pipes, lists);
  } catch (const common::RuntimeFault&) {
    return 0;
  }
  store.TakeRows(rows);
  store.SortByTag();
  store.TakeRows(rows);
  const std::string saved = shell::EncodeInstrumentFile(store);
  if (rows.empty() || fuzz::AnyHasQuote(rows)) return 0;
  rows.front().front() = shell::kProgramVersion;
  rows.front().back().clear();
  Require(shell::ParseInstrumentFile(saved, pipes, lists) == rows);
  return 0;
}
