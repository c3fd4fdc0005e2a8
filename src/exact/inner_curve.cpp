#include "exact/inner_curve.hpp"

#include "base/run_time_error.hpp"
#include "exact/plane.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <functional>
#include <numbers>

namespace kvt {

namespace {

using complex = std::complex<double>;

constexpr complex I = {0.0, 1.0};
/// Of half a lobe, for the integrals of the knots' density.
constexpr int DENSITY_STEPS = 128;
constexpr int MOST_SPANS = 2000;
/// A cubic through both ends with their slopes misses a curve by h^4 / 384 of its fourth
/// derivative, a chord by h^2 / 8 of its second.
constexpr double CUBIC_MISS = 384.0;
constexpr double CHORD_MISS = 8.0;

point2 point_of(complex z) {
    return {z.real(), z.imag()};
}

/// The direction of the profile's normal, t + f, and its derivatives.
struct normal_angle {
    double angle, first, second, third, fourth;
};

/// w = R - N e e^(i(N-1)t).
complex speed_of_trochoid(const exact_pair& pair, double t) {
    return pair.lobe_distance - pair.lobes * pair.ecc * std::polar(1.0, (pair.lobes - 1) * t);
}

normal_angle normal_angle_at(const exact_pair& pair, double t) {
    const complex w = speed_of_trochoid(pair, t);
    const complex im = I * (pair.lobes - 1.0);
    // g = w'/w; w'' = i(N-1) w', so g' = g (i(N-1) - g).
    const complex g = im * (w - pair.lobe_distance) / w;
    const complex g1 = g * (im - g);
    const complex g2 = g1 * (im - 2.0 * g);
    const complex g3 = g2 * (im - 2.0 * g) - 2.0 * g1 * g1;
    return {t + std::arg(w), 1.0 + g.imag(), g1.imag(), g2.imag(), g3.imag()};
}

double half_lobe(const exact_pair& pair) {
    return std::numbers::pi / (pair.lobes - 1.0);
}

/// The angles 0 .. half a lobe that divide the integral of a density into equal parts, n + 1 of
/// them.
class spaced_angles {
  public:
    spaced_angles(double length, const std::function<double(double)>& density)
        : step_(length / DENSITY_STEPS), sums_{0.0} {
        double before = density(0.0);
        for (int i = 1; i <= DENSITY_STEPS; ++i) {
            const double here = density(i * step_);
            sums_.push_back(sums_.back() + 0.5 * (before + here) * step_);
            before = here;
        }
    }

    double integral() const { return sums_.back(); }

    std::vector<double> divided(int n) const {
        std::vector<double> angles = {0.0};
        for (int k = 1; k < n; ++k) {
            angles.push_back(angle_at(integral() * k / n));
        }
        angles.push_back(step_ * DENSITY_STEPS);
        return angles;
    }

  private:
    double angle_at(double sum) const {
        const auto above = std::ranges::upper_bound(sums_, sum);
        const auto i = static_cast<std::size_t>(above - sums_.begin()) - 1;
        return step_ * (static_cast<double>(i) + (sum - sums_[i]) / (sums_[i + 1] - sums_[i]));
    }

