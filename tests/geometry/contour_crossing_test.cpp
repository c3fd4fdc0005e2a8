// Contours that cross themselves.
#include "geometry/contour_crossing.hpp"

#include "support/sample_design.hpp"

#include <gtest/gtest.h>

namespace kvt {

TEST(crosses_itself, tells_a_bow_tie_from_a_square) {
    EXPECT_FALSE(crosses_itself({{0, 0}, {1, 0}, {1, 1}, {0, 1}}));
    EXPECT_TRUE(crosses_itself({{0, 0}, {1, 1}, {1, 0}, {0, 1}}));
}

TEST(crosses_itself, takes_repeated_points_and_a_closing_one) {
    EXPECT_FALSE(crosses_itself({{0, 0}, {1, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}, {0, 0}}));
    EXPECT_TRUE(crosses_itself({{0, 0}, {1, 1}, {1, 1}, {1, 0}, {0, 1}, {0, 0}}));
}

TEST(crosses_itself, lets_sides_touch) {
    // A corner that stands on the opposite side.
    EXPECT_FALSE(crosses_itself({{0, 0}, {4, 0}, {4, 2}, {2, 0}, {0, 2}}));
    EXPECT_TRUE(crosses_itself({{0, 0}, {4, 0}, {4, 2}, {2, -1}, {0, 2}}));
}

TEST(crosses_itself, finds_one_small_loop_in_a_long_contour) {
    std::vector<point2> round;
    for (int k = 0; k < 3600; ++k) {
        round.push_back(polar_point(20.0, k * 3.14159265 / 1800.0));
    }
    EXPECT_FALSE(crosses_itself(round));
    std::swap(round[1200], round[1201]);
    EXPECT_TRUE(crosses_itself(round));
}

TEST(crosses_itself, clears_the_profiles_of_a_sound_design) {
    const rotor_profiles rotors = rotor_pair_of(sample_design());
    std::vector<point2> inner;
    for (std::size_t i = 0; i < 3600; ++i) {
        inner.push_back({rotors.inner_x[i], rotors.inner_y[i]});
    }
    EXPECT_FALSE(crosses_itself(inner));
    std::vector<point2> outer;
    for (std::size_t i = 0; i <= static_cast<std::size_t>(rotors.outer_last); ++i) {
        outer.push_back({rotors.outer_x[i], rotors.outer_y[i]});
    }
    EXPECT_FALSE(crosses_itself(outer));
}

TEST(any_cross, finds_sides_of_two_contours) {
    const std::vector<point2> square = {{0, 0}, {4, 0}, {4, 4}, {0, 4}};
    EXPECT_FALSE(any_cross({square, {{1, 1}, {2, 1}, {2, 2}}}));
    EXPECT_FALSE(any_cross({square, {{5, 1}, {6, 1}, {6, 2}}}));
    EXPECT_TRUE(any_cross({square, {{1, 1}, {6, 1}, {6, 2}}}));
    EXPECT_TRUE(any_cross({square, {{0, 10}, {1, 11}, {1, 10}, {0, 11}}}))
        << "one of them crosses itself";
    EXPECT_FALSE(any_cross({}));
}

}  // namespace kvt
