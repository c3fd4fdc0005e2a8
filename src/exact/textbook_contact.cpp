#include "exact/textbook_contact.hpp"

#include "base/checked_math.hpp"
#include "exact/quadrature.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kvt {

namespace {

constexpr int STEPS = 360;  ///< a pitch, before the largest is refined
/// The lobes below the line of centres are pushed.
constexpr double FROM = -std::numbers::pi;
constexpr double TO = 0.0;

double compliance(double young, double poisson) {
    return checked_divide(1.0 - poisson * poisson, young);
}

/// The arm of the normal about the inner axis, mm; 0 for a lobe that is not pushed.
double arm_of_lobe(const exact_pair& pair, double angle) {
    if (std::sin(angle) >= 0.0) {
        return 0.0;
    }
    return std::abs(cross(pair.pitch_point(), contact_of_lobe(pair, angle).normal));
}

/// Sum of the squares of the arms when one lobe stands at an angle.
double sum_of_squares(const exact_pair& pair, double angle) {
    double sum = 0.0;
    for (int lobe = 0; lobe < pair.lobes; ++lobe) {
        const double arm = arm_of_lobe(pair, angle + lobe * pair.pitch());
        sum += arm * arm;
    }
    return sum;
}

/// F / T, 1/mm.
double share_of_lobe(const exact_pair& pair, double angle) {
    const double arm = arm_of_lobe(pair, angle);
    return arm == 0.0 ? 0.0 : arm / sum_of_squares(pair, angle);
}

}  // namespace

double contact_modulus(const contact_materials& materials) {
    return checked_divide(1.0, compliance(materials.young_inner, materials.poisson_inner) +
                                   compliance(materials.young_outer, materials.poisson_outer));
}

// Every lobe passes every angle, so one lobe's way along the pushed side is a pitch of all.
pushed_side::pushed_side(const exact_pair& pair) : pair_(pair) {
    const int steps = STEPS * std::max(pair.lobes, 1) / 2;
    places_.reserve(static_cast<std::size_t>(steps) + 1);
    for (int i = 0; i <= steps; ++i) {
        places_.push_back(place_at(step_end(FROM, TO, i, steps)));
    }
}

contact_maximum pushed_side::largest_pressure(double modulus, double torque) const {
    std::vector<double> values;
    values.reserve(places_.size());
    for (const place& at : places_) {
        values.push_back(squared_pressure(at, modulus, torque));
    }
    const auto squared = [&](double angle) {
        return squared_pressure(place_at(angle), modulus, torque);
    };
    const extreme largest = largest_between(squared, FROM, TO, values);
    return {std::sqrt(largest.value), largest.at, share_of_lobe(pair_, largest.at) * torque};
}

pushed_side::place pushed_side::place_at(double angle) const {
    return {share_of_lobe(pair_, angle), contact_curvature(pair_, angle)};
}

double pushed_side::squared_pressure(const place& at, double modulus, double torque) const {
    const double load =
        at.share * torque * modulus * at.curvature / (std::numbers::pi * pair_.thick);
    return std::max(load, 0.0);
}

}  // namespace kvt
