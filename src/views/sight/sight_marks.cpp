#include "views/sight/sight_marks.hpp"

#include <algorithm>
#include <utility>

namespace kvt {

namespace {

constexpr double ARROW_HALF_WIDTH = 2.5;
constexpr double TAIL = 2.0 * ARROW_PIXELS;
/// Two arrows and a piece of line between them.
constexpr double ROOM_BETWEEN = 3.0 * ARROW_PIXELS;
constexpr double TEXT_PAD = 2.0;  ///< beside a text on its ground
constexpr double FARTHEST_OUTSIDE = 24.0;
constexpr double BOX_MARGIN = 2.0;  ///< between a text and the edge of the box

/// The point beyond `to` on the way from `from`.
point2 beyond(const point2& from, const point2& to, double by) {
    const double share = by / distance(from, to);
    return {to.x + (to.x - from.x) * share, to.y + (to.y - from.y) * share};
}

/// What stands there has gone with a zoom.
bool is_far_outside(double place, double side) {
    return place < -FARTHEST_OUTSIDE || place > side + FARTHEST_OUTSIDE;
}

/// As near to its place as the box lets it be.
double moved_inside(double corner, double size, double side) {
    return std::max(BOX_MARGIN, std::min(corner, side - BOX_MARGIN - size));
}

}  // namespace

void add_arrow(const point2& tip, const point2& from, sight_ink ink, sight_drawing& drawing) {
    const double length = distance(tip, from);
    if (!(length > 0.0)) {
        return;
    }
    const point2 along{(tip.x - from.x) / length, (tip.y - from.y) / length};
    const point2 foot{tip.x - along.x * ARROW_PIXELS, tip.y - along.y * ARROW_PIXELS};
    const point2 across{-along.y * ARROW_HALF_WIDTH, along.x * ARROW_HALF_WIDTH};
    drawing.arrows.push_back(
        {tip, difference(foot, across), {foot.x + across.x, foot.y + across.y}, ink});
}

void add_measured_line(const point2& from, const point2& to, sight_ink ink,
                       sight_drawing& drawing) {
    const double length = distance(from, to);
    if (!(length > 0.0)) {
        return;
    }
    if (length >= ROOM_BETWEEN) {
        drawing.lines.push_back({from, to, ink});
        add_arrow(from, to, ink, drawing);
        add_arrow(to, from, ink, drawing);
        return;
    }
    const point2 before = beyond(to, from, TAIL);
    const point2 behind = beyond(from, to, TAIL);
    drawing.lines.push_back({before, behind, ink});
    add_arrow(from, before, ink, drawing);
    add_arrow(to, behind, ink, drawing);
}

std::optional<sight_text> text_round(const point2& middle, const std::string& text, sight_ink ink,
                                     const view_box& box, const sight_metrics& metrics) {
    if (is_far_outside(middle.x, box.side()) || is_far_outside(middle.y, box.side())) {
        return std::nullopt;
    }
    const double width = metrics.width(text) + 2.0 * TEXT_PAD;
    const double height = metrics.height;
    return sight_text{{moved_inside(middle.x - width / 2.0, width, box.side()),
                       moved_inside(middle.y - height / 2.0, height, box.side())},
                      width,
                      height,
                      text,
                      ink};
}

void add_text(const point2& middle, const std::string& text, sight_ink ink, const view_box& box,
              const sight_metrics& metrics, sight_drawing& drawing) {
    if (std::optional<sight_text> placed = text_round(middle, text, ink, box, metrics)) {
        drawing.texts.push_back(std::move(*placed));
    }
}

bool overlap(const sight_text& a, const sight_text& b) {
    return a.corner.x < b.corner.x + b.width && b.corner.x < a.corner.x + a.width &&
           a.corner.y < b.corner.y + b.height && b.corner.y < a.corner.y + a.height;
}

}  // namespace kvt
