#include <benchmark/benchmark.h>

#include "common/file.h"
#include "data/steam.h"
#include "data/units.h"
#include "flow/differential_pressure.h"
#include "piping/pressure_loss.h"
#include "shell/tables.h"

namespace {

/// A user who agrees to everything.
class Agreeing : public common::Messages {
 public:
  common::Answer Present(const common::Message&) override { return common::Answer::kYes; }
};

const shell::Tables& Tables() {
  static const shell::Tables tables = shell::LoadTables(ZEPHA_BUILD_DIR);
  return tables;
}

/// 20 t/h of water at 20 degC in 102.3 mm by 25 kPa.
flow::Context Water() {
  flow::Context context;
  context.elementType = flow::kFlangeTapOrifice;
  context.fluidPhase = flow::kLiquid;
  context.p = 6.13;
  context.t = 20;
  context.rho = 998.2;
  context.mu = 1.002;
  context.pipeBore = 102.3F;
  context.pipeBore20 = 102.3;
  context.dP = 2549.3;
  context.qMax = 20000;
  context.qNor = 15000;
  return context;
}

/// 2 t/h of air or 5 t/h of steam in the same pipe.
flow::Context Compressible(int phase) {
  flow::Context context = Water();
  context.fluidPhase = phase;
  context.p = phase == flow::kGas ? 6.03 : 10.2;
  context.t = phase == flow::kGas ? 20 : 200;
  context.rho = phase == flow::kGas ? 7.03 : 4.85;
  context.mu = phase == flow::kGas ? 0.0182 : 0.0159;
  context.kappa = phase == flow::kGas ? 1.4 : 1.3;
  context.dP = 1500;
  context.qMax = phase == flow::kGas ? 2000 : 3000;
  context.qNor = context.qMax * 0.75;
  context.bore = 60;
  return context;
}

common::Real ReNor(const flow::Context& context) {
  return 353.6777 * context.qNor / (context.pipeBore * context.mu);
}

void SolveBore(benchmark::State& state, flow::Context context) {
  Agreeing user;
  const common::Real reNor = ReNor(context);
  for (auto _ : state) {
    benchmark::DoNotOptimize(flow::SolveBore(context, Tables().orifice, reNor, user));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(SolveBore, water, Water());
BENCHMARK_CAPTURE(SolveBore, gas, Compressible(flow::kGas));

void SolveDifferentialForSteam(benchmark::State& state) {
  Agreeing user;
  flow::Context context = Compressible(flow::kSteam);
  context.boreToDifferential = true;
  const common::Real reNor = ReNor(context);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        flow::SolveDifferentialPressure(context, Tables().orifice, reNor, user));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SolveDifferentialForSteam);

void CoefficientCall(benchmark::State& state) {
  common::Real beta = 0.5;
  for (auto _ : state) {
    benchmark::DoNotOptimize(beta);
    benchmark::DoNotOptimize(flow::OrificeDischarge(flow::kFlangeTapOrifice, 70000, beta, 102.3F));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(CoefficientCall);

void ConvertGasFlow(benchmark::State& state) {
  data::ProcessState process;
  process.fluidPhase = data::kGas;
  process.pressureAbs = 6.03;
  process.temperatureK = 293.15;
  process.densityBase = 1.293;
  process.flowUnit = 5;
  for (auto _ : state) benchmark::DoNotOptimize(data::FlowToMass(process, 1500));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ConvertGasFlow);

void SteamDensity(benchmark::State& state) {
  data::ProcessState process;
  process.pressureAbs = 10.2;
  process.temperatureK = 473.15;
  for (auto _ : state) benchmark::DoNotOptimize(data::SteamDensity(process));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SteamDensity);

/// 2 t/h of steam or 1.5 t/h of air through 200 m of 4 in pipe.
void LineLoss(benchmark::State& state, int phase) {
  piping::Line line;
  line.fluidPhase = phase;
  line.pressureAbs = phase == data::kSteam ? 10.2 : 6.13;
  line.temperatureK = phase == data::kSteam ? 473.15 : 293.15;
  line.densityFlow = phase == data::kSteam ? 4.85 : 7.14;
  line.viscosityCp = 0.0159;
  line.massFlow = phase == data::kSteam ? 2000 : 1500;
  line.innerDiameter = 102.3;
  line.roughness = 0.05;
  line.pipeLength = 200;
  for (auto _ : state) {
    benchmark::DoNotOptimize(line);
    benchmark::DoNotOptimize(piping::CalculateLineLoss(line));
  }
}
BENCHMARK_CAPTURE(LineLoss, steam, data::kSteam);
BENCHMARK_CAPTURE(LineLoss, gas, data::kGas);

void LoadAllDataFiles(benchmark::State& state) {
  for (auto _ : state) {
    const shell::Tables tables = shell::LoadTables(ZEPHA_BUILD_DIR);
    if (!tables.unread.empty()) state.SkipWithError("a data file was not read");
    benchmark::DoNotOptimize(tables);
  }
}
BENCHMARK(LoadAllDataFiles)->Unit(benchmark::kMillisecond);

}  // namespace
