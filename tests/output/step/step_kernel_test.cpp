// STEP files through an independent reader, a solid-modelling kernel, with its repair switched off:
// every body is one valid closed solid, right side out, of the right size.
#include "support/step_kernel.hpp"

#include "output/step/step_files.hpp"
#include "output/step/step_ports.hpp"
#include "output/step/step_rotors.hpp"
#include "support/cnc_design.hpp"
#include "support/random_design.hpp"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Solid.hxx>
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kvt {
namespace {

/// Of area and extents, relative.
constexpr double TOLERANCE = 1e-4;
/// Of the area within a spline that is evaluated, and sampled, in two ways.
constexpr double SPLINE_TOLERANCE = 1e-5;
constexpr double PI = 3.14159265358979323846;

struct extents {
    double low_x = std::numeric_limits<double>::max(), high_x = -low_x, low_y = low_x,
           high_y = -low_x;

    void take(double x, double y) {
        low_x = std::min(low_x, x);
        high_x = std::max(high_x, x);
        low_y = std::min(low_y, y);
        high_y = std::max(high_y, y);
    }
};

double signed_area_of(const std::vector<point2>& points) {
    double sum = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const point2& next = points[(i + 1) % points.size()];
        sum += points[i].x * next.y - next.x * points[i].y;
    }
    return 0.5 * sum;
}

/// Points along the edges of one height, circles or splines, as they lie in the file.
std::vector<std::vector<point2>> polygons_at(const TopoDS_Solid& solid, double z,
                                             GeomAbs_CurveType type) {
    constexpr int STEPS = 20000;
    std::vector<std::vector<point2>> pieces;
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(solid, TopAbs_EDGE, edges);
    for (int i = 1; i <= edges.Extent(); ++i) {
        const BRepAdaptor_Curve curve(TopoDS::Edge(edges(i)));
        const double first = curve.FirstParameter();
        const double last = curve.LastParameter();
        if (curve.GetType() != type || std::abs(curve.Value(0.5 * (first + last)).Z() - z) > 1e-9) {
            continue;
        }
        std::vector<point2> points;
        for (int step = 0; step < STEPS; ++step) {
            const gp_Pnt point = curve.Value(first + (last - first) * step / STEPS);
            points.push_back({point.X(), point.Y()});
        }
        pieces.push_back(std::move(points));
    }
    return pieces;
}

/// Both halves of a contour, the one that begins where the other ends behind it.
std::vector<point2> contour_at(const TopoDS_Solid& solid, double z) {
    const auto pieces = polygons_at(solid, z, GeomAbs_BSplineCurve);
    std::vector<point2> contour;
    EXPECT_EQ(pieces.size(), 2U);
    for (const std::vector<point2>& piece : pieces) {
        contour.insert(contour.end(), piece.begin(), piece.end());
    }
    return contour;
}

/// Volume by adaptive integration; the ordinary one is wrong by percents on splines of thousands of
/// spans.
double volume_of(const TopoDS_Solid& solid) {
    GProp_GProps properties;
    BRepGProp::VolumePropertiesGK(solid, properties, 1e-4);
    return properties.Mass();
}

/// A spline passes its control point P at (A + 4 P + B)/6, A and B being the points beside it: next
/// to nothing on a smooth profile, part of a step at a sharp corner.
double largest_cut(const std::vector<point2>& profile) {
    double largest = 0.0;
    for (std::size_t i = 0; i < profile.size(); ++i) {
        const point2& before = profile[(i + profile.size() - 1) % profile.size()];
        const point2& after = profile[(i + 1) % profile.size()];
        const double cut = std::hypot(before.x - 2.0 * profile[i].x + after.x,
                                      before.y - 2.0 * profile[i].y + after.y);
        largest = std::max(largest, cut / 6.0);
    }
    return largest;
}

/// Point at parameter t of the clamped uniform cubic spline over points first .. last, each span
/// one long (de Boor).
point2 spline_point(const std::vector<point2>& controls, double t) {
    const int count = static_cast<int>(controls.size());
    const auto knot = [count](int i) { return std::clamp(i - 3, 0, count - 3); };
    const int span = std::min(static_cast<int>(t), count - 4) + 3;
    std::array<point2, 4> d;
    for (int j = 0; j < 4; ++j) {
        d[static_cast<std::size_t>(j)] = controls[static_cast<std::size_t>(span - 3 + j)];
    }
    for (int r = 1; r <= 3; ++r) {
        for (int j = 3; j >= r; --j) {
            const int i = span - 3 + j;
            const double share = (t - knot(i)) / (knot(i + 4 - r) - knot(i));
            const point2& before = d[static_cast<std::size_t>(j - 1)];
            point2& at = d[static_cast<std::size_t>(j)];
            at = {before.x + share * (at.x - before.x), before.y + share * (at.y - before.y)};
        }
    }
    return d[3];
}

/// The area within both splines of a contour, evaluated here.
double spline_area(const std::vector<point2>& profile) {
    constexpr int STEPS = 10000;
    const auto middle = profile.begin() + static_cast<std::ptrdiff_t>(profile.size() / 2);
    std::vector<point2> first(profile.begin(), middle + 1), second(middle, profile.end());
    second.push_back(profile.front());
    std::vector<point2> polygon;
    for (const std::vector<point2>& half : {first, second}) {
        for (int step = 0; step < STEPS; ++step) {
            polygon.push_back(
                spline_point(half, (static_cast<double>(half.size()) - 3.0) * step / STEPS));
        }
    }
    return signed_area_of(polygon);
}

bool is_within(const std::vector<point2>& polygon, const point2& point) {
    bool within = false;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const point2& a = polygon[i];
        const point2& b = polygon[(i + 1) % polygon.size()];
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) {
            within = !within;
        }
    }
    return within;
}

