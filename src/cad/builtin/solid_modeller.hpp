// solid_modeller: solids of horizontal outlines, built with the solid-modelling kernel. It knows no
// CAD package; lengths are whatever unit the caller has. Every function throws
// automation::automation_error AUTOMATION_FAILED when the kernel can't do what is asked.
// Source: docs/formulas/solid_models.md.
#pragma once

#include "geometry/point2.hpp"
#include "geometry/point3.hpp"

#include <memory>
#include <numbers>
#include <vector>

namespace kvt::builtin {

/// A curve in the plane z = 0. Immutable, cheap to copy; the kernel's shape is behind it.
class wire;
/// A flat region between an outer contour and holes.
class face;
/// A solid that remembers the sampled contours of its upper face, its lower height and its height.
class body;

/// Straight lines through the points; closed: back to the first, which is not repeated. A closed
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

body fuse(const body& a, const body& b);
body cut(const body& a, const body& b);
body common(const body& a, const body& b);
/// The two parts of a body on the side of the plane to which (b - a) x (c - a) points, and on the
/// other. An empty part throws.
struct halves;
halves slice(const body& one, point3 a, point3 b, point3 c);
/// count - 1 copies, turned about the vertical axis by angle / count each.
std::vector<body> polar_copies(const body& one, int count, point2 axis,
                               double angle = 2.0 * std::numbers::pi);
body turned(const body& one, point2 axis, double angle);
/// In the plane through three points.
body mirror(const body& one, point3 a, point3 b, point3 c);
body move(const body& one, point3 by);
/// About the origin; what a drawing in inches becomes in mm.
body scaled(const body& one, double factor);
wire scaled(const wire& one, double factor);

}  // namespace kvt::builtin
