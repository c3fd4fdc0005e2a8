#include "views/design_view.hpp"

#include "base/checked_math.hpp"
#include "views/inner_outline.hpp"
#include "views/twips.hpp"

namespace kvt {

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
    view.chamber = {};
}

void clear_all(design_view& view) {
    clear_rotors(view);
    for (line_array* lines :
         {&view.metering_groove_extraline, &view.anglelineout, &view.angleline,
          &view.metering_groove_portline, &view.outlet_portline, &view.inlet_portline}) {
        lines->clear();
    }
}

void set_plot_scale(const design_params& design, view_state& state) {
    state.view_scale = checked_divide(state.view_size * WHOLE_VIEW_SHARE, design.maxdiameter);
    state.view_ecc = design.ecc * state.view_scale;
    state.drawn_size = state.view_size;
}

void draw_inner_rotor(const design_params& design, const rotor_profiles& rotors,
                      const view_state& state, design_view& view) {
    const double half = state.view_size / 2.0;
    draw_inner_outline(rotors, view.Line1, [&](const point2& point) {
        return screen_point{single(state.view_scale * point.x + half + state.view_ecc +
                                   design.clearn_half * state.view_scale),
                            single(state.view_scale * point.y + half)};
    });
    view.Shape1 = {state.view_size / 2.0, state.view_size / 2.0,
                   state.view_scale * design.maxdiameter, true};
}

}  // namespace kvt
