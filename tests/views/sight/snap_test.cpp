// Tests of what draws a measured point to itself.
#include "views/sight/snap.hpp"

#include "views/sight/sample_sight.hpp"

#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

constexpr double PI = std::numbers::pi;

TEST(nearest_on_line, is_the_foot_or_the_nearer_end) {
    const drawn_line line{0.0F, 0.0F, 100.0F, 0.0F};
    EXPECT_EQ(nearest_on_line(line, {40.0, 30.0}), (point2{40.0, 0.0}));
    EXPECT_EQ(nearest_on_line(line, {-40.0, 30.0}), (point2{0.0, 0.0}));
    EXPECT_EQ(nearest_on_line(line, {140.0, 30.0}), (point2{100.0, 0.0}));
    EXPECT_EQ(nearest_on_line({7.0F, 8.0F, 7.0F, 8.0F}, {0.0, 0.0}), (point2{7.0, 8.0}));
}

TEST(nearest_on_arc, is_the_foot_where_the_arc_covers_it_else_the_nearer_end) {
    // A quarter from the right to the top, y down.
    const drawn_arc arc{0.0, 0.0, 100.0, 0.0, PI / 2.0};
    const point2 foot = nearest_on_arc(arc, {30.0, -40.0});
    EXPECT_NEAR(foot.x, 60.0, 1e-9);
    EXPECT_NEAR(foot.y, -80.0, 1e-9);
    EXPECT_NEAR(nearest_on_arc(arc, {90.0, 30.0}).x, 100.0, 1e-9);
    EXPECT_NEAR(nearest_on_arc(arc, {-30.0, -90.0}).y, -100.0, 1e-9);
}

TEST(nearest_on_arc, goes_through_zero_where_its_end_is_before_its_start) {
    const drawn_arc arc{0.0, 0.0, 100.0, 1.5 * PI, PI / 2.0};
    EXPECT_NEAR(nearest_on_arc(arc, {50.0, 0.0}).x, 100.0, 1e-9);
    EXPECT_NEAR(nearest_on_arc(arc, {-50.0, -20.0}).y, -100.0, 1e-9);
}

struct drawn_pair : sample_sight {
    snapped_place at(double x, double y) const {
        return snap_to_drawing(view, state, {x, y}, 120.0);
    }
};

TEST(snap_to_drawing, takes_the_axes_before_any_profile) {
    const drawn_pair pair;
    const snapped_place outer = pair.at(2990.0, 3010.0);
    EXPECT_EQ(outer.kind, snap_kind::centre);
    EXPECT_EQ(outer.place, (point2{3000.0, 3000.0}));
    const snapped_place inner = pair.at(3000.0 + pair.state.view_ecc + 20.0, 3010.0);
    EXPECT_EQ(inner.place, (point2{3000.0 + pair.state.view_ecc, 3000.0}));
}

TEST(snap_to_drawing, takes_the_outside_circle) {
    const drawn_pair pair;
    const snapped_place found = pair.at(3000.0 + 2850.0 - 50.0, 3000.0);
    EXPECT_EQ(found.kind, snap_kind::profile);
    EXPECT_NEAR(found.place.x, 5850.0, 1e-6);
}

TEST(snap_to_drawing, takes_the_inner_rotor_where_it_touches_the_lobe) {
    const drawn_pair pair;
    // Lobe 0 stands on the line of centres; the inner rotor's root lies there.
    const double root =
        3000.0 + pair.state.view_ecc + pair.design.radinnroot * pair.state.view_scale;
    const snapped_place found = pair.at(root - 60.0, 3000.0);
    EXPECT_EQ(found.kind, snap_kind::profile);
    EXPECT_NEAR(found.place.x, root, pair.design.clearn_half * pair.state.view_scale * 1.01);
}

TEST(snap_to_drawing, leaves_a_place_alone_that_is_far_from_everything) {
    const drawn_pair pair;
    const snapped_place found = pair.at(3000.0, 2400.0);
    EXPECT_EQ(found.kind, snap_kind::free);
    EXPECT_EQ(found.place, (point2{3000.0, 2400.0}));
}

}  // namespace
}  // namespace kvt
