#include "output/cnc/port_gcode.hpp"

#include "base/checked_math.hpp"
#include "ports/port_fields.hpp"
#include "ports/side_lines.hpp"

#include <cmath>

namespace kvt {

namespace {

/// How far a point of the outer path may lie from its circle, mm: rounding only.
constexpr double ON_CIRCLE_MM = 1e-9;

/// The points of a port as its outline has them: the inlet below the x axis, the shadow on the
/// other side of the y axis.
class port_points {
  public:
    port_points(const port_params& ports, port_side side, bool shadow)
        : ports_(ports),
          fields_(side == port_side::inlet ? inlet_fields() : outlet_fields()),
          x_sign_(shadow ? -1.0 : 1.0),
          y_sign_(fields_.mirrored ? -1.0 : 1.0) {}

    point2 on_side(std::size_t corner) const {
        return placed(fields_.corners[corner].s.get(ports_));
    }
    point2 on_arc(std::size_t corner) const {
        return placed(fields_.corners[corner].r.get(ports_));
    }
    double inner_r() const { return ports_.*fields_.inner_r; }
    double outer_r() const { return ports_.*fields_.outer_r; }
    /// One mirror turns the sense of the outline round, the second one turns it back.
    bool clockwise() const { return x_sign_ * y_sign_ > 0.0; }

  private:
    point2 placed(point2 point) const { return {x_sign_ * point.x, y_sign_ * point.y}; }

    const port_params& ports_;
    const port_fields& fields_;
    double x_sign_, y_sign_;
};

/// What the outline of the groove has where: indexes of its points.
struct groove_indexes {
    std::int64_t inner_end = 0;    ///< end of the inner path
    std::int64_t inner_line = 0;   ///< end of the inner fillet
    std::int64_t outer_line = 0;   ///< end of the nose line; inner_line without one
    std::int64_t outer_start = 0;  ///< end of the outer fillet
};

point2 groove_point(const port_params& ports, std::int64_t index) {
    return {checked_at(ports.groove_x, index), checked_at(ports.groove_y, index)};
}

/// The index nearest to a point, between two ends of the list.
std::int64_t nearest_index(const port_params& ports, point2 point, std::int64_t first,
                           std::int64_t last) {
    std::int64_t nearest = first;
    for (std::int64_t i = first; i <= last; ++i) {
        if (distance(groove_point(ports, i), point) <
            distance(groove_point(ports, nearest), point)) {
            nearest = i;
        }
    }
    return nearest;
}

/// Where the inner fillet touches the nose: (Cx + f cos gamma, Cy - f sin gamma), C its centre
/// outside the inner path.
point2 inner_line_tangent(const port_params& ports, point2 centre, std::int64_t inner_end) {
    const point2 end = groove_point(ports, inner_end);
    const double f = ports.groove_corner_r;
    const double scale = checked_divide(ports.groove_inner_r + f, ports.groove_inner_r);
    const point2 c = {centre.x + (end.x - centre.x) * scale, centre.y + (end.y - centre.y) * scale};
    const double gamma =
        nose_angle({ports.groove_n1_x, ports.groove_n1_y}, {ports.groove_n2_x, ports.groove_n2_y});
    return {c.x + f * std::cos(gamma), c.y - f * std::sin(gamma)};
}

/// The first point behind `from` on the outer path.
std::int64_t outer_path_start(const port_params& ports, point2 centre, std::int64_t from) {
    std::int64_t i = from;
    while (i < ports.groove_main_last && std::abs(distance(groove_point(ports, i), centre) -
                                                  ports.groove_outer_r) > ON_CIRCLE_MM) {
        ++i;
    }
    return i;
}

groove_indexes indexes_of_groove(const port_params& ports, point2 centre) {
    groove_indexes at;
    at.inner_end = ports.groove_mark_b;
    const bool nose_line = ports.groove_width_mm / 2.0 != ports.groove_corner_r;
    if (nose_line) {
        at.inner_line = ports.groove_mark_c - 1;
        at.outer_line = ports.groove_mark_c;
    } else {
        at.inner_line = nearest_index(ports, inner_line_tangent(ports, centre, at.inner_end),
                                      at.inner_end, ports.groove_main_last);
        at.outer_line = at.inner_line;
    }
    const bool filleted = ports.groove_corner_r != 0.0;
    at.outer_start = filleted ? outer_path_start(ports, centre, at.outer_line + 1) : at.outer_line;
    return at;
}

}  // namespace

tool_contour port_moves(const port_params& ports, port_side side, bool shadow) {
    const port_points port(ports, side, shadow);
    const move_kind convex =
        port.clockwise() ? move_kind::clockwise_g02 : move_kind::counterclockwise_g03;
    const move_kind inner =
        port.clockwise() ? move_kind::counterclockwise_g03 : move_kind::clockwise_g02;
    tool_contour contour{port.on_side(START_INNER), {}};
    const auto line = [&](point2 end) { contour.moves.push_back({move_kind::line_g01, end}); };
    const auto fillet = [&](point2 end) {
        if (ports.port_radius != 0.0) {
            contour.moves.push_back({convex, end, ports.port_radius});
        }
    };
    fillet(port.on_arc(START_INNER));
    contour.moves.push_back({inner, port.on_arc(END_INNER), port.inner_r()});
    fillet(port.on_side(END_INNER));
    line(port.on_side(END_OUTER));
    fillet(port.on_arc(END_OUTER));
    contour.moves.push_back({convex, port.on_arc(START_OUTER), port.outer_r()});
    fillet(port.on_side(START_OUTER));
    line(port.on_side(START_INNER));
    return contour;
}

tool_contour groove_moves(const port_params& ports, const design_params& design) {
    if (ports.groove_last == 0) {
        throw run_time_error(failure::subscript_out_of_range, "no metering groove");
    }
    const groove_indexes at = indexes_of_groove(ports, {-design.ecc / 2.0, 0.0});
    tool_contour contour{groove_point(ports, 0), {}};
    const auto arc = [&](move_kind kind, std::int64_t end, double radius) {
        contour.moves.push_back({kind, groove_point(ports, end), radius});
    };
    const auto line = [&](std::int64_t end) {
        contour.moves.push_back({move_kind::line_g01, groove_point(ports, end)});
    };
    const auto fillet = [&](std::int64_t end) {
        if (ports.groove_corner_r != 0.0) {
            arc(move_kind::clockwise_g02, end, ports.groove_corner_r);
        }
    };
    arc(move_kind::counterclockwise_g03, at.inner_end, ports.groove_inner_r);
    fillet(at.inner_line);
    if (at.outer_line != at.inner_line) {
        line(at.outer_line);
    }
    fillet(at.outer_start);
    arc(move_kind::clockwise_g02, ports.groove_main_last, ports.groove_outer_r);
    arc(move_kind::clockwise_g02, ports.groove_mark_d, ports.groove_outer_r);
    line(ports.groove_mark_a);
    arc(move_kind::counterclockwise_g03, ports.groove_last, ports.groove_inner_r);
    return contour;
}

}  // namespace kvt
