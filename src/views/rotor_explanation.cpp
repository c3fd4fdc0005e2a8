#include "views/rotor_explanation.hpp"

#include "base/constants.hpp"
#include "geometry/outer_flank.hpp"
#include "views/explanation_parts.hpp"

#include <cmath>
#include <string>
#include <utility>

namespace kvt {

namespace {

constexpr double DEGREES_PER_RADIAN = 180.0 / PI_L;
constexpr std::string_view FORM = "Form1";

std::vector<point2> closed(std::vector<point2> points) {
    points.push_back(points.front());
    return points;
}

/// Draws one pair. Its measure is the hundredth of the outside diameter, so that all designs fill
/// the picture alike.
class rotor_drawing {
  public:
    rotor_drawing(const design_params& design, const rotor_profiles& rotors)
        : design_(design),
          rotors_(rotors),
          outer_{-design.ecc, 0.0},
          unit_(design.maxdiameter / 100.0),
          radius_(design.maxdiameter / 2.0),
          bore_(radius_ + design.radial_clear),
          pitch_(360.0 / design.numlobes),
          inner_(listed_points(rotors.inner_x, rotors.inner_y,
                               static_cast<std::size_t>(PROFILE_POINTS) - 1)) {}

    explanation pair_and_side_view() {
        show(at(-116.0, -78.0), at(172.0, 74.0));
        add_pair();
        add_side_view();
        name_pair();
        return std::move(drawing_);
    }

    explanation pair() {
        show(at(-63.0, -70.0), at(63.0, 62.0));
        add_pair();
        name_pair();
        return std::move(drawing_);
    }

    explanation side_view() {
        const point2 corner = at(152.0, 68.0);
        show(at(108.0, -70.0), {corner.x + design_.thick + design_.axial_clear, corner.y});
        add_side_view();
        return std::move(drawing_);
    }

  private:
    /// A place about the outer rotor axis, in units.
    point2 at(double x, double y) const { return {outer_.x + x * unit_, y * unit_}; }

    /// What the picture shows, from its lower left corner to its upper right one.
    void show(const point2& lower_left, const point2& upper_right) {
        drawing_.left = lower_left.x;
        drawing_.right = upper_right.x;
        drawing_.bottom = lower_left.y;
        drawing_.top = upper_right.y;
    }

    point2 lobe_centre(double degrees) const {
        return point_at(outer_, lobe_centre_radius(design_, rotors_), lobe_near(degrees));
    }
    /// The angle of the lobe, and of the gap between two lobes, nearest to an angle.
    double lobe_near(double degrees) const { return std::round(degrees / pitch_) * pitch_; }
    double gap_near(double degrees) const { return (std::floor(degrees / pitch_) + 0.5) * pitch_; }

    /// The point of the inner rotor's root nearest to an angle, on the profile.
    point2 inner_root(double degrees) const {
        const double inner_pitch = 360.0 / (design_.numlobes - 1);
        const point2 direction = point_at({0.0, 0.0}, design_.radinnroot,
                                          std::round(degrees / inner_pitch) * inner_pitch);
        return inner_point_nearest(direction);
    }
    point2 inner_point_nearest(const point2& place) const {
        point2 nearest = inner_.front();
        for (const point2& point : inner_) {
            if (distance_between(point, place) < distance_between(nearest, place)) {
                nearest = point;
            }
        }
        return nearest;
    }

    void add(outline_style style, std::vector<point2> points) {
        drawing_.outlines.push_back({style, std::move(points), style != outline_style::axis});
    }
    explained_parameter& name(std::string_view label, double x, double y, text_side side) {
        return add_name(drawing_, FORM, label, at(x, y), side);
    }
    explained_parameter& name_left(std::string_view label, double y) {
        return name(label, -62.0, y, text_side::left_of);
    }
    explained_parameter& name_right(std::string_view label, double y) {
        return name(label, 62.0, y, text_side::right_of);
    }

