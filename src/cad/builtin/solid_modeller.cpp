#include "cad/builtin/solid_modeller.hpp"

#include "cad/builtin/contour_samples.hpp"
#include "cad/builtin/kernel_shapes.hpp"
#include "cad/model_outlines.hpp"
#include "geometry/contour_crossing.hpp"

#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <Bnd_Box.hxx>
#include <GeomAPI_Interpolate.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Precision.hxx>
#include <TColgp_HArray1OfPnt.hxx>
#include <TopoDS.hxx>
#include <algorithm>
#include <cmath>
#include <gp_Circ.hxx>
#include <gp_Pln.hxx>
#include <gp_Trsf.hxx>
#include <iterator>
#include <utility>

namespace kvt::builtin {

namespace {

/// A closed polyline of more points becomes a spline.
constexpr std::size_t MOST_FLAT_SIDES = 200;
constexpr double SPLINE_RESOLUTION_MM = 1e-5;

gp_Pnt kernel_point(point2 at) {
    return {at.x, at.y, 0.0};
}
gp_Pnt kernel_point(const point3& at) {
    return {at.x, at.y, at.z};
}

/// Two points of a spline that lie nearer than this, such as those of a root arc of almost no
/// length, could turn it back into a loop.
bool is_same_place_of_spline(point2 a, point2 b) {
    return distance(a, b) <= SPLINE_RESOLUTION_MM;
}

using same_places = bool (*)(point2, point2);

/// Without points that repeat the one before them, which the kernel can't join.
std::vector<point2> distinct_points(const std::vector<point2>& points, same_places same) {
    std::vector<point2> distinct;
    std::ranges::unique_copy(points, std::back_inserter(distinct), same);
    return distinct;
}

/// The same of a closed list, whose last point may repeat the first.
std::vector<point2> distinct_corners(const std::vector<point2>& points, same_places same) {
    std::vector<point2> distinct = distinct_points(points, same);
    while (distinct.size() > 1 && same(distinct.front(), distinct.back())) {
        distinct.pop_back();
    }
    return distinct;
}

void expect_points(const std::vector<point2>& points, std::size_t least) {
    if (points.size() < least) {
        refuse("a curve of too few points");
    }
}

wire wire_of(std::function<TopoDS_Wire()> make) {
    return wire(std::make_shared<const wire_shape>(std::move(make)));
}

TopoDS_Wire polygon(const std::vector<point2>& points, bool closed) {
    BRepBuilderAPI_MakePolygon polygon;
    for (const point2& point : points) {
        polygon.Add(kernel_point(point));
    }
    // A line that returns to its start ends at the vertex it began with.
    if (closed) {
        polygon.Close();
    }
    return polygon.Wire();
}

TopoDS_Wire interpolating_spline(const std::vector<point2>& points, bool closed) {
    const Handle(TColgp_HArray1OfPnt) through =
        new TColgp_HArray1OfPnt(1, static_cast<int>(points.size()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        through->SetValue(static_cast<int>(i) + 1, kernel_point(points[i]));
    }
    GeomAPI_Interpolate spline(through, closed, Precision::Confusion());
    spline.Perform();
    if (!spline.IsDone()) {
        refuse("no spline goes through the points");
    }
    return BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(spline.Curve()).Edge()).Wire();
}

/// Whether a ray to the right leaves the polygon an odd number of times.
bool lies_within(point2 at, const std::vector<point2>& polygon) {
    bool within = false;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const point2 a = polygon[i], b = polygon[(i + 1) % polygon.size()];
        if ((a.y > at.y) != (b.y > at.y) && at.x < a.x + (at.y - a.y) / (b.y - a.y) * (b.x - a.x)) {
            within = !within;
        }
    }
    return within;
}

/// Closed contours that don't cross, with the holes inside the first one.
void expect_region(const wire& outer, const std::vector<wire>& holes) {
    std::vector<wire> contours = holes;
    contours.push_back(outer);
    if (!std::ranges::all_of(contours, &wire::is_closed)) {
        refuse("an open contour");
    }
    std::vector<std::vector<point2>> polygons;
    std::ranges::transform(contours, std::back_inserter(polygons), &wire::sampled);
    if (any_cross(polygons)) {
        refuse("contours that cross");
    }
    const std::vector<point2>& rim = outer.sampled();
    if (!std::ranges::all_of(
            holes, [&](const wire& hole) { return lies_within(hole.sampled().front(), rim); })) {
        refuse("a hole outside its contour");
    }
}

/// Counter-clockwise, or clockwise as a hole runs.
TopoDS_Wire turned_to(const wire& contour, bool counter_clockwise) {
    const TopoDS_Wire& one = contour.shape().kernel.get();
    return (signed_area(one) > 0.0) == counter_clockwise ? one : TopoDS::Wire(one.Reversed());
}

TopoDS_Shape placed(const TopoDS_Shape& shape, const gp_Trsf& where) {
    // Copied: a shape that only stands elsewhere is written to STEP as an assembly, and one that is
    // only mirrored can't be had at all.
    return BRepBuilderAPI_Transform(shape, where, Standard_True).Shape();
}

body placed(const body& one, const gp_Trsf& where) {
    return through_kernel([&] { return body_of(placed(one.shape().kernel, where)); });
}

gp_Trsf turn_about(point2 axis, double angle) {
    gp_Trsf turn;
    turn.SetRotation(gp_Ax1(kernel_point(axis), gp::DZ()), angle);
    return turn;
}

template <typename operation>
body combined(const body& a, const body& b) {
    return through_kernel([&] {
        operation both(a.shape().kernel, b.shape().kernel);
        if (!both.IsDone() || both.HasErrors()) {
            refuse("a Boolean that failed");
        }
        return body_of(both.Shape());
    });
}

/// The plane through three points, with its normal to the side of (b - a) x (c - a).
gp_Ax2 plane_through(const point3& a, const point3& b, const point3& c) {
    const point3 normal = cross(b - a, c - a), along = b - a;
    return {kernel_point(a), gp_Dir(normal.x, normal.y, normal.z),
            gp_Dir(along.x, along.y, along.z)};
}

/// A length that reaches from a place over every corner of a body.
double reach(const body& one, const gp_Pnt& from) {
    Bnd_Box box;
    BRepBndLib::Add(one.shape().kernel, box);
    const gp_Pnt low = box.CornerMin(), high = box.CornerMax();
    return 2.0 * (from.Distance(low) + low.Distance(high));
}

/// A box with a side on the plane, on the side of its normal, that no body reaches out of.
body half_space(const body& one, const gp_Ax2& plane) {
    const double wide = reach(one, plane.Location());
    gp_Trsf to_corner;
    to_corner.SetTranslation(-wide * (gp_Vec(plane.XDirection()) + gp_Vec(plane.YDirection())));
    return body_of(
        BRepPrimAPI_MakeBox(plane.Transformed(to_corner), 2.0 * wide, 2.0 * wide, wide).Solid());
}

void span(model_box& box, point2 at) {
    box.lowest.x = std::min(box.lowest.x, at.x);
    box.lowest.y = std::min(box.lowest.y, at.y);
    box.highest.x = std::max(box.highest.x, at.x);
    box.highest.y = std::max(box.highest.y, at.y);
}

}  // namespace

