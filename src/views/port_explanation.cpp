#include "views/port_explanation.hpp"

#include "base/constants.hpp"
#include "views/explanation_parts.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kvt {

namespace {

constexpr double DEGREES_PER_RADIAN = 180.0 / PI_L;
constexpr std::string_view FORM = "portdes";

double direction(const point2& from, const point2& to) {
    return std::atan2(to.y - from.y, to.x - from.x) * DEGREES_PER_RADIAN;
}

/// One port as the drawing needs it: its corners without fillets where they lie, and the labels of
/// its entries.
struct explained_port {
    point2 start_inner, start_outer, end_inner, end_outer;
    double inner_r = 0.0, outer_r = 0.0;
    double up = 1.0;  ///< 1 for the outlet above the axis, -1 for the inlet below it
    std::string_view frame, label_start_inner, label_start_outer, label_end_inner, label_end_outer;
    std::string_view label_inner_r, label_outer_r;
};

explained_port inlet_of(const port_params& ports) {
    return {mirrored(ports.inlet.corners[START_INNER].p),
            mirrored(ports.inlet.corners[START_OUTER].p),
            mirrored(ports.inlet.corners[END_INNER].p),
            mirrored(ports.inlet.corners[END_OUTER].p),
            ports.inlet.inner_r,
            ports.inlet.outer_r,
            -1.0,
            "Frame2",
            "Label2",
            "Label3",
            "Label4",
            "Label5",
            "Label13",
            "Label14"};
}

explained_port outlet_of(const port_params& ports) {
    return {ports.outlet.corners[START_INNER].p,
            ports.outlet.corners[START_OUTER].p,
            ports.outlet.corners[END_INNER].p,
            ports.outlet.corners[END_OUTER].p,
            ports.outlet.inner_r,
            ports.outlet.outer_r,
            1.0,
            "Frame3",
            "Label9",
            "Label8",
            "Label7",
            "Label6",
            "Label15",
            "Label16"};
}

/// Draws both ports. The measure is the hundredth of the outside diameter, as in the rotors'
/// drawing.
class port_drawing {
  public:
    port_drawing(const design_params& design, const rotor_profiles& rotors,
                 const port_params& ports)
        : rotors_(rotors),
          ports_(ports),
          outer_{-design.ecc, 0.0},
          groove_centre_{-design.ecc / 2.0, 0.0},
          unit_(design.maxdiameter / 100.0) {}

    explanation with_section() {
        drawing_.left = at(-116.0, 0.0).x;
        drawing_.right = at(172.0, 0.0).x;
        drawing_.bottom = -66.0 * unit_;
        drawing_.top = 66.0 * unit_;
        add_outlines({true, true, true});
        name_all(outlet_of(ports_));
        name_all(inlet_of(ports_));
        name_corner();
        name_groove();
        add_section();
        return std::move(drawing_);
    }

    explanation face(const drawn_ports& drawn) {
        drawing_.left = at(-66.0, 0.0).x;
        drawing_.right = at(66.0, 0.0).x;
        drawing_.bottom = -66.0 * unit_;
        drawing_.top = 66.0 * unit_;
        add_outlines(drawn);
        if (drawn.outlet) {
            name_all(outlet_of(ports_));
        }
        if (drawn.inlet) {
            name_all(inlet_of(ports_));
        }
        if (drawn.outlet && ports_.outlet.built.f > 0.0) {
            name_corner();
        }
        if (drawn.groove) {
            name_groove();
        }
        return std::move(drawing_);
    }

  private:
    point2 at(double x, double y) const { return {outer_.x + x * unit_, y * unit_}; }

    void add(outline_style style, std::vector<point2> points, bool is_filled) {
        drawing_.outlines.push_back({style, std::move(points), is_filled});
    }
    explained_parameter& name(std::string_view label, const point2& place, text_side side) {
        return add_name(drawing_, FORM, label, place, side);
    }
    explained_parameter& name_left(std::string_view label, double y) {
        return name(label, at(-62.0, y), text_side::left_of);
    }
    explained_parameter& name_right(std::string_view label, double y) {
        return name(label, at(62.0, y), text_side::right_of);
    }

