#include "views/design_view.hpp"

#include "core/checked_math.hpp"
#include "views/twips.hpp"

namespace kvt {

namespace {

struct plot_point {
    float x = 0.0F, y = 0.0F;
};

/// Point number i of the plot list on the screen.
plot_point screen_point(const design_params& design, const rotor_profiles& rotors, const app_state& state,
                        std::int64_t i) {
    const double x = checked_at(rotors.inner_plot_xy, 2 * i);
    const double y = checked_at(rotors.inner_plot_xy, 2 * i + 1);
    const double half = state.view_size / 2.0;
    return {single(state.view_scale * x + half + state.view_ecc + design.clearn_half * state.view_scale),
            single(state.view_scale * y + half)};
}

}  // namespace

void line_array::clear() {
    elements.resize(1);
    element0_visible = false;
}

void line_array::set(std::size_t index, const drawn_line& line) {
    if (index == elements.size()) {
        elements.emplace_back();
    }
    checked_at(elements, static_cast<std::int64_t>(index)) = line;
    if (index == 0) {
        element0_visible = true;
    }
}

void clear_rotors(design_view& view) {
    view.Line1.clear();
    view.Shape1.visible = false;
    view.Picture1.clear();
}

void clear_all(design_view& view) {
    clear_rotors(view);
    for (line_array* lines : {&view.metering_groove_extraline, &view.anglelineout, &view.angleline,
                              &view.metering_groove_portline, &view.outlet_portline, &view.inlet_portline}) {
        lines->clear();
    }
}

void set_plot_scale(const design_params& design, app_state& state) {
    state.view_scale = checked_divide(state.view_size * 0.95, design.maxdiameter);
    state.view_ecc = design.ecc * state.view_scale;
}

void draw_inner_rotor(const design_params& design, const rotor_profiles& rotors, const app_state& state,
                      design_view& view) {
    const std::int64_t last = to_int32((rotors.inner_plot_len - 1.0) / 2.0 - 1.0);
    const plot_point first = screen_point(design, rotors, state, 0);
    plot_point from = first;
    std::size_t element = 0;
    for (std::int64_t j = 0; j <= last; ++j) {
        const plot_point to = screen_point(design, rotors, state, j + 1);
        view.Line1.set(element, {from.x, from.y, to.x, to.y});
        ++element;
        from = to;
    }
    view.Line1.set(element, {from.x, from.y, first.x, first.y});
    view.Shape1 = {state.view_size / 2.0, state.view_size / 2.0, state.view_scale * design.maxdiameter, true};
}

}  // namespace kvt
