#include "support/cad/built_bodies.hpp"

#include "base/number_text.hpp"
#include "cad/builtin/solid_modeller.hpp"

#include <cmath>
#include <numbers>

namespace kvt {

namespace {

constexpr double SHARP = 1e-4, FILLETED = 2e-5;

std::vector<point2> circle_points(point2 centre, double radius) {
    constexpr int COUNT = 20000;
    std::vector<point2> points;
    for (int i = 0; i < COUNT; ++i) {
        const point2 out = polar_point(radius, 2.0 * std::numbers::pi * i / COUNT);
        points.push_back({centre.x + out.x, centre.y + out.y});
    }
    return points;
}

builtin::wire smooth_outline(const std::vector<point2>& outline) {
    return builtin::closed_spline_wire(closed_spline_points(outline));
}

const char* name_of(port_body_kind kind) {
    switch (kind) {
        case port_body_kind::inlet_lower:
            return "Inlet";
        case port_body_kind::outlet_lower:
            return "Outlet";
        case port_body_kind::groove:
            return "Groove";
        case port_body_kind::outlet_upper:
            return "Outlet, upper";
        case port_body_kind::inlet_upper:
            break;
    }
    return "Inlet, upper";
}

body_role role_of(port_body_kind kind) {
    switch (kind) {
        case port_body_kind::groove:
            return body_role::groove;
        case port_body_kind::outlet_lower:
        case port_body_kind::outlet_upper:
            return body_role::outlet;
        case port_body_kind::inlet_lower:
        case port_body_kind::inlet_upper:
            break;
    }
    return body_role::inlet;
}

}  // namespace

double polygon_area(const std::vector<point2>& polygon) {
    double sum = 0.0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const point2& a = polygon[i];
        const point2& b = polygon[(i + 1) % polygon.size()];
        sum += a.x * b.y - b.x * a.y;
    }
    return 0.5 * sum;
}

double outlined_area(const std::vector<std::vector<point2>>& outlines) {
    double area = 0.0;
    for (const std::vector<point2>& outline : outlines) {
        const double one = std::abs(polygon_area(outline));
        area = area == 0.0 ? one : area - one;
    }
    return area;
}

built_body built_inner_rotor(const program& kavetta) {
    const std::vector<point2> points = inner_rotor_points(kavetta.rotor_profiles);
    const double thick = kavetta.design_params.thick;
    const builtin::body solid =
        builtin::prism(builtin::make_face(builtin::closed_spline_wire(points)), 0.0, thick);
    return {{"Inner rotor", body_role::inner_rotor, solid}, {points}, 0.0, thick, 1e-5};
}

built_body built_outer_rotor(const program& kavetta) {
    const design_params& design = kavetta.design_params;
    const std::vector<point2> bore = outer_rotor_points(design);
    const point2 centre{-design.ecc, 0.0};
    const double radius = design.maxdiameter / 2.0;
    const builtin::body solid = builtin::prism(
        builtin::make_face(builtin::circle_wire(centre, radius), {smooth_outline(bore)}), 0.0,
        design.thick);
    return {{"Outer rotor", body_role::outer_rotor, solid},
            {circle_points(centre, radius), bore},
            0.0,
            design.thick,
            design.fillet > 0.0 ? 1e-5 : 2e-5};
}

std::vector<built_body> built_porting(const program& kavetta) {
    const bool is_sharp = val(kavetta.entries.port_radii) == 0.0;
    std::vector<built_body> bodies;
    for (const port_body& port :
         port_bodies(kavetta.design_params, kavetta.port_params, kavetta.entries)) {
        const builtin::body solid = builtin::prism(builtin::make_face(smooth_outline(port.outline)),
                                                   port.from_z, port.height());
        const bool groove = port.kind == port_body_kind::groove;
        bodies.push_back({{name_of(port.kind), role_of(port.kind), solid},
                          {port.outline},
                          port.from_z,
                          port.to_z,
                          is_sharp || groove ? SHARP : FILLETED});
    }
    return bodies;
}

std::vector<built_body> built_assembly(const program& kavetta) {
    std::vector<built_body> bodies = {built_inner_rotor(kavetta), built_outer_rotor(kavetta)};
    for (built_body& port : built_porting(kavetta)) {
        bodies.push_back(std::move(port));
    }
    return bodies;
}

std::vector<builtin::saved_body> saved_bodies(const std::vector<built_body>& bodies) {
    std::vector<builtin::saved_body> saved;
    for (const built_body& one : bodies) {
        saved.push_back(one.saved);
    }
    return saved;
}

}  // namespace kvt
