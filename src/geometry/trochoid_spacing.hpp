// The spacing of the trochoid points: dense at both ends of a lobe, coarse in its middle.
#pragma once

namespace kvt {

/// The zones of one inner rotor lobe, as numbers of steps. Whole numbers, kept as doubles.
///     n_start and n_end steps of 0.025 degree, n_mid steps of 0.15 degree, n_extra steps of
///     step_extra degrees
/// A lobe has n_start + n_mid + n_extra + n_end points, the first `left` lobes have one extra step
/// more.
struct trochoid_spacing {
    double n_start = 0.0, n_mid = 0.0, n_end = 0.0, n_extra = 0.0;
    double step_extra = 0.0;  ///< degrees
    double left = 0.0;        ///< lobes with one more point

    /// Number of points of lobe 0 .. N-2.
    int points_of_lobe(int lobe) const;

    /// The step to point j = 1 .. points_of_lobe of a lobe, in millionths of a degree. The tests
    /// are made in the order start zone, end zone, extra steps, middle; the first one wins.
    double step(int lobe, int j) const;
};

/// The spacing for points P over inner_lobes N-1 lobes. When the points left over by the zones are
/// not more than the lobes, no extra steps are made and the lobes together get fewer than P points.
/// Source: docs/formulas/trochoid.md, "Spacing". Throws division_by_zero when inner_lobes is 0.
trochoid_spacing spacing_of_points(double points, double inner_lobes);

}  // namespace kvt
