// A sound 7-lobe design for tests: as typed entries, as a read design, and as a computed rotor
// pair.
#pragma once

#include "base/constants.hpp"
#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/rotor_profiles.hpp"
#include "geometry/inner_rotor.hpp"
#include "geometry/outer_rotor.hpp"
#include "geometry/trochoid.hpp"

#include <cstddef>

namespace kvt {

inline entries sample_entries() {
    entries boxes;
    boxes.volumereqd = "6";
    boxes.numlobes = "7";
    boxes.ecc = "2.85";
    boxes.radouter = "7.5";
    boxes.radinnroot = "14.15";
    boxes.clearn = "0.12";
    boxes.thick = "10";
    boxes.shaftdiameter = "18";
    boxes.minmaterial = "2.5";
    boxes.maxdiameter = "52";
    boxes.axial_clear = "0.06";
    boxes.radial_clear = "0.15";
    boxes.fillet = "1.5";
    boxes.outer_root = "22.9";
    boxes.coarseness = "1";
    return boxes;
}

inline design_params sample_design() {
    design_params design;
    design.numlobes = 7;
    design.ecc = 2.85;
    design.radouter = 7.5;
    design.radinnroot = 14.15;
    design.clearn_half = 0.06;
    design.thick = 10.0;
    design.shaftdiameter = 18.0;
    design.minmaterial = 2.5;
    design.maxdiameter = 52.0;
    design.axial_clear = 0.06;
    design.radial_clear = 0.15;
    design.fillet = 1.5;
    design.outer_root = 22.9;
    design.coarseness = 1;
    return design;
}

/// Lists of the size that a run gives them, and the parameters of the circles.
inline rotor_profiles prepared_rotors(const design_params& design) {
    rotor_profiles rotors;
    rotors.profile_points = PROFILE_POINTS;
    rotors.troch_xy.assign(7202, 0.0);
    rotors.inner_plot_len = 2.0 * PROFILE_POINTS / design.coarseness + 1.0;
    rotors.inner_plot_xy.assign(static_cast<std::size_t>(rotors.inner_plot_len + 1.0), 0.0);
    rotors.lobe_centre_offset = design.radinnroot + design.ecc;
    set_trochoid_parameters(design, rotors);
    return rotors;
}

inline rotor_profiles inner_rotor_of(const design_params& design) {
    rotor_profiles rotors = prepared_rotors(design);
    fill_trochoid(design, rotors);
    fill_inner_rotor(design, rotors);
    return rotors;
}

inline rotor_profiles rotor_pair_of(const design_params& design) {
    rotor_profiles rotors = inner_rotor_of(design);
    fill_outer_rotor(design, rotors);
    return rotors;
}

}  // namespace kvt