    void name_all(const explained_port& port) {
        name_port(port);
        name_inner_angles(port);
        name_outer_angles(port);
        name_radii(port);
    }

    void add_outlines(const drawn_ports& drawn) {
        const auto last = [](std::int16_t index) { return static_cast<std::size_t>(index); };
        add(outline_style::background,
            listed_points(rotors_.outer_x, rotors_.outer_y, last(rotors_.outer_last)), false);
        add(outline_style::background,
            listed_points(rotors_.inner_x, rotors_.inner_y,
                          static_cast<std::size_t>(PROFILE_POINTS) - 1),
            false);
        if (drawn.groove) {
            add(outline_style::groove,
                listed_points(ports_.groove_x, ports_.groove_y, last(ports_.groove_main_last)),
                true);
        }
        if (drawn.inlet) {
            add(outline_style::inlet,
                listed_points(ports_.inlet.x, ports_.inlet.y, last(ports_.inlet.last)), true);
        }
        if (drawn.outlet) {
            add(outline_style::outlet,
                listed_points(ports_.outlet.x, ports_.outlet.y, last(ports_.outlet.last)), true);
        }
        add(outline_style::axis, {at(-60.0, 0.0), at(60.0, 0.0)}, false);
        add(outline_style::axis, {at(0.0, -30.0), at(0.0, 30.0)}, false);
        add(outline_style::axis, {{0.0, -30.0 * unit_}, {0.0, 30.0 * unit_}}, false);
    }

    void name_port(const explained_port& port) {
        const double radius = (port.inner_r + port.outer_r) / 2.0;
        name(port.frame, {outer_.x / 2.0, port.up * radius}, text_side::centred);
    }

    /// The arc from the positive x axis to a corner, counter-clockwise above the axis, and its
    /// mirror below it.
    static measured_arc arc_to(const point2& centre, double radius, const point2& corner,
                               double up) {
        const double degrees = direction(centre, corner);
        return up > 0.0 ? measured_arc{centre, radius, 0.0, degrees}
                        : measured_arc{centre, radius, degrees, 0.0};
    }
    void measure_angle(explained_parameter& parameter, const point2& centre, double radius,
                       const point2& corner, double up) const {
        const double reach = std::max(radius + 3.0 * unit_, distance_between(centre, corner));
        parameter.arcs = {arc_to(centre, radius, corner, up)};
        parameter.extensions = {{centre, point_at(centre, reach, direction(centre, corner))}};
    }

    void name_inner_angles(const explained_port& port) {
        explained_parameter& start = name_right(port.label_start_inner, port.up * 7.0);
        measure_angle(start, {0.0, 0.0}, 0.86 * port.inner_r, port.start_inner, port.up);
        start.leader = {start.text_at, point_at({0.0, 0.0}, 0.86 * port.inner_r,
                                                direction({0.0, 0.0}, port.start_inner) / 2.0)};

        explained_parameter& end = name_left(port.label_end_inner, port.up * 6.0);
        const double radius = 0.6 * port.inner_r;
        measure_angle(end, {0.0, 0.0}, radius, port.end_inner, port.up);
        end.leader = {end.text_at, point_at({0.0, 0.0}, radius,
                                            direction({0.0, 0.0}, port.end_inner) - port.up * 4.0)};
    }

    void name_outer_angles(const explained_port& port) {
        explained_parameter& start = name_right(port.label_start_outer, port.up * 19.0);
        const double start_radius = port.outer_r + 6.0 * unit_;
        measure_angle(start, outer_, start_radius, port.start_outer, port.up);
        start.leader = {start.text_at,
                        point_at(outer_, start_radius, direction(outer_, port.start_outer) * 0.6)};

        explained_parameter& end = name_left(port.label_end_outer, port.up * 34.0);
        const double end_radius = port.outer_r + 12.0 * unit_;
        measure_angle(end, outer_, end_radius, port.end_outer, port.up);
        end.leader = {end.text_at, point_at(outer_, end_radius,
                                            direction(outer_, port.end_outer) - port.up * 3.0)};
    }

