#include "output/cnc/pocket_path.hpp"

#include "base/checked_math.hpp"
#include "output/cnc/clearing_arcs.hpp"
#include "output/cnc/pocket_region.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace kvt {

namespace {

/// The outline moved inward by d along the normals of its sides; points nearer than d to any side
/// are left out.
std::vector<point2> moved_inward(const pocket_region& region, double d) {
    const std::vector<point2>& outline = region.outline();
    const double side = region.counterclockwise() ? 1.0 : -1.0;
    std::vector<point2> contour;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const point2 next = outline[(i + 1) % outline.size()];
        const point2 along = {next.x - outline[i].x, next.y - outline[i].y};
        const double length = std::hypot(along.x, along.y);
        if (length == 0.0) {
            continue;
        }
        const point2 moved = {outline[i].x - side * d * along.y / length,
                              outline[i].y + side * d * along.x / length};
        if (region.is_clear(moved, d - POCKET_TOLERANCE_MM) && region.contains(moved)) {
            contour.push_back(moved);
        }
    }
    if (!contour.empty()) {
        contour.push_back(contour.front());
    }
    return contour;
}

/// Grows a path move by move, always with room for the cutter.
class path_joiner {
  public:
    path_joiner(const pocket_region& region, double clearance,
                const std::vector<point2>& last_contour)
        : region_(region), clearance_(clearance), last_contour_(last_contour) {}

    /// Appends a run of points, with the moves that lead to its first one.
    void add(const std::vector<point2>& run) {
        if (run.empty()) {
            return;
        }
        if (!path_.empty() && !has_room(path_.back(), run.front())) {
            go_along_contour(run.front());
        }
        path_.insert(path_.end(), run.begin(), run.end());
    }
    bool empty() const { return path_.empty(); }
    point2 end() const { return path_.back(); }
    const std::vector<point2>& path() const { return path_; }

  private:
    bool has_room(point2 start, point2 end) const {
        return region_.is_clear_move(start, end, clearance_);
    }

    /// The nearest point of the last contour to which a straight move has room, as an index.
    std::optional<std::size_t> way_on(point2 from) const {
        std::vector<std::size_t> indexes(last_contour_.size());
        std::iota(indexes.begin(), indexes.end(), 0U);
        const auto distance = [&](std::size_t i) {
            return std::hypot(last_contour_[i].x - from.x, last_contour_[i].y - from.y);
        };
        std::ranges::sort(indexes, {}, distance);
        const auto found = std::ranges::find_if(
            indexes, [&](std::size_t i) { return has_room(from, last_contour_[i]); });
        return found == indexes.end() ? std::nullopt : std::optional(*found);
    }

    /// The points of the last contour from one index to another, upwards or downwards round.
    std::vector<point2> stretch(std::size_t from, std::size_t to, bool upwards) const {
        const std::size_t count = last_contour_.size() - 1;  // the last point repeats the first
        std::vector<point2> points;
        std::size_t i = from % count;
        points.push_back(last_contour_[i]);
        while (i != to % count) {
            i = upwards ? (i + 1) % count : (i + count - 1) % count;
            points.push_back(last_contour_[i]);
        }
        return points;
    }

    static double length_of(const std::vector<point2>& points) {
        double length = 0.0;
        for (std::size_t i = 1; i < points.size(); ++i) {
            length += std::hypot(points[i].x - points[i - 1].x, points[i].y - points[i - 1].y);
        }
        return length;
    }

    void go_along_contour(point2 target) {
        const std::optional<std::size_t> from =
            last_contour_.size() < 2 ? std::nullopt : way_on(path_.back());
        const std::optional<std::size_t> to = from ? way_on(target) : std::nullopt;
        if (!to) {
            throw run_time_error(failure::invalid_procedure_call,
                                 "the cutter cannot reach the next pass");
        }
        const std::vector<point2> up = stretch(*from, *to, true);
        const std::vector<point2> down = stretch(*from, *to, false);
        const std::vector<point2>& shorter = length_of(down) < length_of(up) ? down : up;
        path_.insert(path_.end(), shorter.begin(), shorter.end());
    }

    const pocket_region& region_;
    double clearance_;
    const std::vector<point2>& last_contour_;
    std::vector<point2> path_;
};

bool is_nearer(point2 from, point2 first, point2 second) {
    return std::hypot(first.x - from.x, first.y - from.y) <=
           std::hypot(second.x - from.x, second.y - from.y);
}

/// Int((f - t) / (0.5 t)).
int pass_count(const pocket_shape& pocket) {
    const double t = pocket.tool_radius;
    return to_int16(floor_to_int(checked_divide(pocket.fillet_r - t, 0.5 * t)));
}

}  // namespace

std::vector<point2> pocket_path(const pocket_shape& pocket) {
    const double t = pocket.tool_radius;
    const int passes = pass_count(pocket);
    if (t < 0.0) {
        throw run_time_error(failure::invalid_procedure_call, "a tool of negative diameter");
    }
    const pocket_region region(pocket.outline);
    const std::vector<point2> last_contour = moved_inward(region, t);
    path_joiner joined(region, t - 2.0 * POCKET_TOLERANCE_MM, last_contour);
    for (int k = 1; k <= passes; ++k) {
        joined.add(moved_inward(region, pocket.fillet_r - k * 0.5 * t));
    }
    std::vector<std::vector<point2>> arcs = clearing_arcs(pocket, region);
    bool forward = joined.empty() || arcs.empty() ||
                   is_nearer(joined.end(), arcs.front().front(), arcs.front().back());
    for (std::vector<point2>& arc : arcs) {
        if (!forward) {
            std::ranges::reverse(arc);
        }
        joined.add(arc);
        forward = !forward;
    }
    joined.add(last_contour);
    return joined.path();
}

}  // namespace kvt