    void add_pair() {
        add(outline_style::housing, circle_points(outer_, bore_ + 4.0 * unit_));
        add(outline_style::space, circle_points(outer_, bore_));
        add(outline_style::body, circle_points(outer_, radius_));
        add(outline_style::space,
            closed(listed_points(rotors_.outer_x, rotors_.outer_y,
                                 static_cast<std::size_t>(rotors_.outer_last))));
        add(outline_style::body, closed(inner_));
        add(outline_style::shaft, circle_points({0.0, 0.0}, design_.shaftdiameter / 2.0));
        add(outline_style::axis, {at(-58.0, 0.0), at(58.0, 0.0)});
        add(outline_style::axis, {at(0.0, -58.0), at(0.0, 58.0)});
        add(outline_style::axis, {{0.0, -13.0 * unit_}, {0.0, 13.0 * unit_}});
    }

    /// The pair from the side in its housing: against the left face, the axial clearance at the
    /// right.
    void add_side_view() {
        const double left = at(130.0, 0.0).x;
        const double face = left + design_.thick;
        const double wall = face + design_.axial_clear;
        const double edge = 7.0 * unit_;
        const double shaft = design_.shaftdiameter / 2.0;
        add(outline_style::housing,
            rectangle_points({left - edge, -bore_ - edge}, {wall + edge, bore_ + edge}));
        add(outline_style::space, rectangle_points({left, -bore_}, {wall, bore_}));
        add(outline_style::body, rectangle_points({left, -radius_}, {face, radius_}));
        add(outline_style::shaft,
            rectangle_points({left - 2.0 * edge, -shaft}, {wall + 2.0 * edge, shaft}));
        add(outline_style::axis, {{left - 3.0 * edge, 0.0}, {wall + 3.0 * edge, 0.0}});
        name_thickness(left, face);
        name_axial_clearance(face, wall);
    }
    void name_thickness(double left, double face) {
        const double y = -67.0 * unit_;
        explained_parameter& parameter = add_name(
            drawing_, FORM, "Label8", {(left + face) / 2.0, y - 5.0 * unit_}, text_side::centred);
        parameter.lines = {{{left, y}, {face, y}, true, true}};
        parameter.extensions = {{{left, -radius_}, {left, y - 2.0 * unit_}},
                                {{face, -radius_}, {face, y - 2.0 * unit_}}};
    }
    void name_axial_clearance(double face, double wall) {
        const double y = 64.0 * unit_;
        explained_parameter& parameter =
            add_name(drawing_, FORM, "Label15", {face - design_.thick / 2.0, y + 6.0 * unit_},
                     text_side::centred);
        parameter.lines = arrows_around({face, y}, {wall, y}, 7.0 * unit_);
        parameter.extensions = {{{face, radius_}, {face, y + 2.0 * unit_}},
                                {{wall, bore_}, {wall, y + 2.0 * unit_}}};
    }

    void name_pair() {
        name_lobes();
        name_materials();
        name_outer_rotor();
        name_inner_rotor();
        name_clearances();
        name_sizes();
    }
    void name_lobes() {
        const double radius = (lobe_centre_radius(design_, rotors_) + radius_) / 2.0;
        for (int lobe = 1; lobe <= design_.numlobes; ++lobe) {
            drawing_.marks.push_back(
                {point_at(outer_, radius, pitch_ * lobe), std::to_string(lobe)});
        }
        explained_parameter& parameter = name_left("Label7", 54.0);
        const point2 number = point_at(outer_, radius, lobe_near(120.0));
        parameter.leader = {parameter.text_at, {number.x - 2.5 * unit_, number.y + 2.0 * unit_}};
    }

    void name_materials() {
        const double gap = gap_near(150.0);
        const measured_line outside{point_at(outer_, design_.outer_root, gap),
                                    point_at(outer_, radius_, gap), true, true};
        const point2 root = inner_root(gap);
        const double direction = std::atan2(root.y, root.x) * DEGREES_PER_RADIAN;
        const measured_line inside{point_at({0.0, 0.0}, design_.shaftdiameter / 2.0, direction),
                                   root, true, true};
        explained_parameter& parameter = name_left("Label12", 30.0);
        parameter.lines = {outside, inside};
        parameter.leader = {parameter.text_at, halfway(outside.from, outside.to),
                            halfway(inside.from, inside.to)};
    }

