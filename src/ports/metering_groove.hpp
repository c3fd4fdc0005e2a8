// The metering groove: a narrow pocket out of the outlet's end side, along a circular path towards
// the inlet.
#pragma once

#include "ports/port_work.hpp"

namespace kvt {

/// Builds the groove on the end side through outlet_p2 and outlet_p3 of the record. groove_depth_mm
/// is the caller's. Sets has_groove, which tells whether this run finished one. refused: a search
/// at the nose ran out, or its angle lies below 0 (inner corner) or above 180 degrees (outer
/// corner); groove_length is emptied and focused, the groove of an earlier run stands. Kept: a
/// groove shorter than its fillet or of negative length is not refused; metering_groove_test holds
/// it. Throws run_time_error for a vertical end side, or one that does not meet both path circles.
/// Source: docs/formulas/ports.md, "Metering groove".
port_end build_metering_groove(port_work& work);

}  // namespace kvt
