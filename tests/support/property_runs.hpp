// Property tests: how many random cases a run takes, and the seed that it prints and can be given
// again.
#pragma once

#include "base/number_text.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <string_view>

namespace kvt {

/// The number of random cases: full times the environment variable KVT_PROPERTY_SCALE (a factor,
/// default 1; a sanitizer run takes 0.1), at least 1. A factor that is no number throws
/// type_mismatch rather than testing nothing.
inline int property_count(int full) {
    const char* scale = std::getenv("KVT_PROPERTY_SCALE");
    const double factor = scale == nullptr ? 1.0 : number_of_text(scale);
    return static_cast<int>(std::clamp(std::round(full * factor), 1.0, 1e9));
}

/// The seed of a property test: the environment variable KVT_PROPERTY_SEED, else a fixed one, so
/// that two runs test the same cases. It is printed, so that a failing run can be repeated.
inline std::uint32_t property_seed() {
    constexpr std::uint32_t FIXED_SEED = 20211103;
    const char* given = std::getenv("KVT_PROPERTY_SEED");
    const std::uint32_t seed =
        given == nullptr ? FIXED_SEED
                         : static_cast<std::uint32_t>(std::llround(number_of_text(given)));
    std::cout << "KVT_PROPERTY_SEED=" << seed << '\n';
    return seed;
}

/// Random values for one property test.
class random_values {
  public:
    explicit random_values(std::uint32_t seed = property_seed()) : engine_(seed) {}

    /// A whole number, lowest <= number <= highest.
    int whole(int lowest, int highest) {
        return std::uniform_int_distribution<int>(lowest, highest)(engine_);
    }
    /// A real, lowest <= number < above.
    double real(double lowest, double above) {
        return std::uniform_real_distribution<double>(lowest, above)(engine_);
    }
    std::uint64_t bits() { return engine_(); }
    /// A text of 0 to longest characters, each taken from the letters.
    std::string text(std::string_view letters, int longest) {
        std::string result;
        for (int count = whole(0, longest); count > 0; --count) {
            result +=
                letters[static_cast<std::size_t>(whole(0, static_cast<int>(letters.size()) - 1))];
        }
        return result;
    }

  private:
    std::mt19937_64 engine_;
};

}  // namespace kvt
