// perf_inputs: fluid, range, materials and porting type as Calculate Performance reads them from
// the entries. Source: docs/formulas/flow.md, "Units".
#pragma once

#include "core/length_unit.hpp"

namespace kvt {

/// Units are those of the model; only the pressure range stays in the unit of the entries (bar, or
/// psi in the imperial system).
struct perf_inputs {
    double density_kgm3 = 0.0;  ///< fluid density, kg/m3
    double kin_visc_cst = 0.0;  ///< kinematic viscosity, cSt
    double pv = 0.0;            ///< vapour pressure, Pa
    double bulk_mod_pa = 0.0;   ///< bulk modulus of the fluid, Pa
    double speed_lo = 0.0;      ///< speed range, rpm
    double speed_hi = 0.0;
    double pressure_lo = 0.0;  ///< pressure range, bar or psi
    double pressure_hi = 0.0;
    double young_inner_mpa = 0.0;  ///< Young's modulus of the inner rotor, MPa
    double young_outer_mpa = 0.0;  ///< and of the outer rotor
    double poisson_inner = 0.0;    ///< Poisson's ratio of the inner rotor
    double poisson_outer = 0.0;    ///< and of the outer rotor
    double friction = 0.0;         ///< coefficient of friction between rotors and housing
    double Face_area_value = 0.0;  ///< share of the rotor faces that carries the film, percent
    double OD_area_value = 0.0;    ///< share of the rotor periphery that does, percent
    double outlet_start_inner =
        0.0;  ///< degrees, from the text of the entry: the side load reads the text
    double outlet_end_inner = 0.0;
    unit_system system = unit_system::metric;  ///< of the entries
    bool inlet_double_sided = false;           ///< the porting type
    bool outlet_double_sided = false;
    bool shadow_ports = false;
    bool metering_groove = false;

    friend bool operator==(const perf_inputs&, const perf_inputs&) = default;
};

/// Double sided or shadow outlet: the rotors are balanced, their faces float in the middle of the
/// gap.
inline bool is_balanced(const perf_inputs& inputs) {
    return inputs.outlet_double_sided || inputs.shadow_ports;
}

}  // namespace kvt
