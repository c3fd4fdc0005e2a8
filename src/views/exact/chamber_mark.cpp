#include "views/exact/chamber_mark.hpp"

#include "base/run_time_error.hpp"
#include "exact/chamber.hpp"
#include "views/rotation.hpp"
#include "views/twips.hpp"

#include <cmath>
#include <numbers>

namespace kvt {

namespace {

constexpr double RADIANS_PER_DEGREE = std::numbers::pi / 180.0;
constexpr double FULL_TURN_DEG = 360.0;
constexpr double SAGITTA = 0.02;  ///< mm; below a pixel where a rotor fills the view

drawn_point on_sheet(const point2& place, const view_state& state) {
    return {single(state.view_scale * place.x + state.view_cx + state.view_ecc),
            single(state.view_cy - state.view_scale * place.y)};
}

/// The place goes on with the rotors.
void follow_turn(const exact_pair& pair, view_state& state) {
    chamber_place& marked = *state.marked_chamber;
    const double turn = std::remainder(state.rotation_angle - marked.rotation_angle, FULL_TURN_DEG);
    const double life = chamber_life(pair);
    marked.place = std::fmod(marked.place + turn * RADIANS_PER_DEGREE, life);
    if (marked.place < 0.0) {
        marked.place += life;
    }
    marked.rotation_angle = state.rotation_angle;
}

}  // namespace

void mark_chamber(const design_params& design, double place, view_state& state) {
    const double degrees = place / RADIANS_PER_DEGREE - 180.0 / (design.numlobes - 1.0);
    const double turned_by = std::fmod(degrees, FULL_TURN_DEG);
    turn_to(design, turned_by < 0.0 ? turned_by + FULL_TURN_DEG : turned_by, state);
    state.marked_chamber = chamber_place{place, state.rotation_angle};
}

void unmark_chamber(view_state& state, design_view& view) {
    state.marked_chamber.reset();
    view.chamber = {};
}

void draw_marked_chamber(const design_params& design, view_state& state, design_view& view) {
    view.chamber = {};
    if (!state.marked_chamber) {
        return;
    }
    try {
        const exact_pair pair = nominal_pair(design);
        const lobe_outline outline = outline_of_lobe(design);
        follow_turn(pair, state);
        const double place = state.marked_chamber->place;
        for (const point2& point : chamber_polygon(pair, outline, place, SAGITTA)) {
            view.chamber.outline.push_back(on_sheet(point, state));
        }
        const chamber_lobes lobes = lobes_of_chamber(pair, place);
        for (const double lobe : {lobes.first, lobes.second}) {
            view.chamber.contacts.push_back(on_sheet(contact_of_lobe(pair, lobe).place, state));
        }
    } catch (const run_time_error&) {
        view.chamber = {};
    }
}

}  // namespace kvt
