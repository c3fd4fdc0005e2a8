// The capacity against the swept volume that the two profiles really have, by exact areas of a
// chamber over a full turn.
//
// A chamber is the polygon of the outer profile from the contact point of one lobe to that of the
// next, and of the inner profile back. The common normal of a contact goes through the pitch point
// at x = (N - 1) ecc, so the contact point of a lobe lies on its circle towards that point; the
// chamber ends there on a straight line over the clearance.
#include "support/performance_case.hpp"
#include "support/sample_design.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

namespace kvt {
namespace {

using point = std::complex<double>;

constexpr double TURN = 2.0 * std::numbers::pi;

class rotor_pair {
  public:
    explicit rotor_pair(const design_params& design)
        : numlobes_(design.numlobes),
          radouter_(design.radouter),
          outer_centre_(-design.ecc),
          pitch_point_((numlobes_ - 1.0) * design.ecc) {
        const rotor_profiles rotors = rotor_pair_of(design);
        lobe_distance_ = design.radouter + rotors.lobe_centre_offset;
        for (std::size_t n = 0; n < static_cast<std::size_t>(rotors.profile_points); ++n) {
            inner_.emplace_back(rotors.inner_x[n], rotors.inner_y[n]);
        }
        for (std::size_t n = 0; n <= static_cast<std::size_t>(rotors.outer_last); ++n) {
            outer_.emplace_back(rotors.outer_x[n], rotors.outer_y[n]);
        }
    }

    /// Area of the chamber between lobes 0 and 1 when the inner rotor has turned by phi radians,
    /// mm2.
    double chamber_area(double phi) const {
        const point turned_outer = std::polar(1.0, phi * (numlobes_ - 1.0) / numlobes_);
        const point first = contact_point(0, turned_outer);
        const point second = contact_point(1, turned_outer);
        std::vector<point> polygon{first};
        add_outer(first, second, turned_outer, polygon);
        polygon.push_back(second);
        add_inner(first, second, std::polar(1.0, phi), polygon);
        return shoelace(polygon);
    }

    /// What the pump moves in one turn of the inner rotor: every chamber from its smallest to its
    /// largest area, mm3. The chambers pass N - 1 times a turn, each in a turn of the outer rotor.
    double swept_volume(double thick) const {
        constexpr int POSITIONS = 720;
        const double one_passage = TURN * numlobes_ / (numlobes_ - 1.0);
        double smallest = chamber_area(0.0);
        double largest = smallest;
        for (int n = 1; n < POSITIONS; ++n) {
            const double area = chamber_area(one_passage * n / POSITIONS);
            smallest = std::min(smallest, area);
            largest = std::max(largest, area);
        }
        return (numlobes_ - 1.0) * (largest - smallest) * thick;
    }

    /// The largest distance of a contact point to the inner profile over a turn, mm.
    double largest_contact_gap() const {
        double largest = 0.0;
        for (int degrees = 0; degrees < 360; degrees += 5) {
            const double phi = degrees * TURN / 360.0;
            const point contact =
                contact_point(0, std::polar(1.0, phi * (numlobes_ - 1.0) / numlobes_));
            largest = std::max(
                largest, std::abs(inner_[nearest(contact, phi)] * std::polar(1.0, phi) - contact));
        }
        return largest;
    }

  private:
    point contact_point(int lobe, point turned) const {
        const point centre =
            outer_centre_ + std::polar(lobe_distance_, TURN * lobe / numlobes_) * turned;
        return centre + radouter_ * (pitch_point_ - centre) / std::abs(pitch_point_ - centre);
    }

    /// Angle from one point to another about the outer centre, 0 .. a full turn.
    double outer_angle(point from, point to) const {
        const double angle = std::arg((to - outer_centre_) / (from - outer_centre_));
        return angle < 0.0 ? angle + TURN : angle;
    }

    void add_outer(point first, point second, point turned, std::vector<point>& polygon) const {
        const double end = outer_angle(first, second);
        std::vector<std::pair<double, point>> between;
        for (const point& stored : outer_) {
            const point here = (stored - outer_centre_) * turned + outer_centre_;
            const double angle = outer_angle(first, here);
            if (angle > 0.0 && angle < end) {
                between.emplace_back(angle, here);
            }
        }
        std::ranges::sort(between, {}, &std::pair<double, point>::first);
        for (const auto& row : between) {
            polygon.push_back(row.second);
        }
    }

    std::size_t nearest(point contact, double phi) const {
        const point back = contact * std::polar(1.0, -phi);
        const auto found = std::ranges::min_element(
            inner_, {}, [&](const point& stored) { return std::norm(stored - back); });
        return static_cast<std::size_t>(found - inner_.begin());
    }

