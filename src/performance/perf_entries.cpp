#include "performance/perf_entries.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "performance/perf_units.hpp"

#include <array>

namespace kvt {

namespace {

using box = std::string entries::*;

constexpr std::array<box, 13> DECIMAL_COMMA_ALLOWED = {
    &entries::fluid_density,  &entries::kin_visc,       &entries::vap_press,
    &entries::bulk_mod_text,  &entries::young_inner,    &entries::young_outer,
    &entries::poissons_inner, &entries::poissons_outer, &entries::friction,
    &entries::speed_lo,       &entries::speed_hi,       &entries::pressure_lo,
    &entries::pressure_hi};

/// One row of the validation: the entry must be above 0, or above another entry where there is one.
struct perf_check {
    box entry;
    message text;
    box above = nullptr;
};

constexpr std::array<perf_check, 15> PERF_CHECKS = {{
    {&entries::fluid_density, message::input_density},
    {&entries::kin_visc, message::input_viscosity},
    {&entries::vap_press, message::input_vapour_pressure},
    {&entries::bulk_mod_text, message::input_bulk_modulus},
    {&entries::speed_lo, message::input_speed_range},
    {&entries::speed_hi, message::speed_range_order},
    {&entries::speed_hi, message::speed_range_order, &entries::speed_lo},
    {&entries::pressure_lo, message::input_pressure_range},
    {&entries::pressure_hi, message::pressure_range_order},
    {&entries::pressure_hi, message::pressure_range_order, &entries::pressure_lo},
    {&entries::young_inner, message::input_youngs_inner},
    {&entries::young_outer, message::input_youngs_outer},
    {&entries::poissons_inner, message::input_poissons_inner},
    {&entries::poissons_outer, message::input_poissons_outer},
    {&entries::friction, message::input_friction},
}};

}  // namespace

void clean_up_perf_entries(entries& boxes) {
    for (const box entry : DECIMAL_COMMA_ALLOWED) {
        boxes.*entry = commas_to_points(boxes.*entry);
    }
}

std::optional<refused_perf_entry> first_refused_perf_entry(const entries& boxes) {
    for (const auto& [entry, text, above] : PERF_CHECKS) {
        const double bound = above == nullptr ? 0.0 : val(boxes.*above);
        if (!(val(boxes.*entry) > bound)) {
            return refused_perf_entry{text, entry};
        }
    }
    return std::nullopt;
}

perf_inputs read_perf_inputs(const entries& boxes, unit_system system) {
    const entry_factors& units = factors_of(system);
    perf_inputs inputs;
    inputs.system = system;
    inputs.density_kgm3 = checked_finite(val(boxes.fluid_density) * units.volume / units.mass);
    inputs.kin_visc_cst = val(boxes.kin_visc);
    inputs.pv = checked_finite(val(boxes.vap_press) * BAR_PA / units.mercury);
    inputs.bulk_mod_pa = checked_finite(val(boxes.bulk_mod_text) * units.bulk_modulus_pa);
    inputs.speed_lo = val(boxes.speed_lo);
    inputs.speed_hi = val(boxes.speed_hi);
    inputs.pressure_lo = val(boxes.pressure_lo);
    inputs.pressure_hi = val(boxes.pressure_hi);
    inputs.young_inner_mpa = checked_finite(val(boxes.young_inner) * units.youngs_modulus_mpa);
    inputs.young_outer_mpa = checked_finite(val(boxes.young_outer) * units.youngs_modulus_mpa);
    inputs.poisson_inner = val(boxes.poissons_inner);
    inputs.poisson_outer = val(boxes.poissons_outer);
    inputs.friction = val(boxes.friction);
    inputs.Face_area_value = val(boxes.Face_area_value);
    inputs.OD_area_value = val(boxes.OD_area_value);
    inputs.outlet_start_inner = val(boxes.outlet_start_inner);
    inputs.outlet_end_inner = val(boxes.outlet_end_inner);
    inputs.inlet_double_sided = is_ticked(boxes.inlet_double_sided);
    inputs.outlet_double_sided = is_ticked(boxes.outlet_double_sided);
    inputs.shadow_ports = is_ticked(boxes.shadow_ports);
    inputs.metering_groove = is_ticked(boxes.metering_groove);
    return inputs;
}

double thickness_entry_mm(const entries& boxes, const length_unit& unit) {
    return unit.to_mm(val(boxes.thick));
}

}  // namespace kvt
