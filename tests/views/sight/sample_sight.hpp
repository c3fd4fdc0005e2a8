// The sample pair as it stands drawn in the Design view, and texts whose letters are all of one
// width.
#pragma once

#include "support/sample_design.hpp"
#include "views/design_view.hpp"
#include "views/rotation.hpp"
#include "views/sight/sight_drawing.hpp"
#include "views/zoom.hpp"

#include <cstdint>
#include <string>

namespace kvt {

/// The whole pair in a box of a size, twips.
inline view_state sample_place(std::int16_t size) {
    view_state state;
    state.view_size = size;
    state.view_cx = state.view_cy = size / 2.0;
    set_plot_scale(sample_design(), state);
    return state;
}

struct sample_sight {
    design_params design = sample_design();
    rotor_profiles rotors = rotor_pair_of(design);
    view_state state = sample_place(6000);
    design_view view;

    sample_sight() { redraw_zoomed(design, rotors, {}, state, view); }
    explicit sample_sight(double degrees) : sample_sight() {
        turn_to(design, degrees, state);
        redraw_rotated(design, rotors, state, view);
    }
};

inline sight_metrics letters_of(double width, double height) {
    return {[width](const std::string& text) { return width * static_cast<double>(text.size()); },
            height};
}

}  // namespace kvt
