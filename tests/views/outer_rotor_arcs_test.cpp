// Tests of the outer rotor's arcs in the Design view.
#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"
#include "views/design_view.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <utility>

namespace kvt {

namespace {

struct arc_end {
    double x, y;
};

arc_end end_of(const drawn_arc& arc, double angle) {
    return {arc.x + arc.radius * std::cos(angle), arc.y - arc.radius * std::sin(angle)};
}

std::vector<drawn_arc> arcs_of(const design_params& design) {
    view_state state;
    set_plot_scale(design, state);
    design_view view;
    draw_outer_rotor(design, rotor_pair_of(design), state, view);
    return view.Picture1;
}

std::size_t arcs_with_radius(const std::vector<drawn_arc>& arcs, double radius) {
    return static_cast<std::size_t>(std::count_if(
        arcs.begin(), arcs.end(),
        [radius](const drawn_arc& arc) { return std::fabs(arc.radius - radius) < 1e-9; }));
}

/// Every end of an arc has exactly one partner among the ends of the others, so the outline is
/// closed.
void expect_every_end_meets_one_other(const std::vector<drawn_arc>& arcs, double tolerance) {
    std::vector<arc_end> ends;
    for (const drawn_arc& arc : arcs) {
        ends.push_back(end_of(arc, arc.start_angle));
        ends.push_back(end_of(arc, arc.end_angle));
    }
    for (std::size_t i = 0; i < ends.size(); ++i) {
        int partners = 0;
        for (std::size_t other = 0; other < ends.size(); ++other) {
            if (other != i &&
                std::hypot(ends[i].x - ends[other].x, ends[i].y - ends[other].y) < tolerance) {
                ++partners;
            }
        }
        EXPECT_EQ(partners, 1) << "end " << i;
    }
}

constexpr double SCALE = 3000.0 * 0.95 / 52.0;
// Twips. The angles carry the product's constants of pi, 5e-8 radian off, on radii of 1300 twips.
constexpr double MEETING_TOLERANCE = 1e-3;

}  // namespace

TEST(outer_rotor_arcs, are_one_lobe_two_fillets_and_one_root_a_lobe) {
    const auto arcs = arcs_of(sample_design());
    EXPECT_EQ(arcs.size(), 7U * 4U);
    EXPECT_EQ(arcs_with_radius(arcs, 7.5 * SCALE), 7U);
    EXPECT_EQ(arcs_with_radius(arcs, 1.5 * SCALE), 14U);
    EXPECT_EQ(arcs_with_radius(arcs, 22.9 * SCALE), 7U);
}

TEST(outer_rotor_arcs, have_no_fillets_when_the_fillet_is_0) {
    design_params design = sample_design();
    design.fillet = 0.0;
    const auto arcs = arcs_of(design);
    EXPECT_EQ(arcs.size(), 14U);
    EXPECT_EQ(arcs_with_radius(arcs, 7.5 * SCALE), 7U);
    EXPECT_EQ(arcs_with_radius(arcs, 22.9 * SCALE), 7U);
}

TEST(outer_rotor_arcs, meet_end_to_end_in_a_closed_outline) {
    expect_every_end_meets_one_other(arcs_of(sample_design()), MEETING_TOLERANCE);
    design_params sharp = sample_design();
    sharp.fillet = 0.0;
    expect_every_end_meets_one_other(arcs_of(sharp), MEETING_TOLERANCE);
}

TEST(outer_rotor_arcs, have_angles_within_one_turn) {
    for (const drawn_arc& arc : arcs_of(sample_design())) {
        for (const double angle : {arc.start_angle, arc.end_angle}) {
            EXPECT_GE(angle, 0.0);
            EXPECT_LE(angle, TWO_PI_L);
        }
    }
}

TEST(outer_rotor_arcs, run_counter_clockwise_the_short_way) {
    for (const drawn_arc& arc : arcs_of(sample_design())) {
        double sweep = arc.end_angle - arc.start_angle;
        if (sweep < 0.0) {
            sweep += TWO_PI_L;
        }
        EXPECT_LT(sweep, PI_L) << "radius " << arc.radius;
    }
}

TEST(outer_rotor_arcs, flip_the_y_axis_and_stand_about_the_outer_centre) {
    const auto arcs = arcs_of(sample_design());
    // The third arc is the first lobe, at one pitch: 24.5 mm from the view's centre, above it on
    // the screen.
    const double pitch = TWO_PI_D / 7.0;
    EXPECT_NEAR(arcs[2].x, 1500.0 + 24.5 * std::cos(pitch) * SCALE, 1e-9);
    EXPECT_NEAR(arcs[2].y, 1500.0 - 24.5 * std::sin(pitch) * SCALE, 1e-9);
    EXPECT_EQ(arcs.back().x, 1500.0);
    EXPECT_EQ(arcs.back().y, 1500.0);
}

TEST(drawing_angle, covers_the_four_quadrants) {
    EXPECT_EQ(drawing_angle(1.0, 1.0), std::atan(1.0));
    EXPECT_EQ(drawing_angle(-1.0, 1.0), std::atan(-1.0) + PI_L);
    EXPECT_EQ(drawing_angle(-1.0, -1.0), std::atan(1.0) + PI_L);
    EXPECT_EQ(drawing_angle(1.0, -1.0), std::atan(-1.0) + TWO_PI_L);
    EXPECT_EQ(drawing_angle(1.0, 0.0), 0.0);
}

TEST(drawing_angle, on_the_negative_x_axis_stays_0) {
    EXPECT_EQ(drawing_angle(-1.0, 0.0), 0.0);
}

TEST(drawing_angle, fails_on_the_y_axis) {
    EXPECT_FAILURE(drawing_angle(0.0, 1.0), failure::division_by_zero);
}

}  // namespace kvt
