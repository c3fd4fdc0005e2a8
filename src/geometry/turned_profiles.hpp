// Both profiles turned to the position of a chamber.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "geometry/point2.hpp"

#include <cstddef>
#include <vector>

namespace kvt {

/// A profile that is turned point by point, as the points are asked for: a chamber needs a tenth of
/// them to the last digit. Lengths mm.
class turned_profile {
  public:
    /// Turned by rotation radians about the origin, then moved by -shift along x.
    /// Kept: the first point comes without the shift; chambers_test holds it.
    /// Throws division_by_zero for a point with x = 0.
    turned_profile(std::vector<point2> points, double rotation, double shift);

    std::size_t size() const { return points_.size(); }

    ///     (r cos a, r sin a)      r radius_of the point, a = polar_angle of the point + rotation
    point2 operator[](std::size_t i) const;

    /// The same as a product of rotations, which takes a tenth of the time and is less than
    /// nearness() off.
    point2 nearly(std::size_t i) const {
        const point2& point = points_[i];
        return {point.x * cosine_ - point.y * sine_ - shift_of(i),
                point.x * sine_ + point.y * cosine_};
    }
    double nearness() const { return nearness_; }

  private:
    double shift_of(std::size_t i) const { return i == 0 ? 0.0 : shift_; }

    std::vector<point2> points_;
    double rotation_, cosine_, sine_, shift_;
    double nearness_ = 0.0;
};

/// The points 0 .. P-1 of inner_x, inner_y, turned by rotation radians about the inner axis.
/// Source: docs/formulas/chambers.md, "Maximum chamber" and "Minimum chamber".
turned_profile turned_inner_profile(double rotation, const rotor_profiles& rotors);

/// The pairs 0, 2 .. outer_xy_last of outer_xy as points, turned about the inner axis likewise.
turned_profile turned_outer_profile(double rotation, const rotor_profiles& rotors);

/// The same pairs turned about the outer centre at x = -ecc.
turned_profile turned_outer_profile_about_its_centre(double rotation, const design_params& design,
                                                     const rotor_profiles& rotors);

}  // namespace kvt