    void name_outer_rotor() {
        const double lobe = lobe_near(60.0);
        const point2 centre = lobe_centre(60.0);
        explained_parameter& lobe_radius = name_right("Label5", 52.0);
        lobe_radius.lines = {{centre, point_at(centre, design_.radouter, lobe + 180.0)}};
        lobe_radius.leader = {lobe_radius.text_at, centre};

        const point2 root = point_at(outer_, design_.outer_root, gap_near(30.0));
        explained_parameter& root_radius = name_right("Label20", 30.0);
        root_radius.lines = {{outer_, root}};
        root_radius.leader = {root_radius.text_at, root};

        if (design_.fillet <= 0.0) {
            return;
        }
        explained_parameter& fillet = name_left("Label6", -24.0);
        fillet.leader = {fillet.text_at, middle_of_fillet(lobe_near(180.0))};
        fillet.leader_has_arrow = true;
    }
    /// The middle of the fillet arc on the counter-clockwise flank of a lobe.
    point2 middle_of_fillet(double lobe) const {
        const outer_flank flank = flank_of_lobe(design_, rotors_);
        const double root_end = lobe + flank.alpha * DEGREES_PER_RADIAN;
        const point2 centre = point_at(outer_, design_.outer_root - design_.fillet, root_end);
        const point2 root = point_at(outer_, design_.outer_root, root_end);
        const point2 tangent =
            point_at(outer_, flank.tangent_radius, lobe + flank.beta * DEGREES_PER_RADIAN);
        const point2 middle = halfway(root, tangent);
        const double direction =
            std::atan2(middle.y - centre.y, middle.x - centre.x) * DEGREES_PER_RADIAN;
        return point_at(centre, design_.fillet, direction);
    }

    void name_inner_rotor() {
        const point2 root = inner_root(290.0);
        explained_parameter& root_radius = name_right("Label10", -36.0);
        root_radius.lines = {{{0.0, 0.0}, root}};
        root_radius.leader = {root_radius.text_at, root};

        const double y = 16.0 * unit_;
        explained_parameter& eccentricity = name_right("Label3", 12.0);
        eccentricity.lines = arrows_around({outer_.x, y}, {0.0, y}, 7.0 * unit_);
        eccentricity.extensions = {{outer_, {outer_.x, y + 2.0 * unit_}},
                                   {{0.0, 0.0}, {0.0, y + 2.0 * unit_}}};
        eccentricity.leader = {eccentricity.text_at, eccentricity.lines.back().from};

        const point2 near = point_at({0.0, 0.0}, design_.shaftdiameter / 2.0, 220.0);
        explained_parameter& shaft = name_left("Label2", -50.0);
        shaft.lines = {{point_at({0.0, 0.0}, design_.shaftdiameter / 2.0, 40.0), near, true, true}};
        shaft.leader = {shaft.text_at, near};
    }

    void name_clearances() {
        const double lobe = lobe_near(180.0);
        const point2 lobe_tip = point_at(lobe_centre(180.0), design_.radouter, lobe + 180.0);
        explained_parameter& tip = name_left("Label4", 3.0);
        tip.lines = arrows_around(lobe_tip, inner_point_nearest(lobe_centre(180.0)), 7.0 * unit_);
        tip.leader = {tip.text_at, tip.lines.front().from};

        explained_parameter& radial = name_right("Label21", -14.0);
        radial.lines = arrows_around(point_at(outer_, radius_, -15.0),
                                     point_at(outer_, bore_, -15.0), 6.0 * unit_);
        radial.leader = {radial.text_at, radial.lines.back().from};
    }

    void name_sizes() {
        const double y = -67.0 * unit_;
        explained_parameter& diameter = name("Label9", 0.0, -72.0, text_side::centred);
        const point2 left{outer_.x - radius_, y};
        const point2 right{outer_.x + radius_, y};
        diameter.lines = {{left, right, true, true}};
        diameter.extensions = {{{left.x, 0.0}, {left.x, y - 2.0 * unit_}},
                               {{right.x, 0.0}, {right.x, y - 2.0 * unit_}}};
    }

    const design_params& design_;
    const rotor_profiles& rotors_;
    const point2 outer_;
    const double unit_, radius_, bore_, pitch_;
    const std::vector<point2> inner_;
    explanation drawing_;
};

}  // namespace

explanation explain_rotors(const design_params& design, const rotor_profiles& rotors) {
    return rotor_drawing(design, rotors).pair_and_side_view();
}

explanation explain_pair(const design_params& design, const rotor_profiles& rotors) {
    return rotor_drawing(design, rotors).pair();
}

explanation explain_side_view(const design_params& design, const rotor_profiles& rotors) {
    return rotor_drawing(design, rotors).side_view();
}

}  // namespace kvt
