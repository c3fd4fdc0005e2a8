#include "output/cnc/outer_gcode.hpp"

#include "base/constants.hpp"
#include "output/cnc/machine_arc.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// The longest arc with one R word, radians: rounded ends move its centre by up to six times their
/// rounding.
constexpr double LONGEST_PIECE = 170.0 * PI_D / 180.0;
/// Points between which a machine's arc is compared.
constexpr int COMPARED_STEPS = 100;

move_kind kind_of(double sweep) {
    return sweep < 0.0 ? move_kind::clockwise_g02 : move_kind::counterclockwise_g03;
}

/// Appends the run of an arc from a share of it to its end.
void add_pieces(tool_contour& contour, const circle_arc& run, double first_share, point2 end) {
    const double length = (1.0 - first_share) * std::abs(run.sweep);
    const int pieces = 1 + static_cast<int>(length / LONGEST_PIECE);
    for (int piece = 1; piece < pieces; ++piece) {
        const double share = first_share + (1.0 - first_share) * piece / pieces;
        contour.moves.push_back({kind_of(run.sweep), run.at(share), run.radius});
    }
    contour.moves.push_back({kind_of(run.sweep), end, run.radius});
}

tool_move move_along(const outer_path_arc& arc) {
    const bool lobe = arc.kind == outer_arc_kind::lobe;
    return {lobe ? move_kind::clockwise_g02 : move_kind::counterclockwise_g03, arc.end, arc.radius};
}

/// What the X/Y file has in place of one arc: a line to its first point, its run, a line from its
/// last point.
struct arc_in_points {
    point2 start, first, last, end;
    circle_arc run;

    double distance_from(point2 point) const {
        return std::min({distance(point, nearest_on(run, point)),
                         distance(point, nearest_on_line(start, first, point)),
                         distance(point, nearest_on_line(last, end, point))});
    }
};

/// How far a machine's move lies from the points of an arc, mm.
double stray_of(const outer_path_arc& arc) {
    const std::vector<point2> points = arc_points(arc);
    const arc_in_points written{arc.start, points.front(), points.back(), arc.end, run_of(arc)};
    const tool_move move = move_along(arc);
    const bool reached = reaches_end(arc.start, move);
    const circle_arc run = reached ? machine_arc(arc.start, move) : circle_arc{};
    double largest = 0.0;
    for (const point2& point : points) {
        const point2 nearest =
            reached ? nearest_on(run, point) : nearest_on_line(arc.start, arc.end, point);
        largest = std::max(largest, distance(point, nearest));
    }
    for (int k = 1; reached && k < COMPARED_STEPS; ++k) {
        const point2 point = run.at(static_cast<double>(k) / COMPARED_STEPS);
        largest = std::max(largest, written.distance_from(point));
    }
    return largest;
}

}  // namespace

tool_contour outer_moves(const outer_path& path) {
    tool_contour contour{path.first, {}};
    for (const outer_path_arc& arc : path.arcs) {
        contour.moves.push_back(move_along(arc));
    }
    return contour;
}

tool_contour checked_outer_moves(const outer_path& path) {
    tool_contour contour{path.first, {}};
    point2 at = path.first;
    const auto line_to = [&](point2 end) { contour.moves.push_back({move_kind::line_g01, end}); };
    for (const outer_path_arc& arc : path.arcs) {
        const circle_arc run = run_of(arc);
        const std::vector<point2> points = arc_points(arc);
        double first_share = 0.0;
        if (distance(run.at(0.0), at) > JOINT_TOLERANCE_MM) {
            line_to(points.front());
            first_share = 1.0 / static_cast<double>(points.size());
        }
        at = distance(points.back(), arc.end) > JOINT_TOLERANCE_MM ? points.back() : arc.end;
        add_pieces(contour, run, first_share, at);
    }
    if (distance(at, path.first) > JOINT_TOLERANCE_MM) {
        line_to(path.first);
    }
    return contour;
}

strayed_arcs strayed_arcs_of(const outer_path& path) {
    strayed_arcs strayed;
    for (const outer_path_arc& arc : path.arcs) {
        const double stray = stray_of(arc);
        strayed.count += stray > CONTOUR_TOLERANCE_MM ? 1 : 0;
        strayed.largest_mm = std::max(strayed.largest_mm, stray);
    }
    return strayed;
}

}  // namespace kvt
