#include "geometry/outer_path.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "base/number_text.hpp"
#include "geometry/outer_arc.hpp"
#include "geometry/outer_flank.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

constexpr int FILLET_STEPS = 10;
constexpr int ROOT_STEPS = 50;
constexpr int LOBE_STEPS = 250;

double lobe_centre_radius(const design_params& design) {
    return design.radinnroot + design.ecc + design.radouter;
}

/// Grows arc by arc; each arc starts where the one before ended.
class path_builder {
  public:
    explicit path_builder(point2 first) : path_{first, {}}, end_(first) {}

    void arc(outer_arc_kind kind, point2 centre, double radius, point2 end) {
        path_.arcs.push_back({kind, centre, radius, end_, end});
        end_ = end;
    }
    point2 first() const { return path_.first; }
    const outer_path& path() const { return path_; }

  private:
    outer_path path_;
    point2 end_;
};

/// The path of lobes with this design's radii about centres at radius C, joined by root arcs and
/// fillets.
outer_path path_with_roots(const design_params& design, double C, const outer_flank& flank) {
    const double step = checked_divide(TWO_PI_D, design.numlobes);
    const double fillet_centre_radius = design.outer_root - design.fillet;
    const auto root_end = [&](double angle) { return polar_point(design.outer_root, angle); };
    const auto lobe_end = [&](double angle) { return polar_point(flank.tangent_radius, angle); };
    path_builder built(root_end(step - flank.alpha));
    const auto fillet = [&](double angle, point2 end) {
        if (design.fillet != 0.0) {
            built.arc(outer_arc_kind::fillet, polar_point(fillet_centre_radius, angle),
                      design.fillet, end);
        }
    };
    double theta = 0.0;
    for (std::int32_t lobe = 0; lobe < design.numlobes; ++lobe) {
        theta = theta + step;
        if (lobe > 0) {
            built.arc(outer_arc_kind::root, {}, design.outer_root, root_end(theta - flank.alpha));
        }
        fillet(theta - flank.alpha, lobe_end(theta - flank.beta));
        built.arc(outer_arc_kind::lobe, polar_point(C, theta), design.radouter,
                  lobe_end(theta + flank.beta));
        fillet(theta + flank.alpha, root_end(theta + flank.alpha));
    }
    built.arc(outer_arc_kind::root, {}, design.outer_root, built.first());
    return built.path();
}

/// The path of lobe arcs of this radius alone, with corners halfway between the lobes.
outer_path path_with_corners(std::int32_t numlobes, double C, double lobe_radius) {
    const double step = checked_divide(TWO_PI_D, numlobes);
    const double half = checked_divide(TWO_PI_D, 2.0 * numlobes);
    const double x = C * std::cos(half);
    const double rho = x - checked_sqrt(lobe_radius * lobe_radius - (C * C - x * x));
    path_builder built(polar_point(rho, step - half));
    double theta = 0.0;
    for (std::int32_t lobe = 0; lobe < numlobes; ++lobe) {
        theta = theta + step;
        built.arc(outer_arc_kind::lobe, polar_point(C, theta), lobe_radius,
                  polar_point(rho, theta + half));
    }
    return built.path();
}

int steps_of(outer_arc_kind kind) {
    switch (kind) {
        case outer_arc_kind::fillet:
            return FILLET_STEPS;
        case outer_arc_kind::root:
            return ROOT_STEPS;
        case outer_arc_kind::lobe:
            break;
    }
    return LOBE_STEPS;
}

}  // namespace

design_params outer_rotor_entries(const entries& boxes, double mm_per_unit) {
    design_params design;
    design.numlobes = to_int32(val(boxes.numlobes));
    design.ecc = val(boxes.ecc) * mm_per_unit;
    design.radouter = val(boxes.radouter) * mm_per_unit;
    design.radinnroot = val(boxes.radinnroot) * mm_per_unit;
    design.fillet = val(boxes.fillet) * mm_per_unit;
    design.outer_root = val(boxes.outer_root) * mm_per_unit;
    return design;
}

outer_path outer_rotor_path(const design_params& design) {
    const double C = lobe_centre_radius(design);
    return path_with_roots(design, C, flank_of_lobe(design, C));
}

outer_path outer_rotor_offset_path(const design_params& design, double tool_radius) {
    const double C = lobe_centre_radius(design);
    design_params offset = design;
    offset.radouter = design.radouter + tool_radius;
    offset.outer_root = design.outer_root - tool_radius;
    offset.fillet = design.fillet - tool_radius < 0.0 ? 0.0 : design.fillet - tool_radius;
    const outer_flank flank = flank_of_lobe(offset, C);
    if (2.0 * flank.alpha * design.numlobes >= TWO_PI_D) {
        return path_with_corners(design.numlobes, C, offset.radouter);
    }
    return path_with_roots(offset, C, flank);
}

circle_arc run_of(const outer_path_arc& arc) {
    const point2 start = difference(arc.start, arc.centre);
    const point2 end = difference(arc.end, arc.centre);
    if (arc.kind == outer_arc_kind::lobe) {
        const arc_angles angles = lobe_arc(start, end, arc.radius);
        return {arc.centre, arc.radius, angles.a0, -angles.sweep};
    }
    const arc_angles angles = fillet_or_root_arc(start, end, arc.radius);
    return {arc.centre, arc.radius, angles.a0, angles.sweep};
}

double largest_gap(const outer_path& path) {
    double largest = 0.0;
    point2 at = path.first;
    for (const outer_path_arc& arc : path.arcs) {
        const circle_arc run = run_of(arc);
        largest = std::max(largest, distance(at, run.at(0.0)));
        at = run.at(1.0);
    }
    return std::max(largest, distance(at, path.first));
}

std::vector<point2> arc_points(const outer_path_arc& arc) {
    const circle_arc run = run_of(arc);
    const int steps = steps_of(arc.kind);
    std::vector<point2> points;
    for (int j = 1; j <= steps; ++j) {
        const point2 sample = polar_point(run.radius, run.from + j * run.sweep / steps);
        points.push_back({run.centre.x + sample.x, run.centre.y + sample.y});
    }
    return points;
}

std::vector<point2> outer_path_points(const outer_path& path) {
    std::vector<point2> points{path.first};
    for (const outer_path_arc& arc : path.arcs) {
        const std::vector<point2> added = arc_points(arc);
        points.insert(points.end(), added.begin(), added.end());
    }
    points.push_back(path.first);
    return points;
}

}  // namespace kvt
