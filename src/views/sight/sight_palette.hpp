// sight_palette: the colours of the Design view, on white paper and on a dark ground.
#pragma once

#include "views/rgb_colour.hpp"
#include "views/sight/sight_drawing.hpp"

namespace kvt {

struct sight_palette {
    rgb_colour paper, ink;
    rgb_colour body, inner_rotor;  ///< the surfaces of the rotors
    rgb_colour inlet, outlet, groove, groove_end;
    rgb_colour marked_chamber, marked_contact;
    rgb_colour cross;
    rgb_colour pinned;   ///< the outlines of the pinned design
    rgb_colour chamber;  ///< the surface of a chamber whose area is told
    rgb_colour grid, grid_axis, scale_bar, dimension, extension, area, contact, measure;
};

/// How much of a port's surface covers what lies below it, 0 .. 1.
inline constexpr double PORT_COVER = 0.22;

const sight_palette& sight_palette_on(bool dark_ground);

rgb_colour colour_of(sight_ink ink, const sight_palette& palette);

}  // namespace kvt
