#include "output/cnc/port_gcode.hpp"

#include "base/run_time_error.hpp"
#include "ports/port_fields.hpp"

namespace kvt {

namespace {

/// The points of a port as its outline has them: the inlet below the x axis, the shadow on the
/// other side of the y axis.
class port_points {
  public:
    port_points(const port_shape& built, bool mirrored, bool shadow)
        : built_(built), x_sign_(shadow ? -1.0 : 1.0), y_sign_(mirrored ? -1.0 : 1.0) {}

    point2 on_side(std::size_t corner) const { return placed(built_.corners[corner].s); }
    point2 on_arc(std::size_t corner) const { return placed(built_.corners[corner].r); }
    point2 fillet_centre(std::size_t corner) const { return placed(built_.corners[corner].c); }
    point2 outer_centre() const { return placed({-built_.e, 0.0}); }
    /// One mirror turns the sense of the outline round, the second one turns it back.
    bool clockwise() const { return x_sign_ * y_sign_ > 0.0; }

  private:
    point2 placed(point2 point) const { return {x_sign_ * point.x, y_sign_ * point.y}; }

    const port_shape& built_;
    double x_sign_, y_sign_;
};

}  // namespace

tool_contour port_moves(const port_params& ports, port_side side, bool shadow) {
    const port_shape& built = ports.of(side).built;
    const port_points port(built, fields_of(side).mirrored, shadow);
    const move_kind convex =
        port.clockwise() ? move_kind::clockwise_g02 : move_kind::counterclockwise_g03;
    const move_kind inner =
        port.clockwise() ? move_kind::counterclockwise_g03 : move_kind::clockwise_g02;
    tool_contour contour{port.on_side(START_INNER), {}};
    const auto line = [&](point2 end) { contour.moves.push_back({move_kind::line_g01, end}); };
    const auto fillet = [&](point2 end) {
        if (built.f != 0.0) {
            contour.moves.push_back({convex, end, built.f});
        }
    };
    fillet(port.on_arc(START_INNER));
    contour.moves.push_back({inner, port.on_arc(END_INNER), built.R});
    fillet(port.on_side(END_INNER));
    line(port.on_side(END_OUTER));
    fillet(port.on_arc(END_OUTER));
    contour.moves.push_back({convex, port.on_arc(START_OUTER), built.Q});
    fillet(port.on_side(START_OUTER));
    line(port.on_side(START_INNER));
    return contour;
}

tool_contour groove_moves(const port_params& ports) {
    if (ports.groove_last == 0) {
        throw run_time_error(failure::subscript_out_of_range, "no metering groove");
    }
    const groove_shape& built = ports.groove_built;
    tool_contour contour{built.a, {}};
    const auto arc = [&](move_kind kind, point2 end, double radius) {
        contour.moves.push_back({kind, end, radius});
    };
    const auto line = [&](point2 end) { contour.moves.push_back({move_kind::line_g01, end}); };
    const auto fillet = [&](point2 end) {
        if (built.f != 0.0) {
            arc(move_kind::clockwise_g02, end, built.f);
        }
    };
    arc(move_kind::counterclockwise_g03, built.inner.r, built.inner_r);
    fillet(built.inner.s);
    if (built.inner.s != built.outer.s) {
        line(built.outer.s);
    }
    fillet(built.outer.r);
    arc(move_kind::clockwise_g02, built.b, built.outer_r);
    arc(move_kind::clockwise_g02, built.tail_outer, built.outer_r);
    line(built.tail_inner);
    arc(move_kind::counterclockwise_g03, built.a, built.inner_r);
    return contour;
}

std::vector<circle> port_circles(const port_params& ports, port_side side, bool shadow) {
    const port_shape& built = ports.of(side).built;
    const port_points port(built, fields_of(side).mirrored, shadow);
    std::vector<circle> circles{{{}, built.R}, {port.outer_centre(), built.Q}};
    for (const std::size_t corner : {START_INNER, END_INNER, END_OUTER, START_OUTER}) {
        circles.push_back({port.fillet_centre(corner), built.f});
    }
    return circles;
}

std::vector<circle> groove_circles(const port_params& ports) {
    const groove_shape& built = ports.groove_built;
    const point2 centre = {-built.shift, 0.0};
    return {{centre, built.inner_r},
            {centre, built.outer_r},
            {built.inner.c, built.f},
            {built.outer.c, built.f}};
}

}  // namespace kvt
