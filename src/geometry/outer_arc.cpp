#include "geometry/outer_arc.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <array>
#include <cmath>
#include <span>

namespace kvt {

namespace {

/// A row holds when the four signs are those of start x, start y, end x, end y. The angle is then
/// turn + sign * a with a the plain arctangent.
struct unwrap_row {
    int start_x, start_y, end_x, end_y;
    double turn;
    double sign;
};

// Kept: the last row has PI_D where its mirror + - - - has THREE_PI_D; outer_arc_test holds it.
constexpr std::array<unwrap_row, 15> FILLET_AND_ROOT_ROWS = {{
    {+1, +1, +1, -1, TWO_PI_D, -1.0},
    {+1, +1, -1, +1, PI_D, -1.0},
    {+1, +1, -1, -1, PI_D, +1.0},
    {+1, -1, +1, +1, TWO_PI_D, +1.0},
    {+1, -1, +1, -1, TWO_PI_D, -1.0},
    {+1, -1, -1, +1, THREE_PI_D, -1.0},
    {+1, -1, -1, -1, THREE_PI_D, +1.0},
    {-1, +1, +1, +1, TWO_PI_D, +1.0},
    {-1, +1, +1, -1, TWO_PI_D, -1.0},
    {-1, +1, -1, +1, PI_D, -1.0},
    {-1, +1, -1, -1, PI_D, +1.0},
    {-1, -1, +1, +1, TWO_PI_D, +1.0},
    {-1, -1, +1, -1, TWO_PI_D, -1.0},
    {-1, -1, -1, +1, THREE_PI_D, -1.0},
    {-1, -1, -1, -1, PI_D, +1.0},
}};

constexpr std::array<unwrap_row, 16> LOBE_ROWS = {{
    {+1, +1, +1, +1, TWO_PI_D, +1.0},
    {+1, +1, +1, -1, TWO_PI_D, -1.0},
    {+1, +1, -1, +1, PI_D, -1.0},
    {+1, +1, -1, -1, PI_D, +1.0},
    {+1, -1, +1, +1, 0.0, +1.0},
    {+1, -1, +1, -1, TWO_PI_D, -1.0},
    {+1, -1, -1, +1, PI_D, -1.0},
    {+1, -1, -1, -1, PI_D, +1.0},
    {-1, +1, +1, +1, 0.0, +1.0},
    {-1, +1, +1, -1, 0.0, -1.0},
    {-1, +1, -1, +1, PI_D, -1.0},
    {-1, +1, -1, -1, -PI_D, +1.0},
    {-1, -1, +1, +1, 0.0, +1.0},
    {-1, -1, +1, -1, 0.0, -1.0},
    {-1, -1, -1, +1, PI_D, -1.0},
    {-1, -1, -1, -1, PI_D, +1.0},
}};

int sign_of(double x) {
    return x > 0.0 ? 1 : (x < 0.0 ? -1 : 0);
}

/// The angle from the x axis without quadrant, 0 .. pi/2.
double plain_arctangent(const point2& difference, double radius) {
    const double rise = std::fabs(checked_divide(difference.y, radius));
    const double run = std::fabs(checked_divide(difference.x, radius));
    return std::atan(checked_divide(rise, run));
}

double unwrapped(std::span<const unwrap_row> rows, const point2& start, const point2& end,
                 double a) {
    for (const unwrap_row& row : rows) {
        if (row.start_x == sign_of(start.x) && row.start_y == sign_of(start.y) &&
            row.end_x == sign_of(end.x) && row.end_y == sign_of(end.y)) {
            return row.turn + row.sign * a;
        }
    }
    return a;
}

double start_angle_of_fillet_or_root(const point2& start, double a) {
    if (start.x > 0.0 && start.y < 0.0) {
        return TWO_PI_D - a;
    }
    if (start.x < 0.0 && start.y > 0.0) {
        return PI_D - a;
    }
    if (start.x < 0.0 && start.y < 0.0) {
        return a + PI_D;
    }
    return a;
}

double start_angle_of_lobe(const point2& start, double a) {
    if (start.x > 0.0 && start.y > 0.0) {
        return TWO_PI_D + a;
    }
    return start_angle_of_fillet_or_root(start, a);
}

}  // namespace

arc_angles fillet_or_root_arc(const point2& start, const point2& end, double radius) {
    const double a0 = start_angle_of_fillet_or_root(start, plain_arctangent(start, radius));
    const double a1 = unwrapped(FILLET_AND_ROOT_ROWS, start, end, plain_arctangent(end, radius));
    return {a0, a1 - a0};
}

arc_angles lobe_arc(const point2& start, const point2& end, double radius) {
    const double a0 = start_angle_of_lobe(start, plain_arctangent(start, radius));
    const double a1 = unwrapped(LOBE_ROWS, start, end, plain_arctangent(end, radius));
    return {a0, a0 - a1};
}

}  // namespace kvt
