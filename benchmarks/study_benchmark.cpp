// How many designs a second a study calculates on all processors: up to each stage, and with the
// exact figures of volume, flow, contact and speed.
#include "app/study/sample_places.hpp"
#include "app/study/study_table.hpp"
#include "support/open_design.hpp"

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <utility>
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

/// As many rows as a window may hold.
kvt::study_table long_table() {
    constexpr std::uint64_t ROWS = 100000;
    kvt::study_plan plan;
    plan.variables = {kvt::study_variable_of("ecc=2:2.6")};
    plan.sample = {kvt::sample_kind::latin, ROWS, 1};
    plan.recorded = {"capacity", "ripple"};
    const auto study =
        std::make_shared<const kvt::study>(kvt::opened_design("n07_engine_oil_groove"), plan);
    std::vector<kvt::study_row> rows(ROWS);
    for (std::uint64_t i = 0; i < ROWS; ++i) {
        rows[i].number = i;
        rows[i].texts = study->texts_of(i);
        rows[i].values = {kvt::uniform_number(1, i), kvt::uniform_number(2, i)};
        rows[i].messages = {"Minimum value for Outer Rotor Root Radius is 24.8"};
    }
    kvt::study_table table(study);
    table.add(std::move(rows));
    return table;
}

void sort_table(benchmark::State& state, std::size_t column) {
    kvt::study_table table = long_table();
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
    kvt::study_table table = long_table();
    for (auto _ : state) {
        table.filter(filter);
    }
}
BENCHMARK_CAPTURE(filter_table, by_a_condition, "ripple<0.5")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(filter_table, by_a_text, "nowhere")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
