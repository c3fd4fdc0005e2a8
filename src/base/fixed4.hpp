// The 4-decimal fixed-point number that capacities are kept in: 64 bits, scaled by 10000.
#pragma once

#include <cstdint>
#include <string>

namespace kvt {

class fixed4 {
  public:
    constexpr fixed4() = default;

    /// Nearest, half to even, of the double product value * 10000. Throws overflow outside 64 bits
    /// (or for NaN).
    static fixed4 from(double value);
    static constexpr fixed4 from_scaled(std::int64_t scaled) { return fixed4(scaled); }

    constexpr std::int64_t scaled() const { return scaled_; }
    /// scaled / 10000 as a double.
    double value() const;
    /// Up to 4 decimals, no trailing zeros, "0" for zero, "-0.5" for a negative fraction.
    std::string text() const;

    friend constexpr bool operator==(fixed4, fixed4) = default;

  private:
    explicit constexpr fixed4(std::int64_t scaled) : scaled_(scaled) {}
    std::int64_t scaled_ = 0;
};

}  // namespace kvt
