// What a user waits for behind the save dialogs of the exact files, each beside the told one where
// there is one; in memory, without the profiles.
#include "support/cnc_design.hpp"

#include <benchmark/benchmark.h>

namespace {

void writes(benchmark::State& state, kvt::file_group group, const char* name) {
    const kvt::program kavetta = kvt::design_with_ports("n07_engine_oil_groove");
    std::size_t size = 0;
    for (auto _ : state) {
        size = kvt::file_bytes(kavetta, group, name).size();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
}

using enum kvt::file_group;

BENCHMARK_CAPTURE(writes, step_inner, step, "inner")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, exact_step_inner, step_exact, "inner")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, exact_step_outer, step_exact, "outer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, exact_step_assembly, step_exact, "assembly")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, exact_step_ports, step_exact, "ports")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, dxf_inner, dxf, "inner")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, exact_dxf_inner, dxf_exact, "inner")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, exact_dxf_polyline, dxf_exact, "inner_polyline")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, exact_dxf_outer, dxf_exact, "outer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, exact_dxf_pair, dxf_exact, "pair")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, svg_pair, svg, "pair")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, svg_ports, svg, "ports")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, stl_inner, stl, "inner")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, stl_outer, stl, "outer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, stl_ports, stl, "ports")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