/// The outward normals of the spline faces, taken with the faces' orientation, lead to where there
/// is no material. The kernel turns the faces of a closed shell to fit each other even without
/// repairs: step_reader checks what the file says.
bool walls_face_outwards(const TopoDS_Solid& solid, const std::vector<point2>& profile,
                         bool is_bore) {
    const double step =
        0.001 + 2.0 * largest_cut(profile);  // mm, beyond what the spline leaves of a corner
    for (TopExp_Explorer at(solid, TopAbs_FACE); at.More(); at.Next()) {
        const TopoDS_Face face = TopoDS::Face(at.Current());
        const BRepAdaptor_Surface surface(face);
        if (surface.GetType() != GeomAbs_BSplineSurface) {
            continue;
        }
        for (const double share : {0.11, 0.37, 0.52, 0.73, 0.91}) {
            const double u = surface.FirstUParameter() +
                             share * (surface.LastUParameter() - surface.FirstUParameter());
            gp_Pnt point;
            gp_Vec along_u, along_v;
            surface.D1(u, 0.5 * (surface.FirstVParameter() + surface.LastVParameter()), point,
                       along_u, along_v);
            gp_Vec normal = along_u.Crossed(along_v).Normalized();
            if (face.Orientation() == TopAbs_REVERSED) {
                normal.Reverse();
            }
            const point2 outside = {point.X() + step * normal.X(), point.Y() + step * normal.Y()};
            const point2 inside = {point.X() - step * normal.X(), point.Y() - step * normal.Y()};
            if (is_within(profile, outside) != is_bore || is_within(profile, inside) == is_bore) {
                return false;
            }
        }
    }
    return true;
}

void expect_contour(const TopoDS_Solid& solid, const std::vector<point2>& profile, double z) {
    const std::vector<point2> contour = contour_at(solid, z);
    const double area = spline_area(profile);
    EXPECT_NEAR(signed_area_of(contour), area, SPLINE_TOLERANCE * area);
    extents read, wanted;
    for (const point2& point : contour) {
        read.take(point.x, point.y);
    }
    for (const point2& point : profile) {
        wanted.take(point.x, point.y);
    }
    const double tolerance = TOLERANCE * (wanted.high_x - wanted.low_x) + largest_cut(profile);
    EXPECT_NEAR(read.low_x, wanted.low_x, tolerance);
    EXPECT_NEAR(read.high_x, wanted.high_x, tolerance);
    EXPECT_NEAR(read.low_y, wanted.low_y, tolerance);
    EXPECT_NEAR(read.high_y, wanted.high_y, tolerance);
}

void expect_prism(const TopoDS_Solid& solid, const std::vector<point2>& profile, double bottom,
                  double depth) {
    expect_closed(solid, 4);
    expect_contour(solid, profile, bottom);
    expect_contour(solid, profile, bottom + depth);
    EXPECT_TRUE(walls_face_outwards(solid, profile, false));
    const double volume = spline_area(profile) * depth;
    EXPECT_NEAR(volume_of(solid), volume, 2.0 * TOLERANCE * volume);
}

