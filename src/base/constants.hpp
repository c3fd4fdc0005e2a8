// The decimal constants of the product. They are part of every computed number: never replace one
// by a better pi.
#pragma once

namespace kvt {

/// Degrees to radians, offset normals, capacity, chamber routines, interference check.
inline constexpr double PI_D = 3.1415927;
/// The half turn of the arc cosine in the outer profile.
inline constexpr double PI_H = 1.5707963;
/// Lobe pitch and sweep angles of the outer profile.
inline constexpr double TWO_PI_D = 6.2831853;
/// Sweep angles of the outer profile.
inline constexpr double THREE_PI_D = 9.424778;
/// Full turn of the performance model: shaft speed, contact stress, theoretical torque.
inline constexpr double TWO_PI_P = 6.2831854;
/// Angles of the drawn arcs only.
inline constexpr double PI_L = 3.14159265358979;
/// Angles of the drawn arcs only.
inline constexpr double TWO_PI_L = 6.28318530717958;

/// Millimetres in an inch.
inline constexpr double MM_PER_INCH = 25.4;
/// Millimetres of half the tip clearance for one inch of tip clearance.
inline constexpr double HALF_CLEARANCE_MM_PER_INCH = 12.7;

/// Number of trochoid points of a Calculate Profiles run, and of the uniform trochoid of the
/// assist.
inline constexpr int PROFILE_POINTS = 3600;

}  // namespace kvt
