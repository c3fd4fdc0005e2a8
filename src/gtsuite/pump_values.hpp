// pump_values: what the passes put into the model, read from the records of a calculated design.
// Source: docs/formulas/simulation_model.md.
#pragma once

#include "core/design_params.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"

#include <string>

namespace kvt {

/// Constants of the drag torque. Source: docs/formulas/simulation_model.md, "Drag torque".
struct drag_constants {
    double pressure_friction = 0.0;  ///< K1, N m a bar and a unit of friction
    double face_shear = 0.0;         ///< K2
    double shaft_rate = 0.0;         ///< K3, rad/s a rpm
    double periphery_shear = 0.0;    ///< K4
};

/// Lengths mm unless the name says otherwise.
struct pump_values {
    int numlobes = 0;
    double thick = 0.0, maxdiameter = 0.0, shaftdiameter = 0.0;
    double tip_clearance_um = 0.0, axial_clearance_each_side_um = 0.0, radial_clearance_um = 0.0;
    double density_kgm3 = 0.0, kin_visc_cst = 0.0, friction = 0.0;
    bool shadow_ports = false;
    perf_list speed_rpm{}, pressure_bar{};                 ///< the grid of the run
    double inlet_gap_width = 0.0, outlet_gap_width = 0.0;  ///< what a gap flow crosses in a port
    double velocity_factor = 0.0;                          ///< velocity of the faces, m/s a rpm
    drag_constants drag;                                   ///< of the friction formula
    double face_area_mm2 = 0.0;                            ///< film area of both faces
    double face_radius = 0.0;           ///< at which that area shears like both faces
    double bearing_length = 0.0;        ///< of the shaft bearing: an assumption, the diameter
    double bearing_clearance_um = 0.0;  ///< an assumption, 0.001 of the diameter
    double biggest_chamber_mm3 = 0.0, smallest_chamber_mm3 = 0.0;  ///< of the converter's profile
    std::string fluid;                                             ///< UTF-8
};

/// K1 .. K4 of a design that is calculated. Throws division_by_zero for 0 lobes.
drag_constants drag_constants_of(const design_params& design, const perf_inputs& inputs,
                                 const perf_results& results);

/// Everything but the chambers and the fluid. Throws as drag_constants_of.
pump_values pump_values_of(const design_params& design, const port_params& ports,
                           const perf_inputs& inputs, const perf_results& results);

}  // namespace kvt
