// Properties that hold for every rotor pair: random designs that Calculate Profiles accepts without
// a message.
#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "base/number_text.hpp"
#include "geometry/area_ratio.hpp"
#include "geometry/outer_flank.hpp"
#include "geometry/point2.hpp"
#include "geometry/trochoid.hpp"
#include "support/property_runs.hpp"
#include "support/scripted_user.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <iostream>
#include <limits>
#include <span>

namespace kvt {

namespace {

constexpr int DESIGNS = 2000;
constexpr std::int64_t POINTS = 3600;
const double PI = std::acos(-1.0);

std::string typed(double value) {
    return number_text(std::round(value * 10000.0) / 10000.0);
}

/// Entries of a random design, up to about 75 mm across: the polygon of 3600 points stays within
/// 0.001 mm of the curve then, with a trochoid ratio not too near 1, where the root is a sharp
/// corner. About three in four are accepted.
entries random_entries(random_values& random) {
    const int lobes = random.whole(3, 20);
    const double ratio = random.real(1.12, 2.6);
    const double ecc = random.real(5.0, 30.0) / (ratio * lobes);
    const double radouter = ecc * random.real(1.0, 6.0);
    const double radinnroot = ratio * lobes * ecc - radouter - ecc;
    entries boxes;
    boxes.numlobes = number_text(lobes);
    boxes.ecc = typed(ecc);
    boxes.radouter = typed(radouter);
    boxes.radinnroot = typed(radinnroot);
    boxes.clearn = typed(random.real(0.01, 0.2));
    boxes.thick = "10";
    boxes.shaftdiameter = typed(radinnroot);
    boxes.minmaterial = typed(radinnroot / 2.0);
    boxes.maxdiameter = typed(2.1 * (radinnroot * 1.5 + 3.0 * ecc));
    boxes.axial_clear = "0.05";
    boxes.radial_clear = "0.1";
    boxes.fillet = random.whole(0, 1) == 0 ? "0" : typed(ecc * random.real(0.05, 0.9));
    return boxes;
}

/// Draws until a design is accepted without a message.
void draw_sound_design(random_values& random, program& kavetta) {
    for (int draw = 0; draw < 1000; ++draw) {
        scripted_user person;
        kavetta.entries = random_entries(random);
        kavetta.design_params.ecc = val(kavetta.entries.ecc);
        kavetta.design_params.radinnroot = val(kavetta.entries.radinnroot);
        if (calculate_profiles(kavetta, person) == run_end::ok && person.messages.empty()) {
            return;
        }
    }
    FAIL() << "no sound design in 1000 draws";
}

point2 inner_point(const rotor_profiles& rotors, std::int64_t i) {
    const auto index = static_cast<std::size_t>(((i % POINTS) + POINTS) % POINTS);
    return {rotors.inner_x[index], rotors.inner_y[index]};
}

double distance_to_segment(const point2& p, const point2& a, const point2& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length2 = dx * dx + dy * dy;
    const double share =
        length2 > 0.0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length2, 0.0, 1.0) : 0.0;
    return std::hypot(p.x - a.x - share * dx, p.y - a.y - share * dy);
}

/// The point i = first, first + stride, .. last of the inner profile that is nearest to p.
std::int64_t nearest_point(const rotor_profiles& rotors, const point2& p, std::int64_t first,
                           std::int64_t last, std::int64_t stride) {
    std::int64_t nearest = first;
    double nearest2 = std::numeric_limits<double>::max();
    for (std::int64_t i = first; i <= last; i += stride) {
        const point2 q = inner_point(rotors, i);
        const double d2 = (q.x - p.x) * (q.x - p.x) + (q.y - p.y) * (q.y - p.y);
        if (d2 < nearest2) {
            nearest2 = d2;
            nearest = i;
        }
    }
    return nearest;
}

/// Distance from a point to the inner profile beside its point nearest.
double distance_to_profile(const rotor_profiles& rotors, const point2& p, std::int64_t nearest) {
    const point2 at = inner_point(rotors, nearest);
    return std::min(distance_to_segment(p, inner_point(rotors, nearest - 1), at),
                    distance_to_segment(p, at, inner_point(rotors, nearest + 1)));
}

/// The smallest distance of the inner profile from any lobe circle, with the inner rotor turned by
/// turn radians and the outer one by turn (N-1)/N. Everything is seen from the inner rotor.
double smallest_gap(const program& kavetta, double turn) {
    const design_params& design = kavetta.design_params;
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    const double centre_radius = lobe_centre_radius(design, rotors);
    double smallest = std::numeric_limits<double>::max();
    for (int lobe = 0; lobe < design.numlobes; ++lobe) {
        const double angle = (2.0 * PI * lobe - turn) / design.numlobes;
        const point2 centre = {centre_radius * std::cos(angle) - design.ecc * std::cos(turn),
                               centre_radius * std::sin(angle) + design.ecc * std::sin(turn)};
        const std::int64_t roughly = nearest_point(rotors, centre, 0, POINTS - 1, 9);
        const std::int64_t nearest = nearest_point(rotors, centre, roughly - 10, roughly + 10, 1);
        const double gap = distance_to_profile(rotors, centre, nearest) - design.radouter;
        smallest = std::min(smallest, gap);
    }
    return smallest;
}

void expect_rotors_mesh(const program& kavetta) {
    const double pitch = 2.0 * PI / (kavetta.design_params.numlobes - 1.0);
    for (const double share : {0.0, 0.17, 0.5, 0.81}) {
        ASSERT_NEAR(smallest_gap(kavetta, share * pitch), kavetta.design_params.clearn_half, 0.001)
            << share;
    }
}

/// Turned by one lobe, the profile covers itself as a curve; the lobes may have different numbers
/// of points.
void expect_lobe_symmetry(const program& kavetta) {
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    const double inner_lobes = kavetta.design_params.numlobes - 1.0;
    const double turn = 2.0 * PI / inner_lobes;
    const auto points_of_lobe = static_cast<std::int64_t>(3600.0 / inner_lobes);
    for (std::int64_t i = 0; i < POINTS; i += 61) {
        const point2 p = inner_point(rotors, i);
        const point2 turned = {p.x * std::cos(turn) - p.y * std::sin(turn),
                               p.x * std::sin(turn) + p.y * std::cos(turn)};
        const std::int64_t expected = i + points_of_lobe;
        const std::int64_t nearest = nearest_point(rotors, turned, expected - 40, expected + 40, 1);
        ASSERT_NEAR(distance_to_profile(rotors, turned, nearest), 0.0, 0.001) << i;
    }
}

void expect_closed_outlines(const program& kavetta) {
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    const auto plot_last = static_cast<std::size_t>(rotors.inner_plot_len);
    ASSERT_EQ(rotors.inner_plot_xy[plot_last - 1], rotors.inner_plot_xy[0]);
    ASSERT_EQ(rotors.inner_plot_xy[plot_last], rotors.inner_plot_xy[1]);
    // With fillets the last outer point is the first once more; without, the first one lies one
    // lobe step further.
    const design_params& design = kavetta.design_params;
    const auto last = static_cast<std::size_t>(rotors.outer_last);
    const double gap = std::hypot(rotors.outer_x[last] - rotors.outer_x[0],
                                  rotors.outer_y[last] - rotors.outer_y[0]);
    const double lobe_step =
        std::hypot(rotors.outer_x[1] - rotors.outer_x[0], rotors.outer_y[1] - rotors.outer_y[0]);
    ASSERT_LT(gap, design.fillet > 0.0 ? 1e-4 : lobe_step + 1e-4);
}

struct area_sums {
    double signed_sum = 0.0, positive_sum = 0.0;
};

area_sums shoelace(std::span<const double> x, std::span<const double> y, std::size_t last) {
    area_sums sums;
    for (std::size_t i = 1; i <= last; ++i) {
        const double term = (x[i - 1] * y[i] - x[i] * y[i - 1]) / 2.0;
        sums.signed_sum += term;
        sums.positive_sum += std::fabs(term);
    }
    return sums;
}

/// Whether the inner axis sees the whole flank of every lobe. It sees a point p of a lobe about c
/// when (p - c) (p - o) is not above 0; the flank's end is the last one to be hidden.
bool all_flanks_are_seen(const program& kavetta) {
    const design_params& design = kavetta.design_params;
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    const outer_flank flank = flank_of_lobe(design, rotors);
    const double centre_radius = lobe_centre_radius(design, rotors);
    for (int lobe = 0; lobe < design.numlobes; ++lobe) {
        const double theta = 2.0 * PI * lobe / design.numlobes;
        for (const double angle : {theta - flank.beta, theta + flank.beta}) {
            const point2 p = {flank.tangent_radius * std::cos(angle),
                              flank.tangent_radius * std::sin(angle)};
            const double along = (p.x - centre_radius * std::cos(theta)) * (p.x - design.ecc) +
                                 (p.y - centre_radius * std::sin(theta)) * p.y;
            if (along > 0.0) {
                return false;
            }
        }
    }
    return true;
}

/// How many designs with lobes of 2.5 eccentricities and more there were, and how many of them hide
/// no flank.
struct area_counts {
    int large_lobes = 0, compared = 0;
};

/// The polar sum is the sum of the triangles' absolute areas. It is the polygon's area where no
/// part of the outline turns back as seen from the inner axis.
void expect_polar_areas(program& kavetta, area_counts& counts) {
    rotor_profiles& rotors = kavetta.rotor_profiles;
    const design_params& design = kavetta.design_params;
    const area_sums inner = shoelace(rotors.inner_x, rotors.inner_y, POINTS - 1);
    const area_sums outer =
        shoelace(rotors.outer_x, rotors.outer_y, static_cast<std::size_t>(rotors.outer_last));
    const double polar_inner = inner_profile_area(rotors);
    const double polar_outer = outer_profile_area(rotors);
    ASSERT_NEAR(polar_inner, inner.positive_sum, 1e-8 * polar_inner);
    ASSERT_NEAR(polar_outer, outer.positive_sum, 1e-8 * polar_outer);
    if (design.radouter < 2.5 * design.ecc) {
        return;
    }
    ++counts.large_lobes;
    // The curvature check leaves out the clearance: the offset can exceed the tightest curve by it
    // and turn back there.
    if (design.radouter + design.clearn_half < smallest_curvature_radius(design, rotors)) {
        ASSERT_NEAR(polar_inner, inner.signed_sum, 1e-8 * polar_inner);
    }
    if (all_flanks_are_seen(kavetta)) {
        ++counts.compared;
        ASSERT_NEAR(polar_outer, outer.signed_sum, 1e-8 * polar_outer);
    }
}

/// Also where the smallest chamber comes out below 0, as it can for three lobes with large fillets.
void expect_chambers(const program& kavetta) {
    ASSERT_GT(val(kavetta.labels.max_chamb_vol), val(kavetta.labels.min_chamb_vol));
}

}  // namespace

TEST(rotor_pairs, mesh_close_and_measure_up_for_all_sound_designs) {
    random_values random;
    program kavetta;
    area_counts counts;
    const int count = property_count(DESIGNS);
    for (int design = 0; design < count; ++design) {
        draw_sound_design(random, kavetta);
        expect_rotors_mesh(kavetta);
        expect_lobe_symmetry(kavetta);
        expect_closed_outlines(kavetta);
        expect_polar_areas(kavetta, counts);
        expect_chambers(kavetta);
        const entries& boxes = kavetta.entries;
        ASSERT_FALSE(testing::Test::HasFailure())
            << "design " << design << ": N " << boxes.numlobes << " ecc " << boxes.ecc
            << " radouter " << boxes.radouter << " radinnroot " << boxes.radinnroot << " clearn "
            << boxes.clearn << " fillet " << boxes.fillet << " max " << kavetta.labels.max_chamb_vol
            << " min " << kavetta.labels.min_chamb_vol;
    }
    std::cout << counts.large_lobes << " designs with large lobes, " << counts.compared
              << " of them hide no flank\n";
    EXPECT_GE(counts.compared, counts.large_lobes * 3 / 4);
}

}  // namespace kvt
