#include "cad/model_outlines.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "geometry/outer_path.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>

namespace kvt {

namespace {

/// An outline of fewer points encloses nothing.
constexpr std::size_t SMALLEST_OUTLINE = 3;

constexpr double LONG_LINE = 3.0;  // in halves of the mean distance of neighbouring points
constexpr double CORNER_COSINE = 0.98480775301220806;  // of 10 degrees
constexpr std::array<double, 3> CORNER_SHARES = {0.02, 0.1, 0.4};

/// The points 0 .. count - 1 of a flat list x0, y0, x1, y1 ...
std::vector<point2> pairs_of(std::span<const double> numbers, std::int64_t count) {
    std::vector<point2> points;
    for (std::int64_t i = 0; i < count; ++i) {
        points.push_back({checked_at(numbers, 2 * i), checked_at(numbers, 2 * i + 1)});
    }
    return points;
}

/// The points 0 .. count - 1 of two lists.
std::vector<point2> points_of(std::span<const double> x, std::span<const double> y,
                              std::int64_t count) {
    std::vector<point2> points;
    for (std::int64_t i = 0; i < count; ++i) {
        points.push_back({checked_at(x, i), checked_at(y, i)});
    }
    return points;
}

/// What a porting is made from, for the rows of the table.
struct porting {
    const design_params& design;
    const port_params& ports;
    const entries& boxes;

    bool is_double_sided(port_side side) const {
        return is_ticked(side == port_side::inlet ? boxes.inlet_double_sided
                                                  : boxes.outlet_double_sided);
    }
};

std::vector<point2> outline_of(const port_record& port) {
    return points_of(port.x, port.y, port.last);
}

port_body lower_body(const porting& of, port_body_kind kind, port_side side) {
    const double thick = of.design.thick;
    const double depth = of.is_double_sided(side) ? thick / 2.0 : thick;
    return {kind, port_body_place::below, outline_of(of.ports.of(side)), -depth, 0.0};
}

std::optional<port_body> groove_body(const porting& of) {
    if (!is_ticked(of.boxes.metering_groove)) {
        return std::nullopt;
    }
    return port_body{port_body_kind::groove, port_body_place::below,
                     points_of(of.ports.groove_x, of.ports.groove_y, of.ports.groove_last),
                     -of.ports.groove_depth_mm, 0.0};
}

std::optional<port_body> upper_body(const porting& of, port_body_kind kind, port_side side) {
    const bool double_sided = of.is_double_sided(side);
    if (!double_sided && !is_ticked(of.boxes.shadow_ports)) {
        return std::nullopt;
    }
    const double bottom = upper_port_height(of.design);
    const double height = (double_sided ? 0.5 : 0.2) * of.design.thick;
    return port_body{
        kind, double_sided ? port_body_place::above_double_sided : port_body_place::above_shadow,
        outline_of(of.ports.of(side)), bottom, bottom + height};
}

bool turns_sharply(point2 before, point2 at, point2 after) {
    const point2 in = difference(at, before), out = difference(after, at);
    const double lengths = std::hypot(in.x, in.y) * std::hypot(out.x, out.y);
    return in.x * out.x + in.y * out.y < CORNER_COSINE * lengths;
}

point2 between(point2 start, point2 end, double share) {
    return {start.x + share * (end.x - start.x), start.y + share * (end.y - start.y)};
}

/// A closed list by any index, the neighbours of the first and the last point included.
class closed_list {
  public:
    explicit closed_list(std::vector<point2> points) : points_(std::move(points)) {}

    std::size_t size() const { return points_.size(); }
    point2 at(std::size_t i) const { return points_[i % size()]; }
    double length(std::size_t i) const { return distance(at(i), at(i + 1)); }
    bool is_corner(std::size_t i) const {
        return turns_sharply(at(i + size() - 1), at(i), at(i + 1));
    }
    double mean_length() const {
        double whole = 0.0;
        for (std::size_t i = 0; i < size(); ++i) {
            whole += length(i);
        }
        return whole / static_cast<double>(size());
    }

