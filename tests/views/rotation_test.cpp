// Tests of the rotation: the angles, the wrap rules, and the pair drawn at its angles.
#include "views/rotation.hpp"

#include "base/checked_math.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"
#include "support/sample_design.hpp"
#include "views/zoom.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

/// A design drawn as a zoom leaves it.
struct drawn_pair {
    design_params design = sample_design();
    rotor_profiles rotors;
    view_state state;
    design_view view;

    explicit drawn_pair(const design_params& wanted)
        : design(wanted), rotors(rotor_pair_of(wanted)) {
        set_plot_scale(design, state);
        state.view_cx = 1480.0;
        state.view_cy = 1510.0;
        redraw_zoomed(design, rotors, {}, state, view);
    }
    drawn_pair() : drawn_pair(sample_design()) {}

    void turn_to(const char* text) {
        turn_to_typed(design, text, state);
        redraw_rotated(design, rotors, state, view);
    }
    void tick(turning direction) {
        turn_one_tick(design, direction, state);
        redraw_rotated(design, rotors, state, view);
    }
};

double typed_angle(const char* text) {
    view_state state;
    turn_to_typed(sample_design(), text, state);
    return state.rotation_angle;
}

TEST(rotation_angle, goes_up_clockwise_and_wraps_from_359_to_0) {
    view_state state;
    const design_params design = sample_design();
    turn_one_tick(design, turning::clockwise, state);
    EXPECT_EQ(state.rotation_angle, 1.0);
    state.rotation_angle = 359.0;
    turn_one_tick(design, turning::clockwise, state);
    EXPECT_EQ(state.rotation_angle, 0.0);
}

TEST(rotation_angle, goes_from_0_to_359_counter_clockwise) {
    view_state state;
    turn_one_tick(sample_design(), turning::counter_clockwise, state);
    EXPECT_EQ(state.rotation_angle, 359.0);
    EXPECT_EQ(rotated_angle_text(state), "359");
}

TEST(rotation_angle, typed_is_cut_downwards_and_wrapped_once) {
    EXPECT_EQ(typed_angle("12.7"), 12.0);
    EXPECT_EQ(typed_angle("abc"), 0.0);
    EXPECT_EQ(typed_angle(""), 0.0);
    EXPECT_EQ(typed_angle("45 degrees"), 45.0);
    EXPECT_EQ(typed_angle("360"), 0.0);
    EXPECT_EQ(typed_angle("800"), 440.0);
    EXPECT_EQ(typed_angle("-0.5"), 359.0);
    EXPECT_EQ(typed_angle("-800"), -440.0);
}

TEST(rotation_angle, typed_beyond_a_double_fails) {
    view_state state;
    EXPECT_FAILURE(turn_to_typed(sample_design(), "1E400", state), failure::overflow);
}

TEST(rotation_angle, is_shown_as_taken) {
    view_state state;
    turn_to_typed(sample_design(), "800", state);
    EXPECT_EQ(rotated_angle_text(state), "440");
    state.rotation_angle = 12.375;
    EXPECT_EQ(rotated_angle_text(state), "12.3");
}

TEST(rotation_angle, of_the_outer_rotor_is_slower_by_one_lobe) {
    view_state state;
    turn_to_typed(sample_design(), "60", state);
    EXPECT_EQ(state.outer_rotation_angle, 6.0 * 60.0 / 7.0);
}

TEST(rotated_pair, at_0_degrees_is_the_zoomed_pair) {
    drawn_pair pair;
    const design_view zoomed = pair.view;
    pair.turn_to("0");
    EXPECT_EQ(pair.view.Picture1, zoomed.Picture1);
    ASSERT_EQ(pair.view.Line1.elements.size(), zoomed.Line1.elements.size());
    for (std::size_t i = 0; i < zoomed.Line1.elements.size(); ++i) {
        // Through the polar angle and back, with PI_D for pi: 5e-8 radian on 1300 twips.
        EXPECT_NEAR(pair.view.Line1.elements[i].x1, zoomed.Line1.elements[i].x1, 5e-4) << i;
        EXPECT_NEAR(pair.view.Line1.elements[i].y1, zoomed.Line1.elements[i].y1, 5e-4) << i;
    }
}

TEST(rotated_pair, after_360_ticks_is_that_of_the_typed_angle_0) {
    for (const turning direction : {turning::clockwise, turning::counter_clockwise}) {
        drawn_pair pair;
        pair.turn_to("0");
        const design_view at_zero = pair.view;
        for (int tick = 0; tick < 360; ++tick) {
            pair.tick(direction);
        }
        EXPECT_EQ(pair.state.rotation_angle, 0.0);
        EXPECT_EQ(pair.view.Line1.elements, at_zero.Line1.elements);
        EXPECT_EQ(pair.view.Picture1, at_zero.Picture1);
    }
}

/// The distance of a point from the nearest line.
double distance_from(const line_array& lines, double x, double y) {
    double nearest = 1e30;
    for (const drawn_line& line : lines.elements) {
        const double dx = line.x2 - line.x1;
        const double dy = line.y2 - line.y1;
        const double length2 = dx * dx + dy * dy;
        const double along =
            length2 == 0.0
                ? 0.0
                : std::clamp(((x - line.x1) * dx + (y - line.y1) * dy) / length2, 0.0, 1.0);
        nearest = std::min(nearest, std::hypot(x - line.x1 - along * dx, y - line.y1 - along * dy));
    }
    return nearest;
}

