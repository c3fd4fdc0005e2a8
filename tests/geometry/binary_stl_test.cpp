// Tests of the bytes of triangles.
#include "geometry/binary_stl.hpp"

#include <array>
#include <cstring>
#include <gtest/gtest.h>

namespace kvt {

namespace {

body_mesh mesh_of(std::vector<point3> points) {
    body_mesh mesh;
    mesh.points = std::move(points);
    mesh.triangles = {{0, 1, 2}};
    return mesh;
}

/// Three numbers that begin at a byte.
std::array<float, 3> reals_at(const std::string& bytes, std::size_t from) {
    std::array<float, 3> reals{};
    std::memcpy(reals.data(), bytes.data() + from, sizeof reals);
    return reals;
}

}  // namespace

TEST(binary_stl, has_a_head_the_number_of_triangles_and_each_with_its_normal) {
    const body_mesh first = mesh_of({{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {0.0, 1.0, 0.0}});
    const body_mesh second = mesh_of({{0.0, 0.0, 0.0}, {0.0, 0.0, 3.0}, {0.0, 0.5, 0.0}});
    const std::string bytes = binary_stl("a pair, mm", {first, second});
    ASSERT_EQ(bytes.size(), 84U + 2U * 50U);
    EXPECT_EQ(bytes.substr(0, 80), "a pair, mm" + std::string(70, ' '));
    EXPECT_EQ(bytes.substr(80, 4), std::string("\x02\x00\x00\x00", 4));
    EXPECT_EQ(reals_at(bytes, 84), (std::array{0.0F, 0.0F, 1.0F}));
    EXPECT_EQ(reals_at(bytes, 108), (std::array{2.0F, 0.0F, 0.0F})) << "the second corner";
    EXPECT_EQ(bytes.substr(132, 2), std::string(2, '\0'));
    EXPECT_EQ(reals_at(bytes, 134), (std::array{-1.0F, 0.0F, 0.0F}));
}

TEST(binary_stl, has_no_normal_of_a_triangle_without_area) {
    const body_mesh flat = mesh_of({{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}});
    EXPECT_EQ(reals_at(binary_stl("flat", {flat}), 84), (std::array{0.0F, 0.0F, 0.0F}));
}

TEST(binary_stl, of_nothing_has_no_triangle) {
    EXPECT_EQ(binary_stl("", {}), std::string(80, ' ') + std::string(4, '\0'));
}

}  // namespace kvt
