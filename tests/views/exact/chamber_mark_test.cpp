// Tests of the marked chamber: it lies between the rotors as they are drawn, and turns with them.
#include "views/exact/chamber_mark.hpp"

#include "exact/chamber.hpp"
#include "support/property_runs.hpp"
#include "support/sample_design.hpp"
#include "views/rotation.hpp"
#include "views/zoom.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr double DEGREE = 3.14159265358979 / 180.0;

struct marked_pair {
    design_params design = sample_design();
    rotor_profiles rotors = rotor_pair_of(design);
    view_state state;
    design_view view;

    explicit marked_pair(double place_deg) {
        set_plot_scale(design, state);
        state.view_cx = 1480.0;
        state.view_cy = 1510.0;
        redraw_zoomed(design, rotors, {}, state, view);
        mark_chamber(design, place_deg * DEGREE, state);
        draw();
    }
    void draw() {
        redraw_rotated(design, rotors, state, view);
        draw_marked_chamber(design, state, view);
    }
    double life_deg() const { return chamber_life(nominal_pair(design)) / DEGREE; }

    /// How far a point lies from the nearest lobe arc of the outer rotor as it is drawn, twips.
    double from_outer_rotor(const drawn_point& point) const {
        double nearest = 1e9;
        for (const drawn_arc& arc : view.Picture1) {
            const double away = std::hypot(point.x - arc.x, point.y - arc.y);
            nearest = std::min(nearest, std::abs(away - arc.radius));
        }
        return nearest;
    }
    /// From the nearest end of an element of the inner rotor, twips.
    double from_inner_rotor(const drawn_point& point) const {
        double nearest = 1e9;
        for (const drawn_line& line : view.Line1.elements) {
            nearest = std::min(
                nearest, static_cast<double>(std::hypot(point.x - line.x1, point.y - line.y1)));
        }
        return nearest;
    }
};

TEST(chamber_mark, ends_where_the_drawn_rotors_touch) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(20); ++run) {
        const marked_pair pair(random.real(0.0, 400.0));
        ASSERT_EQ(pair.view.chamber.contacts.size(), 2U);
        const double clearance = pair.design.clearn_half * pair.state.view_scale;
        for (const drawn_point& contact : pair.view.chamber.contacts) {
            EXPECT_LT(pair.from_outer_rotor(contact), 1.0);
            EXPECT_LT(pair.from_inner_rotor(contact), clearance + 12.0);
        }
    }
}

TEST(chamber_mark, turns_with_the_rotors_over_the_end_of_a_turn) {
    marked_pair pair(120.0);
    for (int tick = 0; tick < 370; ++tick) {
        turn_one_tick(pair.design, turning::clockwise, pair.state);
        pair.draw();
    }
    const double place = std::fmod(490.0, pair.life_deg());
    EXPECT_NEAR(pair.state.marked_chamber->place / DEGREE, place, 1e-6);
    EXPECT_LT(pair.from_outer_rotor(pair.view.chamber.contacts[0]), 1.0);
}

TEST(chamber_mark, follows_a_turn_backwards_below_the_least_volume) {
    marked_pair pair(1.0);
    for (int tick = 0; tick < 3; ++tick) {
        turn_one_tick(pair.design, turning::counter_clockwise, pair.state);
        pair.draw();
    }
    EXPECT_NEAR(pair.state.marked_chamber->place / DEGREE, pair.life_deg() - 2.0, 1e-6);
}

TEST(chamber_mark, goes_with_the_rotors_and_by_itself) {
    marked_pair pair(100.0);
    EXPECT_FALSE(pair.view.chamber.outline.empty());
    unmark_chamber(pair.state, pair.view);
    EXPECT_TRUE(pair.view.chamber.outline.empty());
    pair.draw();
    EXPECT_TRUE(pair.view.chamber.outline.empty());
    marked_pair other(100.0);
    clear_rotors(other.view);
    EXPECT_TRUE(other.view.chamber.outline.empty());
}

TEST(chamber_mark, is_not_drawn_where_the_geometry_has_no_chamber) {
    marked_pair pair(100.0);
    pair.design.outer_root = 1000.0;
    draw_marked_chamber(pair.design, pair.state, pair.view);
    EXPECT_TRUE(pair.view.chamber.outline.empty());
    EXPECT_TRUE(pair.view.chamber.contacts.empty());
}

}  // namespace
}  // namespace kvt
