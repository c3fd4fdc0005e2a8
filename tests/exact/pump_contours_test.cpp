// Tests of the named contours and of the box around them.
#include "exact/pump_contours.hpp"

#include "exact/exact_designs.hpp"
#include "support/cnc_design.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>
#include <numbers>
#include <set>

namespace kvt {
namespace {

TEST(pump_contours, have_a_name_each) {
    std::set<std::string_view> names;
    for (const pump_part part : {pump_part::inner_rotor, pump_part::outer_rotor, pump_part::rim,
                                 pump_part::inlet, pump_part::outlet, pump_part::groove}) {
        EXPECT_TRUE(names.insert(name_of(part)).second);
    }
}

TEST(pump_contours, of_a_whole_pump_are_six) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    EXPECT_EQ(
        whole_pump_contours(kavetta.design_params, kavetta.port_params, kavetta.entries).size(),
        6U);
    EXPECT_TRUE(port_contours(port_params(), port_side::inlet).empty());
    EXPECT_TRUE(groove_contours(port_params(), kavetta.entries).empty());
    EXPECT_FAILURE((check_that_there_are({}), 0), failure::invalid_procedure_call);
}

TEST(pump_contours, know_the_box_around_an_arc) {
    constexpr double PI = std::numbers::pi;
    // From 45 to 225 degrees: over the top and the left of the circle.
    const exact_contour half = {arc_piece({{1.0, 0.0}, 2.0, PI / 4.0, 1.25 * PI}),
                                line_piece({}, {})};
    const auto [low, high] = extents_of({{pump_part::rim, {half[0]}}});
    EXPECT_NEAR(low.x, -1.0, 1e-12);
    EXPECT_NEAR(high.y, 2.0, 1e-12);
    EXPECT_NEAR(high.x, 1.0 + std::sqrt(2.0), 1e-12);
    EXPECT_NEAR(low.y, -std::sqrt(2.0), 1e-12);
}

TEST(pump_contours, of_the_rotors_fill_the_box_of_the_rim) {
    const design_params design = pair_design(6, 3.0, 25.0, 9.0, 20.0);
    const auto [low, high] = extents_of(pair_contours(design));
    EXPECT_NEAR(low.x, -3.0 - design.maxdiameter / 2.0, 1e-12);
    EXPECT_NEAR(high.y, design.maxdiameter / 2.0, 1e-12);
    const auto inner = extents_of(inner_rotor_contours(design));
    EXPECT_LT(inner.high.x, 25.0 + 3.0 - 9.0 + 1.0);
}

}  // namespace
}  // namespace kvt
