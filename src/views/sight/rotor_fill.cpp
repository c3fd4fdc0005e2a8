#include "views/sight/rotor_fill.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numbers>

namespace kvt {

namespace {

constexpr double FULL_TURN = 2.0 * std::numbers::pi;
constexpr double SAGITTA = 0.25;  ///< pixels
/// Beyond the box, so that an edge along it is not seen.
constexpr double CLIP_MARGIN = 8.0;

/// Chord c of radius r stands r (1 - cos(step / 2)) off.
int steps_of_arc(double radius, double sweep) {
    const double step =
        radius > SAGITTA ? 2.0 * std::acos(1.0 - SAGITTA / radius) : std::numbers::pi / 2.0;
    return std::max(1, static_cast<int>(std::ceil(sweep / step)));
}

std::vector<point2> points_of(const drawn_arc& arc, const view_box& box) {
    const point2 centre = box.on_box({arc.x, arc.y});
    const double radius = box.pixels(arc.radius);
    const double turn = arc.end_angle - arc.start_angle;
    const double sweep = turn < 0.0 ? turn + FULL_TURN : turn;
    const int steps = steps_of_arc(radius, sweep);
    std::vector<point2> points;
    for (int step = 0; step <= steps; ++step) {
        const double angle = arc.start_angle + sweep * step / steps;
        points.push_back(
            {centre.x + radius * std::cos(angle), centre.y - radius * std::sin(angle)});
    }
    return points;
}

/// The outline whose nearer end is nearest to a point; it is turned so that it begins there.
std::vector<point2> take_next(std::vector<std::vector<point2>>& outlines, const point2& end) {
    double least = std::numeric_limits<double>::infinity();
    std::size_t next = 0;
    bool is_reversed = false;
    for (std::size_t index = 0; index < outlines.size(); ++index) {
        const double to_front = distance(end, outlines[index].front());
        const double to_back = distance(end, outlines[index].back());
        if (std::min(to_front, to_back) < least) {
            least = std::min(to_front, to_back);
            next = index;
            is_reversed = to_back < to_front;
        }
    }
    std::vector<point2> taken = std::move(outlines[next]);
    outlines.erase(outlines.begin() + static_cast<std::ptrdiff_t>(next));
    if (is_reversed) {
        std::ranges::reverse(taken);
    }
    return taken;
}

std::vector<point2> polygon_of(const line_array& array, const view_box& box) {
    std::vector<point2> points;
    for (std::size_t index = array.element0_visible ? 0 : 1; index < array.elements.size();
         ++index) {
        const drawn_line& line = array.elements[index];
        points.push_back(box.on_box({line.x1, line.y1}));
        if (index + 1 == array.elements.size()) {
            points.push_back(box.on_box({line.x2, line.y2}));
        }
    }
    return points;
}

/// Along one axis: what lies on the near side of an edge, as told by `depth` (0 on the edge).
std::vector<point2> clipped_at(const std::vector<point2>& polygon,
                               const std::function<double(const point2&)>& depth) {
    std::vector<point2> kept;
    for (std::size_t index = 0; index < polygon.size(); ++index) {
        const point2& from = polygon[index];
        const point2& to = polygon[(index + 1) % polygon.size()];
        const double at_from = depth(from);
        const double at_to = depth(to);
        if (at_from >= 0.0) {
            kept.push_back(from);
        }
        if ((at_from >= 0.0) != (at_to >= 0.0)) {
            const double share = at_from / (at_from - at_to);
            kept.push_back({from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
        }
    }
    return kept;
}

}  // namespace

std::vector<point2> profile_of_arcs(const std::vector<drawn_arc>& arcs, const view_box& box) {
    std::vector<std::vector<point2>> outlines;
    for (const drawn_arc& arc : arcs) {
        if (arc.radius > 0.0) {
            outlines.push_back(points_of(arc, box));
        }
    }
    std::vector<point2> profile;
    while (!outlines.empty()) {
        const std::vector<point2> next =
            take_next(outlines, profile.empty() ? outlines.front().front() : profile.back());
        profile.insert(profile.end(), next.begin(), next.end());
    }
    return profile;
}

std::vector<point2> clipped_polygon(std::vector<point2> polygon, double lowest, double highest) {
    polygon = clipped_at(polygon, [=](const point2& p) { return p.x - lowest; });
    polygon = clipped_at(polygon, [=](const point2& p) { return highest - p.x; });
    polygon = clipped_at(polygon, [=](const point2& p) { return p.y - lowest; });
    return clipped_at(polygon, [=](const point2& p) { return highest - p.y; });
}

rotor_fill fill_of(const design_view& view, const view_box& box) {
    const auto clipped = [&box](std::vector<point2> polygon) {
        return clipped_polygon(std::move(polygon), -CLIP_MARGIN, box.side() + CLIP_MARGIN);
    };
    rotor_fill fill;
    if (const drawn_circle& circle = view.Shape1; circle.visible && !view.Picture1.empty()) {
        fill.body =
            clipped(points_of({circle.x, circle.y, circle.diameter / 2.0, 0.0, FULL_TURN}, box));
        fill.space = clipped(profile_of_arcs(view.Picture1, box));
    }
    fill.inner = clipped(polygon_of(view.Line1, box));
    fill.inlet = clipped(polygon_of(view.inlet_portline, box));
    fill.outlet = clipped(polygon_of(view.outlet_portline, box));
    fill.groove = clipped(polygon_of(view.metering_groove_portline, box));
    return fill;
}

}  // namespace kvt
