// sight: what the Design view shows by its ticks beside the drawing itself, and that in words.
#pragma once

#include "core/design_params.hpp"
#include "core/length_unit.hpp"
#include "core/sight_ticks.hpp"
#include "views/design_view.hpp"
#include "views/sight/measurement.hpp"
#include "views/sight/sight_drawing.hpp"
#include "views/view_state.hpp"

#include <cstdint>
#include <string>

namespace kvt {

/// The drawing, and how it shall be seen.
struct sight_source {
    const design_params& design;
    const view_state& state;
    const design_view& view;
    const sight_ticks& ticks;
    const measurement& measured;
    const length_unit& unit;
    std::int16_t language;
};

/// Nothing while no rotors are drawn, nor for a design with a number that no text can hold.
sight_drawing draw_sight(const sight_source& source, const sight_metrics& metrics);

/// "Shown, too: dimensions, grid of 5 mm, contact points, chamber areas 2.1 mm², 83.12 mm².
/// Measured: 7.071 mm, dx 5 mm, dy -5 mm." of what is ticked; empty without any of it.
std::string sight_words(const sight_source& source);

}  // namespace kvt
