// The drawing of AutoCAD into which the models go, and what can be drawn there. Lengths and points
// are mm here; the drawing gets them in the unit of the design.
#pragma once

#include "cad/model_session.hpp"
#include "geometry/point2.hpp"
#include "geometry/point3.hpp"

#include <cstdint>
#include <vector>

namespace kvt::autocad {

/// AcBooleanType: what Boolean makes of a solid and another one, which is consumed.
inline constexpr std::int32_t UNION = 0;
inline constexpr std::int32_t SUBTRACTION = 2;

class drawing {
  public:
    /// Takes the application and its open drawing, or a new one when none is open, and shows 10, 50
    /// and 75 percent.
    explicit drawing(model_session& session);

    automation::object_ref polyline(const std::vector<point2>& points) const;
    automation::object_ref closed_polyline(const std::vector<point2>& points) const;
    /// The outline pushed up from z = 0, down for a negative height. Outline and region are
    /// deleted.
    automation::object_ref extruded(const std::vector<point2>& outline, double height) const;
    /// Along z, with its centre at mid-height.
    automation::object_ref cylinder(point3 centre, double radius, double height) const;

    void move(const automation::object_ref& solid, double up) const;
    /// Puts the mirror image in the horizontal plane at this height in the solid's place.
    void mirror(const automation::object_ref& solid, double plane_z) const;
    /// Keeps the side of the plane through three points to which (b - a) x (c - a) points.
    void slice(const automation::object_ref& solid, point3 a, point3 b, point3 c) const;
    /// The copies of a solid on a full circle of `count`, itself not included, each turned about
    /// the vertical axis through the centre by its share of the circle.
    std::vector<automation::object_ref> polar_copies(const automation::object_ref& solid,
                                                     std::int32_t count, point3 centre) const;

    const automation::object_ref& document() const { return document_; }
    /// The whole model in the view. The viewport is activated as older releases want it.
    void zoom() const;
    void zoom_twice() const;

  private:
    std::vector<automation::object_ref> rotated_copies(const automation::object_ref& solid,
                                                       std::int32_t count, point3 centre) const;
    double length(double mm) const;
    automation::number_array point(point3 mm) const;

    automation::object_ref application_, document_, model_space_;
    const length_unit& unit_;
};

}  // namespace kvt::autocad
