#include "exact/exact_contour.hpp"

#include "exact/inner_curve.hpp"
#include "exact/plane.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace kvt {

namespace {

constexpr double TURN = 2.0 * std::numbers::pi;
constexpr double SHORTEST_MM = 1e-6;
constexpr double OFF_CIRCLE_MM = 1e-9;

point2 shifted(const point2& point, double by) {
    return {point.x + by, point.y};
}

double direction_of(const point2& way) {
    return std::atan2(way.y, way.x);
}

/// An angle between 0 and a whole turn; the end of a turn counts as 0.
double within_turn(double angle) {
    constexpr double NO_TURN = 1e-9;
    const double forward = angle - std::floor(angle / TURN) * TURN;
    return forward > TURN - NO_TURN ? 0.0 : forward;
}

/// The centre of the circle of this radius through two points that lies nearest to a place: the
/// place itself where both have that distance from it. Corners are searched in steps, so a shared
/// end may lie beside one of its two circles.
point2 centre_through(const point2& start, const point2& end, double radius,
                      const point2& near_place) {
    if (std::abs(distance(start, near_place) - radius) < OFF_CIRCLE_MM &&
        std::abs(distance(end, near_place) - radius) < OFF_CIRCLE_MM) {
        return near_place;
    }
    const point2 chord = difference(end, start);
    const double length = std::hypot(chord.x, chord.y);
    const point2 middle = {0.5 * (start.x + end.x), 0.5 * (start.y + end.y)};
    const double rise = std::sqrt(std::max(0.0, radius * radius - 0.25 * length * length));
    const double side = cross(chord, difference(near_place, start)) < 0.0 ? -rise : rise;
    return {middle.x - side * chord.y / length, middle.y + side * chord.x / length};
}

/// Grows piece by piece from its first point.
class contour_walk {
  public:
    explicit contour_walk(const point2& first) : at_(first) {}

    void line_to(const point2& end) { add(line_piece(at_, end), distance(at_, end)); }

    /// The arc to a point about a centre; the centre gives way where start and end don't have the
    /// radius.
    void arc_to(const point2& end, double radius, const point2& near_centre, bool is_forward) {
        if (distance(at_, end) <= SHORTEST_MM) {
            return;
        }
        const point2 centre = centre_through(at_, end, radius, near_centre);
        const double from = direction_of(difference(at_, centre));
        const double to = direction_of(difference(end, centre));
        const double sweep = is_forward ? within_turn(to - from) : -within_turn(from - to);
        exact_piece piece = arc_piece({centre, radius, from, from + sweep});
        piece.start = at_;
        piece.end = end;
        add(std::move(piece), radius * std::abs(sweep));
    }

    exact_contour closed() {
        if (!pieces_.empty()) {
            pieces_.back().end = pieces_.front().start;
        }
        return std::move(pieces_);
    }

  private:
    void add(exact_piece piece, double length) {
        if (length > SHORTEST_MM) {
            at_ = piece.end;
            pieces_.push_back(std::move(piece));
        }
    }

    exact_contour pieces_;
    point2 at_;
};

exact_piece reversed_piece(const exact_piece& piece) {
    exact_piece result = piece;
    std::swap(result.start, result.end);
    std::swap(result.arc.from, result.arc.to);
    return result;
}

exact_piece mirrored_piece(const exact_piece& piece) {
    const auto below = [](const point2& point) { return point2{point.x, -point.y}; };
    return {piece.kind,
            below(piece.start),
            below(piece.end),
            {below(piece.arc.centre), piece.arc.radius, -piece.arc.from, -piece.arc.to},
            {}};
}

exact_piece turned_spline(const cubic_spline& spline, double angle) {
    exact_piece piece{piece_kind::spline, {}, {}, {}, spline};
    for (std::size_t i = 0; i < spline.points.size(); ++i) {
        piece.spline.points[i] = turned(spline.points[i], angle);
        piece.spline.slopes[i] = turned(spline.slopes[i], angle);
    }
    piece.start = piece.spline.points.front();
    piece.end = piece.spline.points.back();
    return piece;
}

double piece_sweep(const exact_piece& piece) {
    switch (piece.kind) {
        case piece_kind::line:
            break;
        case piece_kind::arc:
            return arc_sweep(piece.arc, {});
        case piece_kind::spline: {
            double sum = 0.0;
            for (std::size_t i = 0; i < piece.spline.span_count(); ++i) {
                sum += bezier_sweep(piece.spline.bezier_of(i));
            }
            return sum;
        }
    }
    return 0.5 * cross(piece.start, piece.end);
}

exact_contour counter_clockwise(exact_contour contour) {
    return enclosed_area(contour) < 0.0 ? reversed_contour(contour) : std::move(contour);
}

/// Arcs of the outer rotor's frame, turned about its axis and moved beside the inner rotor's.
exact_piece placed_arc(true_arc arc, double angle, double ecc) {
    arc.centre = shifted(turned(arc.centre, angle), -ecc);
    arc.from += angle;
    arc.to += angle;
    return arc_piece(arc);
}

/// From the end of one lobe to the end of the next: fillet, root, fillet, lobe.
std::vector<true_arc> arcs_of_pitch(const design_params& design, double pitch) {
    std::vector<true_arc> arcs = arcs_between(outline_of_lobe(design), pitch, 0.0, 0.0);
    true_arc& lobe = arcs.back();
    lobe.to += lobe.to - lobe.from;
    arcs.erase(arcs.begin());
    std::erase_if(arcs, [](const true_arc& arc) {
        return std::abs(arc.to - arc.from) * arc.radius <= SHORTEST_MM;
    });
    return arcs;
}

}  // namespace

