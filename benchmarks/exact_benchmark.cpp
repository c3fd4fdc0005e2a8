// What the exact figures of a design take: those of the rotors and of the performance together, the
// gaps, the port timing in steps of a degree.
#include "exact/exact_figures.hpp"
#include "exact/port_timing.hpp"
#include "support/random_performance.hpp"

#include <benchmark/benchmark.h>

namespace {

const kvt::program& design_with_performance() {
    static const kvt::program kavetta = [] {
        kvt::random_values random(1);
        return kvt::random_performance(random);
    }();
    return kavetta;
}

void volume_flow_and_contact(benchmark::State& state) {
    const kvt::program& kavetta = design_with_performance();
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::exact_rotors_of(kavetta.design_params));
        benchmark::DoNotOptimize(kvt::exact_performance_of(
            kavetta.design_params, kavetta.perf_inputs, kavetta.perf_results));
    }
}
BENCHMARK(volume_flow_and_contact)->Unit(benchmark::kMillisecond);

void gaps(benchmark::State& state) {
    const kvt::program& kavetta = design_with_performance();
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::gaps_round_turn(kavetta.design_params));
    }
}
BENCHMARK(gaps)->Unit(benchmark::kMillisecond);

void timing_of_ports(benchmark::State& state) {
    const kvt::program& kavetta = design_with_performance();
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            kvt::time_ports(kavetta.design_params, kavetta.port_params,
                            {true, true, kavetta.port_params.has_groove, false, false}));
    }
}
BENCHMARK(timing_of_ports)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
