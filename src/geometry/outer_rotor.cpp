#include "geometry/outer_rotor.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "geometry/outer_arc.hpp"
#include "geometry/outer_flank.hpp"

#include <cmath>

namespace kvt {

namespace {

constexpr int ROOT_POINTS = 50;
constexpr int FILLET_POINTS = 100;
constexpr int LOBE_POINTS = 250;
constexpr double LOBE_VALUES_WITH_FILLETS = 596.0;
constexpr double LOBE_VALUES_WITHOUT_FILLETS = 304.0;

/// Walks round the outer rotor once and stores its points.
class outer_profile_walk {
  public:
    outer_profile_walk(const design_params& design, rotor_profiles& rotors)
        : design_(design),
          rotors_(rotors),
          flank_(flank_of_lobe(design, rotors)),
          lobe_centre_radius_(lobe_centre_radius(design, rotors)) {}

    void run() {
        const double pitch = checked_divide(TWO_PI_D, design_.numlobes);
        for (std::int32_t lobe = 0; lobe < design_.numlobes; ++lobe) {
            theta_ += pitch;
            first_flank(lobe);
            second_flank();
        }
        root_arc(current_end_, profile_start_);
    }

    std::int64_t last_xy_index() const { return k_ - 1; }
    std::int64_t last_point_index() const { return m_ - 1; }

  private:
    bool has_fillets() const { return design_.fillet != 0.0; }

    /// The root and lobe ends of a flank, the fillet centre standing at root_angle.
    void set_flank_ends(double root_angle, double lobe_angle) {
        root_end_ = polar_point(design_.outer_root, root_angle);
        lobe_end_ = polar_point(flank_.tangent_radius, lobe_angle);
    }

    void first_flank(std::int32_t lobe) {
        const double root_angle = theta_ - flank_.alpha;
        set_flank_ends(root_angle, theta_ - flank_.beta);
        if (lobe == 0) {
            profile_start_ = current_end_ = root_end_;
            if (has_fillets()) {
                first_fillet_arc(root_angle);
            }
            return;
        }
        root_arc(current_end_, root_end_);
        if (has_fillets()) {
            fillet_arc(root_angle, root_end_, lobe_end_);
        }
    }

    void second_flank() {
        const double root_angle = theta_ + flank_.alpha;
        set_flank_ends(root_angle, theta_ + flank_.beta);
        lobe_arc_to(lobe_end_);
        if (has_fillets()) {
            fillet_arc(root_angle, lobe_end_, root_end_);
        }
    }

    /// Stores a point in the coordinates of the inner rotor axis; it becomes the current end of the
    /// profile.
    void store(const point2& point) {
        checked_at(rotors_.outer_xy, k_) = point.x - design_.ecc;
        checked_at(rotors_.outer_x, m_) = point.x - design_.ecc;
        ++k_;
        checked_at(rotors_.outer_xy, k_) = point.y;
        checked_at(rotors_.outer_y, m_) = point.y;
        ++k_;
        ++m_;
        current_end_ = point;
    }

    point2 fillet_point(const point2& centre, const arc_angles& arc, int j) const {
        const double angle = j * arc.sweep / FILLET_POINTS + arc.a0;
        return {design_.fillet * std::cos(angle) + centre.x,
                design_.fillet * std::sin(angle) + centre.y};
    }

    /// The fillet of the first flank of lobe 0, with its start point; kept apart for the
    /// interference check.
    void first_fillet_arc(double root_angle) {
        for (auto* list : {&rotors_.fillet_x, &rotors_.fillet_y, &rotors_.fillet_r}) {
            list->assign(FILLET_POINTS + 1, 0.0);
        }
        const point2 centre = polar_point(design_.outer_root - design_.fillet, root_angle);
        const arc_angles arc = fillet_or_root_arc(difference(root_end_, centre),
                                                  difference(lobe_end_, centre), design_.fillet);
        for (int j = 0; j <= FILLET_POINTS; ++j) {
            const point2 point = fillet_point(centre, arc, j);
            store(point);
            checked_at(rotors_.fillet_x, j) = point.x;
            checked_at(rotors_.fillet_y, j) = point.y;
            checked_at(rotors_.fillet_r, j) = checked_sqrt(point.y * point.y + point.x * point.x);
        }
    }

    void fillet_arc(double root_angle, const point2& start, const point2& end) {
        const point2 centre = polar_point(design_.outer_root - design_.fillet, root_angle);
        const arc_angles arc =
            fillet_or_root_arc(difference(start, centre), difference(end, centre), design_.fillet);
        for (int j = 1; j <= FILLET_POINTS; ++j) {
            store(fillet_point(centre, arc, j));
        }
    }

    void root_arc(point2 start, point2 end) {
        const arc_angles arc = fillet_or_root_arc(start, end, design_.outer_root);
        for (int j = 1; j <= ROOT_POINTS; ++j) {
            store(polar_point(design_.outer_root, j * arc.sweep / ROOT_POINTS + arc.a0));
        }
    }

    void lobe_arc_to(const point2& end) {
        const point2 centre = polar_point(lobe_centre_radius_, theta_);
        const double Ro = design_.radouter;
        const arc_angles arc =
            lobe_arc(difference(current_end_, centre), difference(end, centre), Ro);
        for (int j = 1; j <= LOBE_POINTS; ++j) {
            const double angle = arc.a0 - j * (arc.sweep / LOBE_POINTS);
            store({centre.x + Ro * std::cos(angle), centre.y + Ro * std::sin(angle)});
        }
    }

    const design_params& design_;
    rotor_profiles& rotors_;
    const outer_flank flank_;
    const double lobe_centre_radius_;
    double theta_ = 0.0;          // angle of the lobe at work
    point2 root_end_, lobe_end_;  // of the flank at work
    point2 current_end_;          // of the profile
    point2 profile_start_;        // root end of the first flank
    std::int64_t k_ = 0;          // next index of outer_xy
    std::int64_t m_ = 0;          // next index of outer_x and outer_y
};

void size_outer_lists(const design_params& design, rotor_profiles& rotors) {
    const double values =
        design.fillet == 0.0 ? LOBE_VALUES_WITHOUT_FILLETS : LOBE_VALUES_WITH_FILLETS;
    rotors.outer_xy_size = to_int32(2.0 * design.numlobes * values + 1.0);
    const auto last_point = static_cast<std::size_t>(to_int32(rotors.outer_xy_size / 2.0));
    rotors.outer_xy.assign(static_cast<std::size_t>(rotors.outer_xy_size) + 1, 0.0);
    rotors.outer_x.assign(last_point + 1, 0.0);
    rotors.outer_y.assign(last_point + 1, 0.0);
}

}  // namespace

void fill_outer_rotor(const design_params& design, rotor_profiles& rotors) {
    size_outer_lists(design, rotors);
    outer_profile_walk walk(design, rotors);
    walk.run();
    rotors.outer_xy_last = to_int16(static_cast<double>(walk.last_xy_index()));
    rotors.outer_last = to_int16(static_cast<double>(walk.last_point_index()));
}

}  // namespace kvt
