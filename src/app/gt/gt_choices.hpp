// gt_choices: what the simulation part of the Performance form holds.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kvt {

struct gt_choices {
    int gt_version = 0;               ///< the year, 0 while none is chosen
    std::vector<std::string> fluids;  ///< of GT_fluid, behind "Select Fluid..."
    std::size_t fluid_row = 0;        ///< of GT_fluid; 0 is "Select Fluid..."
    bool tim_gemc_enabled = false;    ///< the timer that looks for the converter's model

    /// The chosen fluid; empty while "Select Fluid..." stands there.
    std::string fluid() const { return fluid_row == 0 ? "" : fluids[fluid_row - 1]; }
};

}  // namespace kvt
