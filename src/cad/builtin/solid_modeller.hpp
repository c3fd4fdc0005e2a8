// solid_modeller: solids of horizontal outlines, built with the solid-modelling kernel. It knows no
// CAD package; lengths are mm, whatever the package's unit is, so that the kernel's tolerances mean
// the same for all. Every function throws automation::automation_error AUTOMATION_FAILED when the
// kernel can't do what is asked.
// Source: docs/formulas/solid_models.md.
#pragma once

#include "cad/model_store.hpp"
#include "geometry/point2.hpp"
#include "geometry/point3.hpp"

#include <memory>
#include <numbers>
#include <vector>

namespace kvt::builtin {

/// The kernel's shapes, told in cad/builtin/kernel_shapes.hpp.
struct wire_shape;
struct face_shape;
struct body_shape;

/// A curve in the plane z = 0. Immutable, cheap to copy. The kernel's shape is made when it is
/// first asked for: a curve that is only drawn, or redrawn as a closed one, costs nothing.
class wire {
  public:
    explicit wire(std::shared_ptr<const wire_shape> shape);

    /// A curve that ends where it starts, whether it was asked for as closed or not.
    bool is_closed() const;
    /// Points along the curve, at least 8 a span of a spline. A closed one doesn't repeat its
    /// first.
    const std::vector<point2>& sampled() const;
    const wire_shape& shape() const { return *shape_; }

  private:
    std::shared_ptr<const wire_shape> shape_;
};

/// A flat region between an outer contour and holes, in the plane z = 0.
class face {
  public:
    explicit face(std::shared_ptr<const face_shape> shape);

    const face_shape& shape() const { return *shape_; }

  private:
    std::shared_ptr<const face_shape> shape_;
};

/// A solid with a horizontal upper and lower face. Immutable, cheap to copy: a Boolean answers a
/// new one. What it tells is worked out when it is first asked for.
class body {
  public:
    explicit body(std::shared_ptr<const body_shape> shape);

    /// The contours of the upper face, sampled with at least 8 points a span: material on their
    /// left, so outer ones run counter-clockwise and holes clockwise. The first isn't repeated.
    const std::vector<std::vector<point2>>& contours() const;
    /// Of the upper face.
    double contour_area() const;
    /// Lower face, and upper minus lower face.
    double z0() const;
    double height() const;
    /// What the contours and the two faces span.
    model_box box() const;
    const body_shape& shape() const { return *shape_; }

  private:
    std::shared_ptr<const body_shape> shape_;
};

/// Straight lines through the points; closed: back to the first, which may be repeated. A closed
/// one of more than 200 points is the smooth closed spline through closed_spline_points instead: a
/// prism with thousands of flat faces takes minutes to read back.
wire polyline_wire(const std::vector<point2>& points, bool closed);
/// Periodic interpolating spline through distinct points (a repeated first one is dropped).
wire closed_spline_wire(std::vector<point2> points);
wire open_spline_wire(const std::vector<point2>& points);
wire circle_wire(point2 centre, double radius);

/// Throws when a contour is open, crosses itself, or a hole leaves the outer one. A ring is one
/// face with a hole, never a Boolean.
face make_face(const wire& outer, const std::vector<wire>& holes = {});
/// From z0 to z0 + height; a negative height goes down.
body prism(const face& from, double z0, double height);
/// The centre is at mid-height.
body cylinder(point3 centre, double radius, double height);

/// Throw when nothing is left, too.
body fuse(const body& a, const body& b);
body cut(const body& a, const body& b);
body common(const body& a, const body& b);

/// The parts of a body on the side of the plane through a, b, c to which (b - a) x (c - a) points,
/// and on the other.
struct halves;
/// An empty part throws.
halves slice(const body& one, point3 a, point3 b, point3 c);

/// count - 1 copies, turned about the vertical axis by angle / count each.
std::vector<body> polar_copies(const body& one, int count, point2 axis,
                               double angle = 2.0 * std::numbers::pi);
body turned(const body& one, point2 axis, double angle);
/// In the plane through three points.
body mirror(const body& one, point3 a, point3 b, point3 c);
body move(const body& one, point3 by);

struct halves {
    body positive, negative;
};

}  // namespace kvt::builtin
