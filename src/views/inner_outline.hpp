// The inner rotor's lines in the Design view, one a pair of neighbouring points of the plot list.
#pragma once

#include "base/checked_math.hpp"
#include "core/rotor_profiles.hpp"
#include "geometry/polar_area.hpp"
#include "views/design_view.hpp"

namespace kvt {

/// A point of the picture, twips, y down.
struct screen_point {
    float x = 0.0F, y = 0.0F;
};

/// Elements 0 .. M, M = (inner_plot_len - 1) / 2 - 1, from point i to point i + 1 of inner_plot_xy,
/// and a last one closing to point 0. Elements are loaded as needed and shown. on_screen puts a
/// point of the plot list (mm, inner rotor axis at the origin) into the picture; every point goes
/// through it once.
template <typename transform>
void draw_inner_outline(const rotor_profiles& rotors, line_array& lines,
                        const transform& on_screen) {
    const std::int64_t last = to_int32((rotors.inner_plot_len - 1.0) / 2.0 - 1.0);
    const screen_point first = on_screen(pair_at(rotors.inner_plot_xy, 0));
    screen_point from = first;
    std::size_t element = 0;
    for (std::int64_t i = 0; i <= last; ++i) {
        const screen_point to = on_screen(pair_at(rotors.inner_plot_xy, 2 * (i + 1)));
        lines.set(element, {from.x, from.y, to.x, to.y});
        ++element;
        from = to;
    }
    lines.set(element, {from.x, from.y, first.x, first.y});
}

}  // namespace kvt
