#include "output/cnc/contour_gap.hpp"

#include "base/constants.hpp"
#include "output/cnc/machine_arc.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace kvt {

namespace {

/// Points of an arc a radian.
constexpr double POINTS_PER_RADIAN = 115.0;
/// How far a point of an outline may lie from its circle by rounding, mm.
constexpr double ON_CIRCLE_MM = 1e-6;
/// The longest chord of an outline's arc, radians: the steps are half a degree, the last one of an
/// arc less than a whole one.
constexpr double LONGEST_CHORD = PI_D / 180.0;

/// A straight line between two points, or the arc that it is the chord of.
struct path_piece {
    point2 start, end;
    std::optional<circle_arc> arc;
    double height = 0.0;  ///< of the arc over its chord, mm

    double distance_from(point2 point) const {
        return distance(point, arc ? nearest_on(*arc, point) : nearest_on_line(start, end, point));
    }
    /// False when the rectangle round the piece is too far away.
    bool may_be_nearer(point2 point, double smallest) const {
        const double reach = smallest + height;
        return point.x > std::min(start.x, end.x) - reach &&
               point.x < std::max(start.x, end.x) + reach &&
               point.y > std::min(start.y, end.y) - reach &&
               point.y < std::max(start.y, end.y) + reach;
    }
};

/// The pieces of a path, and the distances of points that lie along it one behind the other.
class distances_from_path {
  public:
    explicit distances_from_path(const std::vector<path_piece>& path) : path_(path) {}

    /// The smallest distance of a point from any piece; the piece nearest to the point before is
    /// looked at first, so that a glance at the others is enough.
    double of(point2 point) {
        double smallest = path_[nearest_].distance_from(point);
        for (std::size_t i = 0; i < path_.size(); ++i) {
            if (path_[i].may_be_nearer(point, smallest)) {
                if (const double away = path_[i].distance_from(point); away < smallest) {
                    smallest = away;
                    nearest_ = i;
                }
            }
        }
        return smallest;
    }

  private:
    const std::vector<path_piece>& path_;
    std::size_t nearest_ = 0;
};

/// The path must have a piece.
double largest_distance(const std::vector<point2>& points, const std::vector<path_piece>& path) {
    distances_from_path distances(path);
    double largest = 0.0;
    for (const point2& point : points) {
        largest = std::max(largest, distances.of(point));
    }
    return largest;
}

/// The path of the moves; nothing when an arc does not reach its end.
std::vector<path_piece> path_of(const tool_contour& contour) {
    std::vector<path_piece> path;
    point2 at = contour.start;
    for (const tool_move& move : contour.moves) {
        path_piece piece{at, move.end, {}};
        if (move.kind != move_kind::line_g01) {
            if (!reaches_end(at, move)) {
                return {};
            }
            piece.arc = machine_arc(at, move);
            piece.height = move.radius;
        }
        path.push_back(piece);
        at = move.end;
    }
    return path;
}

std::vector<point2> points_of(const std::vector<path_piece>& path) {
    std::vector<point2> points;
    for (const path_piece& piece : path) {
        points.push_back(piece.start);
        const double sweep = piece.arc ? std::abs(piece.arc->sweep) : 0.0;
        const int steps = 1 + static_cast<int>(sweep * POINTS_PER_RADIAN);
        for (int k = 1; k < steps; ++k) {
            points.push_back(piece.arc->at(static_cast<double>(k) / steps));
        }
    }
    return points;
}

bool is_chord_of(const circle& round, point2 start, point2 end) {
    const auto lies_on = [&round](point2 point) {
        return std::abs(distance(point, round.centre) - round.radius) <= ON_CIRCLE_MM;
    };
    return distance(start, end) <= round.radius * LONGEST_CHORD && lies_on(start) && lies_on(end);
}

/// The arc of a circle between two of its points that lie close together.
circle_arc small_arc(const circle& round, point2 start, point2 end) {
    const point2 from = difference(start, round.centre);
    const point2 to = difference(end, round.centre);
    const double sweep = std::atan2(from.x * to.y - from.y * to.x, from.x * to.x + from.y * to.y);
    return {round.centre, round.radius, std::atan2(from.y, from.x), sweep};
}

std::vector<path_piece> pieces_of(const std::vector<point2>& outline,
                                  const std::vector<circle>& circles) {
    std::vector<path_piece> pieces;
    for (std::size_t i = 1; i < outline.size(); ++i) {
        path_piece piece{outline[i - 1], outline[i], {}};
        const auto round = std::ranges::find_if(circles, [&piece](const circle& candidate) {
            return is_chord_of(candidate, piece.start, piece.end);
        });
        if (round != circles.end()) {
            piece.arc = small_arc(*round, piece.start, piece.end);
            piece.height = round->radius * (1.0 - std::cos(piece.arc->sweep / 2.0));
        }
        pieces.push_back(piece);
    }
    return pieces;
}

}  // namespace

double contour_gap(const tool_contour& contour, const std::vector<point2>& outline,
                   const std::vector<circle>& circles) {
    const std::vector<path_piece> path = path_of(contour);
    if (path.empty() || outline.size() < 2) {
        return std::numeric_limits<double>::infinity();
    }
    return std::max(largest_distance(outline, path),
                    largest_distance(points_of(path), pieces_of(outline, circles)));
}

}  // namespace kvt
