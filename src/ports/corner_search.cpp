#include "ports/corner_search.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "ports/polar.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// The sign of the step for g above A; g below A takes the other one.
int sign_when_above(step_rule rule, double target) {
    switch (rule) {
        case step_rule::up:
            return -1;
        case step_rule::down:
            return 1;
        case step_rule::by_target:
            return target > 1.0 ? -1 : (target < 1.0 ? 1 : 0);
        case step_rule::none:
            break;
    }
    return 0;
}

double stepped(double phi, int sign) {
    return sign > 0 ? phi + SEARCH_STEP_DEG : (sign < 0 ? phi - SEARCH_STEP_DEG : phi);
}

double g_of(const corner_search& search, double phi) {
    const double t = phi * PI_D / 180.0;
    const double g = std::cos(t) - std::sin(t) * search.tan_side;
    return search.negative_g ? -g : g;
}

/// By how much g changes in a step at most: |dg/dphi| = |sin phi + cos phi tan| is never more than
/// sqrt(1 + tan^2).
double largest_change(const corner_search& search) {
    return std::hypot(1.0, search.tan_side) * SEARCH_STEP_DEG * PI_D / 180.0;
}

/// How many further steps at least leave g on its side of the target and out of the tolerance. A
/// step more is kept for what the last digits of g may be off.
long steps_of_no_effect(double from_target, double change) {
    const double steps = (from_target - SEARCH_TOLERANCE) / change - 1.0;
    return steps > 0.0 ? static_cast<long>(std::min(steps, double{SEARCH_PASS_STEPS})) : 0;
}

}  // namespace

std::optional<double> corner_angle(const corner_search& search) {
    double phi = search.start_deg;
    double A = checked_finite(search.target);
    double g = 0.0;
    long count = 0;
    int passes = 0;
    const double change = largest_change(search);
    while (!(-SEARCH_TOLERANCE < g - A && g - A < SEARCH_TOLERANCE)) {
        ++count;
        g = g_of(search, phi);
        long idle = steps_of_no_effect(std::abs(g - A), change);
        if (count > SEARCH_PASS_STEPS) {
            count = 0;
            ++passes;
            phi = search.start_deg;
            A = -A;
            idle = 0;
        }
        if (passes == 2) {
            return std::nullopt;
        }
        const int above = sign_when_above(search.rule, A);
        const int sign = g > A ? above : (g < A ? -above : 0);
        phi = stepped(phi, sign);
        // One by one, as their sum is rounded each time; g is not worked out on the way.
        for (idle = std::min(idle, SEARCH_PASS_STEPS - count); idle > 0; --idle, ++count) {
            phi = stepped(phi, sign);
        }
    }
    return phi;
}

step_rule rule_of_side(double side_angle) {
    if (side_angle < PI_D / 2.0) {
        return step_rule::up;
    }
    return side_angle > PI_D / 2.0 ? step_rule::down : step_rule::none;
}

corner_search search_start_inner(const corner_input& in) {
    const auto [R, a, f, th] = in;
    const double tan_th = std::tan(th);
    const double A = checked_divide(
        R * cos_deg(a) - f * std::cos(th) - f * std::sin(th) * tan_th - R * sin_deg(a) * tan_th,
        f + R);
    return {A, tan_th, false, a, step_rule::by_target};
}

corner_search search_end_inner(const corner_input& in) {
    const auto [R, c, f, th] = in;
    const double tan_th = std::tan(th);
    const double A = checked_divide(
        R * cos_deg(c) - f * std::cos(th) - R * tan_th * sin_deg(c) - f * tan_th * std::sin(th),
        f + R);
    return {A, tan_th, false, c, rule_of_side(th)};
}

corner_search search_end_outer(const corner_input& in) {
    const auto [Q, d, f, th] = in;
    const double tan_th = std::tan(th);
    const double A = checked_divide(
        Q * cos_deg(d) - Q * tan_th * sin_deg(d) - f * tan_th * std::sin(th) - f * std::cos(th),
        Q - f);
    return {A, tan_th, false, d, rule_of_side(th)};
}

corner_search search_start_outer(const corner_input& in) {
    const auto [Q, b, f, th] = in;
    const double tan_th = std::tan(th);
    const double A = checked_divide(
        f * std::sin(th) * tan_th + Q * tan_th * sin_deg(b) - Q * cos_deg(b) + f * std::cos(th),
        Q - f);
    return {A, tan_th, true, b, rule_of_side(th)};
}

}  // namespace kvt
