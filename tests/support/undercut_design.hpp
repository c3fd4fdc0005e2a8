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

}  // namespace kvt
