// What a user waits for behind the save dialog of a STEP or DXF file: the text in memory, without
// the profile.
#include "app/files/dxf_output.hpp"
#include "app/files/step_output.hpp"
#include "support/cnc_design.hpp"

#include <benchmark/benchmark.h>

namespace {

void write_step(benchmark::State& state, kvt::step_file file) {
    const kvt::program kavetta = kvt::design_with_ports("n07_engine_oil_groove");
    std::size_t size = 0;
    for (auto _ : state) {
        kvt::text_lines text;
        kvt::append_step_file(text, file, kavetta, "pump.stp");
        size = text.bytes().size();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
}

void write_dxf(benchmark::State& state, kvt::dxf_file file) {
    const kvt::program kavetta = kvt::design_with_ports("n07_engine_oil_groove");
    for (auto _ : state) {
        kvt::text_lines text;
        kvt::append_dxf_file(text, file, kavetta);
        benchmark::DoNotOptimize(text.bytes().size());
    }
}

void step_inner_rotor(benchmark::State& state) {
    write_step(state, kvt::step_file::inner);
}
BENCHMARK(step_inner_rotor)->Unit(benchmark::kMillisecond);

void step_outer_rotor(benchmark::State& state) {
    write_step(state, kvt::step_file::outer);
}
BENCHMARK(step_outer_rotor)->Unit(benchmark::kMillisecond);

void step_assembly(benchmark::State& state) {
    write_step(state, kvt::step_file::assembly);
}
BENCHMARK(step_assembly)->Unit(benchmark::kMillisecond);

void step_ports(benchmark::State& state) {
    write_step(state, kvt::step_file::ports);
}
BENCHMARK(step_ports)->Unit(benchmark::kMillisecond);

void dxf_inner_rotor(benchmark::State& state) {
    write_dxf(state, kvt::dxf_file::inner);
}
BENCHMARK(dxf_inner_rotor)->Unit(benchmark::kMillisecond);

void dxf_outer_rotor(benchmark::State& state) {
    write_dxf(state, kvt::dxf_file::outer);
}
BENCHMARK(dxf_outer_rotor)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
