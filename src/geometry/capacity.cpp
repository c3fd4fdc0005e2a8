#include "geometry/capacity.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "core/capacity_unit.hpp"

namespace kvt {

double annulus_volume(const design_params& design, const rotor_profiles& rotors) {
    const double tip =
        rotors.roll_radius + rotors.base_radius + design.ecc - design.clearn_half - design.radouter;
    return (tip * tip - design.radinnroot * design.radinnroot) * PI_D * design.thick / 1000.0;
}

fixed4 capacity_in_unit(fixed4 capacity_cc, std::int16_t capacity_unit) {
    const double divisor = cc_in_capacity_unit(capacity_unit);
    if (divisor == 1.0) {
        return capacity_cc;
    }
    return fixed4::from(checked_divide(capacity_cc.value(), divisor));
}

void calculate_capacity(const design_params& design, std::int16_t capacity_unit,
                        rotor_profiles& rotors) {
    const fixed4 in_cc = fixed4::from(annulus_volume(design, rotors));
    rotors.capacity_cc = in_cc.value();
    rotors.capacity = capacity_in_unit(in_cc, capacity_unit);
}

}  // namespace kvt
