#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "common/file.h"
#include "shell/instrument_file.h"
#include "shell/recovery.h"
#include "shell/tables.h"

namespace {

/// Says nothing and agrees.
class Silent : public common::Messages {
 public:
  common::Answer Present(const common::Message&) override { return common::Answer::kYes; }
};

std::string TemporaryPath() { return "/tmp/zepha-bench-" + std::to_string(getpid()) + ".zph"; }

/// 300 tags as the differential-pressure sheet writes them, from the sample plant.
shell::TagStore FullStore(const shell::Tables& tables) {
  Silent user;
  shell::TagStore sample;
  shell::OpenInstrumentFile(sample, ZEPHA_SOURCE_DIR "/samples/plant.zph", tables.pipes,
                            tables.lists, user);
  std::vector<shell::TagRow> rows = {sample.Row(0)};
  for (int i = 0; i < shell::kMaxTags; ++i) {
    rows.push_back(sample.Row(1 + i % sample.TagCount()));
    rows.back()[0] = "FE-" + std::to_string(1000 + i);
  }
  shell::TagStore store;
  store.TakeRows(std::move(rows));
  store.zephaFileName = TemporaryPath();
  return store;
}

void SaveFullStore(benchmark::State& state) {
  const shell::Tables tables = shell::LoadTables(ZEPHA_BUILD_DIR);
  shell::TagStore store = FullStore(tables);
  Silent user;
  for ([[maybe_unused]] auto _ : state) {
    if (!shell::SaveInstrumentFile(store, user)) state.SkipWithError("not saved");
  }
  std::remove(TemporaryPath().c_str());
}
BENCHMARK(SaveFullStore)->Unit(benchmark::kMillisecond);

void OpenFullStore(benchmark::State& state) {
  const shell::Tables tables = shell::LoadTables(ZEPHA_BUILD_DIR);
  shell::TagStore store = FullStore(tables);
  Silent user;
  shell::SaveInstrumentFile(store, user);
  for ([[maybe_unused]] auto _ : state) {
    const bool opened =
        shell::OpenInstrumentFile(store, TemporaryPath(), tables.pipes, tables.lists, user);
    if (!opened || store.TagCount() != shell::kMaxTags) state.SkipWithError("not opened");
  }
  std::remove(TemporaryPath().c_str());
}
BENCHMARK(OpenFullStore)->Unit(benchmark::kMillisecond);

/// The recovery copy, written anew at every round as if one text had changed.
void CopyFullStore(benchmark::State& state) {
  shell::TagStore store = FullStore(shell::LoadTables(ZEPHA_BUILD_DIR));
  store.tagModified = true;
  shell::Recovery recovery;
  const std::string folder = TemporaryPath() + ".state";
  recovery.UseFolder(folder);
  int round = 0;
  for ([[maybe_unused]] auto _ : state) {
    store.SetText(1, 1, std::to_string(++round));
    recovery.Keep(store, {});
    if (!recovery.Trouble().empty()) state.SkipWithError("not copied");
  }
  recovery.End();
  std::remove(folder.c_str());
}
BENCHMARK(CopyFullStore)->Unit(benchmark::kMillisecond);

}  // namespace
