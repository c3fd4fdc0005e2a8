// The bodies of whole designs: sound solids of the right size at the right heights.
#include "cad/builtin/kernel_shapes.hpp"
#include "support/cad/built_bodies.hpp"
#include "support/cad/kernel_counts.hpp"
#include "support/cad/model_designs.hpp"
#include "support/random_design.hpp"

#include <BRepCheck_Analyzer.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Vertex.hxx>
#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace kvt {
namespace {

bool is_closed_shell(const TopoDS_Shape& solid) {
    TopExp_Explorer shell(solid, TopAbs_SHELL);
    return shell.More() && BRep_Tool::IsClosed(shell.Current());
}

/// Lowest and highest corner of a solid, as the kernel has them.
std::pair<double, double> heights_of(const TopoDS_Shape& solid) {
    double low = std::numeric_limits<double>::max(), high = -low;
    for (TopExp_Explorer at(solid, TopAbs_VERTEX); at.More(); at.Next()) {
        const double z = BRep_Tool::Pnt(TopoDS::Vertex(at.Current())).Z();
        low = std::min(low, z);
        high = std::max(high, z);
    }
    return {low, high};
}

void expect_sound(const built_body& one) {
    SCOPED_TRACE(one.saved.name);
    const builtin::body& built = std::get<builtin::body>(one.saved.shape);
    const TopoDS_Shape& solid = built.shape().kernel;
    EXPECT_TRUE(BRepCheck_Analyzer(solid).IsValid());
    EXPECT_EQ(count_of(solid, TopAbs_SOLID), 1);
    EXPECT_EQ(count_of(solid, TopAbs_SHELL), 1);
    EXPECT_TRUE(is_closed_shell(solid));
    const auto [low, high] = heights_of(solid);
    EXPECT_NEAR(low, one.from_z, 1e-6);
    EXPECT_NEAR(high, one.to_z, 1e-6);
    EXPECT_NEAR(built.z0(), one.from_z, 1e-6);
    EXPECT_NEAR(built.height(), one.to_z - one.from_z, 1e-6);
}

/// The sampled contours of the upper face against the polygons that it was made from.
void expect_area(const built_body& one) {
    const builtin::body& built = std::get<builtin::body>(one.saved.shape);
    double sampled = 0.0;
    for (const std::vector<point2>& contour : built.contours()) {
        sampled += polygon_area(contour);
    }
    const double expected = outlined_area(one.outlines);
    EXPECT_NEAR(sampled / expected, 1.0, one.area_tolerance) << one.saved.name;
    EXPECT_NEAR(built.contour_area() / expected, 1.0, one.area_tolerance) << one.saved.name;
}

class bodies_of : public testing::TestWithParam<program (*)()> {};

TEST_P(bodies_of, a_design_are_sound_and_of_the_right_size) {
    for (const built_body& one : built_assembly(GetParam()())) {
        expect_sound(one);
        expect_area(one);
    }
}

program sharp_design() {
    return design_with_ports("n03_transfer_sharp");
}
program fuel_design() {
    return design_with_ports("n04_fuel");
}
program crank_design() {
    return design_with_ports("n09_crank_oil");
}
INSTANTIATE_TEST_SUITE_P(of, bodies_of,
                         testing::Values(&double_sided_design, &inch_design_with_shadow_ports,
                                         &sharp_design, &fuel_design, &crank_design));

TEST(bodies_of_random_designs, are_sound_and_of_the_right_size) {
    random_values random;
    for (int run = property_count(10); run > 0; --run) {
        for (const built_body& one : built_assembly(random_design(random))) {
            expect_sound(one);
            expect_area(one);
        }
    }
}

}  // namespace
}  // namespace kvt