    void name_radii(const explained_port& port) {
        explained_parameter& inner = name_right(port.label_inner_r, port.up * 33.0);
        const point2 inner_end = point_at({0.0, 0.0}, port.inner_r, port.up * 68.0);
        inner.lines = {{{0.0, 0.0}, inner_end}};
        inner.leader = {inner.text_at, inner_end};

        explained_parameter& outer = name_right(port.label_outer_r, port.up * 50.0);
        const point2 outer_end = point_at(outer_, port.outer_r, port.up * 52.0);
        outer.lines = {{outer_, outer_end}};
        outer.leader = {outer.text_at, outer_end};
    }

    /// The outlet's corner at the end of its outer radius.
    void name_corner() {
        const point2 centre = ports_.outlet.corners[END_OUTER].c;
        const point2 side = ports_.outlet.corners[END_OUTER].s;
        const point2 arc = ports_.outlet.corners[END_OUTER].r;
        const point2 middle =
            point_at(centre, ports_.port_radius, direction(centre, halfway(side, arc)));
        explained_parameter& parameter = name_left("Label1", 21.0);
        parameter.leader = {parameter.text_at, middle};
        parameter.leader_has_arrow = true;
    }

    void name_groove() {
        explained_parameter& length = name_left("Label10", 13.0);
        const double radius = ports_.groove_outer_r + 3.0 * unit_;
        length.arcs = {
            {groove_centre_, radius, ports_.groove_start_outer_deg, ports_.nose_outer_deg}};
        for (const double degrees : {ports_.groove_start_outer_deg, ports_.nose_outer_deg}) {
            length.extensions.push_back({point_at(groove_centre_, ports_.groove_outer_r, degrees),
                                         point_at(groove_centre_, radius + 2.0 * unit_, degrees)});
        }
        length.leader = {length.text_at,
                         point_at(groove_centre_, radius,
                                  (ports_.groove_start_outer_deg + ports_.nose_outer_deg) / 2.0)};
    }

    /// The groove across its path, four times as large as the rest.
    void add_section() {
        const double scale = 4.0;
        const point2 middle = at(142.0, 0.0);
        const double half = scale * ports_.groove_width_mm / 2.0;
        const double depth = scale * ports_.groove_depth_mm;
        const double face = middle.y + depth / 2.0;
        const double bottom = face - depth;
        const double edge = 8.0 * unit_;
        const point2 left{middle.x - half, face};
        const point2 right{middle.x + half, face};
        add(outline_style::housing,
            {{left.x - edge, face},
             left,
             {left.x, bottom},
             {right.x, bottom},
             right,
             {right.x + edge, face},
             {right.x + edge, bottom - edge},
             {left.x - edge, bottom - edge},
             {left.x - edge, face}},
            true);

        const double above = face + 6.0 * unit_;
        explained_parameter& width =
            name("Label11", {middle.x, above + 5.0 * unit_}, text_side::centred);
        width.lines = {{{left.x, above}, {right.x, above}, true, true}};
        width.extensions = {{left, {left.x, above + 2.0 * unit_}},
                            {right, {right.x, above + 2.0 * unit_}}};

        explained_parameter& deep =
            name("Label12", {middle.x, bottom - edge - 6.0 * unit_}, text_side::centred);
        deep.lines = {{{middle.x, face}, {middle.x, bottom}, true, true}};
        deep.leader = {{middle.x, bottom - edge - 3.0 * unit_}, {middle.x, bottom}};
        name("metering_groove", {middle.x, above + 18.0 * unit_}, text_side::centred);
    }

    const rotor_profiles& rotors_;
    const port_params& ports_;
    const point2 outer_, groove_centre_;
    const double unit_;
    explanation drawing_;
};

}  // namespace

explanation explain_ports(const design_params& design, const rotor_profiles& rotors,
                          const port_params& ports) {
    return port_drawing(design, rotors, ports).with_section();
}

explanation explain_face(const design_params& design, const rotor_profiles& rotors,
                         const port_params& ports, const drawn_ports& drawn) {
    return port_drawing(design, rotors, ports).face(drawn);
}

}  // namespace kvt
