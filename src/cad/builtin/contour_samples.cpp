#include "cad/builtin/contour_samples.hpp"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepTools.hxx>
#include <BRepTools_WireExplorer.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Precision.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <algorithm>
#include <array>
#include <cmath>
#include <gp_Pln.hxx>
#include <iterator>
#include <limits>
#include <numbers>

namespace kvt::builtin {

namespace {

constexpr int POINTS_A_SPAN = 8;
/// Share of an edge that is no more than the rounding of its ends.
constexpr double SHORTEST_SPAN = 1e-9;
constexpr double CIRCLE_STEP = std::numbers::pi / 1800.0;
/// Circles are divided for Gauss's rule, whose error on a piece is 1e-14 then.
constexpr double CIRCLE_PIECE = std::numbers::pi / 4.0;

struct gauss_point {
    double place, weight;  ///< on -1 .. 1
};
/// Abramowitz and Stegun, table 25.4.
constexpr std::array GAUSS = {
    gauss_point{-0.906179845938664, 0.236926885056189},
    gauss_point{-0.538469310105683, 0.478628670499366},
    gauss_point{0.0, 0.568888888888889},
    gauss_point{0.538469310105683, 0.478628670499366},
    gauss_point{0.906179845938664, 0.236926885056189},
};

/// A knot of a periodic spline, as often as it takes behind the start of an edge.
double behind(double start, double knot, double period) {
    return knot + period * std::ceil((start - knot) / period);
}

/// Parameters at which a curve is divided into smooth pieces, from its first to its last. Not by
/// the kernel's own division: where an edge of a whole period ends one rounding behind it, as in a
/// file that was read again, that one goes round twice.
std::vector<double> spans_of(const BRepAdaptor_Curve& curve) {
    const double from = curve.FirstParameter(), to = curve.LastParameter();
    std::vector<double> ends = {from, to};
    if (curve.GetType() == GeomAbs_BSplineCurve) {
        const double least = SHORTEST_SPAN * (to - from);
        const Handle(Geom_BSplineCurve) spline = curve.BSpline();
        for (const double knot : spline->Knots()) {
            const double at = curve.IsPeriodic() ? behind(from, knot, curve.Period()) : knot;
            if (at > from + least && at < to - least) {
                ends.push_back(at);
            }
        }
    }
    std::ranges::sort(ends);
    return ends;
}

std::vector<double> equal_parts(double from, double to, double longest) {
    const int count = std::max(1, static_cast<int>(std::ceil((to - from) / longest - 1e-9)));
    std::vector<double> places;
    for (int i = 0; i <= count; ++i) {
        places.push_back(from + (to - from) * i / count);
    }
    return places;
}

std::vector<double> divided(const std::vector<double>& spans, int parts) {
    std::vector<double> places;
    for (std::size_t i = 0; i + 1 < spans.size(); ++i) {
        for (int k = 0; k < parts; ++k) {
            places.push_back(spans[i] + (spans[i + 1] - spans[i]) * k / parts);
        }
    }
    places.push_back(spans.back());
    return places;
}

/// Where an edge is sampled, its first and its last parameter included.
std::vector<double> sample_places(const BRepAdaptor_Curve& curve) {
    switch (curve.GetType()) {
        case GeomAbs_Line:
            return {curve.FirstParameter(), curve.LastParameter()};
        case GeomAbs_Circle:
            return equal_parts(curve.FirstParameter(), curve.LastParameter(), CIRCLE_STEP);
        default:
            return divided(spans_of(curve), POINTS_A_SPAN);
    }
}

std::vector<double> area_pieces(const BRepAdaptor_Curve& curve) {
    return curve.GetType() == GeomAbs_Circle
               ? equal_parts(curve.FirstParameter(), curve.LastParameter(), CIRCLE_PIECE)
               : spans_of(curve);
}

std::vector<point2> points_of(const TopoDS_Edge& edge) {
    const BRepAdaptor_Curve curve(edge);
    std::vector<point2> points;
    for (const double place : sample_places(curve)) {
        const gp_Pnt point = curve.Value(place);
        points.push_back({point.X(), point.Y()});
    }
    if (edge.Orientation() == TopAbs_REVERSED) {
        std::ranges::reverse(points);
    }
    return points;
}

/// Half the integral of x dy - y dx over one piece.
double area_term(const BRepAdaptor_Curve& curve, double from, double to) {
    const double middle = (from + to) / 2.0, half = (to - from) / 2.0;
    double sum = 0.0;
    for (const gauss_point& at : GAUSS) {
        gp_Pnt point;
        gp_Vec slope;
        curve.D1(middle + half * at.place, point, slope);
        sum += at.weight * (point.X() * slope.Y() - point.Y() * slope.X());
    }
    return 0.5 * half * sum;
}

double area_beside(const TopoDS_Edge& edge) {
    const BRepAdaptor_Curve curve(edge);
    const std::vector<double> ends = area_pieces(curve);
    double sum = 0.0;
    for (std::size_t i = 0; i + 1 < ends.size(); ++i) {
        sum += area_term(curve, ends[i], ends[i + 1]);
    }
    return edge.Orientation() == TopAbs_REVERSED ? -sum : sum;
}

template <typename each_edge>
void for_each_edge(const TopoDS_Wire& one, const each_edge& use) {
    for (BRepTools_WireExplorer at(one); at.More(); at.Next()) {
        use(at.Current());
    }
}

/// z of a horizontal face; no number for any other.
double height_of(const TopoDS_Face& face) {
    const BRepAdaptor_Surface surface(face);
    const bool is_level = surface.GetType() == GeomAbs_Plane &&
                          surface.Plane().Axis().Direction().IsParallel(gp::DZ(), 1e-9);
    return is_level ? surface.Plane().Location().Z() : std::numeric_limits<double>::quiet_NaN();
}

/// A contour of a face with material on its left, and its area: negative for a hole.
void add_contour(const TopoDS_Wire& contour, bool is_hole, body_measures& to) {
    const double area = signed_area(contour);
    std::vector<point2> points = sampled_points(contour);
    if ((area < 0.0) != is_hole) {
        std::ranges::reverse(points);
    }
    to.contours.push_back(std::move(points));
    to.contour_area += is_hole ? -std::abs(area) : std::abs(area);
}

void add_contours(const TopoDS_Face& face, body_measures& to) {
    const TopoDS_Wire outer = BRepTools::OuterWire(face);
    add_contour(outer, false, to);
    for (TopExp_Explorer at(face, TopAbs_WIRE); at.More(); at.Next()) {
        if (!at.Current().IsSame(outer)) {
            add_contour(TopoDS::Wire(at.Current()), true, to);
        }
    }
}

struct level_face {
    TopoDS_Face face;
    double z;
};

std::vector<level_face> level_faces(const TopoDS_Shape& solid) {
    std::vector<level_face> faces;
    for (TopExp_Explorer at(solid, TopAbs_FACE); at.More(); at.Next()) {
        const TopoDS_Face face = TopoDS::Face(at.Current());
        const double z = height_of(face);
        if (!std::isnan(z)) {
            faces.push_back({face, z});
        }
    }
    return faces;
}

}  // namespace

bool is_same_place(point2 a, point2 b) {
    return distance(a, b) <= Precision::Confusion();
}

std::vector<point2> sampled_points(const TopoDS_Wire& one) {
    std::vector<point2> points;
    for_each_edge(one, [&points](const TopoDS_Edge& edge) {
        const std::vector<point2> more = points_of(edge);
        const bool joins = !points.empty() && is_same_place(points.back(), more.front());
        points.insert(points.end(), std::next(more.begin(), joins ? 1 : 0), more.end());
    });
    if (points.size() > 1 && is_same_place(points.front(), points.back())) {
        points.pop_back();
    }
    return points;
}

double signed_area(const TopoDS_Wire& one) {
    double sum = 0.0;
    for_each_edge(one, [&sum](const TopoDS_Edge& edge) { sum += area_beside(edge); });
    return sum;
}

body_measures measures_of(const TopoDS_Shape& solid) {
    const std::vector<level_face> faces = level_faces(solid);
    if (faces.empty()) {
        refuse("a solid without a horizontal face");
    }
    const auto [lowest, highest] = std::ranges::minmax_element(faces, {}, &level_face::z);
    body_measures measures;
    measures.lower = lowest->z;
    measures.upper = highest->z;
    for (const level_face& one : faces) {
        if (one.z >= measures.upper - Precision::Confusion()) {
            add_contours(one.face, measures);
        }
    }
    return measures;
}

}  // namespace kvt::builtin
