// What a user waits for after Design Ports: a typical design, and the longest searches there are.
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "ports/corner_search.hpp"
#include "support/open_design.hpp"

#include <benchmark/benchmark.h>
#include <string>

namespace {

kvt::program calculated_design(const char* name, kvt::scripted_user& person) {
    kvt::program kavetta = kvt::opened_design(name);
    kvt::calculate_profiles(kavetta, person);
    return kavetta;
}

void run_design(benchmark::State& state, const char* name) {
    kvt::scripted_user person;
    kvt::program kavetta = calculated_design(name, person);
    for (auto _ : state) {
        kvt::design_ports(kavetta, person);
    }
    if (!person.messages.empty()) {
        state.SkipWithError("the design was refused");
    }
}

void design_ports_with_groove(benchmark::State& state) {
    run_design(state, "n07_engine_oil_groove");
}
BENCHMARK(design_ports_with_groove)->Unit(benchmark::kMillisecond);

void design_ports_without_groove(benchmark::State& state) {
    run_design(state, "n09_crank_oil");
}
BENCHMARK(design_ports_without_groove)->Unit(benchmark::kMillisecond);

void design_ports_sharp(benchmark::State& state) {
    run_design(state, "n03_transfer_sharp");
}
BENCHMARK(design_ports_sharp)->Unit(benchmark::kMillisecond);

/// Both passes of one search run out. A refused port ends with such a search, so a run has three of
/// them at most (inlet, outlet, groove), beside up to seven searches that succeed in their second
/// pass.
void exhausted_search(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::corner_angle({3.0, 2.0, false, 20.0, kvt::step_rule::up}));
    }
}
BENCHMARK(exhausted_search)->Unit(benchmark::kMillisecond);

/// Both ports and the groove are refused by searches that run out.
void design_ports_refused(benchmark::State& state) {
    kvt::scripted_user person;
    kvt::program typed = calculated_design("n07_engine_oil_groove", person);
    for (const char* port : {"inlet", "outlet"}) {
        const auto type = [&](const char* place, const char* text) {
            typed.entries.*kvt::find_entry(std::string(port) + place)->member = text;
        };
        type("_start_inner", "83");
        type("_start_outer", "18");
        type("_end_inner", "91");
        type("_end_outer", "173");
    }
    for (auto _ : state) {
        state.PauseTiming();
        kvt::program kavetta = typed;
        state.ResumeTiming();
        kvt::design_ports(kavetta, person);
    }
}
BENCHMARK(design_ports_refused)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
