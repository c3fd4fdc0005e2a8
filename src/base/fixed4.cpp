// Rounding to four decimals and the text without trailing zeros, in whole numbers of 1/10000.
#include "base/fixed4.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"

namespace kvt {

namespace {

constexpr std::uint64_t SCALE = 10000;
constexpr double SCALE_D = 10000.0;
/// 2 to the power of 63: the first double above the 64-bit range, and (negative) the lowest in it.
constexpr double RANGE = 9223372036854775808.0;

}  // namespace

fixed4 fixed4::from(double value) {
    const double scaled = round_half_even(value * SCALE_D);
    const bool fits = scaled >= -RANGE && scaled < RANGE;
    if (!fits) {
        throw run_time_error(failure::overflow, "four-decimal number out of range");
    }
    return fixed4(static_cast<std::int64_t>(scaled));
}

double fixed4::value() const {
    return static_cast<double>(scaled_) / SCALE_D;
}

std::string fixed4::text() const {
    const bool negative = scaled_ < 0;
    const std::uint64_t bits = static_cast<std::uint64_t>(scaled_);
    const std::uint64_t size = negative ? 0 - bits : bits;
    // One digit too many keeps the leading zeros of the decimals: 10000 + 50 gives "0050" behind
    // the 1.
    std::string decimals = std::to_string(SCALE + size % SCALE).substr(1);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    return (negative ? "-" : "") + std::to_string(size / SCALE) +
           (decimals.empty() ? "" : "." + decimals);
}

}  // namespace kvt
