#include "geometry/number_range.hpp"

#include <algorithm>
#include <limits>

namespace kvt {

number_range widened(const number_range& range, double by) {
    return {range.low - by, range.high + by};
}

number_range operator+(const number_range& a, const number_range& b) {
    return {a.low + b.low, a.high + b.high};
}

number_range operator-(const number_range& a, const number_range& b) {
    return {a.low - b.high, a.high - b.low};
}

number_range operator*(const number_range& a, const number_range& b) {
    const auto [low, high] =
        std::minmax({a.low * b.low, a.low * b.high, a.high * b.low, a.high * b.high});
    return {low, high};
}

number_range operator*(const number_range& a, double factor) {
    return a * number_range{factor, factor};
}

number_range operator/(const number_range& a, const number_range& b) {
    if (b.has(0.0)) {
        return {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
    }
    return a * number_range{1.0 / b.high, 1.0 / b.low};
}

number_range square_of(const number_range& a) {
    const double low = a.low * a.low;
    const double high = a.high * a.high;
    return {a.has(0.0) ? 0.0 : std::min(low, high), std::max(low, high)};
}

}  // namespace kvt
