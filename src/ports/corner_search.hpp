// The search for a corner's fillet: at which angle a circle of radius f touches both the port's arc
// and its side.
#pragma once

#include <optional>

namespace kvt {

/// How the angle steps when g is on either side of the target A.
enum class step_rule {
    up,         ///< rule U: g < A steps up, g > A steps down
    down,       ///< rule D: the other way round
    none,       ///< no step at all: the search runs out
    by_target,  ///< U when A > 1, D when A < 1, none on 1, with the A in force
};

/// One search. The angles phi are degrees, A and g have no unit.
///     g(phi) = cos phi - sin phi tan(theta)      theta the direction of the side; negative_g takes
///     -g
struct corner_search {
    double target = 0.0;    ///< A
    double tan_side = 0.0;  ///< tan(theta)
    bool negative_g = false;
    double start_deg = 0.0;
    step_rule rule = step_rule::none;
};

/// Width of the search's tolerance on both sides of A, the step in degrees, and the steps of one
/// pass.
inline constexpr double SEARCH_TOLERANCE = 0.001;
inline constexpr double SEARCH_STEP_DEG = 0.001;
inline constexpr long SEARCH_PASS_STEPS = 180000;

/// The angle, or nothing when both passes ran out: the second starts anew with A = -A.
/// Kept: the test stands before the step, so the accepted angle is one step beyond the one at which
/// g was computed, and a search whose |A| is below the tolerance ends at its start. The second pass
/// takes its first step with the last g of the first. corner_search_test holds all three. With f =
/// 0 the outcome of the first test hangs on the last bit. Source: docs/formulas/ports.md, "Search".
std::optional<double> corner_angle(const corner_search& search);

/// The rule of the corners 2, 3, 4 and of the nose: U below PI_D/2, D above it, none exactly on it.
step_rule rule_of_side(double side_angle);

/// What a target is made of: the arc's radius, the entered angle on it, f, and the side's direction
/// in radians.
struct corner_input {
    double arc_r = 0.0;
    double angle_deg = 0.0;
    double f = 0.0;
    double side_angle = 0.0;
};

/// The searches of the four corners, with their targets A:
///     1  (R cos a - f cos th - f sin th tan th - R sin a tan th) / (f + R)
///     2  (R cos c - f cos th - R tan th sin c - f tan th sin th) / (f + R)
///     3  (Q cos d - Q tan th sin d - f tan th sin th - f cos th) / (Q - f)
///     4  (f sin th tan th + Q tan th sin b - Q cos b + f cos th) / (Q - f)
/// Each throws division_by_zero when its denominator is 0. The order of the products is part of the
/// result.
corner_search search_start_inner(const corner_input& in);
corner_search search_end_inner(const corner_input& in);
corner_search search_end_outer(const corner_input& in);
corner_search search_start_outer(const corner_input& in);

}  // namespace kvt
