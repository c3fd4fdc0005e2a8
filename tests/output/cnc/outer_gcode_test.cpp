// The outer rotor's path as G-codes: what a machine makes of it, and the checked arcs.
#include "output/cnc/outer_gcode.hpp"

#include "output/cnc/machine_arc.hpp"
#include "support/undercut_design.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

namespace {

/// The largest distance of the X/Y file's points from the path that a machine runs.
double distance_of_points(const outer_path& path, const tool_contour& contour) {
    double largest = 0.0;
    for (const point2& point : outer_path_points(path)) {
        double smallest = distance(point, contour.start);
        point2 at = contour.start;
        for (const tool_move& move : contour.moves) {
            const point2 nearest = move.kind == move_kind::line_g01
                                       ? nearest_on_line(at, move.end, point)
                                       : nearest_on(machine_arc(at, move), point);
            smallest = std::min(smallest, distance(point, nearest));
            at = move.end;
        }
        largest = std::max(largest, smallest);
    }
    return largest;
}

double longest_arc_deg(const tool_contour& contour) {
    double longest = 0.0;
    point2 at = contour.start;
    for (const tool_move& move : contour.moves) {
        if (move.kind != move_kind::line_g01) {
            EXPECT_TRUE(reaches_end(at, move));
            longest = std::max(longest, std::abs(machine_arc(at, move).sweep));
        }
        at = move.end;
    }
    return longest * 180.0 / std::acos(-1.0);
}

std::ptrdiff_t line_count(const tool_contour& contour) {
    return std::ranges::count(contour.moves, move_kind::line_g01, &tool_move::kind);
}

}  // namespace

TEST(checked_outer_moves, are_the_told_ones_of_a_sound_design) {
    const outer_path path = outer_rotor_path(sample_design());
    const tool_contour told = outer_moves(path);
    const tool_contour checked = checked_outer_moves(path);
    ASSERT_EQ(checked.moves.size(), told.moves.size());
    for (std::size_t i = 0; i < told.moves.size(); ++i) {
        EXPECT_EQ(checked.moves[i].kind, told.moves[i].kind);
        EXPECT_EQ(checked.moves[i].end, told.moves[i].end);
        EXPECT_EQ(checked.moves[i].radius, told.moves[i].radius);
    }
    EXPECT_EQ(strayed_arcs_of(path).count, 0);
    EXPECT_LT(strayed_arcs_of(path).largest_mm, 1e-5);
}

TEST(checked_outer_moves, cut_half_a_turn_in_two_and_close_every_gap) {
    // Without fillets each lobe runs half a turn, from the root's end to a point inside of it, and
    // the root begins off its circle.
    const outer_path path = outer_rotor_path(undercut_design(0.0));
    const tool_contour checked = checked_outer_moves(path);
    EXPECT_EQ(line_count(checked), 7);
    EXPECT_EQ(checked.moves.size(), 7U * (2U + 1U + 1U));
    EXPECT_NEAR(longest_arc_deg(checked), 90.0, 0.001);
    EXPECT_LT(distance_of_points(path, checked), 1e-5);
}

TEST(checked_outer_moves, run_as_the_points_where_no_arc_reaches) {
    const outer_path path = outer_rotor_path(undercut_design(0.8));
    const tool_contour checked = checked_outer_moves(path);
    EXPECT_LE(longest_arc_deg(checked), 170.0);
    EXPECT_EQ(line_count(checked), 14);
    EXPECT_LT(distance_of_points(path, checked), 1e-5);
}

TEST(strayed_arcs, are_counted_with_the_largest_distance) {
    const outer_path sharp = outer_rotor_path(undercut_design(0.0));
    // The root arcs, and the lobe arcs: half a turn on whose chord the last digits move the centre.
    const strayed_arcs strayed = strayed_arcs_of(sharp);
    EXPECT_EQ(strayed.count, 14);
    // The told codes miss the points by no more than the worst arc does, and by no less than a
    // tenth of it: a point may lie near another arc.
    EXPECT_LE(distance_of_points(sharp, outer_moves(sharp)), strayed.largest_mm + 1e-9);
    EXPECT_GT(distance_of_points(sharp, outer_moves(sharp)), 0.1 * strayed.largest_mm);
    EXPECT_EQ(strayed_arcs_of(outer_rotor_path(undercut_design(0.8))).count, 14);
}

}  // namespace kvt
