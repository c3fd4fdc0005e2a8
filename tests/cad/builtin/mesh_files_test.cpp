// STL and 3MF files through a reader of their own, tests/cad/builtin/read_meshes.py.
#include "cad/builtin/mesh_files.hpp"

#include "base/whole_file.hpp"
#include "support/cad/built_bodies.hpp"
#include "support/cad/mesh_checks.hpp"
#include "support/cad/model_designs.hpp"
#include "support/temporary_folder.hpp"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>

namespace kvt::builtin {
namespace {

struct read_body {
    std::string colour;
    std::size_t triangles = 0;
    int watertight = 0;
    double volume = 0.0;
    std::string name;
};

std::vector<read_body> bodies_in(const std::string& ending, const std::string& bytes) {
    const temporary_folder folder;
    const std::string path = folder.file("bodies" + ending), printed = folder.file("printed.txt");
    write_file(path, bytes);
    const std::string command =
        std::string(KVT_PYTHON) + " " + KVT_SCRIPT + " '" + path + "' > '" + printed + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::istringstream lines(read_file(printed));
    std::vector<read_body> bodies;
    read_body one;
    while (lines >> one.colour >> one.triangles >> one.watertight >> one.volume &&
           std::getline(lines >> std::ws, one.name)) {
        bodies.push_back(one);
    }
    return bodies;
}

double volume_of(const saved_body& one) {
    const body& solid = std::get<body>(one.shape);
    return solid.contour_area() * solid.height();
}

/// A block of 1 x 2 x 3 mm.
saved_body block(const std::string& name, body_role role) {
    const std::vector<point2> corners = {{0.0, 0.0}, {1.0, 0.0}, {1.0, 2.0}, {0.0, 2.0}};
    return {name, role, prism(make_face(polyline_wire(corners, true)), 0.0, 3.0)};
}

class files_of_meshes : public testing::TestWithParam<program (*)()> {};

TEST_P(files_of_meshes, are_watertight_and_as_large_as_area_times_height) {
    const std::vector<saved_body> bodies = saved_bodies(built_assembly(GetParam()()));
    const std::vector<saved_mesh> meshes = printed_meshes(bodies);
    double whole = 0.0;
    std::size_t triangles = 0;
    const std::vector<read_body> objects = bodies_in(".3mf", three_mf_bytes(meshes));
    ASSERT_EQ(objects.size(), bodies.size());
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        EXPECT_EQ(objects[i].name, bodies[i].name);
        EXPECT_EQ(objects[i].watertight, 1) << bodies[i].name;
        EXPECT_EQ(objects[i].triangles, meshes[i].mesh.triangles.size());
        EXPECT_NEAR(objects[i].volume / volume_of(bodies[i]), 1.0, 2e-3) << bodies[i].name;
        whole += objects[i].volume;
        triangles += objects[i].triangles;
    }
    const std::vector<read_body> stl = bodies_in(".stl", stl_bytes(meshes));
    ASSERT_EQ(stl.size(), 1u);
    EXPECT_EQ(stl[0].triangles, triangles);
    EXPECT_NEAR(stl[0].volume / whole, 1.0, 1e-5) << "single precision";
}
INSTANTIATE_TEST_SUITE_P(of, files_of_meshes,
                         testing::Values(&double_sided_design, &inch_design_with_shadow_ports));

// Bodies touch one another where ports meet rotors, so each is looked at alone.
TEST(stl_bytes, hold_each_body_watertight) {
    for (const saved_body& one : saved_bodies(built_assembly(double_sided_design()))) {
        const std::vector<read_body> read = bodies_in(".stl", stl_bytes(printed_meshes({one})));
        ASSERT_EQ(read.size(), 1u);
        EXPECT_EQ(read[0].watertight, 1) << one.name;
        EXPECT_NEAR(read[0].volume / volume_of(one), 1.0, 2e-3) << one.name;
    }
}

TEST(stl_bytes, of_a_block) {
    const std::string bytes = stl_bytes(printed_meshes({block("a", body_role::other)}));
    EXPECT_EQ(bytes.size(), 84u + 12u * 50u);
    const std::vector<read_body> read = bodies_in(".stl", bytes);
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].watertight, 1);
    EXPECT_NEAR(read[0].volume, 6.0, 1e-6);
}

TEST(three_mf_bytes, keep_names_and_colours) {
    const std::vector<read_body> read =
        bodies_in(".3mf", three_mf_bytes(printed_meshes(
                              {block("Inner <\"R\u00fcckseite\" & co>", body_role::inner_rotor),
                               block("Inlet", body_role::inlet)})));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].name, "Inner <\"R\u00fcckseite\" & co>");
    EXPECT_EQ(read[0].colour, "#C8A24A");
    EXPECT_EQ(read[1].name, "Inlet");
    EXPECT_EQ(read[1].colour, "#3A6FD8");
    EXPECT_DOUBLE_EQ(read[1].volume, 6.0);
}

TEST(printed_meshes, leave_curves_out) {
    const std::vector<saved_mesh> meshes = printed_meshes(
        {{"curve", body_role::other, circle_wire({0.0, 0.0}, 1.0)}, block("b", body_role::other)});
    ASSERT_EQ(meshes.size(), 1u);
    EXPECT_EQ(meshes[0].name, "b");
}

TEST(mesh_files, without_a_body_are_still_files) {
    EXPECT_EQ(stl_bytes({}).size(), 84u);
    EXPECT_TRUE(bodies_in(".3mf", three_mf_bytes({})).empty());
}

}  // namespace
}  // namespace kvt::builtin
