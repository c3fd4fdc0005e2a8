#include "views/sight/drawn_dimensions.hpp"

#include "views/explanation_parts.hpp"
#include "views/sight/sight_marks.hpp"
#include "views/sight/sight_scale.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

constexpr double FULL_TURN_DEG = 360.0;
constexpr double UPPER_RIGHT = 50.0, UPPER_LEFT = 130.0, LOWER_LEFT = 225.0, LOWER_RIGHT = 310.0;

constexpr double BEYOND_CIRCLE = 14.0;       ///< from the outside circle to a text, pixels
constexpr double ABOVE_CIRCLE = 5.0;         ///< of the dimension line of the diameter, pixels
constexpr double CROSS = 5.0;                ///< arm of the cross on an axis, pixels
constexpr double TEXT_SHARE = 0.14;          ///< place of the text along the outside diameter
constexpr double ECCENTRICITY_SHARE = 0.62;  ///< height of its line, of the inner root radius

class dimension_writer {
  public:
    dimension_writer(const design_params& design, const pair_turn& turn, const length_unit& unit,
                     std::int16_t language, const view_box& box, const sight_metrics& metrics,
                     sight_drawing& drawing)
        : design_(design),
          turn_(turn),
          unit_(unit),
          language_(language),
          box_(box),
          metrics_(metrics),
          drawing_(drawing),
          outer_axis_{-design.ecc, 0.0} {}

    void run() {
        add_outside_diameter();
        add_outer_root();
        add_lobe();
        add_inner_root();
        if (design_.shaftdiameter > 0.0) {
            add_shaft();
        }
        add_eccentricity();
    }

  private:
    std::string named(const char* sign, double mm) const {
        return sign + length_text(mm, unit_, language_);
    }
    void extend(const point2& from, const point2& to) {
        drawing_.lines.push_back({from, to, sight_ink::extension});
    }
    void write(const point2& middle, const std::string& text) {
        add_text(middle, text, sight_ink::dimension, box_, metrics_, drawing_);
    }
    point2 outside(double degrees) const {
        const double radius = design_.maxdiameter / 2.0;
        const point2 edge = box_.of_pump(point_at(outer_axis_, radius, degrees));
        const point2 along = point_at({0.0, 0.0}, BEYOND_CIRCLE, degrees);
        return {edge.x + along.x, edge.y - along.y};
    }

    void add_outside_diameter() {
        const double radius = design_.maxdiameter / 2.0;
        const point2 left = box_.of_pump({outer_axis_.x - radius, 0.0});
        const point2 right = box_.of_pump({outer_axis_.x + radius, 0.0});
        const double y = box_.of_pump({0.0, radius}).y - ABOVE_CIRCLE;
        extend(left, {left.x, y - ABOVE_CIRCLE});
        extend(right, {right.x, y - ABOVE_CIRCLE});
        add_measured_line({left.x, y}, {right.x, y}, sight_ink::dimension, drawing_);
        write({left.x + (right.x - left.x) * TEXT_SHARE, y + metrics_.height / 2.0 + 2.0},
              named("Ø ", design_.maxdiameter));
    }

    /// A radius: a line from the centre with an arrow at the circle, led on to a text.
    void add_radius(const point2& centre, double radius, double degrees, double text_deg,
                    const std::string& text) {
        const point2 from = box_.of_pump(centre);
        const point2 tip = box_.of_pump(point_at(centre, radius, degrees));
        drawing_.lines.push_back({from, tip, sight_ink::dimension});
        add_arrow(tip, from, sight_ink::dimension, drawing_);
        extend(tip, outside(text_deg));
        write(outside(text_deg), text);
    }

    void add_outer_root() {
        const double pitch = FULL_TURN_DEG / design_.numlobes;
        const double degrees =
            nearest_direction(pitch / 2.0 - turn_.outer_deg, design_.numlobes, UPPER_RIGHT);
        add_radius(outer_axis_, design_.outer_root, degrees, degrees,
                   named("R ", design_.outer_root));
    }

    /// From the lobe's centre inwards, and outwards to the text.
    void add_lobe() {
        const double degrees = nearest_direction(-turn_.outer_deg, design_.numlobes, UPPER_LEFT);
        const double distance = design_.radouter + design_.radinnroot + design_.ecc;
        const point2 centre = point_at(outer_axis_, distance, degrees);
        const point2 from = box_.of_pump(centre);
        const point2 tip =
            box_.of_pump(point_at(outer_axis_, distance - design_.radouter, degrees));
        drawing_.lines.push_back({from, tip, sight_ink::dimension});
        add_arrow(tip, from, sight_ink::dimension, drawing_);
        extend(from, outside(degrees));
        write(outside(degrees), named("R ", design_.radouter));
    }

    void add_inner_root() {
        const int roots = design_.numlobes - 1;
        const double degrees = nearest_direction(-turn_.inner_deg, roots, LOWER_RIGHT);
        add_radius({0.0, 0.0}, design_.radinnroot, degrees, degrees,
                   named("R ", design_.radinnroot));
    }

    void add_shaft() {
        const double radius = design_.shaftdiameter / 2.0;
        drawing_.circles.push_back(
            {box_.of_pump({0.0, 0.0}), box_.pixels_of_mm(radius), false, sight_ink::extension});
        const point2 near = box_.of_pump(point_at({0.0, 0.0}, radius, LOWER_LEFT));
        const point2 far = box_.of_pump(point_at({0.0, 0.0}, radius, LOWER_LEFT - 180.0));
        add_measured_line(near, far, sight_ink::dimension, drawing_);
        extend(near, outside(LOWER_LEFT));
        write(outside(LOWER_LEFT), named("Ø ", design_.shaftdiameter));
    }

    void add_eccentricity() {
        const point2 outer = box_.of_pump(outer_axis_);
        const point2 inner = box_.of_pump({0.0, 0.0});
        add_cross(outer);
        add_cross(inner);
        const double y = box_.of_pump({0.0, design_.radinnroot * ECCENTRICITY_SHARE}).y;
        extend(outer, {outer.x, y - ABOVE_CIRCLE});
        extend(inner, {inner.x, y - ABOVE_CIRCLE});
        add_measured_line({outer.x, y}, {inner.x, y}, sight_ink::dimension, drawing_);
        write({(outer.x + inner.x) / 2.0, y - metrics_.height}, named("e ", design_.ecc));
    }
    void add_cross(const point2& at) {
        drawing_.lines.push_back(
            {{at.x - CROSS, at.y}, {at.x + CROSS, at.y}, sight_ink::dimension});
        drawing_.lines.push_back(
            {{at.x, at.y - CROSS}, {at.x, at.y + CROSS}, sight_ink::dimension});
    }

    const design_params& design_;
    const pair_turn& turn_;
    const length_unit& unit_;
    const std::int16_t language_;
    const view_box& box_;
    const sight_metrics& metrics_;
    sight_drawing& drawing_;
    const point2 outer_axis_;
};

}  // namespace

void add_dimensions(const design_params& design, const pair_turn& turn, const length_unit& unit,
                    std::int16_t language, const view_box& box, const sight_metrics& metrics,
                    sight_drawing& drawing) {
    dimension_writer(design, turn, unit, language, box, metrics, drawing).run();
}

double nearest_direction(double first_deg, int count, double wanted_deg) {
    const double pitch = FULL_TURN_DEG / std::max(count, 1);
    return first_deg + std::round((wanted_deg - first_deg) / pitch) * pitch;
}

}  // namespace kvt