    /// The inner profile runs counter-clockwise, so the chamber takes it from the second contact
    /// backwards.
    void add_inner(point first, point second, point turned, std::vector<point>& polygon) const {
        const double phi = std::arg(turned);
        const std::size_t last = nearest(first, phi);
        std::size_t n = nearest(second, phi);
        polygon.push_back(inner_[n] * turned);
        while (n != last) {
            n = n == 0 ? inner_.size() - 1 : n - 1;
            polygon.push_back(inner_[n] * turned);
        }
    }

    static double shoelace(const std::vector<point>& polygon) {
        double twice = 0.0;
        for (std::size_t n = 0; n < polygon.size(); ++n) {
            twice += std::imag(std::conj(polygon[n]) * polygon[(n + 1) % polygon.size()]);
        }
        return twice / 2.0;
    }

    double numlobes_;
    double radouter_;
    double lobe_distance_ = 0.0;
    point outer_centre_;
    point pitch_point_;
    std::vector<point> inner_, outer_;
};

/// Swept volume from the contact points alone: a rotor that turns with w about its centre sweeps w
/// (q^2 - p^2) / 2 between contacts at the distances p and q from it. For a pair without clearance;
/// the sum of the positive rates, mm3 a turn.
double volume_of_the_rates(const design_params& design) {
    constexpr int STEPS = 20000;
    const double lobes = design.numlobes;
    const double lobe_distance = design.radouter + design.radinnroot + design.ecc;
    const point outer_centre(-design.ecc, 0.0);
    const point pitch_point((lobes - 1.0) * design.ecc, 0.0);
    const auto contact = [&](double angle) {
        const point centre = outer_centre + std::polar(lobe_distance, angle);
        return centre + design.radouter * (pitch_point - centre) / std::abs(pitch_point - centre);
    };
    double grown = 0.0;
    for (int n = 0; n < STEPS; ++n) {
        const double angle = TURN * n / STEPS;  // the outer rotor
        const point p = contact(angle);
        const point q = contact(angle + TURN / lobes);
        const double rate = (std::norm(q - outer_centre) - std::norm(p - outer_centre)) / 2.0 -
                            lobes / (lobes - 1.0) * (std::norm(q) - std::norm(p)) / 2.0;
        grown += std::max(rate, 0.0) * TURN / STEPS;
    }
    return (lobes - 1.0) * grown * design.thick;
}

struct measured {
    const char* sample;
    double swept_cc;     ///< with the clearance
    double reads_above;  ///< capacity_cc over it, percent
    double
        without_clearance;  ///< the same over the swept volume of a pair without clearance, percent
};

double percent_above(double capacity_cc, double swept_cc) {
    return (capacity_cc / swept_cc - 1.0) * 100.0;
}

class swept_volume_test : public testing::TestWithParam<measured> {
  protected:
    performance_case sample = load_performance_case(GetParam().sample);
};

TEST_P(swept_volume_test, differs_from_the_capacity_as_the_page_says) {
    const double swept_cc =
        rotor_pair(sample.design_params).swept_volume(sample.design_params.thick) / 1000.0;
    EXPECT_NEAR(swept_cc, GetParam().swept_cc, 0.001);
    EXPECT_NEAR(percent_above(sample.rotor_profiles.capacity_cc, swept_cc), GetParam().reads_above,
                0.02);
}

/// Two ways to the same volume: the polygons have 3600 points, so a few hundredths of a percent
/// remain.
TEST_P(swept_volume_test, agrees_with_the_rates_at_the_contacts) {
    design_params tight = sample.design_params;
    tight.clearn_half = 0.0;
    const double polygons = rotor_pair(tight).swept_volume(tight.thick);
    const double rates = volume_of_the_rates(tight);
    EXPECT_NEAR(polygons / rates, 1.0, 0.0005);
    EXPECT_NEAR(percent_above(sample.rotor_profiles.capacity_cc, rates / 1000.0),
                GetParam().without_clearance, 0.02);
}

/// The contact points of the tool lie on the inner profile but for the clearance, which is
/// clearn_half where the rotors come closest and larger on the flanks.
TEST_P(swept_volume_test, measures_chambers_that_end_at_the_contacts) {
    const double gap = rotor_pair(sample.design_params).largest_contact_gap();
    EXPECT_GT(gap, sample.design_params.clearn_half * 0.9);
    EXPECT_LT(gap, sample.design_params.clearn_half * 1.6);
}

INSTANTIATE_TEST_SUITE_P(samples, swept_volume_test,
                         testing::Values(measured{"n03_transfer_sharp", 1.1920, 16.56, 16.62},
                                         measured{"n04_fuel", 1.4913, 5.83, 6.07},
                                         measured{"n07_engine_oil_groove", 6.0294, -0.26, 0.42},
                                         measured{"n07_inch_hydraulic", 8.7922, 0.20, 0.71},
                                         measured{"n09_crank_oil", 13.3996, -0.57, 0.06}),
                         [](const auto& row) { return std::string(row.param.sample); });

}  // namespace
}  // namespace kvt
