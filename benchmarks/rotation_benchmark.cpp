// What a held rotation button waits for: one tick, with the lines and arcs to paint, at coarseness
// 1 and 10. The timer fires every 10 ms, of which a tick may take 4 together with its painting.
#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/windows/view_commands.hpp"
#include "support/sample_design.hpp"
#include "support/scripted_user.hpp"

#include <benchmark/benchmark.h>
#include <string>

namespace {

kvt::program calculated(const std::string& coarseness) {
    kvt::program kavetta;
    kvt::scripted_user person;
    kavetta.entries = kvt::sample_entries();
    kavetta.entries.coarseness = coarseness;
    kavetta.view_state.view_size = 10500;  // 700 pixels
    kvt::calculate_profiles(kavetta, person);
    return kavetta;
}

void tick(benchmark::State& state, const std::string& coarseness) {
    kvt::program kavetta = calculated(coarseness);
    for (auto _ : state) {
        kvt::rotation_tick(kavetta, kvt::turning::clockwise);
        benchmark::DoNotOptimize(kavetta.design_view.Line1.elements.data());
    }
}
BENCHMARK_CAPTURE(tick, coarseness_1, std::string("1"));
BENCHMARK_CAPTURE(tick, coarseness_10, std::string("10"));

void zoom(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        kvt::program kavetta = calculated("1");
        kvt::scripted_user person;
        state.ResumeTiming();
        kvt::rubber_band_down(kavetta, 1000.0, 1000.0);
        kvt::rubber_band_up(kavetta, person, 6000.0, 6000.0);
    }
}
BENCHMARK(zoom)->Iterations(50);

}  // namespace

BENCHMARK_MAIN();
