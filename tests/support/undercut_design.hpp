// A design whose lobes are more than half a turn: the root circle lies far outside of the lobe
// centres, so the path of its files has gaps.
#pragma once

#include "support/sample_design.hpp"

namespace kvt {

/// radouter 3 instead of 7.5: C = 20, and the fillet centres stand at x = 21.63 beside the lobe.
inline design_params undercut_design(double fillet = 0.8) {
    design_params design = sample_design();
    design.radouter = 3.0;
    design.outer_root = 22.7;
    design.fillet = fillet;
    return design;
}

/// The rotors of such a design that Calculate Profiles accepts: the arcs miss each other by 0.761
/// mm.
inline void type_undercut_rotors(entries& boxes) {
    boxes.numlobes = "7";
    boxes.ecc = "1.7733";
    boxes.radouter = "2.6818";
    boxes.radinnroot = "17.259";
    boxes.fillet = "0.1979";
    boxes.outer_root = "22.5789";
    boxes.shaftdiameter = "10";
    boxes.minmaterial = "1";
    boxes.maxdiameter = "60";
}

}  // namespace kvt
