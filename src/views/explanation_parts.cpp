#include "views/explanation_parts.hpp"

#include "base/constants.hpp"

#include <cmath>

namespace kvt {

explained_parameter& add_name(explanation& drawing, std::string_view form, std::string_view label,
                              const point2& at, text_side side) {
    explained_parameter& parameter = drawing.parameters.emplace_back();
    parameter.form = form;
    parameter.label = label;
    parameter.text_at = at;
    parameter.side = side;
    return parameter;
}

point2 point_at(const point2& centre, double radius, double degrees) {
    const double angle = degrees * PI_L / 180.0;
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

point2 halfway(const point2& a, const point2& b) {
    return {(a.x + b.x) / 2.0, (a.y + b.y) / 2.0};
}

double distance_between(const point2& a, const point2& b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

std::vector<point2> circle_points(const point2& centre, double radius) {
    std::vector<point2> points;
    for (int step = 0; step <= 180; ++step) {
        points.push_back(point_at(centre, radius, 2.0 * step));
    }
    return points;
}

std::vector<point2> listed_points(std::span<const double> x, std::span<const double> y,
                                  std::size_t last) {
    std::vector<point2> points;
    for (std::size_t index = 0; index <= last && index < x.size() && index < y.size(); ++index) {
        points.push_back({x[index], y[index]});
    }
    return points;
}

std::vector<point2> closed_outline(std::span<const double> xy) {
    std::vector<point2> points;
    for (std::size_t index = 0; index + 1 < xy.size(); index += 2) {
        points.push_back({xy[index], xy[index + 1]});
    }
    if (!points.empty()) {
        points.push_back(points.front());
    }
    return points;
}

std::vector<point2> rectangle_points(const point2& lower_left, const point2& upper_right) {
    return {lower_left,
            {upper_right.x, lower_left.y},
            upper_right,
            {lower_left.x, upper_right.y},
            lower_left};
}

std::vector<measured_line> arrows_around(const point2& a, const point2& b, double tail) {
    const double length = distance_between(a, b);
    if (length <= 0.0) {
        return {};
    }
    const point2 along{(b.x - a.x) / length * tail, (b.y - a.y) / length * tail};
    return {{{a.x - along.x, a.y - along.y}, a, false, true},
            {{b.x + along.x, b.y + along.y}, b, false, true}};
}

}  // namespace kvt
