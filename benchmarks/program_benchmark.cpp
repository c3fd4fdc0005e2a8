// What every command and every design of a series waits for: a program made, and one copied, fresh
// and with a whole design in its records.
#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "support/scripted_user.hpp"

#include <benchmark/benchmark.h>

namespace {

void make_a_program(benchmark::State& state) {
    for (auto _ : state) {
        kvt::program kavetta;
        benchmark::DoNotOptimize(&kavetta);
    }
}
BENCHMARK(make_a_program);

void copy_a_fresh_program(benchmark::State& state) {
    const kvt::program kavetta;
    for (auto _ : state) {
        kvt::program copy(kavetta);
        benchmark::DoNotOptimize(&copy);
    }
}
BENCHMARK(copy_a_fresh_program);

void copy_a_calculated_program(benchmark::State& state) {
    kvt::scripted_user person;
    kvt::program kavetta;
    kvt::design_source source;
    source.project = std::string(KVT_TEST_DATA) + "/designs/n07_engine_oil_groove.KVT";
    kvt::calculate_design(kavetta, person, source, kvt::calc_stage::performance);
    for (auto _ : state) {
        kvt::program copy(kavetta);
        benchmark::DoNotOptimize(&copy);
    }
}
BENCHMARK(copy_a_calculated_program);

}  // namespace

BENCHMARK_MAIN();
