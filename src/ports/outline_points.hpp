// outline_points: an outline that grows point by point, arc by arc, fillet by fillet, side by side.
// Source: docs/formulas/ports.md, "Point list".
#pragma once

#include "base/zeroed_array.hpp"
#include "geometry/point2.hpp"
#include "ports/port_corners.hpp"

#include <cstdint>
#include <vector>

namespace kvt {

class outline_points {
  public:
    /// Appends a point. Throws overflow behind index 32767, the last one that the 16-bit indexes of
    /// the record hold.
    void add(point2 point);

    /// The points between the ends of an arc of radius r about (-shift, 0), every half degree from
    /// from_deg on, upwards (direction 1) or downwards (-1):
    ///     on_circle(r, from_deg + direction * k/2)      k = 1, 2, ... while k <= 2 span_deg - 1
    /// Neither end belongs to them.
    void add_arc(double r, double shift, double from_deg, double span_deg, int direction);

    /// The points between the ends of a fillet of radius f about c:
    ///     (f cos(base + k/2) + cx, cy - f sin(base + k/2))      k = 1, 2, ... while k <= 2
    ///     sweep_deg - 1
    void add_fillet(point2 c, double f, double base_deg, double sweep_deg);

    /// The 19 points that divide the line from one point to another into 20 equal parts, without
    /// its ends.
    void add_side(point2 from, point2 to);

    /// Index of the last point. There must be one.
    std::int16_t last() const { return static_cast<std::int16_t>(points_.size() - 1); }
    bool empty() const { return points_.empty(); }
    const std::vector<point2>& points() const { return points_; }

    /// Gives every point negative y.
    void mirror();

    /// Copies the points to a pair of arrays that are 0 behind their last point, and sets `last`.
    /// They are 0 behind it afterwards, too: readers that stop at the first x of exactly 0 shall
    /// never see the rest of an older, longer outline. Throws subscript_out_of_range.
    void store(zeroed_array& x, zeroed_array& y, std::int16_t& last) const;

  private:
    std::vector<point2> points_;
};

/// Angle at the fillet's centre between the line to the arc's centre and the tangent point on the
/// side, degrees:
///     arccos((f^2 + c^2 - d^2) / (2 c f))      c distance of the fillet's centre from the arc's, d
///     of the tangent point
/// Throws run_time_error when f or c is 0 or the three lengths make no triangle.
double fillet_angle_deg(double f, double centre_r, double tangent_distance_squared);

/// Square of the distance of a point from (-shift, 0).
double distance_squared(point2 point, double shift);

/// Where the fillet of a corner begins that follows an inner arc:
///     atan((Cy - Ry) / (Rx - Cx)) in degrees, plus 180 when negative
/// Throws division_by_zero when R lies straight above or below C.
double base_after_inner_arc(const port_corner& corner);

/// Where the fillet of a corner begins that leads to an outer arc:
///     atan((Cy - Sy) / (Sx - Cx)) in degrees, plus 180 when positive with Cy < Sy, or when
///     negative
/// Throws division_by_zero when S lies straight above or below C.
double base_before_outer_arc(const port_corner& corner);

}  // namespace kvt
