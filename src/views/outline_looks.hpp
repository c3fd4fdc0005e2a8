// outline_looks: the colours and lines of the explanation drawings, the same on the screen and on
// paper.
#pragma once

#include "views/explanation.hpp"
#include "views/rgb_colour.hpp"

#include <optional>

namespace kvt {

struct outline_look {
    outline_style style;
    rgb_colour line;
    std::optional<rgb_colour> fill;
    double width = 1.0;      ///< of a thin line
    bool is_dashed = false;  ///< dashes and dots
};

const outline_look& look_of(outline_style style);

inline constexpr rgb_colour DIMENSION_COLOUR = {0x1f, 0x3a, 0x68};
inline constexpr rgb_colour LEADER_COLOUR = {0x70, 0x70, 0x70};

}  // namespace kvt
