// Quotients, roots, roundings and the arc cosine form, each ending in a finite value or in a
// run_time_error.
#include "base/checked_math.hpp"

#include "base/number_text.hpp"

#include <cmath>
#include <limits>
#include <string>

namespace kvt {

namespace {

/// The value for the developer's text of a failure: also for a value that number_text refuses.
std::string shown(double x) {
    if (std::isnan(x)) {
        return "not a number";
    }
    if (std::isinf(x)) {
        return x > 0 ? "infinity" : "-infinity";
    }
    return number_text(x);
}

/// The nearest whole number as the integer type. Its bounds are whole numbers of at most 32 bits,
/// exact as doubles.
template <typename integer>
integer to_integer(double x) {
    const double whole = round_half_even(x);
    const bool fits = whole >= static_cast<double>(std::numeric_limits<integer>::min()) &&
                      whole <= static_cast<double>(std::numeric_limits<integer>::max());
    if (!fits) {  // not-a-number fits nowhere
        throw run_time_error(failure::overflow, shown(x) + " as an integer");
    }
    return static_cast<integer>(whole);
}

}  // namespace

void fail_division(double numerator) {
    throw run_time_error(failure::division_by_zero, shown(numerator) + " / 0");
}

void fail_root(double x) {
    throw run_time_error(failure::invalid_procedure_call, "root of " + shown(x));
}

void fail_finite(double x) {
    throw run_time_error(failure::overflow, shown(x));
}

void fail_index(std::int64_t index) {
    throw run_time_error(failure::subscript_out_of_range, "index " + std::to_string(index));
}

double checked_pow(double base, double exponent) {
    const double power = std::pow(base, exponent);
    if (std::isnan(power)) {
        throw run_time_error(failure::invalid_procedure_call,
                             shown(base) + " to the power of " + shown(exponent));
    }
    return checked_finite(power);
}

double round_half_even(double x) {
    return std::nearbyint(
        x);  // the rounding mode is never changed, so a tie goes to the even neighbour
}

double floor_to_int(double x) {
    return std::floor(x);
}

std::int16_t to_int16(double x) {
    return to_integer<std::int16_t>(x);
}

std::int32_t to_int32(double x) {
    return to_integer<std::int32_t>(x);
}

double arc_cosine_form(double c, double half_pi) {
    return std::atan(checked_divide(-c, checked_sqrt(-c * c + 1))) + half_pi;
}

}  // namespace kvt
