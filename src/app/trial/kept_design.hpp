// kept_design: a calculated design apart from the records, such as one that was tried while its
// entries are typed.
#pragma once

#include "core/entries.hpp"
#include "performance/perf_results.hpp"
#include "views/overlay_drawing.hpp"

#include <cstdint>

namespace kvt {

struct program;
struct app_state;

struct kept_design {
    kvt::design_params design_params;
    kvt::rotor_profiles rotor_profiles;
    kvt::port_params port_params;
    kvt::perf_results perf_results;
    overlaid_outlines outlines;    ///< what there is to draw
    bool has_performance = false;  ///< perf_results says something
    std::int16_t capacity_unit = 1;
};

/// What stands calculated in the records and is on display. The records of a program that is moved
/// here are not copied.
kept_design kept_design_of(program kavetta);

/// Where a design lies over the Design view of a program: at the place of its rotors, without any
/// as the first drawing of the design.
view_state overlay_place(const program& kavetta, const kept_design& kept);

/// Outlines of a design at a place; empty where they can't be drawn there.
design_view overlay_of(const kept_design& kept, const overlaid_outlines& which,
                       const view_state& place);

/// The result labels of a design in the language and units in force. Empty for what it lacks.
labels labels_of(const kept_design& kept, const app_state& state);

}  // namespace kvt
