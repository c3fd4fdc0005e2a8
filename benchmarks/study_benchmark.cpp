// How many designs a second a study calculates on all processors: up to each stage, and with the
// exact figures of volume, flow, contact and speed.
#include "app/study/study.hpp"
#include "long_study_table.hpp"
#include "support/open_design.hpp"

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

namespace {

constexpr std::uint64_t DESIGNS = 200;

void designs_of(benchmark::State& state, kvt::calc_stage last,
                const std::vector<std::string>& recorded) {
    kvt::study_plan plan;
    plan.variables = {kvt::study_variable_of("ecc=2:2.6"), kvt::study_variable_of("thick=8:14")};
    plan.sample = {kvt::sample_kind::sobol, DESIGNS, 1};
    plan.recorded = recorded;
    plan.last = last;
    const kvt::study study(kvt::opened_design("n07_engine_oil_groove"), plan);
    for (auto _ : state) {
        kvt::run_study(study, {0, DESIGNS}, kvt::processor_count(), [](kvt::study_row&& row) {
            benchmark::DoNotOptimize(row);
            return true;
        });
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(DESIGNS) * state.iterations());
}
BENCHMARK_CAPTURE(designs_of, rotors, kvt::calc_stage::profiles, {"capacity"})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(designs_of, performance, kvt::calc_stage::performance,
                  {"capacity", "overall_eff_max", "ripple"})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(designs_of, performance_and_exact, kvt::calc_stage::performance,
                  {"capacity", "exact_swept_cc", "exact_irregularity", "exact_flow_m3s[5][5]",
                   "exact_contact_pressure[5]"})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void sort_table(benchmark::State& state, std::size_t column) {
    kvt::study_table table = kvt::long_study_table();
    bool rises = true;
    for (auto _ : state) {
        rises = !rises;
        table.sort(column, rises);
    }
}
BENCHMARK_CAPTURE(sort_table, by_a_variable, 1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sort_table, by_the_result, 2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(sort_table, by_a_quantity, 3)->Unit(benchmark::kMillisecond);

void filter_table(benchmark::State& state, const char* filter) {
    kvt::study_table table = kvt::long_study_table();
    for (auto _ : state) {
        table.filter(filter);
    }
}
BENCHMARK_CAPTURE(filter_table, by_a_condition, "ripple<0.5")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(filter_table, by_a_text, "nowhere")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
