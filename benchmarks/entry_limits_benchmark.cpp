// How long the limits of one entry are waited for, with the profiles alone and with the ports.
#include "app/stages/batch_run.hpp"
#include "app/trial/entry_limits.hpp"
#include "support/open_design.hpp"

#include <array>
#include <benchmark/benchmark.h>
#include <string>

namespace {

constexpr std::array SAMPLES = {"n03_transfer_sharp", "n07_engine_oil_groove", "n09_crank_oil"};

void limits_of(benchmark::State& state, const char* entry, kvt::calc_stage last) {
    const char* sample = SAMPLES[static_cast<std::size_t>(state.range(0))];
    const kvt::program kavetta = kvt::opened_design(sample);
    state.SetLabel(sample);
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::find_limits(kavetta, *kvt::find_entry(entry), last));
    }
}
BENCHMARK_CAPTURE(limits_of, ecc_with_profiles, "ecc", kvt::calc_stage::profiles)
    ->DenseRange(0, SAMPLES.size() - 1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(limits_of, ecc_with_ports, "ecc", kvt::calc_stage::ports)
    ->DenseRange(0, SAMPLES.size() - 1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(limits_of, port_radii, "port_radii", kvt::calc_stage::ports)
    ->DenseRange(0, SAMPLES.size() - 1)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
