#include "output/cnc/clearing_arcs.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// Points of an arc stand at the half degrees.
constexpr double STEP_DEG = 0.5;
constexpr int STEPS = 720;
/// Halvings of a step until its end is exact to a double's digits.
constexpr int REFINEMENTS = 40;

/// The circle of one arc, by angle in degrees.
class clearing_circle {
  public:
    clearing_circle(const pocket_region& region, point2 centre, double radius, double tool_radius)
        : region_(region), centre_(centre), radius_(radius), t_(tool_radius) {}

    /// The runs of the circle with room for the cutter, each counterclockwise.
    std::vector<std::vector<point2>> runs() const {
        std::vector<std::vector<point2>> found;
        const int gap = first_without_room();
        for (int k = gap; k < gap + samples(); ++k) {
            if (!has_room(angle(k)) && has_room(angle(k + 1))) {
                found.push_back(run_from(k));
            }
        }
        return found;
    }

    /// Whether the cutter on this circle reaches what the last contour leaves.
    bool reaches_uncut() const {
        for (int k = 0; k < samples(); ++k) {
            const point2 point = at(angle(k));
            if (region_.contains(point) && region_.is_clear(point, 2.0 * t_)) {
                return true;
            }
        }
        return false;
    }

  private:
    /// The circle is looked at every half degree, and at least every half tool radius.
    int samples() const {
        const double needed = std::ceil(TWO_PI_D * radius_ / (0.5 * t_) / STEPS);
        return STEPS * static_cast<int>(std::clamp(needed, 1.0, 16.0));
    }
    double angle(int k) const { return 360.0 * k / samples(); }
    point2 at(double degrees) const {
        const double radians = degrees * PI_D / 180.0;
        return {centre_.x + radius_ * std::cos(radians), centre_.y + radius_ * std::sin(radians)};
    }
    bool has_room(double degrees) const {
        const point2 point = at(degrees);
        return region_.contains(point) && region_.is_clear(point, t_);
    }
    int first_without_room() const {
        int k = 0;
        while (k < samples() && has_room(angle(k))) {
            ++k;
        }
        return k;
    }

    /// The angle at which the room ends, between one with room and one without.
    double edge(double with_room, double without) const {
        for (int i = 0; i < REFINEMENTS; ++i) {
            const double middle = (with_room + without) / 2.0;
            (has_room(middle) ? with_room : without) = middle;
        }
        return with_room;
    }

    /// The run that begins between sample k, which has no room, and the next one.
    std::vector<point2> run_from(int k) const {
        const double first = edge(angle(k + 1), angle(k));
        int end = k + 1;
        while (has_room(angle(end + 1))) {
            ++end;
        }
        const double last = edge(angle(end), angle(end + 1));
        std::vector<point2> points{at(first)};
        for (double half = std::floor(first / STEP_DEG) + 1.0; half * STEP_DEG < last; ++half) {
            points.push_back(at(half * STEP_DEG));
        }
        points.push_back(at(last));
        return points;
    }

    const pocket_region& region_;
    point2 centre_;
    double radius_, t_;
};

}  // namespace

std::vector<std::vector<point2>> clearing_arcs(const pocket_shape& pocket,
                                               const pocket_region& region) {
    const double t = pocket.tool_radius;
    const double f = pocket.fillet_r;
    const double width = pocket.outer_r - f - (f + pocket.inner_r);
    const int count = to_int16(floor_to_int(checked_divide(width, t)));
    std::vector<std::vector<point2>> arcs;
    for (std::int64_t i = 1; i <= INT16_MAX; ++i) {
        const clearing_circle circle(region, pocket.centre,
                                     pocket.inner_r + f + static_cast<double>(i) * t, t);
        if (i > count && !circle.reaches_uncut()) {
            break;
        }
        for (std::vector<point2>& run : circle.runs()) {
            arcs.push_back(std::move(run));
        }
    }
    return arcs;
}

}  // namespace kvt
