// Cutter positions within the outer rotor: those that gouge, and the checked ones.
#include "output/cnc/outer_offset.hpp"

#include "geometry/outer_path.hpp"
#include "support/cnc_reader.hpp"
#include "support/expect_failure.hpp"
#include "support/undercut_design.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

/// The smallest distance of any point of a path from the profile's points, with points every 0.05
/// mm of a move.
double smallest_clearance(const std::vector<point2>& path, const std::vector<point2>& profile) {
    double smallest = 1e300;
    for (std::size_t i = 1; i < path.size(); ++i) {
        const point2 along = difference(path[i], path[i - 1]);
        const int steps = 1 + static_cast<int>(distance(path[i], path[i - 1]) / 0.05);
        for (int k = 0; k < steps; ++k) {
            const double share = static_cast<double>(k) / steps;
            const point2 at = {path[i - 1].x + share * along.x, path[i - 1].y + share * along.y};
            smallest = std::min(smallest, distance_from_path(at, profile));
        }
    }
    return smallest;
}

}  // namespace

TEST(outer_offset, of_a_sound_design_gouges_nowhere_and_needs_no_change) {
    const design_params design = sample_design();
    for (const double tool_radius : {0.5, 1.0, 1.6, 4.5}) {
        EXPECT_EQ(outer_offset_gouges(design, tool_radius).count, 0) << tool_radius;
        EXPECT_EQ(checked_outer_offset_points(design, tool_radius),
                  outer_path_points(outer_rotor_offset_path(design, tool_radius)));
    }
}

TEST(outer_offset, gouges_where_the_path_has_gaps_and_is_moved_away) {
    const design_params design = undercut_design(0.8);
    const double tool_radius = 1.0;
    const std::vector<point2> told =
        outer_path_points(outer_rotor_offset_path(design, tool_radius));
    const std::vector<point2> profile = outer_path_points(outer_rotor_path(design));
    const cutter_gouges found = outer_offset_gouges(design, tool_radius);
    EXPECT_GT(found.count, 0);
    double deepest = 0.0;
    for (const point2& centre : told) {
        deepest = std::max(deepest, tool_radius - distance_from_path(centre, profile));
    }
    // The chords of a fillet lie up to 0.006 mm within the hollow.
    EXPECT_NEAR(found.depth_mm, deepest, 0.007);
    const std::vector<point2> checked = checked_outer_offset_points(design, tool_radius);
    EXPECT_GE(smallest_clearance(checked, profile), tool_radius - 0.008);
    int kept = 0;
    for (const point2& centre : told) {
        kept += std::ranges::find(checked, centre) == checked.end() ? 0 : 1;
    }
    EXPECT_EQ(kept, static_cast<int>(told.size()) - found.count);
}

TEST(outer_offset, fails_for_a_cutter_without_room) {
    EXPECT_FAILURE(checked_outer_offset_points(sample_design(), 40.0),
                   failure::invalid_procedure_call);
}

}  // namespace kvt
