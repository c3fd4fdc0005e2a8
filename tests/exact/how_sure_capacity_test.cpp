// The capacity against the volume that a pair without clearance sweeps: the tables of the page
// how-sure are made of the exact figures. The volume is checked by areas of a chamber over a full
// turn, from the points that are cut.
//
// A chamber is the polygon of the outer profile from the contact point of one lobe to that of the
// next, and of the inner profile back. The common normal of a contact goes through the pitch point
// at x = (N - 1) ecc, so the contact point of a lobe lies on its circle towards that point; the
// chamber ends there on a straight line over the clearance.
#include "base/fixed_number.hpp"
#include "base/number_text.hpp"
#include "base/whole_file.hpp"
#include "exact/swept_volume.hpp"
#include "support/performance_case.hpp"
#include "support/sample_design.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <filesystem>
#include <gtest/gtest.h>
#include <numbers>
#include <string>
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
    double swept_volume(double thick, int positions = 720) const {
        const double one_passage = TURN * numlobes_ / (numlobes_ - 1.0);
        double smallest = chamber_area(0.0);
        double largest = smallest;
        for (int n = 1; n < positions; ++n) {
            const double area = chamber_area(one_passage * n / positions);
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

double swept_volume_of(const design_params& design) {
    return swept_volume(nominal_pair(design));
}

/// capacity_cc without the clearance: the ring between tip and root circle, mm3 a turn.
double capacity_of_tight_pair(const design_params& design) {
    const double root = design.radinnroot;
    const double tip = root + 2.0 * design.ecc;
    return (tip * tip - root * root) * std::numbers::pi * design.thick;
}

double percent_above(double capacity, double swept) {
    return (capacity / swept - 1.0) * 100.0;
}

std::string percent_text(double above) {
    return fixed_number(std::abs(above), 2) + (above < 0.0 ? " % below" : " % above");
}

bool page_has(const std::string& line) {
    const std::string page =
        read_file(std::filesystem::path(KVT_TEST_DATA) / "../../docs/formulas/how-sure.md");
    return page.find("\n" + line + "\n") != std::string::npos;
}

class capacity_of_samples : public testing::TestWithParam<const char*> {
  protected:
    performance_case sample = load_performance_case(GetParam());
    double swept_cc = swept_volume_of(sample.design_params) / 1000.0;
};

TEST_P(capacity_of_samples, differs_from_the_capacity_as_the_page_says) {
    const design_params& design = sample.design_params;
    const double capacity_cc = sample.rotor_profiles.capacity_cc;
    const std::string line =
        "| " + std::string(GetParam()) + " | " + std::to_string(design.numlobes) + " | " +
        fixed_number(swept_cc, 4) + " | " + fixed_number(capacity_cc, 4) + " | " +
        percent_text(percent_above(capacity_cc, swept_cc)) + " | " +
        percent_text(percent_above(capacity_of_tight_pair(design) / 1000.0, swept_cc)) + " |";
    EXPECT_TRUE(page_has(line)) << line;
}

/// Two ways to the same volume: the polygons have 3600 points, so a few hundredths of a percent
/// remain.
TEST_P(capacity_of_samples, agrees_with_polygons_of_the_cut_points) {
    design_params tight = sample.design_params;
    tight.clearn_half = 0.0;
    const double polygons = rotor_pair(tight).swept_volume(tight.thick);
    EXPECT_NEAR(polygons / 1000.0 / swept_cc, 1.0, 0.0005);
}

/// The contact points of the tool lie on the inner profile but for the clearance, which is
/// clearn_half where the rotors come closest and larger on the flanks.
TEST_P(capacity_of_samples, measures_chambers_that_end_at_the_contacts) {
    const double gap = rotor_pair(sample.design_params).largest_contact_gap();
    EXPECT_GT(gap, sample.design_params.clearn_half * 0.9);
    EXPECT_LT(gap, sample.design_params.clearn_half * 1.6);
}

INSTANTIATE_TEST_SUITE_P(samples, capacity_of_samples, testing::ValuesIn(SAMPLES),
                         [](const auto& row) { return std::string(row.param); });

/// Tight pairs whose lobes have other proportions than those of the samples, mm.
struct shape {
    const char* name;
    int numlobes;
    double ecc, radouter, radinnroot;
};

class shape_of_lobes_test : public testing::TestWithParam<shape> {
  protected:
    static design_params tight_pair(const shape& of) {
        design_params design = sample_design();
        design.numlobes = of.numlobes;
        design.ecc = of.ecc;
        design.radouter = of.radouter;
        design.radinnroot = of.radinnroot;
        design.outer_root = of.radinnroot + 3.0 * of.ecc;
        design.fillet = 0.0;
        design.clearn_half = 0.0;
        return design;
    }
};

TEST_P(shape_of_lobes_test, counts_as_much_as_the_number_of_lobes) {
    const design_params design = tight_pair(GetParam());
    const double swept = swept_volume_of(design);
    EXPECT_NEAR(rotor_pair(design).swept_volume(design.thick, 180) / swept, 1.0, 0.0005)
        << "a pair that can be made";
    const std::string line =
        "| " + std::string(GetParam().name) + " | " + std::to_string(design.numlobes) + " | " +
        number_text(design.ecc) + " | " + number_text(design.radouter) + " | " +
        number_text(design.radinnroot) + " | " +
        percent_text(percent_above(capacity_of_tight_pair(design), swept)) + " |";
    EXPECT_TRUE(page_has(line)) << line;
}

INSTANTIATE_TEST_SUITE_P(shapes, shape_of_lobes_test,
                         testing::Values(shape{"slim lobes far apart", 4, 1.5, 4.0, 6.0},
                                         shape{"thick lobes", 4, 2.2, 6.0, 5.0},
                                         shape{"slim lobes", 7, 2.85, 5.0, 16.65},
                                         shape{"slim lobes far apart", 7, 1.5, 3.0, 15.0},
                                         shape{"thick lobes", 7, 2.85, 7.5, 14.15},
                                         shape{"slim lobes", 9, 2.0, 3.5, 16.0}),
                         [](const auto& row) { return "number_" + std::to_string(row.index); });

}  // namespace
}  // namespace kvt
