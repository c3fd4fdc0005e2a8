// performance_obstacle: why Calculate Performance would fail or deliver nothing, found before it
// runs. Source: docs/formulas/flow.md, "Performance that cannot be".
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "core/text_table.hpp"
#include "performance/perf_inputs.hpp"
#include "ports/port_params.hpp"

#include <optional>

namespace kvt {

/// The entry of the ports that leaves no performance, whatever fluid and range are:
/// 1. the outlet's inner radius is not above that of the shaft: its leak is negative;
/// 2. the radii of the outlet leave nothing of the ring between the roots of the rotors;
/// 3. both end angles of the outlet entered as 180, in memory 0: its arc ends before it begins;
/// 4. the sector of the inlet's inner radius is as large as that of the outer one;
/// 5. the outlet ends before it begins on its outer radius.
/// The first of them, or nothing; before them an outlet that was never designed. The run fails, or
/// the flow is 0 at every point; without an outlet, and with 1 and 2, there may be a flow, which
/// means nothing.
std::optional<message> port_obstacle(const design_params& design, const port_params& ports);

/// What the entries of Calculate Performance add: a vapour pressure not below that of the
/// atmosphere; Poisson's ratios without a positive modulus; a drive power that is not above 0; a
/// flow that is 0 at every point; a chamber that never fills in the march, through the groove or at
/// all; numbers beyond the range of a double. Runs the formulas on results of its own, 1 ms; it
/// throws nothing.
std::optional<message> performance_obstacle(const design_params& design,
                                            const rotor_profiles& rotors, const port_params& ports,
                                            const perf_inputs& inputs);

}  // namespace kvt