wire::wire(std::shared_ptr<const wire_shape> shape) : shape_(std::move(shape)) {}
face::face(std::shared_ptr<const face_shape> shape) : shape_(std::move(shape)) {}
body::body(std::shared_ptr<const body_shape> shape) : shape_(std::move(shape)) {}

bool wire::is_closed() const {
    return shape_->is_closed.get();
}

const std::vector<point2>& wire::sampled() const {
    return shape_->sampled.get();
}

const std::vector<std::vector<point2>>& body::contours() const {
    return shape_->measures.get().contours;
}

double body::contour_area() const {
    return shape_->measures.get().contour_area;
}

double body::z0() const {
    return shape_->measures.get().lower;
}

double body::height() const {
    return shape_->measures.get().upper - z0();
}

model_box body::box() const {
    const point2 first = contours().front().front();
    model_box box{{first.x, first.y, z0()}, {first.x, first.y, shape_->measures.get().upper}};
    for (const std::vector<point2>& contour : contours()) {
        for (const point2& at : contour) {
            span(box, at);
        }
    }
    return box;
}

wire polyline_wire(const std::vector<point2>& points, bool closed) {
    if (!closed) {
        std::vector<point2> corners = distinct_points(points, is_same_place);
        expect_points(corners, 2);
        const bool returns = corners.size() > 3 && is_same_place(corners.front(), corners.back());
        if (returns) {
            corners.pop_back();
        }
        return wire_of([=] { return polygon(corners, returns); });
    }
    const std::vector<point2> corners = distinct_corners(points, is_same_place);
    expect_points(corners, 3);
    if (corners.size() > MOST_FLAT_SIDES) {
        return closed_spline_wire(closed_spline_points(corners));
    }
    return wire_of([=] { return polygon(corners, true); });
}

