// Rotors whose solids are hard to build: many lobes, and hardly any root arcs between the fillets.
#pragma once

#include "base/constants.hpp"
#include "geometry/outer_flank.hpp"
#include "geometry/outer_path.hpp"
#include "support/random_design.hpp"

#include <gtest/gtest.h>

namespace kvt {

/// Rotors of a design whose ports don't matter.
inline program calculated_rotors(program kavetta) {
    scripted_user person;
    EXPECT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    return kavetta;
}

inline void type_many_lobes(entries& boxes, int lobes) {
    constexpr double RATIO = 1.5, ROLLED_MM = 30.0;
    const double ecc = ROLLED_MM / (RATIO * lobes), radouter = 2.0 * ecc;
    const double radinnroot = ROLLED_MM - radouter - ecc;
    boxes.numlobes = number_text(lobes);
    boxes.ecc = typed_number(ecc);
    boxes.radouter = typed_number(radouter);
    boxes.radinnroot = typed_number(radinnroot);
    boxes.shaftdiameter = typed_number(radinnroot);
    boxes.minmaterial = "1";
    boxes.maxdiameter = "80";
    boxes.fillet = typed_number(ecc * 0.3);
    boxes.outer_root = "";
}

/// The largest fillet that leaves this much of the root arcs, mm, in the box.
inline void type_fillet_for_gap(program& kavetta, double gap) {
    const double unit = length_unit_of(kavetta.app_state).mm;
    const design_params typed = outer_rotor_entries(kavetta.entries, unit);
    const double C = typed.radinnroot + typed.ecc + typed.radouter;
    double small = 0.0, large = typed.outer_root / 2.0;
    for (int step = 0; step < 100; ++step) {
        design_params tried = typed;
        tried.fillet = (small + large) / 2.0;
        const double left =
            tried.outer_root * (TWO_PI_D / 2.0 / tried.numlobes - fillet_angle(tried, C));
        (left > gap ? small : large) = tried.fillet;
    }
    kavetta.entries.fillet = number_text(small / unit);
}

}  // namespace kvt
