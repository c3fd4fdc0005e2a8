#include "ports/port_sides.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "ports/corner_search.hpp"
#include "ports/polar.hpp"
#include "ports/port_corners.hpp"
#include "ports/side_lines.hpp"

namespace kvt {

namespace {

bool is_inner(std::size_t index) {
    return index == START_INNER || index == END_INNER;
}

/// Radius of the arc that a corner lies on.
double arc_radius(const port_record& record, std::size_t index) {
    return is_inner(index) ? record.inner_r : record.outer_r;
}

/// Radius of the circle on which the fillet centres of a corner lie.
double centre_radius(const port_fields& port, const port_params& ports, std::size_t index) {
    const double f = ports.port_radius;
    const port_record& record = port.record(ports);
    return is_inner(index) ? f + record.inner_r : record.outer_r - f;
}

double side_angle(const port_params& ports, const corner_fields& corner) {
    return corner.is_end ? ports.side_angle_end : ports.side_angle_start;
}

void store_corner(const port_fields& port, port_work& work, std::size_t index, double t_deg) {
    port_params& ports = work.ports;
    port_record& record = port.record(ports);
    const double shift = is_inner(index) ? 0.0 : work.design.ecc;
    port_corner& corner = record.corners[index];
    corner = corner_at(t_deg, arc_radius(record, index), centre_radius(port, ports, index),
                       ports.port_radius, side_angle(ports, port.corners[index]), shift);
}

corner_search search_of(const port_fields& port, const port_params& ports, std::size_t index) {
    const port_record& record = port.record(ports);
    const corner_input in = {arc_radius(record, index), record.corners[index].angle_deg,
                             ports.port_radius, side_angle(ports, port.corners[index])};
    switch (index) {
        case START_INNER:
            return search_start_inner(in);
        case END_INNER:
            return search_end_inner(in);
        case END_OUTER:
            return search_end_outer(in);
        default:
            return search_start_outer(in);
    }
}

/// Polar angle of the tangent point on the side about the centre of the corner's arc, degrees.
double tangent_angle_deg(const port_fields& port, const port_work& work, std::size_t index) {
    const point2 s = port.record(work.ports).corners[index].s;
    const double angle = atan_deg(s.y, is_inner(index) ? s.x : work.design.ecc + s.x);
    return port.corners[index].is_end && angle < 0.0 ? angle + 180.0 : angle;
}

port_end set_searched_corner(const port_fields& port, port_work& work, std::size_t index) {
    const corner_fields& fields = port.corners[index];
    const std::optional<double> t = corner_angle(search_of(port, work.ports, index));
    if (!t) {
        work.tell(fields.search_failure);
        work.refuse(fields.box, fields.control);
        return port_end::refused;
    }
    if (fields.is_end ? *t > 180.0 : *t < 0.0) {
        work.tell(port.out_of_range);
        return port_end::refused;
    }
    store_corner(port, work, index, *t);
    if (index != START_OUTER || !port.keeps_start_outer_angle) {
        port.record(work.ports).corners[index].angle_deg = tangent_angle_deg(port, work, index);
    }
    return port_end::finished;
}

/// Both corners of a side, the inner one first: on the x axis when both angle texts say so, else by
/// search.
port_end set_corners(const port_fields& port, port_work& work, std::size_t inner, std::size_t outer,
                     double axis_deg) {
    const bool on_axis = val(work.boxes.*port.corners[inner].box) == axis_deg &&
                         val(work.boxes.*port.corners[outer].box) == axis_deg;
    if (!on_axis) {
        const port_end end = set_searched_corner(port, work, inner);
        return end == port_end::refused ? end : set_searched_corner(port, work, outer);
    }
    for (const std::size_t index : {inner, outer}) {
        port.record(work.ports).corners[index].angle_deg = 0.0;
        const double t =
            axis_corner_angle(work.ports.port_radius, centre_radius(port, work.ports, index));
        store_corner(port, work, index, port.corners[index].is_end ? 180.0 - t : t);
    }
    return port_end::finished;
}

}  // namespace

void set_side_lines(const port_fields& port, const design_params& design, port_params& ports) {
    port_record& record = port.record(ports);
    auto& corners = record.corners;
    for (std::size_t index = 0; index < corners.size(); ++index) {
        const double shift = is_inner(index) ? 0.0 : design.ecc;
        corners[index].p = on_circle(arc_radius(record, index), corners[index].angle_deg, shift);
    }
    ports.side_angle_start = start_side_angle(corners[START_INNER].p, corners[START_OUTER].p);
    ports.side_angle_end = end_side_angle(corners[END_INNER].p, corners[END_OUTER].p);
}

port_end set_start_corners(const port_fields& port, port_work& work) {
    return set_corners(port, work, START_INNER, START_OUTER, 0.0);
}

port_end set_end_corners(const port_fields& port, port_work& work) {
    return set_corners(port, work, END_INNER, END_OUTER, 180.0);
}

bool start_fillets_cross(const port_fields& port, const port_params& ports) {
    const port_record& record = port.record(ports);
    const point2 c1 = record.corners[START_INNER].c;
    const point2 c4 = record.corners[START_OUTER].c;
    return ports.side_angle_start >= 0.0 ? c1.x > c4.x : c1.y > c4.y;
}

}  // namespace kvt
