#include "views/rotation.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "base/number_text.hpp"
#include "views/inner_outline.hpp"
#include "views/twips.hpp"

#include <cmath>

namespace kvt {

namespace {

constexpr double FULL_TURN_DEG = 360.0;
constexpr double HALF_TURN_DEG = 180.0;

}  // namespace

void turn_to(const design_params& design, double degrees, view_state& state) {
    state.rotation_angle = degrees;
    // Kept: once, so that a typed 800 stays 440; rotation_test holds it.
    if (state.rotation_angle >= FULL_TURN_DEG) {
        state.rotation_angle = state.rotation_angle - FULL_TURN_DEG;
    }
    if (state.rotation_angle < 0.0) {
        state.rotation_angle = state.rotation_angle + FULL_TURN_DEG;
    }
    const double N = design.numlobes;
    state.outer_rotation_angle = checked_divide((N - 1.0) * state.rotation_angle, N);
}

void turn_one_tick(const design_params& design, turning direction, view_state& state) {
    const double step = direction == turning::clockwise ? DEGREES_PER_TICK : -DEGREES_PER_TICK;
    turn_to(design, state.rotation_angle + step, state);
}

void turn_to_typed(const design_params& design, std::string_view text, view_state& state) {
    turn_to(design, floor_to_int(val(text)), state);
}

std::string rotated_angle_text(const view_state& state) {
    return number_text(floor_to_int(state.rotation_angle * 10.0) / 10.0);
}

void redraw_rotated(const design_params& design, const rotor_profiles& rotors, view_state& state,
                    design_view& view) {
    view.Line1.element0_visible = false;
    view.Picture1.clear();
    state.view_ecc = state.view_scale * design.ecc;
    const double a = state.rotation_angle * PI_D / HALF_TURN_DEG;
    draw_inner_outline(rotors, view.Line1, [&](const point2& point) {
        const double theta = polar_angle(point);
        const double r = radius_of(point);
        return screen_point{
            single(state.view_ecc + state.view_scale * r * std::cos(theta + a) + state.view_cx),
            single(state.view_scale * r * std::sin(theta + a) + state.view_cy)};
    });
    const double start = -state.outer_rotation_angle * PI_D / HALF_TURN_DEG;
    redraw_outer_rotor(design, {state.view_cx, state.view_cy, start}, state, view);
}

}  // namespace kvt
