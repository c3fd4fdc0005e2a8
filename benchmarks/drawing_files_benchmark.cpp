// What a user waits for behind the save dialog of a STEP or DXF file: the text in memory, without
// the profile.
#include "support/cnc_design.hpp"

#include <benchmark/benchmark.h>

namespace {

void write_step(benchmark::State& state, const char* file) {
    const kvt::program kavetta = kvt::design_with_ports("n07_engine_oil_groove");
    std::size_t size = 0;
    for (auto _ : state) {
        size = kvt::step_bytes(kavetta, file).size();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
}

void write_dxf(benchmark::State& state, const char* file) {
    const kvt::program kavetta = kvt::design_with_ports("n07_engine_oil_groove");
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::dxf_bytes(kavetta, file).size());
    }
}

void step_inner_rotor(benchmark::State& state) {
    write_step(state, "inner");
}
BENCHMARK(step_inner_rotor)->Unit(benchmark::kMillisecond);

void step_outer_rotor(benchmark::State& state) {
    write_step(state, "outer");
}
BENCHMARK(step_outer_rotor)->Unit(benchmark::kMillisecond);

void step_assembly(benchmark::State& state) {
    write_step(state, "assembly");
}
BENCHMARK(step_assembly)->Unit(benchmark::kMillisecond);

void step_ports(benchmark::State& state) {
    write_step(state, "ports");
}
BENCHMARK(step_ports)->Unit(benchmark::kMillisecond);

void dxf_inner_rotor(benchmark::State& state) {
    write_dxf(state, "inner");
}
BENCHMARK(dxf_inner_rotor)->Unit(benchmark::kMillisecond);

void dxf_outer_rotor(benchmark::State& state) {
    write_dxf(state, "outer");
}
BENCHMARK(dxf_outer_rotor)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
