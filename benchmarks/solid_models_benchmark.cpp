// Solid models without a CAD package: the bodies of an assembly with its porting, their meshes and
// files, and the housing.
#include "app/program.hpp"
#include "cad/builtin/body_mesher.hpp"
#include "cad/builtin/housing_solid.hpp"
#include "cad/builtin/kernel_files.hpp"
#include "cad/builtin/mesh_files.hpp"
#include "support/cad/built_bodies.hpp"
#include "support/cad/model_designs.hpp"

#include <benchmark/benchmark.h>

namespace {

using namespace kvt;

const std::vector<builtin::saved_body>& bodies() {
    static const std::vector<builtin::saved_body> all =
        saved_bodies(built_assembly(double_sided_design()));
    return all;
}

/// Two rotors, two ports below, two above and a groove, with what a list of them shows.
void bodies_are_built(benchmark::State& state) {
    const program kavetta = double_sided_design();
    for (auto _ : state) {
        for (const built_body& one : built_assembly(kavetta)) {
            benchmark::DoNotOptimize(std::get<builtin::body>(one.saved.shape).contour_area());
        }
    }
}
BENCHMARK(bodies_are_built)->Unit(benchmark::kMillisecond);

void meshes_are_made(benchmark::State& state, const builtin::mesh_fineness& fineness) {
    for (auto _ : state) {
        for (const builtin::saved_body& one : bodies()) {
            benchmark::DoNotOptimize(
                builtin::mesh_of(std::get<builtin::body>(one.shape), fineness));
        }
    }
}
BENCHMARK_CAPTURE(meshes_are_made, to_be_shown, builtin::SHOWN)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(meshes_are_made, to_be_printed, builtin::PRINTED)->Unit(benchmark::kMillisecond);

void step_is_written(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(builtin::step_bytes(bodies()));
    }
}
BENCHMARK(step_is_written)->Unit(benchmark::kMillisecond);

void brep_is_written(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(builtin::brep_bytes(bodies()));
    }
}
BENCHMARK(brep_is_written)->Unit(benchmark::kMillisecond);

void stl_is_written_from_meshes(benchmark::State& state) {
    const std::vector<builtin::saved_mesh> meshes = builtin::printed_meshes(bodies());
    for (auto _ : state) {
        benchmark::DoNotOptimize(builtin::stl_bytes(meshes));
    }
}
BENCHMARK(stl_is_written_from_meshes)->Unit(benchmark::kMillisecond);

void three_mf_is_written_from_meshes(benchmark::State& state) {
    const std::vector<builtin::saved_mesh> meshes = builtin::printed_meshes(bodies());
    for (auto _ : state) {
        benchmark::DoNotOptimize(builtin::three_mf_bytes(meshes));
    }
}
BENCHMARK(three_mf_is_written_from_meshes)->Unit(benchmark::kMillisecond);

void housing_is_built(benchmark::State& state) {
    const program kavetta = double_sided_design();
    const housing_plan plan =
        plan_housing(kavetta.design_params,
                     port_bodies(kavetta.design_params, kavetta.port_params, kavetta.entries),
                     usual_housing(kavetta.design_params));
    for (auto _ : state) {
        benchmark::DoNotOptimize(builtin::housing_solid(plan));
    }
}
BENCHMARK(housing_is_built)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
