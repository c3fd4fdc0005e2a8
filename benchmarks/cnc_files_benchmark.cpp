// What a workshop waits for: each CNC file of a design with groove and shadow ports, written into
// memory.
#include "support/cnc_design.hpp"

#include <benchmark/benchmark.h>

namespace {

void write_file(benchmark::State& state, const char* name) {
    kvt::program kavetta = kvt::design_with_ports("n07_engine_oil_groove");
    kavetta.cnc_choices = {4, 2.0, 1.0};
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::cnc_bytes(kavetta, name));
    }
}
BENCHMARK_CAPTURE(write_file, inner_xy, "inner_xy")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(write_file, inner_offset_checked, "inner_offset_checked")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(write_file, outer_offset_checked, "outer_offset_checked")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(write_file, outer_lathe, "outer_lathe")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(write_file, outlet_xy, "outlet_xy")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(write_file, outlet_pocket, "outlet_pocket")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
