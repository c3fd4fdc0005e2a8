#include "cad/builtin/housing_solid.hpp"

#include "automation/automation_error.hpp"
#include "cad/builtin/body_mesher.hpp"
#include "cad/builtin/kernel_shapes.hpp"
#include "geometry/contour_crossing.hpp"
#include "support/cad/built_bodies.hpp"
#include "support/cad/kernel_counts.hpp"
#include "support/cad/mesh_checks.hpp"
#include "support/cad/model_designs.hpp"
#include "support/expect_failure.hpp"
#include "support/random_design.hpp"

#include <BRepCheck_Analyzer.hxx>
#include <TopExp_Explorer.hxx>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <polyclipping/clipper.hpp>
#include <set>

namespace kvt::builtin {
namespace {

constexpr double PI = std::numbers::pi;

housing_plan plan_of(const program& kavetta) {
    return plan_housing(kavetta.design_params,
                        port_bodies(kavetta.design_params, kavetta.port_params, kavetta.entries),
                        usual_housing(kavetta.design_params));
}

/// Area that the pockets at a height cover together, by a library that cuts polygons.
double pocket_area(const housing_plan& plan, double z) {
    constexpr double UNITS = 1.0e7;
    ClipperLib::Clipper clipper;
    for (const port_body& pocket : plan.pockets) {
        ClipperLib::Path path;
        for (const point2& point : pocket.outline) {
            path.emplace_back(std::llround(point.x * UNITS), std::llround(point.y * UNITS));
        }
        if (pocket.from_z < z && z < pocket.to_z) {
            clipper.AddPath(path, ClipperLib::ptSubject, true);
        }
    }
    ClipperLib::Paths covered;
    clipper.Execute(ClipperLib::ctUnion, covered, ClipperLib::pftNonZero, ClipperLib::pftNonZero);
    double area = 0.0;
    for (const ClipperLib::Path& part : covered) {
        area += ClipperLib::Area(part) / (UNITS * UNITS);
    }
    return area;
}

double expected_volume(const housing_plan& plan) {
    std::set<double> heights = {0.0};
    for (const port_body& pocket : plan.pockets) {
        heights.insert(pocket.from_z);
    }
    double pockets = 0.0;
    for (auto upper = std::next(heights.begin()); upper != heights.end(); ++upper) {
        const double lower = *std::prev(upper);
        pockets += pocket_area(plan, (lower + *upper) / 2.0) * (*upper - lower);
    }
    return PI * (plan.outer_radius * plan.outer_radius * (plan.top - plan.bottom) -
                 plan.bore_radius * plan.bore_radius * plan.top) -
           pockets;
}

void expect_sound_housing(const housing_plan& plan) {
    const body housing = housing_solid(plan);
    EXPECT_TRUE(BRepCheck_Analyzer(housing.shape().kernel).IsValid());
    EXPECT_EQ(count_of(housing.shape().kernel, TopAbs_SOLID), 1);
    EXPECT_EQ(count_of(housing.shape().kernel, TopAbs_SHELL), 1);
    EXPECT_DOUBLE_EQ(housing.z0(), plan.bottom);
    EXPECT_DOUBLE_EQ(housing.height(), plan.top - plan.bottom);
    EXPECT_NEAR(housing.contour_area(),
                PI * (plan.outer_radius * plan.outer_radius - plan.bore_radius * plan.bore_radius),
                1e-9 * housing.contour_area());
    const body_mesh mesh = mesh_of(housing, PRINTED);
    EXPECT_TRUE(is_watertight(mesh));
    EXPECT_NEAR(mesh_volume(mesh) / expected_volume(plan), 1.0, 1e-3);
}

TEST(housing_solid, without_pockets_is_a_cup) {
    housing_plan plan;
    plan.centre = {-2.0, 1.0};
    plan.outer_radius = 10.0;
    plan.bore_radius = 6.0;
    plan.bottom = -3.0;
    plan.top = 5.0;
    expect_sound_housing(plan);
    EXPECT_EQ(count_of(housing_solid(plan).shape().kernel, TopAbs_FACE), 5)
        << "outside, below, rim, bore and floor";
}

// Under the wall a pocket is closed from above.
TEST(housing_solid, pockets_may_reach_under_the_wall_and_over_one_another) {
    housing_plan plan;
    plan.outer_radius = 10.0;
    plan.bore_radius = 6.0;
    plan.bottom = -6.0;
    plan.top = 5.0;
    const auto box = [](double left, double right, double depth) {
        return port_body{port_body_kind::inlet_lower,
                         port_body_place::below,
                         {{left, -1.0}, {right, -1.0}, {right, 1.0}, {left, 1.0}},
                         -depth,
                         0.0};
    };
    plan.pockets = {box(2.0, 8.0, 3.0), box(-1.0, 4.0, 1.5)};
    expect_sound_housing(plan);
}

class housing_of : public testing::TestWithParam<program (*)()> {};

TEST_P(housing_of, a_design_is_one_sound_solid) {
    expect_sound_housing(plan_of(GetParam()()));
}

// What the rotors sweep is a cylinder as wide as the outer one.
TEST_P(housing_of, a_design_shares_no_volume_with_the_space_of_the_rotors) {
    const program kavetta = GetParam()();
    const design_params& design = kavetta.design_params;
    const point3 middle{-design.ecc, 0.0, design.thick / 2.0};
    const body housing = housing_solid(plan_of(kavetta));
    EXPECT_FAILURE(common(housing, cylinder(middle, design.maxdiameter / 2.0, design.thick)),
                   automation::AUTOMATION_FAILED);
    EXPECT_NO_THROW(common(housing, cylinder(middle, design.maxdiameter, design.thick)));
}
INSTANTIATE_TEST_SUITE_P(of, housing_of,
                         testing::Values(&double_sided_design, &inch_design_with_shadow_ports));

TEST(housing_solid, of_random_designs_is_sound) {
    random_values random;
    for (int run = property_count(5); run > 0; --run) {
        const program kavetta = random_design(random);
        const housing_plan plan = plan_of(kavetta);
        const housing_problem problem =
            problem_of(plan, usual_housing(kavetta.design_params), kavetta.design_params);
        if (problem == housing_problem::none) {
            expect_sound_housing(plan);
        }
    }
}

/// Every fourth: two points a span are enough to see contours cross.
std::vector<point2> thinned(const std::vector<point2>& points) {
    std::vector<point2> few;
    for (std::size_t i = 0; i < points.size(); i += 4) {
        few.push_back(points[i]);
    }
    return few;
}

std::vector<point2> turned_points(const std::vector<point2>& points, point2 axis, double angle) {
    std::vector<point2> turned;
    for (const point2& point : points) {
        const point2 from = difference(point, axis);
        turned.push_back({axis.x + from.x * std::cos(angle) - from.y * std::sin(angle),
                          axis.y + from.x * std::sin(angle) + from.y * std::cos(angle)});
    }
    return turned;
}

/// The contours of both rotors as the kernel has them, the inner one turned by a and the outer one
/// by (N - 1) a / N, as the Design view turns them.
void expect_to_turn_freely(const program& kavetta) {
    const design_params& design = kavetta.design_params;
    const point2 axis{-design.ecc, 0.0};
    const built_body inner = built_inner_rotor(kavetta), outer = built_outer_rotor(kavetta);
    const std::vector<point2> rotor = thinned(std::get<body>(inner.saved.shape).contours().at(0));
    const std::vector<point2> rim = thinned(std::get<body>(outer.saved.shape).contours().at(0));
    const std::vector<point2> path = thinned(std::get<body>(outer.saved.shape).contours().at(1));
    const housing_plan plan = plan_of(kavetta);
    for (int step = 0; step < 36; ++step) {
        const double angle = 2.0 * PI * step / 36.0;
        const double outer_angle = (design.numlobes - 1.0) * angle / design.numlobes;
        ASSERT_FALSE(any_cross(
            {turned_points(rotor, {0.0, 0.0}, angle), turned_points(path, axis, outer_angle)}))
            << "step " << step;
        for (const point2& at : turned_points(rim, axis, outer_angle)) {
            ASSERT_LT(distance(at, plan.centre), plan.bore_radius) << "step " << step;
        }
    }
    const auto reach = [&axis](const std::vector<point2>& points) {
        double farthest = 0.0;
        for (const point2& at : points) {
            farthest = std::max(farthest, distance(at, axis));
        }
        return farthest;
    };
    EXPECT_LT(reach(rotor), reach(path)) << "inside and not around it";
    EXPECT_GE(std::get<body>(inner.saved.shape).z0(), 0.0) << "above the floor";
    EXPECT_GE(std::get<body>(outer.saved.shape).z0(), 0.0) << "above the floor";
}

TEST(printed_set, turns_without_common_volume_at_36_angles) {
    for (const program& kavetta : {double_sided_design(), inch_design_with_shadow_ports(),
                                   design_with_ports("n03_transfer_sharp")}) {
        expect_to_turn_freely(kavetta);
    }
}

}  // namespace
}  // namespace kvt::builtin