exact_piece line_piece(const point2& start, const point2& end) {
    return {piece_kind::line, start, end, {}, {}};
}

exact_piece arc_piece(const true_arc& arc) {
    return {piece_kind::arc, arc.at(arc.from), arc.at(arc.to), arc, {}};
}

double enclosed_area(const exact_contour& contour) {
    double area = 0.0;
    for (const exact_piece& piece : contour) {
        area += piece_sweep(piece);
    }
    return area;
}

exact_contour reversed_contour(const exact_contour& contour) {
    exact_contour result;
    for (auto piece = contour.rbegin(); piece != contour.rend(); ++piece) {
        result.push_back(reversed_piece(*piece));
    }
    return result;
}

exact_contour inner_rotor_arcs(const design_params& design) {
    const exact_pair pair = pair_of_inner_rotor(design);
    const cubic_spline lobe = inner_lobe_spline(pair).spline;
    exact_contour contour;
    for (int i = 0; i < pair.lobes - 1; ++i) {
        contour.push_back(turned_spline(lobe, TURN * i / (pair.lobes - 1)));
    }
    return contour;
}

exact_contour inner_rotor_lines(const design_params& design, double chord_error) {
    const exact_pair pair = pair_of_inner_rotor(design);
    const std::vector<point2> lobe = inner_lobe_points(pair, chord_error);
    std::vector<point2> points;
    for (int i = 0; i < pair.lobes - 1; ++i) {
        for (const point2& point : lobe) {
            points.push_back(turned(point, TURN * i / (pair.lobes - 1)));
        }
    }
    exact_contour contour;
    for (std::size_t i = 0; i < points.size(); ++i) {
        contour.push_back(line_piece(points[i], points[(i + 1) % points.size()]));
    }
    return contour;
}

exact_contour outer_rotor_arcs(const design_params& design) {
    const double pitch = TURN / design.numlobes;
    const std::vector<true_arc> arcs = arcs_of_pitch(design, pitch);
    exact_contour contour;
    for (int i = 0; i < design.numlobes; ++i) {
        for (const true_arc& arc : arcs) {
            contour.push_back(placed_arc(arc, i * pitch, design.ecc));
        }
    }
    return contour;
}

exact_contour rim_of_outer_rotor(const design_params& design) {
    const point2 centre = {-design.ecc, 0.0};
    const double radius = design.maxdiameter / 2.0;
    return {arc_piece({centre, radius, 0.0, std::numbers::pi}),
            arc_piece({centre, radius, std::numbers::pi, TURN})};
}

exact_contour port_arcs(const port_shape& port, bool is_below) {
    const auto& [start_inner, end_inner, end_outer, start_outer] = port.corners;
    const point2 outer_axis = {-port.e, 0.0};
    contour_walk walk(start_inner.s);
    walk.arc_to(start_inner.r, port.f, start_inner.c, false);
    walk.arc_to(end_inner.r, port.R, {}, true);
    walk.arc_to(end_inner.s, port.f, end_inner.c, false);
    walk.line_to(end_outer.s);
    walk.arc_to(end_outer.r, port.f, end_outer.c, false);
    walk.arc_to(start_outer.r, port.Q, outer_axis, false);
    walk.arc_to(start_outer.s, port.f, start_outer.c, false);
    walk.line_to(start_inner.s);
    exact_contour contour = walk.closed();
    if (is_below) {
        std::ranges::transform(contour, contour.begin(), mirrored_piece);
    }
    return counter_clockwise(std::move(contour));
}

exact_contour groove_arcs(const groove_shape& groove) {
    const point2 axis = {-groove.shift, 0.0};
    contour_walk walk(groove.tail_inner);
    walk.arc_to(groove.inner.r, groove.inner_r, axis, true);
    walk.arc_to(groove.inner.s, groove.f, groove.inner.c, false);
    walk.line_to(groove.outer.s);
    walk.arc_to(groove.outer.r, groove.f, groove.outer.c, false);
    walk.arc_to(groove.tail_outer, groove.outer_r, axis, false);
    walk.line_to(groove.tail_inner);
    return counter_clockwise(walk.closed());
}

}  // namespace kvt
