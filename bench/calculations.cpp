#include <benchmark/benchmark.h>

#include "bench.h"
#include "data/steam.h"
#include "data/units.h"
#include "flow/differential_pressure.h"
#include "piping/pressure_loss.h"
#include "shell/tables.h"
#include "temperature/sensor.h"
#include "temperature/thermowell.h"
#include "valve/noise.h"
#include "valve/sizing.h"

namespace {

const shell::Tables& Tables() {
  static const shell::Tables tables = shell::LoadTables(ZEPHA_BUILD_DIR);
  return tables;
}

/// The result beside the time, to be compared with that of other programs.
void Tell(benchmark::State& state, double result) { state.counters["result"] = result; }

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
  bench::Agreeing user;
  const common::Real reNor = ReNor(context);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(flow::SolveBore(context, Tables().orifice, reNor, user));
  }
  Tell(state,
       flow::SolveBore(context, Tables().orifice, reNor, user).value().beta * context.pipeBore);
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(SolveBore, water, Water());
BENCHMARK_CAPTURE(SolveBore, gas, Compressible(flow::kGas));

void SolveDifferentialForSteam(benchmark::State& state) {
  bench::Agreeing user;
  flow::Context context = Compressible(flow::kSteam);
  context.boreToDifferential = true;
  const common::Real reNor = ReNor(context);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(
        flow::SolveDifferentialPressure(context, Tables().orifice, reNor, user));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(SolveDifferentialForSteam);

void CoefficientCall(benchmark::State& state) {
  common::Real beta = 0.5;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(beta);
    benchmark::DoNotOptimize(
        flow::DischargeEquation(flow::kFlangeTapOrifice, 70000, 102.3F).At(beta));
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
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(data::FlowToMass(process, 1500));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ConvertGasFlow);

void SteamDensity(benchmark::State& state) {
  data::ProcessState process;
  process.pressureAbs = 10.2;
  process.temperatureK = 473.15;
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(data::SteamDensity(process));
  Tell(state, data::SteamDensity(process));
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
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(line);
    benchmark::DoNotOptimize(piping::CalculateLineLoss(line));
  }
}
BENCHMARK_CAPTURE(LineLoss, steam, data::kSteam);
BENCHMARK_CAPTURE(LineLoss, gas, data::kGas);

void FrictionFactor(benchmark::State& state) {
  common::Real reynolds = 100000;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(reynolds);
    benchmark::DoNotOptimize(piping::FrictionFactor(reynolds, 0.05, 102.3));
  }
  Tell(state, piping::FrictionFactor(reynolds, 0.05, 102.3));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(FrictionFactor);

/// 100 t/h of water at 20 degC from 10 to 8 kgf/cm2 absolute, or 10 t/h of steam, in a 4 in valve
/// in a 4 in pipe.
valve::Service ValveService(int phase) {
  valve::Service service;
  service.fluidPhase = phase;
  service.w = phase == data::kLiquid ? 100000 : 10000;
  service.p1 = 10;
  service.p2 = 8;
  service.dP = 2;
  service.t = phase == data::kLiquid ? 20 : 200;
  service.tk = service.t + 273.15;
  service.superheat = 20;
  service.rho = phase == data::kLiquid ? 998.2 : 4.75;
  service.rho1 = service.rho;
  service.mu = phase == data::kLiquid ? 1.0 : 0.016;
  service.pv = 0.0238;
  service.pc = 225.65;
  service.k = 1.3;
  return service;
}

valve::SelectedValve FourInchValve() {
  valve::SelectedValve valve;
  valve.ratedCv = 195;
  valve.d = 100;
  valve.d1 = 100;
  valve.d2 = 100;
  valve.wallWeight = 42;
  return valve;
}

void SizeValve(benchmark::State& state, int phase) {
  valve::Service service = ValveService(phase);
  const valve::SelectedValve valve = FourInchValve();
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(service);
    benchmark::DoNotOptimize(valve::SizeCv(service, valve));
  }
  Tell(state, valve::SizeCv(service, valve).value().cv);
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(SizeValve, liquid, data::kLiquid);
BENCHMARK_CAPTURE(SizeValve, steam, data::kSteam);

void ValveNoise(benchmark::State& state) {
  bench::Agreeing user;
  valve::Service service = ValveService(data::kSteam);
  const valve::SelectedValve valve = FourInchValve();
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(service);
    benchmark::DoNotOptimize(valve::NoiseLevel(service, valve, 150, user));
  }
  Tell(state, valve::NoiseLevel(service, valve, 150, user));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ValveNoise);

void TemperatureOfOutput(benchmark::State& state, int kind, common::Real output) {
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(output);
    benchmark::DoNotOptimize(temperature::CalcTemperature(Tables().sensors, kind, output));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(TemperatureOfOutput, typeK, temperature::kTypeK, 20644);
BENCHMARK_CAPTURE(TemperatureOfOutput, pt100, temperature::kPt100, 175.86);

/// A straight 16 mm well in 2 m/s of water.
void AnalyseThermowell(benchmark::State& state) {
  bench::Agreeing user;
  temperature::Thermowell well;
  well.totalLength = 0.25;
  well.insertionLength = 0.15;
  well.tipDiameter = 0.016;
  well.rootDiameter = 0.016;
  well.bore = 0.008;
  well.tipThickness = 0.006;
  well.wellDensity = 7930;
  well.youngsModulus = 1.98e10;
  well.allowableStress = 1.3e7;
  well.dampingRatio = 0.0005;
  well.stressConcentration = 2;
  well.density = 998;
  well.viscosity = 1;
  well.volumeFlow = 131;
  well.pipeBore = 151;
  for ([[maybe_unused]] auto _ : state) {
    temperature::ThermowellFindings findings;
    benchmark::DoNotOptimize(well);
    benchmark::DoNotOptimize(temperature::AnalyseThermowell(well, user, findings));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(AnalyseThermowell);

void LoadAllDataFiles(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    const shell::Tables tables = shell::LoadTables(ZEPHA_BUILD_DIR);
    if (!tables.unread.empty()) state.SkipWithError("a data file was not read");
    benchmark::DoNotOptimize(tables);
  }
}
BENCHMARK(LoadAllDataFiles)->Unit(benchmark::kMillisecond);

}  // namespace
