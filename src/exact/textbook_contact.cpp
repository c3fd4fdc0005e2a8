#include "exact/textbook_contact.hpp"

#include "base/checked_math.hpp"
#include "exact/quadrature.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace kvt {

namespace {

constexpr int STEPS = 360;  ///< a pitch, before the largest is refined

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

contact_maximum largest_contact_pressure(const exact_pair& pair, double modulus, double torque) {
    const auto squared = [&](double angle) {
        const double load = share_of_lobe(pair, angle) * torque * modulus *
                            contact_curvature(pair, angle) / (std::numbers::pi * pair.thick);
        return std::max(load, 0.0);
    };
    // Every lobe passes every angle, so one lobe's way along the pushed side is a pitch of all.
    const extreme largest =
        largest_between(squared, -std::numbers::pi, 0.0, STEPS * std::max(pair.lobes, 1) / 2);
    return {std::sqrt(largest.value), largest.at, share_of_lobe(pair, largest.at) * torque};
}

}  // namespace kvt
