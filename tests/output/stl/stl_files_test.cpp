// Tests of the STL files: bytes, every edge twice, the volume.
#include "output/stl/stl_files.hpp"

#include "exact/pump_bodies.hpp"
#include "support/cnc_design.hpp"

#include <array>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <map>

namespace kvt {
namespace {

using corner = std::array<float, 3>;

struct stl_triangle {
    corner normal, a, b, c;
};

std::vector<stl_triangle> triangles_in(const std::string& bytes) {
    std::uint32_t count = 0;
    std::memcpy(&count, bytes.data() + 80, 4);
    EXPECT_EQ(bytes.size(), 84 + 50 * static_cast<std::size_t>(count));
    std::vector<stl_triangle> triangles(count);
    for (std::size_t i = 0; i < count; ++i) {
        std::memcpy(&triangles[i], bytes.data() + 84 + 50 * i, 48);
    }
    return triangles;
}

std::string stl_bytes(const program& kavetta, std::string_view name) {
    return file_bytes(kavetta, file_group::stl, name);
}

TEST(stl_files, have_the_bytes_of_a_binary_file) {
    body_mesh mesh;
    mesh.points = {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
    mesh.triangles = {{0, 1, 2}};
    text_lines text;
    write_stl("one", {mesh}, text);
    const std::string& bytes = text.bytes();
    ASSERT_EQ(bytes.size(), 134U);
    EXPECT_TRUE(bytes.starts_with("Kavetta, one, mm   "));
    EXPECT_EQ(bytes.substr(80, 4), std::string("\x01\x00\x00\x00", 4));
    const auto triangles = triangles_in(bytes);
    EXPECT_EQ(triangles[0].normal, (corner{0.0F, 0.0F, 1.0F}));
    EXPECT_EQ(triangles[0].b, (corner{2.0F, 0.0F, 0.0F}));
    EXPECT_EQ(bytes.substr(132), std::string(2, '\0'));
}

TEST(stl_files, are_watertight_by_their_numbers_alone) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    for (const written_file& file : files_of(file_group::stl)) {
        SCOPED_TRACE(std::string(file.name));
        std::map<std::pair<corner, corner>, int> sides;
        for (const stl_triangle& triangle : triangles_in(stl_bytes(kavetta, file.name))) {
            ++sides[{triangle.a, triangle.b}];
            ++sides[{triangle.b, triangle.c}];
            ++sides[{triangle.c, triangle.a}];
        }
        int wrong = 0;
        for (const auto& [side, count] : sides) {
            const auto back = sides.find({side.second, side.first});
            wrong += back == sides.end() || back->second != count ? 1 : 0;
        }
        EXPECT_EQ(wrong, 0);
    }
}

TEST(stl_files, come_nearer_with_a_smaller_chord_error) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    const pump_body body = inner_rotor_body(kavetta.design_params);
    const double exact = enclosed_area(body.outline) * (body.top - body.bottom);
    const auto miss = [&] {
        double volume = 0.0;
        for (const auto& [normal, a, b, c] : triangles_in(stl_bytes(kavetta, "inner"))) {
            volume += (a[0] * (1.0 * b[1] * c[2] - 1.0 * b[2] * c[1]) +
                       a[1] * (1.0 * b[2] * c[0] - 1.0 * b[0] * c[2]) +
                       a[2] * (1.0 * b[0] * c[1] - 1.0 * b[1] * c[0])) /
                      6.0;
        }
        return std::abs(volume - exact);
    };
    const double coarse = miss();
    kavetta.chord_error_mm = 0.0005;
    EXPECT_LT(miss(), 0.3 * coarse);
    EXPECT_LT(coarse,
              0.005 * 4.0 * 3.2 * kavetta.design_params.outer_root * kavetta.design_params.thick);
}

}  // namespace
}  // namespace kvt
