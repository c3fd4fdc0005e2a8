// What Open and Save wait for: the bytes of a project turned into its record and back, and the file
// itself.
#include "base/text_file.hpp"
#include "core/project_file.hpp"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>

namespace {

std::string full_project() {
    return kvt::read_file(std::filesystem::path(KVT_TEST_DATA) / "projects" / "lines_59.KVT");
}

void read_project(benchmark::State& state) {
    const std::string bytes = full_project();
    for (auto _ : state) {
        std::string name;
        benchmark::DoNotOptimize(kvt::read_project(bytes, name));
    }
}
BENCHMARK(read_project);

void write_project(benchmark::State& state) {
    std::string name;
    const kvt::project_record record = kvt::read_project(full_project(), name);
    for (auto _ : state) {
        benchmark::DoNotOptimize(kvt::write_project(record));
    }
}
BENCHMARK(write_project);

void save_and_open_a_file(benchmark::State& state) {
    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / "kvt_project_benchmark.KVT";
    std::string name;
    const kvt::project_record record = kvt::read_project(full_project(), name);
    for (auto _ : state) {
        kvt::write_file(path, kvt::write_project(record));
        benchmark::DoNotOptimize(kvt::read_project(kvt::read_file(path), name));
    }
    std::filesystem::remove(path);
}
BENCHMARK(save_and_open_a_file);

}  // namespace

BENCHMARK_MAIN();
