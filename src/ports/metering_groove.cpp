#include "ports/metering_groove.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "base/number_text.hpp"
#include "ports/corner_search.hpp"
#include "ports/groove_outline.hpp"
#include "ports/polar.hpp"
#include "ports/port_entries.hpp"
#include "ports/side_lines.hpp"

#include <cmath>

namespace kvt {

namespace {

void set_path_circles(const port_work& work) {
    port_params& ports = work.ports;
    const double e = work.design.ecc;
    ports.groove_width_mm = length_of(work.boxes.groove_width, work.unit);
    ports.groove_length_deg = val(work.boxes.groove_length);
    ports.groove_centre_r =
        ((ports.outlet.outer_r - e - ports.outlet.inner_r) / 2.0) + ports.outlet.inner_r + e / 2.0;
    ports.groove_inner_r = ports.groove_centre_r - ports.groove_width_mm / 2.0;
    ports.groove_outer_r = ports.groove_centre_r + ports.groove_width_mm / 2.0;
    const double half_width = ports.groove_width_mm / 2.0;
    ports.groove_corner_r = half_width < ports.port_radius ? half_width : ports.port_radius;
}

/// The straight line y = m x + k.
struct edge_line {
    double m = 0.0, k = 0.0;
};

edge_line end_side_of_outlet(const port_params& ports) {
    const double m =
        checked_divide(ports.outlet.corners[END_OUTER].p.y - ports.outlet.corners[END_INNER].p.y,
                       ports.outlet.corners[END_OUTER].p.x - ports.outlet.corners[END_INNER].p.x);
    return {m, ports.outlet.corners[END_INNER].p.y - m * ports.outlet.corners[END_INNER].p.x};
}

/// Where the line meets the circle of radius r about (-e/2, 0): the first root, or the second one
/// when it lies further out along the line on the side of the groove. Throws invalid_procedure_call
/// when they don't meet.
point2 on_edge(const edge_line& edge, double r, double e) {
    const auto [m, k] = edge;
    const double B = e + 2.0 * k * m;
    const double D = B * B - 4.0 * (1.0 + m * m) * (e * e / 4.0 + k * k - r * r);
    const double root = checked_sqrt(D);
    const double x1 = checked_divide(-B + root, 2.0 * (1.0 + m * m));
    const double x2 = checked_divide(-B - root, 2.0 * (1.0 + m * m));
    const double y1 = m * x1 + k;
    const double y2 = m * x2 + k;
    if ((y2 > y1 && m < 0.0) || (y2 < y1 && m > 0.0)) {
        return {x2, y2};
    }
    return {x1, y1};
}

double path_angle_deg(point2 point, double e) {
    const double angle = atan_deg(point.y, point.x + e / 2.0);
    return angle < 0.0 ? angle + 180.0 : angle;
}

void set_start_points(const port_work& work) {
    port_params& ports = work.ports;
    const double e = work.design.ecc;
    const edge_line edge = end_side_of_outlet(ports);
    const point2 a = on_edge(edge, ports.groove_inner_r, e);
    const point2 b = on_edge(edge, ports.groove_outer_r, e);
    ports.groove_a = a;
    ports.groove_b = b;
    ports.groove_start_inner_deg = path_angle_deg(a, e);
    ports.groove_start_outer_deg = path_angle_deg(b, e);
    ports.nose_inner_deg = ports.groove_start_inner_deg + ports.groove_length_deg;
    ports.nose_outer_deg = ports.groove_start_outer_deg + ports.groove_length_deg;
}

void set_tail(const port_work& work) {
    port_params& ports = work.ports;
    const double shift = work.design.ecc / 2.0;
    ports.overlap_deg =
        checked_divide(ports.groove_width_mm * 216.0, 2.0 * ports.groove_centre_r * PI_D);
    ports.groove_tail_outer =
        on_circle(ports.groove_outer_r, ports.groove_start_outer_deg - ports.overlap_deg, shift);
    ports.groove_tail_inner =
        on_circle(ports.groove_inner_r, ports.groove_start_inner_deg - ports.overlap_deg, shift);
}

/// Sets the nose corners and returns the direction of the line between them, radians.
double set_nose_line(const port_work& work) {
    port_params& ports = work.ports;
    const double shift = work.design.ecc / 2.0;
    const point2 n1 = on_circle(ports.groove_inner_r, ports.nose_inner_deg, shift);
    const point2 n2 = on_circle(ports.groove_outer_r, ports.nose_outer_deg, shift);
    ports.groove_n1 = n1;
    ports.groove_n2 = n2;
    ports.groove_nose_inner = n1;
    ports.groove_nose_outer = n2;
    return nose_angle(n1, n2);
}

port_end refuse_length(const port_work& work, message text) {
    work.tell(text);
    work.refuse(&entries::groove_length, "groove_length");
    return port_end::refused;
}

groove_shape shape_of(const port_work& work) {
    const port_params& ports = work.ports;
    groove_shape shape;
    shape.inner_r = ports.groove_inner_r;
    shape.outer_r = ports.groove_outer_r;
    shape.f = ports.groove_corner_r;
    shape.shift = work.design.ecc / 2.0;
    shape.a = ports.groove_a;
    shape.b = ports.groove_b;
    shape.start_inner_deg = ports.groove_start_inner_deg;
    shape.start_outer_deg = ports.groove_start_outer_deg;
    shape.overlap_deg = ports.overlap_deg;
    shape.tail_inner = ports.groove_tail_inner;
    shape.tail_outer = ports.groove_tail_outer;
    return shape;
}

void store_outline(port_params& ports, const groove_outline& built) {
    built.outline.store(ports.groove_x, ports.groove_y, ports.groove_last);
    ports.groove_main_last = built.main_last;
    ports.groove_mark_a = built.mark_a;
    ports.groove_mark_b = built.mark_b;
    if (built.mark_c) {
        ports.groove_mark_c = *built.mark_c;  // Kept: without a nose line the mark of an earlier
                                              // groove stays; metering_groove_test holds it
    }
    ports.groove_mark_d = built.mark_d;
}

void store_groove(port_params& ports, const groove_shape& shape) {
    store_outline(ports, outline_of_groove(shape));
    ports.groove_built = shape;
    ports.has_groove = true;
}

}  // namespace

port_end build_metering_groove(port_work& work) {
    work.ports.has_groove = false;
    reread_design(work.boxes, work.unit, work.design, work.rotors);
    set_path_circles(work);
    set_start_points(work);
    set_tail(work);
    const double gamma = set_nose_line(work);

    groove_shape shape = shape_of(work);
    const port_params& ports = work.ports;
    const auto inner =
        corner_angle(search_end_inner({shape.inner_r, ports.nose_inner_deg, shape.f, gamma}));
    if (!inner) {
        return refuse_length(work, message::metering_port_angle);
    }
    if (*inner < 0.0) {
        return refuse_length(work, message::port_into_inlet);
    }
    const auto outer =
        corner_angle(search_end_outer({shape.outer_r, ports.nose_outer_deg, shape.f, gamma}));
    if (!outer) {
        return refuse_length(work, message::metering_port_angle);
    }
    if (*outer > 180.0) {
        return refuse_length(work, message::port_into_inlet);
    }
    shape.inner =
        corner_at(*inner, shape.inner_r, shape.inner_r + shape.f, shape.f, gamma, shape.shift);
    shape.outer =
        corner_at(*outer, shape.outer_r, shape.outer_r - shape.f, shape.f, gamma, shape.shift);
    if (ports.groove_width_mm / 2.0 == ports.groove_corner_r) {
        shape.outer.s = shape.inner.s;  // the nose is one half circle
    }
    store_groove(work.ports, shape);
    return port_end::finished;
}

}  // namespace kvt