  private:
    std::vector<point2> points_;
};

std::vector<point2> without_repeats(const std::vector<point2>& outline) {
    std::vector<point2> points;
    for (const point2& point : outline) {
        if (points.empty() || point != points.back()) {
            points.push_back(point);
        }
    }
    while (points.size() > 1 && points.back() == points.front()) {
        points.pop_back();
    }
    return points;
}

std::vector<point2> with_long_lines_divided(const closed_list& outline) {
    const double part = 0.5 * outline.mean_length();
    std::vector<point2> points;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const double length = outline.length(i);
        const int parts =
            length > LONG_LINE * part ? static_cast<int>(std::ceil(length / part)) : 1;
        for (int k = 0; k < parts; ++k) {
            points.push_back(between(outline.at(i), outline.at(i + 1), 1.0 * k / parts));
        }
    }
    return points;
}

std::vector<point2> with_points_beside_corners(const closed_list& outline) {
    std::vector<point2> points;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const point2 start = outline.at(i), end = outline.at(i + 1);
        points.push_back(start);
        if (outline.is_corner(i)) {
            for (const double share : CORNER_SHARES) {
                points.push_back(between(start, end, share));
            }
        }
        if (outline.is_corner(i + 1)) {
            for (std::size_t k = CORNER_SHARES.size(); k-- > 0;) {
                points.push_back(between(end, start, CORNER_SHARES[k]));
            }
        }
    }
    return points;
}

}  // namespace

design_params rotor_model_entries(const entries& boxes, const length_unit& unit) {
    design_params design = outer_rotor_entries(boxes, unit.mm);
    design.thick = val(boxes.thick) * unit.mm;
    design.maxdiameter = val(boxes.maxdiameter) * unit.mm;
    return design;
}

std::vector<point2> trochoid_points(const rotor_profiles& rotors) {
    return pairs_of(rotors.troch_xy, static_cast<std::int64_t>(rotors.troch_xy.size() / 2));
}

std::vector<point2> distinct_trochoid_points(const rotor_profiles& rotors) {
    std::vector<point2> points = trochoid_points(rotors);
    if (!points.empty()) {
        points.pop_back();
    }
    return points;
}

std::vector<point2> plotted_inner_points(const rotor_profiles& rotors) {
    const double inner_polyline_count = rotors.inner_plot_len + 1.0 - 2.0;
    return pairs_of(rotors.inner_plot_xy, to_int32(inner_polyline_count / 2.0));
}

std::vector<point2> inner_rotor_points(const rotor_profiles& rotors) {
    return points_of(rotors.inner_x, rotors.inner_y, to_int32(rotors.profile_points));
}

std::vector<point2> outer_rotor_points(const design_params& design) {
    std::vector<point2> points = outer_path_points(outer_rotor_path(design));
    points.resize(points.size() - 2);
    for (point2& point : points) {
        point.x -= design.ecc;
    }
    return points;
}

std::vector<port_body> port_bodies(const design_params& design, const port_params& ports,
                                   const entries& boxes) {
    const porting of{design, ports, boxes};
    std::vector<port_body> bodies;
    const auto add = [&bodies](std::optional<port_body> body) {
        if (body && body->outline.size() >= SMALLEST_OUTLINE) {
            bodies.push_back(*std::move(body));
        }
    };
    add(lower_body(of, port_body_kind::inlet_lower, port_side::inlet));
    add(lower_body(of, port_body_kind::outlet_lower, port_side::outlet));
    add(groove_body(of));
    add(upper_body(of, port_body_kind::outlet_upper, port_side::outlet));
    add(upper_body(of, port_body_kind::inlet_upper, port_side::inlet));
    return bodies;
}

double upper_port_height(const design_params& design) {
    return design.thick + design.axial_clear;
}

std::vector<point2> closed_spline_points(const std::vector<point2>& outline) {
    const closed_list distinct(without_repeats(outline));
    if (distinct.size() < SMALLEST_OUTLINE) {
        return outline;
    }
    return with_points_beside_corners(closed_list(with_long_lines_divided(distinct)));
}

double drawing_length(double mm, const length_unit& unit) {
    return unit.from_mm(mm);
}

std::vector<double> flat_coordinates(const std::vector<point2>& points, double mm_per_unit) {
    std::vector<double> numbers;
    for (const point2& point : points) {
        numbers.push_back(point.x / mm_per_unit);
        numbers.push_back(point.y / mm_per_unit);
    }
    return numbers;
}

}  // namespace kvt
