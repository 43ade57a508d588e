#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "bench.h"
#include "shell/instrument_file.h"
#include "shell/recovery.h"
#include "shell/tables.h"

namespace {

std::string TemporaryPath() { return "/tmp/zepha-bench-" + std::to_string(getpid()) + ".zph"; }

/// 300 tags of the sample plant.
shell::TagStore FullStore(const shell::Tables& tables) {
  bench::Agreeing user;
  shell::TagStore sample;
  shell::OpenInstrumentFile(sample, ZEPHA_SOURCE_DIR "/samples/plant.zph", tables.pipes,
                            tables.lists, user);
  shell::TagStore store = bench::FullStore(sample);
  store.zephaFileName = TemporaryPath();
  return store;
}

void SaveFullStore(benchmark::State& state) {
  const shell::Tables tables = shell::LoadTables(ZEPHA_BUILD_DIR);
  shell::TagStore store = FullStore(tables);
  bench::Agreeing user;
  for ([[maybe_unused]] auto _ : state) {
    if (!shell::SaveInstrumentFile(store, user)) state.SkipWithError("not saved");
  }
  std::remove(TemporaryPath().c_str());
}
BENCHMARK(SaveFullStore)->Unit(benchmark::kMillisecond);

void OpenFullStore(benchmark::State& state) {
  const shell::Tables tables = shell::LoadTables(ZEPHA_BUILD_DIR);
  shell::TagStore store = FullStore(tables);
  bench::Agreeing user;
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
