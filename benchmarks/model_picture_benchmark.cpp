// What a person waits for who looks at a model: the picture of an assembly with its ports at 800 x
// 800 pixels, and at half resolution while it is dragged; whole, and cut open in two planes.
#include "support/cad/mesh_shapes.hpp"
#include "views/model/model_palette.hpp"
#include "views/model/model_picture.hpp"

#include <benchmark/benchmark.h>
#include <cmath>
#include <vector>

namespace {

constexpr int SIDE = 800;

/// A ring whose holes wave like a rotor's, with as many triangles as a meshed rotor: 14,400 in all.
kvt::body_mesh waved(double outer, double inner, double wave, double z0, double z1) {
    constexpr std::uint32_t CORNERS = 720;
    kvt::body_mesh mesh = kvt::ring_mesh({0.0, 0.0}, outer, inner, z0, z1, CORNERS);
    for (std::size_t i = 2 * CORNERS; i < mesh.points.size(); ++i) {
        kvt::point3& point = mesh.points[i];
        const double share = 1.0 + wave * std::cos(7.0 * std::atan2(point.y, point.x));
        point = {point.x * share, point.y * share, point.z};
    }
    return mesh;
}

std::vector<kvt::body_mesh> assembly() {
    return {waved(26.0, 20.0, 0.15, 0.0, 10.0), waved(15.0, 4.0, 0.1, 0.0, 10.0)};
}

kvt::model_scene scene_of(const std::vector<kvt::body_mesh>& meshes, bool is_cut) {
    const kvt::model_palette& palette = kvt::model_palette_on(false);
    kvt::model_scene scene;
    scene.background = palette.background;
    scene.edge = palette.edge;
    scene.section = palette.section;
    for (const kvt::body_mesh& mesh : meshes) {
        scene.parts.push_back({&mesh, palette.outer_rotor, {}});
    }
    if (is_cut) {
        scene.sections = {kvt::section_through_axis(20.0), kvt::section_across_axis(7.0)};
    }
    return scene;
}

void picture(benchmark::State& state, int divisor, bool is_cut) {
    const std::vector<kvt::body_mesh> meshes = assembly();
    const kvt::model_scene scene = scene_of(meshes, is_cut);
    kvt::model_camera camera(SIDE, SIDE);
    camera.fit(kvt::points_of(scene));
    for (auto _ : state) {
        const kvt::model_picture drawn = kvt::draw_model(scene, camera.reduced(divisor));
        benchmark::DoNotOptimize(drawn.pixels.data());
    }
}
BENCHMARK_CAPTURE(picture, whole, 1, false)->UseRealTime()->Unit(benchmark::kMillisecond);

/// With four pixels to a dot of the screen, which make edges smooth.
void smooth_picture(benchmark::State& state) {
    const std::vector<kvt::body_mesh> meshes = assembly();
    const kvt::model_scene scene = scene_of(meshes, false);
    kvt::model_camera camera(SIDE, SIDE);
    camera.fit(kvt::points_of(scene));
    for (auto _ : state) {
        const kvt::model_picture drawn = kvt::draw_model(scene, camera.enlarged(2));
        benchmark::DoNotOptimize(drawn.pixels.data());
    }
}
BENCHMARK(smooth_picture)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(picture, cut, 1, true)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(picture, dragged, 2, false)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(picture, dragged_and_cut, 2, true)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