wire closed_spline_wire(std::vector<point2> points) {
    points = distinct_corners(points, is_same_place_of_spline);
    expect_points(points, 3);
    return wire_of([points = std::move(points)] { return interpolating_spline(points, true); });
}

wire open_spline_wire(const std::vector<point2>& points) {
    std::vector<point2> through = distinct_points(points, is_same_place_of_spline);
    expect_points(through, 2);
    return wire_of([through = std::move(through)] { return interpolating_spline(through, false); });
}

wire circle_wire(point2 centre, double radius) {
    if (!(radius > Precision::Confusion())) {
        refuse("a circle without a radius");
    }
    return wire_of([=] {
        const gp_Circ circle(gp_Ax2(kernel_point(centre), gp::DZ()), radius);
        return BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(circle).Edge()).Wire();
    });
}

face make_face(const wire& outer, const std::vector<wire>& holes) {
    expect_region(outer, holes);
    return through_kernel([&] {
        BRepBuilderAPI_MakeFace region(gp_Pln(gp::XOY()), turned_to(outer, true));
        for (const wire& hole : holes) {
            region.Add(turned_to(hole, false));
        }
        return face(std::make_shared<const face_shape>(face_shape{region.Face()}));
    });
}

body prism(const face& from, double z0, double height) {
    if (!(std::abs(height) > Precision::Confusion())) {
        refuse("a prism without height");
    }
    return through_kernel([&] {
        gp_Trsf lift;
        lift.SetTranslation(gp_Vec(0.0, 0.0, std::min(z0, z0 + height)));
        const gp_Vec up(0.0, 0.0, std::abs(height));
        return body_of(BRepPrimAPI_MakePrism(placed(from.shape().kernel, lift), up).Shape());
    });
}

body cylinder(point3 centre, double radius, double height) {
    if (!(radius > Precision::Confusion() && height > Precision::Confusion())) {
        refuse("a cylinder without radius or height");
    }
    return through_kernel([&] {
        const gp_Pnt base(centre.x, centre.y, centre.z - height / 2.0);
        return body_of(BRepPrimAPI_MakeCylinder(gp_Ax2(base, gp::DZ()), radius, height).Solid());
    });
}

body fuse(const body& a, const body& b) {
    return combined<BRepAlgoAPI_Fuse>(a, b);
}

body cut(const body& a, const body& b) {
    return combined<BRepAlgoAPI_Cut>(a, b);
}

body common(const body& a, const body& b) {
    return combined<BRepAlgoAPI_Common>(a, b);
}

halves slice(const body& one, point3 a, point3 b, point3 c) {
    return through_kernel([&] {
        const body positive_side = half_space(one, plane_through(a, b, c));
        return halves{common(one, positive_side), cut(one, positive_side)};
    });
}

std::vector<body> polar_copies(const body& one, int count, point2 axis, double angle) {
    std::vector<body> copies;
    for (int i = 1; i < count; ++i) {
        copies.push_back(turned(one, axis, angle * i / count));
    }
    return copies;
}

body turned(const body& one, point2 axis, double angle) {
    return placed(one, turn_about(axis, angle));
}

body mirror(const body& one, point3 a, point3 b, point3 c) {
    return through_kernel([&] {
        gp_Trsf image;
        image.SetMirror(plane_through(a, b, c));
        return placed(one, image);
    });
}

body move(const body& one, point3 by) {
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(by.x, by.y, by.z));
    return placed(one, shift);
}

}  // namespace kvt::builtin
