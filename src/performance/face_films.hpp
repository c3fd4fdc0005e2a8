// The rotor faces: their mean radii, the areas of their oil films, the friction of the loaded face
// and the shear of the films on faces and periphery. Source: docs/formulas/power.md, "Radii and
// areas", "Pressure friction" and "Film shear".
#pragma once

#include "core/design_params.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"

namespace kvt {

/// inner_mean_r and outer_mean_r, mm: half-way between the middle of the lobed ring and that of the
/// solid ring of each rotor. The solid ring of the inner rotor counts from 3/4 of the root radius
/// on.
void set_mean_radii(const design_params& design, perf_results& results);

/// area_tip .. area_pitch, and the film areas face_area_inner and face_area_outer, mm2: the solid
/// ring whole, half of the lobed ring where no port lies under it.
void set_face_areas(const design_params& design, const port_params& ports,
                    const perf_inputs& inputs, perf_results& results);

/// face_load_*, friction_torque_* and friction_power: the faces that the outlet pressure loads rub
/// on the housing; 0 for balanced rotors. friction_power is in W, and the inner torque is added to
/// it as it is.
void set_pressure_friction(const perf_inputs& inputs, const port_params& ports,
                           perf_results& results);

/// face_shear_* and face_power_*: Newton's law in the axial gap, the outer rotor turning (N - 1) /
/// N times as fast. Balanced rotors have half the gap on either side, so the shear counts twice.
void set_face_shear(const design_params& design, const perf_inputs& inputs, perf_results& results);

/// od_shear and od_power: Petroff's law on the periphery of the outer rotor, at the speed of the
/// shaft.
void set_periphery_shear(const design_params& design, const perf_inputs& inputs,
                         perf_results& results);

/// Shaft speed in radians a second.
double shaft_speed(double speed_rpm);

}  // namespace kvt
