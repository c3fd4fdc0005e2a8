// What the charts of a run take before they are painted: what they say and where it stands, and the
// point under the pointer.
#include "support/random_performance.hpp"
#include "views/charts/chart_drawing.hpp"

#include <benchmark/benchmark.h>

namespace {

/// The results of a random design; every design has as many points.
kvt::perf_results results_of_a_design() {
    kvt::random_values random(1);
    return kvt::random_performance(random).perf_results;
}

kvt::result_chart chart_of(const kvt::perf_results& results, kvt::chart_kind kind) {
    return kvt::make_chart(kind, results, kvt::ENGLISH, kvt::unit_system::metric);
}

void all_charts_of_a_run(benchmark::State& state) {
    const kvt::perf_results results = results_of_a_design();
    for (auto _ : state) {
        for (const kvt::chart_row& row : kvt::chart_rows()) {
            benchmark::DoNotOptimize(kvt::draw_chart(chart_of(results, row.kind), {}));
        }
    }
}
BENCHMARK(all_charts_of_a_run)->Unit(benchmark::kMicrosecond);

void resize_of_a_chart(benchmark::State& state) {
    const kvt::perf_results results = results_of_a_design();
    const auto kind = static_cast<kvt::chart_kind>(state.range(0));
    const kvt::result_chart chart = chart_of(results, kind);
    state.SetLabel(std::string(kvt::row_of(kind).name));
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::draw_chart(chart, {10000.0, 8000.0}));
    }
}
BENCHMARK(resize_of_a_chart)->DenseRange(0, 6)->Unit(benchmark::kMicrosecond);

/// The ripple has the most points, 3601.
void reading_under_the_pointer(benchmark::State& state) {
    const kvt::perf_results results = results_of_a_design();
    const kvt::result_chart chart = chart_of(results, kvt::chart_kind::ripple);
    const kvt::chart_drawing drawing = kvt::draw_chart(chart, {});
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::nearest_reading(chart, drawing, {4000.0, 3000.0}, {}, 1e9));
    }
}
BENCHMARK(reading_under_the_pointer)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
