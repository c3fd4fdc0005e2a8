// model_palette: the colours of the Model View, on a light and on a dark ground.
#pragma once

#include "views/rgb_colour.hpp"

namespace kvt {

struct model_palette {
    rgb_colour background, edge, section, measure;
    rgb_colour inner_rotor, outer_rotor, inlet, outlet, groove, housing, other, curve;
};

/// The ports have the colours of the Design view, as far as a shaded body can.
const model_palette& model_palette_on(bool dark_ground);

}  // namespace kvt
