// The plan of the pump body: sizes, and every reason against it.
#include "cad/housing.hpp"

#include "app/program.hpp"
#include "support/cad/model_designs.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

class housing : public testing::Test {
  protected:
    program kavetta = double_sided_design();
    const design_params& design = kavetta.design_params;
    housing_size size = usual_housing(design);

    housing_plan plan() const {
        return plan_housing(design, port_bodies(design, kavetta.port_params, kavetta.entries),
                            size);
    }
    housing_problem problem() const { return problem_of(plan(), size, design); }
};

TEST_F(housing, lets_the_outer_rotor_turn_in_its_bore) {
    EXPECT_DOUBLE_EQ(plan().bore_radius, design.maxdiameter / 2.0 + 0.15);
    EXPECT_DOUBLE_EQ(plan().outer_radius, design.maxdiameter / 2.0 + 5.15);
    EXPECT_EQ(plan().centre, (point2{-design.ecc, 0.0}));
    EXPECT_EQ(problem(), housing_problem::none);
}

TEST_F(housing, is_open_above_the_rotors_and_has_a_floor_under_the_deepest_pocket) {
    EXPECT_DOUBLE_EQ(plan().top, design.thick + design.axial_clear);
    // The inlet is as deep as the rotors are thick, the double-sided outlet half of that.
    EXPECT_DOUBLE_EQ(plan().bottom, -design.thick - 5.0);
    ASSERT_EQ(plan().pockets.size(), 3U) << "inlet, outlet and groove, nothing from above";
    for (const port_body& pocket : plan().pockets) {
        EXPECT_DOUBLE_EQ(pocket.to_z, 0.0);
    }
}

TEST_F(housing, needs_no_ports) {
    const housing_plan without = plan_housing(design, {}, size);
    EXPECT_TRUE(without.pockets.empty());
    EXPECT_DOUBLE_EQ(without.bottom, -5.0);
    EXPECT_EQ(problem_of(without, size, design), housing_problem::none);
}

TEST_F(housing, tells_a_bore_that_the_rotor_does_not_go_into) {
    size.outer_diameter = design.maxdiameter + 2.0 * size.wall;
    EXPECT_EQ(problem(), housing_problem::bore) << "as wide as the rotor is too narrow";
    size.outer_diameter += 1e-6;
    EXPECT_EQ(problem(), housing_problem::none);
}

TEST_F(housing, tells_a_missing_wall_and_a_missing_floor) {
    size.wall = 0.0;
    EXPECT_EQ(problem(), housing_problem::wall);
    size.wall = -1.0;
    EXPECT_EQ(problem(), housing_problem::wall);
    size = usual_housing(design);
    size.floor = 0.0;
    EXPECT_EQ(problem(), housing_problem::floor);
}

TEST_F(housing, tells_a_pocket_that_breaks_through_the_outside) {
    housing_plan wide = plan();
    wide.pockets.front().outline.front() = {wide.centre.x + wide.outer_radius, 0.0};
    EXPECT_EQ(problem_of(wide, size, design), housing_problem::pocket);
    wide.pockets.front().outline.front().x -= 1e-6;
    EXPECT_EQ(problem_of(wide, size, design), housing_problem::none);
}

TEST_F(housing, has_no_sizes_that_are_not_numbers) {
    size.wall = std::nan("");
    EXPECT_EQ(problem(), housing_problem::wall);
    size = usual_housing(design);
    size.outer_diameter = std::nan("");
    EXPECT_EQ(problem(), housing_problem::bore);
}

}  // namespace
}  // namespace kvt
