// exact_units: how the table and the charts of the exact figures show angles and oil speeds.
#pragma once

#include "core/length_unit.hpp"

#include <numbers>
#include <string_view>

namespace kvt {

inline constexpr double DEGREES_PER_RADIAN = 180.0 / std::numbers::pi;
inline constexpr int ANGLE_DECIMALS = 2;

inline constexpr double RADIANS_A_SECOND_PER_RPM = std::numbers::pi / 30.0;
/// Speed of the oil speeds while no range of speeds is entered.
inline constexpr double RPM_WITHOUT_RANGE = 1000.0;

struct oil_speed_unit {
    double mm;  ///< a second
    std::string_view text;
};
inline oil_speed_unit oil_speed_unit_of(unit_system system) {
    return system == unit_system::metric ? oil_speed_unit{1000.0, "m/s"}
                                         : oil_speed_unit{304.8, "ft/s"};
}

}  // namespace kvt
