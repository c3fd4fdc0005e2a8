// Tests of a chamber over its life: its rate is the derivative of its volume, all rates cancel, its
// polygon has its area.
#include "exact/chamber.hpp"

#include "exact/exact_designs.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

double area_of(const std::vector<point2>& polygon) {
    double twice = 0.0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        twice += cross(polygon[i], polygon[(i + 1) % polygon.size()]);
    }
    return twice / 2.0;
}

TEST(chamber, its_rate_is_the_derivative_of_its_volume) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const design_params design = random_pair(random);
        const exact_pair pair = nominal_pair(design);
        const lobe_outline outline = outline_of_lobe(design);
        const double place = random.real(0.0, chamber_life(pair));
        const double h = 1e-4;
        const double expected =
            (chamber_volume(pair, outline, place + h) - chamber_volume(pair, outline, place - h)) /
            (2.0 * h);
        const double scale = pair.ecc * pair.lobe_distance * pair.thick;
        EXPECT_NEAR(chamber_rate(pair, place) / scale, expected / scale, 1e-5);
    }
}

TEST(chamber, all_chambers_together_keep_their_volume) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const design_params design = random_pair(random);
        const exact_pair pair = nominal_pair(design);
        const lobe_outline outline = outline_of_lobe(design);
        const double pitch = chamber_life(pair) / pair.lobes;
        const double place = random.real(0.0, pitch);
        double rates = 0.0;
        double here = 0.0;
        double later = 0.0;
        for (int i = 0; i < pair.lobes; ++i) {
            rates += chamber_rate(pair, place + i * pitch);
            here += chamber_volume(pair, outline, place + i * pitch);
            later += chamber_volume(pair, outline, 0.123 + i * pitch);
        }
        EXPECT_NEAR(rates / (pair.ecc * pair.lobe_distance * pair.thick), 0.0, 1e-12);
        EXPECT_NEAR(here / later, 1.0, 1e-9);
    }
}

TEST(chamber, everything_repeats_after_its_life) {
    const design_params design = pair_design(5, 2.85, 25.08, 9.0, 10.0);
    const exact_pair pair = nominal_pair(design);
    const lobe_outline outline = outline_of_lobe(design);
    const double life = chamber_life(pair);
    EXPECT_DOUBLE_EQ(life, 2.0 * 3.14159265358979323846 * 5.0 / 4.0);
    for (const double place : {0.0, 0.7, 2.9}) {
        const double volume = chamber_volume(pair, outline, place);
        EXPECT_NEAR(chamber_volume(pair, outline, place + life), volume, 1e-9 * volume);
        EXPECT_NEAR(chamber_volume(pair, outline, life - place), volume, 1e-9 * volume)
            << "and is symmetric";
    }
}

TEST(chamber, grows_from_its_least_volume) {
    const exact_pair pair = nominal_pair(pair_design(7, 2.85, 24.5, 7.5, 10.0));
    EXPECT_NEAR(chamber_rate(pair, 0.0), 0.0, 1e-9);
    EXPECT_GT(chamber_rate(pair, 1.0), 0.0);
    EXPECT_LT(chamber_rate(pair, chamber_life(pair) - 1.0), 0.0);
    const chamber_lobes lobes = lobes_of_chamber(pair, 1.2);
    EXPECT_NEAR((lobes.first + lobes.second) / 2.0, -1.2 * 6.0 / 7.0, 1e-12)
        << "the rotors turn clockwise";
}

TEST(chamber, its_polygon_has_its_area_and_closes) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(60); ++run) {
        const design_params design = random_pair(random);
        const exact_pair pair = nominal_pair(design);
        const lobe_outline outline = outline_of_lobe(design);
        const double place = random.real(0.0, chamber_life(pair));
        const std::vector<point2> polygon = chamber_polygon(pair, outline, place, 1e-4);
        const double area = chamber_area(pair, outline, place);
        // At most the sagitta along the whole outline.
        const double outline_length = 4.0 * pair.lobe_distance;
        EXPECT_NEAR(area_of(polygon), area, 1e-4 * outline_length);
        double longest = 0.0;
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            longest = std::fmax(longest, distance(polygon[i], polygon[(i + 1) % polygon.size()]));
        }
        EXPECT_LT(longest, 0.1 * pair.lobe_distance) << "no jump between the profiles";
    }
}

}  // namespace
}  // namespace kvt
