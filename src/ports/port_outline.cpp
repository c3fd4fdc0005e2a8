#include "ports/port_outline.hpp"

#include "base/number_text.hpp"
#include "ports/polar.hpp"
#include "ports/port_fields.hpp"

namespace kvt {

namespace {

class port_outline_steps {
  public:
    explicit port_outline_steps(const port_shape& port)
        : port_(port),
          filleted_(val(str(port.f)) != 0.0),
          start_base_(degrees_of(port.side_angle_start)) {}

    port_outline run() {
        points().add(corner(START_INNER).s);
        result_.marks[0] = points().last();
        if (filleted_) {
            start_inner_fillet();
        }
        inner_arc();
        if (filleted_) {
            end_inner_fillet();
        }
        end_side();
        if (filleted_) {
            end_outer_fillet();
        }
        outer_arc();
        if (filleted_) {
            start_outer_fillet();
        }
        start_side();
        return result_;
    }

  private:
    outline_points& points() { return result_.outline; }
    const port_corner& corner(std::size_t index) const { return port_.corners[index]; }

    double inner_sweep(const port_corner& at) const {
        return fillet_angle_deg(port_.f, port_.f + port_.R, distance_squared(at.s, 0.0));
    }
    double outer_sweep(const port_corner& at) const {
        return 180.0 -
               fillet_angle_deg(port_.f, port_.Q - port_.f, distance_squared(at.s, port_.e));
    }

    void start_inner_fillet() {
        const port_corner& at = corner(START_INNER);
        points().add_fillet(at.c, port_.f, start_base_, inner_sweep(at));
        points().add(at.r);
    }

    void inner_arc() {
        const port_corner& from = corner(START_INNER);
        const port_corner& to = corner(END_INNER);
        points().add_arc(port_.R, 0.0, from.t_deg, to.t_deg - from.t_deg, 1);
        points().add(to.r);
        result_.marks[1] = points().last();
    }

    void end_inner_fillet() {
        const port_corner& at = corner(END_INNER);
        points().add_fillet(at.c, port_.f, base_after_inner_arc(at), inner_sweep(at));
        points().add(at.s);
    }

    void end_side() {
        points().add_side(corner(END_INNER).s, corner(END_OUTER).s);
        points().add(corner(END_OUTER).s);
        result_.marks[2] = points().last();
    }

    void end_outer_fillet() {
        const port_corner& at = corner(END_OUTER);
        points().add_fillet(at.c, port_.f, base_before_outer_arc(at), outer_sweep(at));
        points().add(at.r);
    }

    void outer_arc() {
        const port_corner& from = corner(END_OUTER);
        const port_corner& to = corner(START_OUTER);
        points().add_arc(port_.Q, port_.e, from.t_deg, from.t_deg - to.t_deg, -1);
        points().add(to.r);
        result_.marks[3] = points().last();
    }

    void start_outer_fillet() {
        const port_corner& at = corner(START_OUTER);
        const double sweep = outer_sweep(at);
        points().add_fillet(at.c, port_.f, start_base_ - sweep, sweep);
        points().add(at.s);
    }

    void start_side() {
        points().add_side(corner(START_OUTER).s, corner(START_INNER).s);
        points().add(corner(START_INNER).s);
    }

    const port_shape& port_;
    bool filleted_;
    double start_base_;
    port_outline result_;
};

}  // namespace

port_outline outline_of_port(const port_shape& port) {
    return port_outline_steps(port).run();
}

}  // namespace kvt
