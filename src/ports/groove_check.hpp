// What is wrong with a metering groove that was built.
// Source: docs/formulas/ports.md, "Metering groove".
#pragma once

#include "ports/groove_outline.hpp"

namespace kvt {

struct groove_faults {
    bool wrong_side = false;  ///< a part of it lies below the x axis, where the inlet is
    bool crosses_itself = false;

    bool any() const { return wrong_side || crosses_itself; }
};

/// The faults of the outline that a shape gives (outline_of_groove). The groove begins where the
/// straight line of the outlet's end side meets its paths, and a steep one meets them below the x
/// axis. Throws as outline_of_groove does.
groove_faults faults_of_groove(const groove_shape& groove);

}  // namespace kvt
