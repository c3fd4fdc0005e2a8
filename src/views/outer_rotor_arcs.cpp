// The arcs of the outer rotor in the Design view.
#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/outer_flank.hpp"
#include "geometry/point2.hpp"
#include "views/design_view.hpp"

#include <cmath>

namespace kvt {

namespace {

/// What the drawing notes of a flank, radians.
struct drawn_flank {
    double root_angle = 0.0;  ///< root end seen from the outer centre
    double lobe_angle = 0.0;  ///< tangent point seen from the lobe centre
};

/// Draws the arcs of one design with its lobe centres at a radius.
class outer_rotor_drawing {
  public:
    outer_rotor_drawing(const design_params& design, double centre_radius,
                        const outer_rotor_place& place, double view_scale,
                        std::vector<drawn_arc>& arcs)
        : design_(design),
          place_(place),
          view_scale_(view_scale),
          arcs_(arcs),
          flank_(flank_of_lobe(design, centre_radius)),
          lobe_centre_radius_(centre_radius) {}

    void run() {
        const double pitch = checked_divide(TWO_PI_D, design_.numlobes);
        std::vector<drawn_flank> first;
        std::vector<drawn_flank> second;
        double theta = place_.start_angle;
        for (std::int32_t lobe = 0; lobe < design_.numlobes; ++lobe) {
            theta = theta + pitch;
            first.push_back(flank(theta, theta - flank_.alpha, theta - flank_.beta, true));
            second.push_back(flank(theta, theta + flank_.alpha, theta + flank_.beta, false));
            add_arc(polar_point(lobe_centre_radius_, theta), design_.radouter,
                    second.back().lobe_angle, first.back().lobe_angle);
        }
        for (std::size_t lobe = 0; lobe < first.size(); ++lobe) {
            add_arc({0.0, 0.0}, design_.outer_root, second[lobe].root_angle,
                    first[(lobe + 1) % first.size()].root_angle);
        }
    }

  private:
    /// Notes the angles of a flank and draws its fillet; on the first flank from root to lobe, on
    /// the second back.
    drawn_flank flank(double theta, double A, double B, bool is_first) {
        const point2 root_end = polar_point(design_.outer_root, A);
        const point2 lobe_end = polar_point(flank_.tangent_radius, B);
        if (design_.fillet != 0.0) {
            const point2 centre = polar_point(design_.outer_root - design_.fillet, A);
            const double root_side = direction(centre, root_end);
            const double lobe_side = direction(centre, lobe_end);
            add_arc(centre, design_.fillet, is_first ? root_side : lobe_side,
                    is_first ? lobe_side : root_side);
        }
        return {direction({0.0, 0.0}, root_end),
                direction(polar_point(lobe_centre_radius_, theta), lobe_end)};
    }

    static double direction(const point2& centre, const point2& point) {
        return drawing_angle(point.x - centre.x, point.y - centre.y);
    }

    void add_arc(const point2& centre, double radius, double start, double end) {
        arcs_.push_back({place_.x + centre.x * view_scale_, place_.y - centre.y * view_scale_,
                         radius * view_scale_, start, end});
    }

    const design_params& design_;
    const outer_rotor_place place_;
    const double view_scale_;
    std::vector<drawn_arc>& arcs_;
    const outer_flank flank_;
    const double lobe_centre_radius_;
};

}  // namespace

double drawing_angle(double dx, double dy) {
    const double angle = std::atan(checked_divide(dy, dx));
    if (dx < 0.0 && dy != 0.0) {
        return angle + PI_L;
    }
    if (dx > 0.0 && dy < 0.0) {
        return angle + TWO_PI_L;
    }
    return angle;
}

void draw_outer_rotor(const design_params& design, const rotor_profiles& rotors,
                      const view_state& state, design_view& view) {
    const double half = state.view_size / 2.0;
    outer_rotor_drawing(design, lobe_centre_radius(design, rotors), {half, half, 0.0},
                        state.view_scale, view.Picture1)
        .run();
}

void redraw_outer_rotor(const design_params& design, const outer_rotor_place& place,
                        const view_state& state, design_view& view) {
    const double centre_radius = design.radouter + (design.radinnroot + design.ecc);
    outer_rotor_drawing(design, centre_radius, place, state.view_scale, view.Picture1).run();
}

}  // namespace kvt
