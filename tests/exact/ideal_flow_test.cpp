// Tests of the ideal flow: values from first principles, its period, its kinks, its harmonics.
#include "exact/ideal_flow.hpp"

#include "exact/chamber.hpp"
#include "exact/exact_designs.hpp"
#include "exact/swept_volume.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

constexpr double TURN = 2.0 * std::numbers::pi;

TEST(ideal_flow, has_the_irregularity_of_first_principles) {
    const auto percent = [](const design_params& design) {
        return figures_of_flow(nominal_pair(design)).irregularity * 100.0;
    };
    EXPECT_NEAR(percent(pair_design(6, 3.0, 25.0, 9.0, 20.0)), 9.558, 0.0005);
    EXPECT_NEAR(percent(pair_design(5, 2.85, 25.08, 9.0, 10.0)), 8.850, 0.0005);
    EXPECT_NEAR(percent(pair_design(8, 2.0, 30.0, 8.0, 10.0)), 6.892, 0.0005);
}

TEST(ideal_flow, delivers_the_swept_volume_in_a_turn) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const exact_pair pair = nominal_pair(random_pair(random));
        EXPECT_NEAR(figures_of_flow(pair).mean * TURN / swept_volume(pair), 1.0, 1e-9);
    }
}

TEST(ideal_flow, is_the_sum_of_the_chambers_that_shrink) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const exact_pair pair = nominal_pair(random_pair(random));
        const double angle = random.real(0.0, flow_period(pair));
        double shrinking = 0.0;
        for (int i = 0; i < pair.lobes; ++i) {
            // A lobe on the line of centres has chambers half a pitch beside it.
            const double place = angle + (i + 0.5) * chamber_life(pair) / pair.lobes;
            shrinking += std::max(0.0, -chamber_rate(pair, place));
        }
        EXPECT_NEAR(ideal_flow(pair, angle) / shrinking, 1.0, 1e-9);
    }
}

TEST(ideal_flow, repeats_after_a_pitch) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const exact_pair pair = nominal_pair(random_pair(random));
        const double angle = random.real(0.0, TURN);
        const double flow = ideal_flow(pair, angle);
        EXPECT_NEAR(ideal_flow(pair, angle + flow_period(pair)), flow, 1e-9 * flow);
        EXPECT_NEAR(ideal_flow(pair, -angle), flow, 1e-9 * flow) << "and is even";
    }
}

TEST(ideal_flow, never_leaves_its_extremes) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(60); ++run) {
        const exact_pair pair = nominal_pair(random_pair(random));
        const flow_figures figures = figures_of_flow(pair);
        for (int i = 0; i <= 500; ++i) {
            const double flow = ideal_flow(pair, flow_period(pair) * i / 500.0);
            EXPECT_GE(flow, figures.least * (1.0 - 1e-12));
            EXPECT_LE(flow, figures.largest * (1.0 + 1e-9));
        }
    }
}

TEST(ideal_flow, has_twice_the_pulses_with_odd_lobes) {
    EXPECT_EQ(figures_of_flow(nominal_pair(pair_design(6, 3.0, 25.0, 9.0, 20.0))).pulses, 5);
    EXPECT_EQ(figures_of_flow(nominal_pair(pair_design(5, 2.85, 25.08, 9.0, 10.0))).pulses, 8);
}

TEST(ideal_flow, its_harmonics_make_the_flow_again) {
    const exact_pair pair = nominal_pair(pair_design(6, 3.0, 25.0, 9.0, 20.0));
    const flow_figures figures = figures_of_flow(pair);
    // The kinks leave a remainder that falls with the square of the order.
    double sum = 0.0;
    for (const double amplitude : figures.harmonics) {
        EXPECT_GT(amplitude, 0.0);
        sum += amplitude;
    }
    EXPECT_GT(figures.harmonics[0], figures.harmonics[1]);
    const double swing = (figures.largest - figures.least) / figures.mean;
    EXPECT_GT(2.0 * sum, 0.85 * swing);
    constexpr int SAMPLES = 4096;
    double direct = 0.0;
    for (int i = 0; i < SAMPLES; ++i) {
        const double angle = flow_period(pair) * i / SAMPLES;
        direct += ideal_flow(pair, angle) * std::cos(TURN * i / SAMPLES) * 2.0 / SAMPLES;
    }
    EXPECT_NEAR(figures.harmonics[0], std::abs(direct) / figures.mean, 1e-6);
}

}  // namespace
}  // namespace kvt
