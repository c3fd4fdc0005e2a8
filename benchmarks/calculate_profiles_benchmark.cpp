// What the Calc button waits for: Calculate Profiles on whole designs, and its parts.
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "support/scripted_user.hpp"

#include <benchmark/benchmark.h>
#include <string>

namespace {

kvt::program opened(const std::string& name) {
    kvt::program kavetta;
    kvt::scripted_user person;
    kvt::load_project(kavetta, person, std::string(KVT_TEST_DATA) + "/designs/" + name + ".KVT");
    return kavetta;
}

void calculate_profiles(benchmark::State& state, const std::string& name) {
    kvt::program kavetta = opened(name);
    for (auto _ : state) {
        kvt::scripted_user person;
        benchmark::DoNotOptimize(kvt::calculate_profiles(kavetta, person));
    }
}
BENCHMARK_CAPTURE(calculate_profiles, n03_transfer_sharp, std::string("n03_transfer_sharp"));
BENCHMARK_CAPTURE(calculate_profiles, n07_engine_oil_groove, std::string("n07_engine_oil_groove"));
BENCHMARK_CAPTURE(calculate_profiles, n09_crank_oil, std::string("n09_crank_oil"));

}  // namespace

BENCHMARK_MAIN();