void expect_outer(const program& kavetta, const TopoDS_Solid& solid) {
    const design_params& design = kavetta.design_params;
    const std::vector<point2> profile = outer_rotor_contour(kavetta.rotor_profiles);
    const double radius = design.maxdiameter / 2.0;
    expect_closed(solid, 6);
    expect_contour(solid, profile, 0.0);
    expect_contour(solid, profile, design.thick);
    for (const double z : {0.0, design.thick}) {
        for (const std::vector<point2>& half : polygons_at(solid, z, GeomAbs_Circle)) {
            for (const point2& point : half) {
                ASSERT_NEAR(std::hypot(point.x + design.ecc, point.y), radius, 1e-9 * radius);
            }
        }
        EXPECT_EQ(polygons_at(solid, z, GeomAbs_Circle).size(), 2U);
    }
    EXPECT_TRUE(walls_face_outwards(solid, profile, true));
    const double volume = (PI * radius * radius - spline_area(profile)) * design.thick;
    EXPECT_NEAR(volume_of(solid), volume, 2.0 * TOLERANCE * volume);
}

/// A name of tests/data/designs, or "random" for one that is drawn.
class kernel_reads : public testing::TestWithParam<const char*> {
  protected:
    program kavetta = design(GetParam());

  private:
    static program design(const std::string& name) {
        random_values random(20211103);
        return name == "random" ? random_design(random) : design_with_ports(name);
    }
};

TEST_P(kernel_reads, the_inner_rotor_as_a_closed_solid) {
    const auto solids = solids_of(step_bytes(kavetta, "inner"));
    ASSERT_EQ(solids.size(), 1U);
    const std::vector<point2> profile = inner_rotor_contour(kavetta.rotor_profiles);
    expect_prism(solids[0], profile, 0.0, kavetta.design_params.thick);
    EXPECT_NEAR(signed_area_of(contour_at(solids[0], 0.0)), signed_area_of(profile),
                TOLERANCE * signed_area_of(profile));
}

TEST_P(kernel_reads, the_outer_rotor_as_a_closed_solid) {
    const auto solids = solids_of(step_bytes(kavetta, "outer"));
    ASSERT_EQ(solids.size(), 1U);
    const std::vector<point2> profile = outer_rotor_contour(kavetta.rotor_profiles);
    expect_outer(kavetta, solids[0]);
    EXPECT_NEAR(signed_area_of(contour_at(solids[0], 0.0)), signed_area_of(profile),
                TOLERANCE * signed_area_of(profile));
}

TEST_P(kernel_reads, every_port_body_as_a_closed_solid) {
    const auto solids = solids_of(step_bytes(kavetta, "ports"));
    std::size_t at = 0;
    for (const step_port port : STEP_PORTS) {
        const auto body =
            port_body(port, kavetta.design_params, kavetta.port_params, kavetta.entries);
        if (body) {
            SCOPED_TRACE(body->product);
            ASSERT_LT(at, solids.size());
            expect_prism(solids[at++], body->contour, body->bottom, body->depth);
        }
    }
    EXPECT_EQ(at, solids.size());
    EXPECT_GE(at, 2U);
}

INSTANTIATE_TEST_SUITE_P(designs, kernel_reads,
                         testing::Values("n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                         "n07_inch_hydraulic", "n09_crank_oil", "random"),
                         [](const auto& design) { return std::string(design.param); });

TEST(kernel_reads_assembly, as_two_solids_that_mesh) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    const auto solids = solids_of(step_bytes(kavetta, "assembly"));
    ASSERT_EQ(solids.size(), 2U);
    expect_prism(solids[0], inner_rotor_contour(kavetta.rotor_profiles), 0.0,
                 kavetta.design_params.thick);
    expect_outer(kavetta, solids[1]);
}

TEST(kernel_reads_exchange_files, as_single_solids) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    for (const written_file& file : files_of(file_group::gt)) {
        const auto solids = solids_of(file_bytes(kavetta, file.group, file.name, "pump.stp"));
        ASSERT_EQ(solids.size(), 1U) << file.name;
        expect_closed(solids[0], file.name == "outer_rotor_GT" ? 6 : 4);
        EXPECT_GT(volume_of(solids[0]), 0.0);
    }
}

}  // namespace
}  // namespace kvt
