#include "app/study/duration_text.hpp"

#include "base/number_text.hpp"

#include <cmath>

namespace kvt {

namespace {

constexpr double MINUTE = 60.0;
constexpr double HOUR = 3600.0;

}  // namespace

std::string duration_text(double seconds) {
    const double whole = std::round(seconds);
    if (whole < MINUTE) {
        return number_text(whole) + " s";
    }
    const double minutes = std::floor(whole / MINUTE);
    if (whole < HOUR) {
        return number_text(minutes) + " min " + number_text(whole - minutes * MINUTE) + " s";
    }
    const double hours = std::floor(whole / HOUR);
    return number_text(hours) + " h " + number_text(minutes - hours * MINUTE) + " min";
}

}  // namespace kvt
