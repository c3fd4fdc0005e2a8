// What a user waits for behind the save dialogs of the performance: the five data files as text in
// memory, the workbook.
#include "output/data/workbook_file.hpp"
#include "support/performed_design.hpp"

#include <benchmark/benchmark.h>

namespace {

void data_files(benchmark::State& state) {
    const kvt::program kavetta = kvt::performed_design("n07_engine_oil_groove");
    std::size_t size = 0;
    for (auto _ : state) {
        size = 0;
        for (const kvt::written_file& file : kvt::files_of(kvt::file_group::data)) {
            size += kvt::file_bytes(kavetta, kvt::file_group::data, file.name).size();
        }
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
}
BENCHMARK(data_files)->Unit(benchmark::kMillisecond);

void workbook(benchmark::State& state) {
    const kvt::program kavetta = kvt::performed_design("n07_engine_oil_groove");
    for (auto _ : state) {
        const auto plan = kvt::make_workbook_plan(kvt::source_of(kavetta));
        benchmark::DoNotOptimize(kvt::workbook_bytes(plan).size());
    }
}
BENCHMARK(workbook)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
