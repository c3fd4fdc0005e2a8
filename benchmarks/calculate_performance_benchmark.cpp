// What the calc_perf button waits for: Calculate Performance on whole designs, its routines, and
// the whole chain.
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "performance/delivered_flow.hpp"
#include "performance/drive_power.hpp"
#include "performance/hertz_contact.hpp"
#include "performance/lobe_load_share.hpp"
#include "performance/pressure_ripple.hpp"
#include "performance/sliding_velocity.hpp"
#include "support/scripted_user.hpp"

#include <array>
#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <string>

namespace {

constexpr std::array SAMPLES = {"n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                "n07_inch_hydraulic", "n09_crank_oil"};

std::unique_ptr<kvt::program> prepared(const std::string& name) {
    auto kavetta = std::make_unique<kvt::program>();
    kvt::scripted_user person;
    kvt::load_project(*kavetta, person, std::string(KVT_TEST_DATA) + "/designs/" + name + ".KVT");
    kvt::calculate_profiles(*kavetta, person);
    kvt::design_ports(*kavetta, person);
    kvt::calculate_performance(*kavetta, person);
    return kavetta;
}

void calculate_performance(benchmark::State& state) {
    const auto kavetta = prepared(SAMPLES[static_cast<std::size_t>(state.range(0))]);
    state.SetLabel(SAMPLES[static_cast<std::size_t>(state.range(0))]);
    for (auto _ : state) {
        kvt::scripted_user person;
        benchmark::DoNotOptimize(kvt::calculate_performance(*kavetta, person));
    }
}
BENCHMARK(calculate_performance)->DenseRange(0, SAMPLES.size() - 1)->Unit(benchmark::kMillisecond);

void profiles_ports_performance(benchmark::State& state) {
    const auto kavetta = prepared(SAMPLES[static_cast<std::size_t>(state.range(0))]);
    state.SetLabel(SAMPLES[static_cast<std::size_t>(state.range(0))]);
    for (auto _ : state) {
        kvt::scripted_user person;
        kvt::calculate_profiles(*kavetta, person);
        kvt::design_ports(*kavetta, person);
        benchmark::DoNotOptimize(kvt::calculate_performance(*kavetta, person));
    }
}
BENCHMARK(profiles_ports_performance)
    ->DenseRange(0, SAMPLES.size() - 1)
    ->Unit(benchmark::kMillisecond);

void routine(benchmark::State& state, const std::function<void(kvt::program&)>& run) {
    const auto kavetta = prepared("n07_engine_oil_groove");
    for (auto _ : state) {
        run(*kavetta);
    }
}

void register_routines() {
    using kvt::program;
    const auto add = [](const char* name, const std::function<void(program&)>& run) {
        benchmark::RegisterBenchmark(name, [run](benchmark::State& state) {
            routine(state, run);
        })->Unit(benchmark::kMillisecond);
    };
    add("calc_sliding_velocity", [](program& p) {
        kvt::calc_sliding_velocity(p.design_params, p.rotor_profiles, p.perf_results);
    });
    add("calc_drive_power", [](program& p) {
        kvt::calc_drive_power(p.design_params, p.rotor_profiles, p.port_params, p.perf_inputs,
                              p.perf_results);
    });
    add("calc_lobe_load_share", [](program& p) {
        kvt::calc_lobe_load_share(p.design_params, p.rotor_profiles, p.perf_results);
    });
    add("calc_hertz_and_side_load", [](program& p) {
        kvt::calc_hertz_and_side_load(p.design_params, p.perf_inputs, p.perf_results);
    });
    add("calc_flow", [](program& p) {
        kvt::calc_flow(p.design_params, p.rotor_profiles, p.port_params, p.perf_inputs,
                       p.perf_results);
    });
    add("calc_pressure_ripple", [](program& p) {
        kvt::calc_pressure_ripple(p.design_params, p.rotor_profiles, p.port_params, p.perf_inputs,
                                  p.perf_results);
    });
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    register_routines();
    benchmark::RunSpecifiedBenchmarks();
}