TEST(rotated_pair, one_inner_lobe_on_is_the_same_pair) {
    for (const int lobes : {3, 4, 5, 6, 7, 9, 10, 11}) {
        design_params design = sample_design();
        design.numlobes = lobes;
        design.ecc = 0.7;
        design.radouter = 5.0;
        design.radinnroot = 20.0;
        design.outer_root = 22.1;
        design.fillet = 0.0;
        drawn_pair pair(design);
        pair.turn_to("0");
        const design_view at_zero = pair.view;
        pair.turn_to(std::to_string(360 / (lobes - 1)).c_str());
        for (std::size_t i = 0; i < pair.view.Line1.elements.size(); i += 37) {
            const drawn_line& line = pair.view.Line1.elements[i];
            EXPECT_LT(distance_from(at_zero.Line1, line.x1, line.y1), 0.05)
                << lobes << " lobes, element " << i;
        }
        ASSERT_EQ(pair.view.Picture1.size(), at_zero.Picture1.size());
        for (const drawn_arc& arc : pair.view.Picture1) {
            const auto partner = std::find_if(
                at_zero.Picture1.begin(), at_zero.Picture1.end(), [&arc](const drawn_arc& other) {
                    return std::hypot(arc.x - other.x, arc.y - other.y) < 1e-3 &&
                           std::fabs(std::remainder(arc.start_angle - other.start_angle,
                                                    TWO_PI_L)) < 1e-6 &&
                           std::fabs(std::remainder(arc.end_angle - other.end_angle, TWO_PI_L)) <
                               1e-6;
                });
            EXPECT_NE(partner, at_zero.Picture1.end())
                << lobes << " lobes, arc at " << arc.x << ", " << arc.y;
        }
    }
}

TEST(rotated_pair, turns_both_rotors_clockwise_on_the_screen) {
    drawn_pair pair;
    pair.turn_to("0");
    const design_view at_zero = pair.view;
    pair.turn_to("10");
    const double axis_x = pair.state.view_cx + pair.state.view_ecc;
    const auto direction = [](double x, double y) {
        return std::atan2(y, x);
    };  // y down: clockwise is positive
    const drawn_line& before = at_zero.Line1.elements[100];
    const drawn_line& after = pair.view.Line1.elements[100];
    EXPECT_NEAR(std::remainder(direction(after.x1 - axis_x, after.y1 - 1510.0) -
                                   direction(before.x1 - axis_x, before.y1 - 1510.0),
                               TWO_PI_L),
                10.0 * PI_L / 180.0, 1e-6);
    const drawn_arc& lobe = at_zero.Picture1[2];
    const drawn_arc& turned = pair.view.Picture1[2];
    EXPECT_NEAR(std::remainder(direction(turned.x - 1480.0, turned.y - 1510.0) -
                                   direction(lobe.x - 1480.0, lobe.y - 1510.0),
                               TWO_PI_L),
                10.0 * 6.0 / 7.0 * PI_L / 180.0, 1e-6);
}

TEST(rotated_pair, leaves_ports_and_outside_circle_alone) {
    drawn_pair pair;
    pair.view.inlet_portline.set(0, {1.0F, 2.0F, 3.0F, 4.0F});
    pair.view.inlet_portline.set(1, {3.0F, 4.0F, 5.0F, 6.0F});
    const line_array ports = pair.view.inlet_portline;
    pair.turn_to("45");
    EXPECT_EQ(pair.view.inlet_portline.elements, ports.elements);
    EXPECT_EQ(pair.view.Shape1.x, 1480.0);
    EXPECT_TRUE(pair.view.Shape1.visible);
}

TEST(rotated_pair, fails_at_a_point_on_the_y_axis) {
    drawn_pair pair;
    pair.rotors.inner_plot_xy[200] = 0.0;
    EXPECT_FAILURE(redraw_rotated(pair.design, pair.rotors, pair.state, pair.view),
                   failure::division_by_zero);
}

TEST(rotated_pair, has_no_point_on_the_y_axis_for_any_sound_design) {
    random_values random;
    int checked = 0;
    const int runs = property_count(150);
    for (int run = 0; run < runs; ++run) {
        design_params design = sample_design();
        design.numlobes = random.whole(3, 16);
        // Round figures, as people type them, are the ones that could meet the axis.
        const double step = random.whole(0, 1) == 0 ? 0.05 : 0.5;
        design.ecc = step * random.whole(1, static_cast<int>(4.0 / step));
        design.radouter =
            step * random.whole(static_cast<int>(2.0 / step), static_cast<int>(10.0 / step));
        design.radinnroot =
            step * random.whole(static_cast<int>(8.0 / step), static_cast<int>(40.0 / step));
        design.coarseness = static_cast<std::int16_t>(random.whole(1, 6));
        rotor_profiles rotors = prepared_rotors(design);
        if (curves_too_tightly(design, rotors) || !fill_trochoid(design, rotors)) {
            continue;
        }
        try {
            fill_inner_rotor(design, rotors);
        } catch (const run_time_error&) {
            continue;  // a level trochoid: Calculate Profiles ends there, nothing is drawn
        }
        ++checked;
        for (std::size_t k = 0; k < rotors.inner_plot_xy.size(); k += 2) {
            ASSERT_NE(rotors.inner_plot_xy[k], 0.0)
                << "N " << design.numlobes << " ecc " << design.ecc << " point " << k;
        }
    }
    EXPECT_GT(checked, runs / 8) << "too few designs were sound";
}

}  // namespace
}  // namespace kvt
