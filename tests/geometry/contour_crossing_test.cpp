// Contours that cross themselves.
#include "geometry/contour_crossing.hpp"

#include "support/property_runs.hpp"
#include "support/sample_design.hpp"

#include <cmath>
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

/// Contours about the origin, whose sides lie in sectors of their own or not, and the same ones
/// aside of it, where no sector tells anything.
TEST(crosses_itself, says_the_same_of_a_contour_wherever_it_lies) {
    random_values random(property_seed());
    int crossing = 0;
    for (int run = 0; run < property_count(400); ++run) {
        std::vector<point2> contour, aside;
        const int count = random.whole(3, 12);
        const int turns = random.whole(0, 4) == 0 ? 2 : 1;
        const double jitter = random.whole(0, 1) * 0.9;
        const double sign = random.whole(0, 1) == 0 ? 1.0 : -1.0;
        for (int i = 0; i < count; ++i) {
            const double angle =
                sign * 6.28318530717958 * turns * (i + random.real(0.0, jitter)) / count;
            contour.push_back(polar_point(random.real(2.0, 9.0), angle));
            aside.push_back({contour.back().x + 64.0, contour.back().y - 32.0});
        }
        ASSERT_EQ(crosses_itself(contour), crosses_itself(aside)) << run;
        crossing += crosses_itself(contour) ? 1 : 0;
    }
    EXPECT_GT(crossing, property_count(400) / 20);
    EXPECT_LT(crossing, property_count(400) * 19 / 20);
}

TEST(crosses_itself, finds_a_contour_that_goes_round_twice) {
    std::vector<point2> round;
    for (int k = 0; k < 720; ++k) {
        round.push_back(
            polar_point(20.0 + 2.0 * std::sin(k * 3.14159265 / 240.0), k * 3.14159265 / 180.0));
    }
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
