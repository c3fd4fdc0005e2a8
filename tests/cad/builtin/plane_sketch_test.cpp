#include "cad/builtin/plane_sketch.hpp"

#include "automation/automation_error.hpp"
#include "automation/table_object.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <numbers>

namespace kvt::builtin {
namespace {

using automation::AUTOMATION_FAILED;
using automation::REFUSED;

constexpr double PI = std::numbers::pi;
constexpr double ROUNDING = 1e-9;

struct a_part {
    desk_ref desk = std::make_shared<modeller_desk>();
    drawn_document in = new_part(desk);

    std::vector<model_body> bodies() const { return desk->store.documents().at(0).bodies; }
};

body pin(double x, double radius) {
    return cylinder({x, 0.0, 0.0}, radius, 2.0);
}

}  // namespace

TEST(plane_sketch, keeps_its_curves_in_the_document_until_a_solid_is_made) {
    const a_part part;
    plane_sketch sketch(part.in, 3.0);
    sketch.add(circle_wire({}, 2.0));
    ASSERT_EQ(part.bodies().size(), 1U);
    EXPECT_TRUE(part.bodies()[0].is_curve);
    const body solid = sketch.extruded(sketch.region(), 1.0, -2.0);
    EXPECT_TRUE(part.bodies().empty());
    EXPECT_DOUBLE_EQ(solid.z0(), 2.0);
    EXPECT_DOUBLE_EQ(solid.height(), 2.0);
}

TEST(plane_sketch, makes_a_ring_of_nested_contours_in_either_order) {
    const a_part part;
    for (const double first : {2.0, 5.0}) {
        plane_sketch sketch(part.in, 0.0);
        sketch.add(circle_wire({1.0, 0.0}, first));
        sketch.add(circle_wire({1.0, 0.0}, 7.0 - first));
        EXPECT_NEAR(sketch.extruded(sketch.region(), 0.0, 1.0).contour_area(), PI * (25.0 - 4.0),
                    ROUNDING);
    }
}

TEST(plane_sketch, has_no_region_while_a_curve_is_open_or_without_any) {
    const a_part part;
    plane_sketch sketch(part.in, 0.0);
    EXPECT_FALSE(sketch.is_closed());
    EXPECT_FAILURE(sketch.region(), REFUSED);
    const std::vector<point2> corners = {{0.0, 0.0}, {1.0, 0.0}, {0.0, 1.0}};
    const std::size_t number = sketch.add(polyline_wire(corners, false));
    EXPECT_FALSE(sketch.is_closed());
    EXPECT_FAILURE(sketch.region(), REFUSED);
    sketch.replace(number, polyline_wire(corners, true));
    EXPECT_TRUE(sketch.is_closed());
    EXPECT_EQ(part.bodies().size(), 1U);
    EXPECT_NEAR(sketch.extruded(sketch.region(), 0.0, 1.0).contour_area(), 0.5, ROUNDING);
    sketch.replace(number, polyline_wire(corners, false));
    EXPECT_TRUE(part.bodies().empty()) << "it stays away once a solid was made of it";
    EXPECT_FALSE(sketch.is_closed());
}

TEST(plane_sketch, has_no_region_of_contours_beside_one_another) {
    const a_part part;
    plane_sketch sketch(part.in, 0.0);
    sketch.add(circle_wire({}, 1.0));
    sketch.add(circle_wire({5.0, 0.0}, 1.0));
    EXPECT_FAILURE(sketch.region(), AUTOMATION_FAILED);
}

TEST(part_solids, join_what_meets_and_keep_apart_what_does_not) {
    const a_part part;
    part_solids solids(part.in);
    solids.join(pin(0.0, 2.0));
    solids.join(pin(0.0, 3.0));
    solids.join(pin(20.0, 1.0));
    ASSERT_EQ(part.bodies().size(), 2U);
    EXPECT_NEAR(part.bodies()[0].contour_area, PI * 9.0, ROUNDING);
    solids.add(pin(0.0, 1.0));
    EXPECT_EQ(part.bodies().size(), 3U);
    solids.join(cylinder({10.0, 0.0, 0.0}, 12.0, 2.0));
    ASSERT_EQ(part.bodies().size(), 1U) << "it meets all of them";
    EXPECT_FALSE(part.bodies()[0].is_curve);
}

TEST(part_solids, cut_every_solid_that_the_tool_meets) {
    const a_part part;
    part_solids solids(part.in);
    EXPECT_FAILURE(solids.cut(pin(0.0, 1.0)), REFUSED);
    solids.add(pin(0.0, 2.0));
    solids.add(pin(0.0, 3.0));
    solids.add(pin(20.0, 1.0));
    solids.cut(pin(0.0, 1.0));
    ASSERT_EQ(part.bodies().size(), 3U);
    EXPECT_NEAR(part.bodies()[0].contour_area, PI * 3.0, ROUNDING);
    EXPECT_NEAR(part.bodies()[1].contour_area, PI * 8.0, ROUNDING);
    EXPECT_NEAR(part.bodies()[2].contour_area, PI, ROUNDING);
}

TEST(part_solids, become_rings_where_a_contour_goes_through_them) {
    const a_part part;
    part_solids solids(part.in);
    const wire rim = circle_wire({}, 5.0), hole = circle_wire({}, 3.0);
    const wire aside = circle_wire({5.0, 0.0}, 1.0);
    const auto extruded = [](const wire& contour, double height) {
        return prism(make_face(contour), 0.0, height);
    };
    solids.join(extruded(rim, 2.0), rim);
    solids.cut(extruded(hole, 2.0), hole);
    EXPECT_NEAR(part.bodies().at(0).contour_area, PI * 16.0, ROUNDING);
    solids.cut(extruded(circle_wire({}, 4.0), 2.0), circle_wire({}, 4.0));
    EXPECT_NEAR(part.bodies().at(0).contour_area, PI * 9.0, ROUNDING) << "a ring, widened";
    solids.add(extruded(rim, 2.0), rim);
    solids.cut(extruded(aside, 2.0), aside);
    EXPECT_LT(part.bodies().at(1).contour_area, PI * 25.0 - 1.0) << "bitten from outside";
    EXPECT_GT(part.bodies().at(1).contour_area, PI * 24.0);
}

TEST(part_solids, keep_their_floor_where_a_tool_is_not_as_high) {
    const a_part part;
    part_solids solids(part.in);
    const wire rim = circle_wire({}, 5.0), hole = circle_wire({}, 3.0);
    solids.add(prism(make_face(rim), 0.0, 2.0), rim);
    solids.cut(prism(make_face(hole), 1.0, 5.0), hole);
    EXPECT_NEAR(part.bodies().at(0).contour_area, PI * 16.0, ROUNDING) << "of the upper face";
    solids.cut(prism(make_face(hole), -1.0, 1.5), hole);
    EXPECT_NEAR(part.bodies().at(0).height, 2.0, ROUNDING);
}

}  // namespace kvt::builtin
