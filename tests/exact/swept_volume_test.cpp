// Tests of the swept volume: values from first principles, the swing of the chambers, and polygons
// of both profiles that a library cuts.
#include "exact/swept_volume.hpp"

#include "exact/exact_designs.hpp"
#include "geometry/trochoid.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <polyclipping/clipper.hpp>

namespace kvt {
namespace {

constexpr double PI = std::numbers::pi;

struct known_pair {
    int lobes;
    double ecc, lobe_distance, lobe_radius, thick;
    double swept_cc;
};

class known_swept_volume : public testing::TestWithParam<known_pair> {};

TEST_P(known_swept_volume, is_that_of_first_principles) {
    const known_pair& known = GetParam();
    const design_params design =
        pair_design(known.lobes, known.ecc, known.lobe_distance, known.lobe_radius, known.thick);
    EXPECT_NEAR(swept_volume(nominal_pair(design)) / 1000.0, known.swept_cc, 5e-7);
}

INSTANTIATE_TEST_SUITE_P(pairs, known_swept_volume,
                         testing::Values(known_pair{6, 3.0, 25.0, 9.0, 20.0, 11.733643},
                                         known_pair{5, 2.85, 25.08, 9.0, 10.0, 5.456696},
                                         known_pair{8, 2.0, 30.0, 8.0, 10.0, 5.405925}),
                         [](const auto& row) {
                             return "lobes_" + std::to_string(row.param.lobes);
                         });

TEST(swept_volume, is_n_less_one_times_the_swing_of_a_chamber) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(200); ++run) {
        const design_params design = random_pair(random);
        const exact_pair pair = nominal_pair(design);
        const chamber_extremes chamber = extremes_of_chamber(pair, outline_of_lobe(design));
        EXPECT_NEAR((pair.lobes - 1) * (chamber.largest - chamber.least) / swept_volume(pair), 1.0,
                    1e-9);
        EXPECT_DOUBLE_EQ(chamber.dead, (pair.lobes - 1) * chamber.least);
    }
}

TEST(swept_volume, no_chamber_is_smaller_or_larger_than_its_extremes) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(40); ++run) {
        const design_params design = random_pair(random);
        const exact_pair pair = nominal_pair(design);
        const lobe_outline outline = outline_of_lobe(design);
        const chamber_extremes chamber = extremes_of_chamber(pair, outline);
        for (int i = 0; i < 50; ++i) {
            const double volume = chamber_volume(pair, outline, chamber_life(pair) * i / 50.0);
            EXPECT_GE(volume, chamber.least * (1.0 - 1e-9));
            EXPECT_LE(volume, chamber.largest * (1.0 + 1e-9));
        }
    }
}

// Polygons of the profiles, cut by a library.

constexpr double UNITS_PER_MM = 1.0e7;

ClipperLib::IntPoint in_units(const point2& point) {
    return {std::llround(point.x * UNITS_PER_MM), std::llround(point.y * UNITS_PER_MM)};
}

/// The offset of the trochoid without clearance, by the product's own formula of its points.
ClipperLib::Path inner_polygon(const design_params& design, double rotation) {
    constexpr int POINTS = 30000;
    rotor_profiles rotors;
    set_rolling_circles(design, rotors);
    const auto on_trochoid = [&](double t) {
        return trochoid_point(rotors.base_radius, rotors.roll_radius, design.ecc, t);
    };
    ClipperLib::Path polygon;
    for (int i = 0; i < POINTS; ++i) {
        const double t = 2.0 * PI * i / POINTS;
        const double h = 1e-6;
        const point2 before = on_trochoid(t - h);
        const point2 behind = on_trochoid(t + h);
        const point2 along = difference(behind, before);
        const double length = std::hypot(along.x, along.y);
        // Inwards is to the left of a curve that runs counter-clockwise. Two millionths less part
        // the chambers at their contacts.
        const double offset = design.radouter - 2.0e-6;
        const point2 here = on_trochoid(t);
        polygon.push_back(in_units(turned(
            {here.x - along.y / length * offset, here.y + along.x / length * offset}, rotation)));
    }
    return polygon;
}

/// Lobes, fillets and root of the whole outer rotor; lobe 0 stands at an angle.
ClipperLib::Path outer_polygon(const design_params& design, double rotation) {
    const lobe_outline outline = outline_of_lobe(design);
    const double pitch = 2.0 * PI / design.numlobes;
    ClipperLib::Path polygon;
    for (int lobe = 0; lobe < design.numlobes; ++lobe) {
        for (const true_arc& arc : arcs_between(outline, pitch, 0.0, 0.0)) {
            constexpr int STEPS = 1500;
            for (int i = 0; i < STEPS; ++i) {
                const point2 point = turned(arc.at(arc.from + (arc.to - arc.from) * i / STEPS),
                                            rotation + lobe * pitch);
                polygon.push_back(in_units({point.x - design.ecc, point.y}));
            }
        }
    }
    return polygon;
}

/// The area of the chamber that holds a place, mm2.
double cut_chamber(const design_params& design, double place, const point2& inside) {
    const exact_pair pair = nominal_pair(design);
    const chamber_lobes lobes = lobes_of_chamber(pair, place);
    ClipperLib::Clipper clipper;
    clipper.AddPath(outer_polygon(design, lobes.first), ClipperLib::ptSubject, true);
    // Point 0 of the trochoid on the positive x axis is a hollow of the inner rotor, as far from
    // its axis as no other: the lobe at angle 0 touches it there.
    clipper.AddPath(inner_polygon(design, lobes.first * pair.inner_turn()), ClipperLib::ptClip,
                    true);
    ClipperLib::Paths chambers;
    clipper.Execute(ClipperLib::ctDifference, chambers, ClipperLib::pftNonZero,
                    ClipperLib::pftNonZero);
    for (const ClipperLib::Path& chamber : chambers) {
        if (ClipperLib::PointInPolygon(in_units(inside), chamber) == 1) {
            return std::abs(ClipperLib::Area(chamber)) / (UNITS_PER_MM * UNITS_PER_MM);
        }
    }
    return -1.0;
}

/// A place in the middle of the chamber, between root and tip.
point2 middle_of_chamber(const design_params& design, double place) {
    const exact_pair pair = nominal_pair(design);
    const chamber_lobes lobes = lobes_of_chamber(pair, place);
    const point2 root = polar_point(design.outer_root - 1e-3, (lobes.first + lobes.second) / 2.0);
    return {root.x - design.ecc, root.y};
}

TEST(swept_volume, agrees_with_polygons_that_a_library_cuts) {
    for (const design_params& design :
         {pair_design(6, 3.0, 25.0, 9.0, 20.0), pair_design(5, 2.85, 25.08, 9.0, 10.0),
          pair_design(8, 2.0, 30.0, 8.0, 10.0), pair_design(3, 2.5, 12.0, 5.0, 8.0)}) {
        const exact_pair pair = nominal_pair(design);
        const double half = chamber_life(pair) / 2.0;
        const double least = cut_chamber(design, 0.0, middle_of_chamber(design, 0.0));
        const double largest = cut_chamber(design, half, middle_of_chamber(design, half));
        ASSERT_GT(least, 0.0);
        const double swept = (pair.lobes - 1) * (largest - least) * design.thick;
        EXPECT_NEAR(swept / swept_volume(pair), 1.0, 1e-5) << pair.lobes;
        EXPECT_NEAR(largest / chamber_area(pair, outline_of_lobe(design), half), 1.0, 1e-5);
    }
}

}  // namespace
}  // namespace kvt
