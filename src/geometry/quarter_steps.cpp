#include "geometry/quarter_steps.hpp"

#include "base/run_time_error.hpp"

#include <cmath>

namespace kvt {

namespace {

/// From 2^51 on a double no longer holds quarters.
constexpr double LARGEST_QUARTER = 2251799813685248.0;

}  // namespace

double next_quarter(double value, double step) {
    const double next = value + step;
    if (!(next != value)) {
        throw run_time_error(failure::overflow, "a quarter of a millimetre changes nothing");
    }
    return next;
}

bool are_exact_quarters(double from, double to) {
    const bool in_range = std::fabs(from) < LARGEST_QUARTER && std::fabs(to) < LARGEST_QUARTER;
    return in_range && from != 0.0 && to != 0.0 && std::signbit(from) == std::signbit(to) &&
           std::ilogb(from) == std::ilogb(to);
}

}  // namespace kvt
