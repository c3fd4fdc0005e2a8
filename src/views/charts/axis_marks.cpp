#include "views/charts/axis_marks.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// 10^300 times any number at such a distance from its neighbour is still a double.
constexpr int MOST_DECIMALS = 300;

}  // namespace

chart_mark mark_of(double value, const std::string& text, std::string_view unit) {
    const std::string whole = number_text(value);
    return {value, text, whole == text ? "" : whole + " " + std::string(unit)};
}

double mark_step(double range) {
    const double step = range / 5.0;
    const double whole = floor_to_int(step);
    return whole == 0.0 ? step : whole;
}

int mark_decimals(double step) {
    if (step >= 100.0) {
        return 0;
    }
    if (step >= 10.0) {
        return 1;
    }
    if (step >= 1.0) {
        return 2;
    }
    if (step >= 0.1) {
        return 3;
    }
    return std::min(1 - static_cast<int>(floor_to_int(std::log10(step))), MOST_DECIMALS);
}

std::string rounded_text(double value, int decimals) {
    const double parts = std::pow(10.0, decimals);
    const double whole = number_of_text(number_text(value * parts));
    return number_text(round_half_even(whole) / parts);
}

std::vector<chart_mark> computed_marks(double minimum, double maximum, std::string_view unit) {
    const double step = mark_step(maximum - minimum);
    std::vector<chart_mark> marks;
    const auto add = [&](double value) {
        marks.push_back(mark_of(value, rounded_text(value, mark_decimals(step)), unit));
    };
    add(minimum);
    for (int k = 1; maximum - (minimum + k * step) >= step / 2.0; ++k) {
        add(minimum + k * step);
    }
    add(maximum);
    return marks;
}

std::vector<chart_mark> percent_marks() {
    std::vector<chart_mark> marks = {{0.0, "0", {}}};
    for (int k = 4; k >= 1; --k) {
        const double f = 1.0 - 0.2 * k;
        marks.push_back({f, number_text(100.0 * f), {}});
    }
    marks.push_back({1.0, "100", {}});
    return marks;
}

}  // namespace kvt
