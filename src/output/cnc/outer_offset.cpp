#include "output/cnc/outer_offset.hpp"

#include "base/run_time_error.hpp"
#include "geometry/outer_path.hpp"
#include "output/cnc/pocket_region.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kvt {

namespace {

/// How near to its radius a moved cutter must come, mm, and how often it is moved at most.
constexpr double MOVED_TOLERANCE_MM = 1e-4;
constexpr int MOVES_AT_MOST = 200;
/// Steps in which a move is looked at, mm.
constexpr double MOVE_STEP_MM = 0.1;
/// Halvings of the search along a ray.
constexpr int HALVINGS = 40;

/// A straight piece of the profile, where its arcs do not meet.
struct profile_line {
    point2 start, end;
};

/// The profile of the outer rotor as the X/Y file has it, but with true arcs.
class outer_profile {
  public:
    explicit outer_profile(const outer_path& path) : region_(outer_path_points(path)) {
        point2 at = path.first;
        for (const outer_path_arc& arc : path.arcs) {
            const circle_arc run = run_of(arc);
            const std::vector<point2> points = arc_points(arc);
            if (distance(run.at(0.0), at) > JOINT_TOLERANCE_MM) {
                lines_.push_back({at, points.front()});
            }
            arcs_.push_back(run);
            at = points.back();
        }
        lines_.push_back({at, path.first});
    }

    point2 nearest(point2 point) const {
        point2 nearest;
        double smallest = std::numeric_limits<double>::infinity();
        const auto take = [&](point2 candidate) {
            if (const double away = distance(point, candidate); away < smallest) {
                smallest = away;
                nearest = candidate;
            }
        };
        for (const circle_arc& arc : arcs_) {
            take(nearest_on(arc, point));
        }
        for (const profile_line& line : lines_) {
            take(nearest_on_line(line.start, line.end, point));
        }
        return nearest;
    }

    /// Distance from the profile, negative within the material.
    double clearance(point2 point) const {
        const double away = distance(point, nearest(point));
        return region_.contains(point) ? away : -away;
    }

  private:
    pocket_region region_;
    std::vector<circle_arc> arcs_;
    std::vector<profile_line> lines_;
};

/// Moves cutter positions out of the profile.
class cutter_room {
  public:
    cutter_room(const outer_profile& profile, double tool_radius)
        : profile_(profile), tool_radius_(tool_radius) {}

    double gouge(point2 centre) const { return tool_radius_ - profile_.clearance(centre); }
    bool gouges(point2 centre) const { return gouge(centre) > GOUGE_TOLERANCE_MM; }

    /// The position itself, or the one beside it where the cutter touches.
    point2 sound(point2 centre) const {
        if (!gouges(centre)) {
            return centre;
        }
        point2 moved = centre;
        for (int k = 0; k < MOVES_AT_MOST; ++k) {
            const double clearance = profile_.clearance(moved);
            if (clearance >= tool_radius_ - MOVED_TOLERANCE_MM) {
                return moved;
            }
            moved = pushed_away(moved, clearance);
        }
        return on_ray(centre);
    }

  private:
    /// At the cutter's radius from the nearest point of the profile, on the side of the hollow.
    point2 pushed_away(point2 centre, double clearance) const {
        const point2 touched = profile_.nearest(centre);
        const double away = distance(centre, touched);
        point2 outward = away > 0.0 ? difference(centre, touched) : difference({}, centre);
        const double length = std::hypot(outward.x, outward.y);
        const double step = (away > 0.0 && clearance < 0.0 ? -tool_radius_ : tool_radius_) / length;
        return {touched.x + step * outward.x, touched.y + step * outward.y};
    }

    /// The outermost position on the ray to a centre that can be reached from the rotor's centre.
    point2 on_ray(point2 centre) const {
        if (gouges({})) {
            throw run_time_error(failure::invalid_procedure_call, "no room for the cutter");
        }
        const auto at = [&centre](double share) {
            return point2{share * centre.x, share * centre.y};
        };
        const int steps = 1 + static_cast<int>(std::hypot(centre.x, centre.y) / MOVE_STEP_MM);
        int free = 0;
        while (free < steps && !gouges(at(static_cast<double>(free + 1) / steps))) {
            ++free;
        }
        double reached = static_cast<double>(free) / steps;
        double blocked = static_cast<double>(free + 1) / steps;
        for (int k = 0; k < HALVINGS; ++k) {
            const double middle = (reached + blocked) / 2.0;
            (gouges(at(middle)) ? blocked : reached) = middle;
        }
        return at(reached);
    }

    const outer_profile& profile_;
    double tool_radius_;
};

/// The checked positions, one behind the other.
class checked_path {
  public:
    explicit checked_path(const cutter_room& room) : room_(room) {}

    /// across_gap: the path jumps to this position.
    void add(point2 centre, bool across_gap) {
        const point2 sound = room_.sound(centre);
        const bool moved = sound != centre;
        if (!points_.empty() && (moved || last_was_moved_ || across_gap)) {
            add_between(points_.back(), sound);
        }
        points_.push_back(sound);
        last_was_moved_ = moved;
    }

    const std::vector<point2>& points() const { return points_; }

  private:
    void add_between(point2 from, point2 to) {
        const int steps = 1 + static_cast<int>(distance(from, to) / MOVE_STEP_MM);
        std::vector<point2> between;
        bool sound_move = true;
        for (int k = 1; k < steps; ++k) {
            const double share = static_cast<double>(k) / steps;
            const point2 centre = {from.x + share * (to.x - from.x),
                                   from.y + share * (to.y - from.y)};
            sound_move = sound_move && !room_.gouges(centre);
            between.push_back(room_.sound(centre));
        }
        if (!sound_move) {
            points_.insert(points_.end(), between.begin(), between.end());
        }
    }

    const cutter_room& room_;
    std::vector<point2> points_;
    bool last_was_moved_ = false;
};

}  // namespace

cutter_gouges outer_offset_gouges(const design_params& design, double tool_radius) {
    const outer_profile profile(outer_rotor_path(design));
    const cutter_room room(profile, tool_radius);
    cutter_gouges found;
    for (const point2& centre : outer_path_points(outer_rotor_offset_path(design, tool_radius))) {
        if (const double depth = room.gouge(centre); depth > GOUGE_TOLERANCE_MM) {
            ++found.count;
            found.depth_mm = std::max(found.depth_mm, depth);
        }
    }
    return found;
}

std::vector<point2> checked_outer_offset_points(const design_params& design, double tool_radius) {
    const outer_profile profile(outer_rotor_path(design));
    const cutter_room room(profile, tool_radius);
    const outer_path path = outer_rotor_offset_path(design, tool_radius);
    checked_path checked(room);
    checked.add(path.first, false);
    point2 at = path.first;
    for (const outer_path_arc& arc : path.arcs) {
        bool across_gap = distance(run_of(arc).at(0.0), at) > JOINT_TOLERANCE_MM;
        for (const point2& point : arc_points(arc)) {
            checked.add(point, across_gap);
            across_gap = false;
            at = point;
        }
    }
    checked.add(path.first, distance(at, path.first) > JOINT_TOLERANCE_MM);
    return checked.points();
}

}  // namespace kvt