    double step_;
    std::vector<double> sums_;
};

/// The angles of half a lobe, then those of the other half mirrored.
std::vector<double> mirrored_angles(std::vector<double> angles) {
    const double tip = angles.back();
    for (std::size_t i = angles.size() - 1; i > 0; --i) {
        angles.push_back(2.0 * tip - angles[i - 1]);
    }
    return angles;
}

/// The length of the profile between two angles, by Simpson's rule: what the spline takes as its
/// parameter, and no part of what lies where.
double length_between(const exact_pair& pair, double from, double to) {
    constexpr int PARTS = 4;
    double sum = 0.0;
    for (int i = 0; i <= PARTS; ++i) {
        const double weight = i == 0 || i == PARTS ? 1.0 : i % 2 == 1 ? 4.0 : 2.0;
        sum += weight * inner_curve_speed(pair, from + (to - from) * i / PARTS);
    }
    return sum * (to - from) / PARTS / 3.0;
}

/// The lengths at the angles; those of the second half mirror the first.
std::vector<double> lengths_at(const exact_pair& pair, const std::vector<double>& angles) {
    const std::size_t tip = angles.size() / 2;
    std::vector<double> lengths = {0.0};
    for (std::size_t i = 1; i <= tip; ++i) {
        lengths.push_back(lengths.back() + length_between(pair, angles[i - 1], angles[i]));
    }
    for (std::size_t i = tip; i > 0; --i) {
        lengths.push_back(2.0 * lengths[tip] - lengths[i - 1]);
    }
    return lengths;
}

point2 direction_at(const exact_pair& pair, double t) {
    const point2 way = inner_curve_at(pair, t)[1];
    const double length = std::hypot(way.x, way.y);
    return {way.x / length, way.y / length};
}

inner_lobe lobe_with(const exact_pair& pair, std::vector<double> angles) {
    std::vector<point2> points;
    points.reserve(angles.size());
    for (const double t : angles) {
        points.push_back(inner_curve_at(pair, t)[0]);
    }
    cubic_spline spline =
        spline_through(lengths_at(pair, angles), std::move(points),
                       direction_at(pair, angles.front()), direction_at(pair, angles.back()));
    return {std::move(spline), std::move(angles)};
}

void check_that_it_runs_forward(const exact_pair& pair) {
    for (int i = 0; i <= DENSITY_STEPS; ++i) {
        if (!(inner_curve_speed(pair, half_lobe(pair) * i / DENSITY_STEPS) > 0.0)) {
            throw run_time_error(failure::invalid_procedure_call, "the inner rotor cuts itself");
        }
    }
}

/// |Q''''|^(1/4) by the length, a radian of t.
double knot_density(const exact_pair& pair, double t) {
    const auto curve = inner_curve_at(pair, t);
    const point2 fourth = fourth_derivative_by_length(curve);
    return std::sqrt(std::sqrt(std::hypot(fourth.x, fourth.y))) *
           std::hypot(curve[1].x, curve[1].y);
}

double root_of_bend(const exact_pair& pair, double t) {
    const auto curve = inner_curve_at(pair, t);
    return std::sqrt(std::abs(cross(curve[1], curve[2])) / std::hypot(curve[1].x, curve[1].y));
}

}  // namespace

std::array<point2, 5> inner_curve_at(const exact_pair& pair, double t) {
    const normal_angle a = normal_angle_at(pair, t);
    const complex turning = pair.lobe_distance * std::polar(1.0, t);
    const complex rolling = pair.ecc * std::polar(1.0, pair.lobes * t);
    const complex normal = pair.lobe_radius * std::polar(1.0, a.angle);
    const double n = pair.lobes;
    const double f1 = a.first;
    const complex normal_4 = {f1 * f1 * f1 * f1 - 4.0 * f1 * a.third - 3.0 * a.second * a.second,
                              a.fourth - 6.0 * f1 * f1 * a.second};
    return {point_of(turning - rolling - normal),
            point_of(I * (turning - n * rolling - f1 * normal)),
            point_of(n * n * rolling - turning - complex(-f1 * f1, a.second) * normal),
            point_of(I * (n * n * n * rolling - turning) -
                     complex(-3.0 * f1 * a.second, a.third - f1 * f1 * f1) * normal),
            point_of(turning - n * n * n * n * rolling - normal_4 * normal)};
}

double inner_curve_speed(const exact_pair& pair, double t) {
    return std::abs(speed_of_trochoid(pair, t)) - pair.lobe_radius * normal_angle_at(pair, t).first;
}

point2 fourth_derivative_by_length(const std::array<point2, 5>& curve) {
    // The speed v and its derivatives, then those of t by the length.
    const double v = std::hypot(curve[1].x, curve[1].y);
    const double v1 = dot(curve[1], curve[2]) / v;
    const double v2 = (dot(curve[2], curve[2]) + dot(curve[1], curve[3]) - v1 * v1) / v;
    const double v3 = (3.0 * dot(curve[2], curve[3]) + dot(curve[1], curve[4]) - 3.0 * v1 * v2) / v;
    const double t1 = 1.0 / v;
    const double t2 = -v1 / std::pow(v, 3.0);
    const double t3 = (3.0 * v1 * v1 - v * v2) / std::pow(v, 5.0);
    const double t4 = (10.0 * v * v1 * v2 - v * v * v3 - 15.0 * v1 * v1 * v1) / std::pow(v, 7.0);
    const double of_second = 3.0 * t2 * t2 + 4.0 * t1 * t3;
    const double of_third = 6.0 * t1 * t1 * t2;
    const double of_fourth = t1 * t1 * t1 * t1;
    return {
        t4 * curve[1].x + of_second * curve[2].x + of_third * curve[3].x + of_fourth * curve[4].x,
        t4 * curve[1].y + of_second * curve[2].y + of_third * curve[3].y + of_fourth * curve[4].y};
}

inner_lobe inner_lobe_spline(const exact_pair& pair) {
    check_that_it_runs_forward(pair);
    const spaced_angles spaced(half_lobe(pair),
                               [&pair](double t) { return knot_density(pair, t); });
    const double at_least =
        spaced.integral() / std::sqrt(std::sqrt(CUBIC_MISS * SPLINE_DEVIATION_MM));
    for (int n = std::max(2, static_cast<int>(at_least)); n < MOST_SPANS; ++n) {
        inner_lobe lobe = lobe_with(pair, mirrored_angles(spaced.divided(n)));
        if (deviation_of_lobe(pair, lobe) <= SPLINE_DEVIATION_MM) {
            return lobe;
        }
    }
    throw run_time_error(failure::invalid_procedure_call, "the inner rotor has no smooth profile");
}

double deviation_of_lobe(const exact_pair& pair, const inner_lobe& lobe, int places) {
    double largest = 0.0;
    for (std::size_t i = 0; i < lobe.spline.span_count() / 2; ++i) {
        for (int k = 1; k < places; ++k) {
            const double share = static_cast<double>(k) / places;
            const point2 at = lobe.spline.at(i, share);
            // A step from the angle between those of the knots to the foot of the distance.
            const double t = lobe.angles[i] + share * (lobe.angles[i + 1] - lobe.angles[i]);
            const auto near_foot = inner_curve_at(pair, t);
            const double step =
                dot(difference(at, near_foot[0]), near_foot[1]) / dot(near_foot[1], near_foot[1]);
            const auto curve = inner_curve_at(pair, t + step);
            const double across = cross(curve[1], difference(at, curve[0]));
            largest = std::max(largest, std::abs(across) / std::hypot(curve[1].x, curve[1].y));
        }
    }
    return largest;
}

std::vector<point2> inner_lobe_points(const exact_pair& pair, double chord_error) {
    check_that_it_runs_forward(pair);
    const spaced_angles spaced(half_lobe(pair),
                               [&pair](double t) { return root_of_bend(pair, t); });
    const double parts = spaced.integral() / std::sqrt(CHORD_MISS * chord_error);
    // One in ten more: the bend changes along a chord.
    const int n = std::max(2, static_cast<int>(std::ceil(1.1 * parts)));
    std::vector<double> angles = mirrored_angles(spaced.divided(n));
    angles.pop_back();
    std::vector<point2> points;
    points.reserve(angles.size());
    for (const double t : angles) {
        points.push_back(inner_curve_at(pair, t)[0]);
    }
    return points;
}

}  // namespace kvt
