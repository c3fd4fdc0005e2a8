// The load on the shaft from the contact forces of all lobes and from the pressure on the root of
// the inner rotor. Source: docs/formulas/contact.md, "Side load".
#pragma once

#include "core/design_params.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"

namespace kvt {

/// For every grid point: for a = 1 .. 360/(N - 1) - 1 degrees the contact forces of the lobes at b
/// = a + (k - 1) 360 / (N - 1) up to 180 degrees are added along their pressure angles; side_load
/// and side_load_angle are those of the last a. Then side_load grows by root_arc press_pa /
/// 1000000, N.
///     root_arc = 2 radinnroot PI_D thick (outlet_end_inner - outlet_start_inner) / 360, mm2,
///     angles of the texts
/// Needs contact_force and pressure_angle. Throws division_by_zero where the forces have no x
/// component.
void set_side_loads(const design_params& design, const perf_inputs& inputs, perf_results& results);

}  // namespace kvt
