#include "app/windows/view_commands.hpp"

#include "app/files/saved_text.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "views/exact/chamber_mark.hpp"
#include "views/zoom.hpp"

namespace kvt {

namespace {

void redraw_at_angle(program& kavetta) {
    redraw_rotated(kavetta.design_params, kavetta.rotor_profiles, kavetta.view_state,
                   kavetta.design_view);
    draw_marked_chamber(kavetta.design_params, kavetta.view_state, kavetta.design_view);
}

/// The pair at angle 0.
void redraw_in_place(program& kavetta) {
    redraw_zoomed(kavetta.design_params, kavetta.rotor_profiles, kavetta.port_params,
                  kavetta.view_state, kavetta.design_view);
    draw_marked_chamber(kavetta.design_params, kavetta.view_state, kavetta.design_view);
}

void redraw_in_place_at_angle(program& kavetta) {
    redraw_in_place(kavetta);
    if (kavetta.view_state.rotation_angle != 0.0) {
        redraw_at_angle(kavetta);
    }
}

void zoom_to_present_band(program& kavetta, user& person) {
    person.set_busy(true);
    zoom_to_band(kavetta.design_params, kavetta.view_state);
    redraw_in_place(kavetta);
}

}  // namespace

void show_rotation(program& kavetta) {
    kavetta.entries.rotated_angle = rotated_angle_text(kavetta.view_state);
    redraw_at_angle(kavetta);
}

void rubber_band_down(program& kavetta, double x, double y) {
    if (has_rotors(kavetta.design_view)) {
        start_rubber_band(x, y, kavetta.view_state, kavetta.design_view);
    }
}

void rubber_band_move(program& kavetta, double x, double y) {
    if (has_rotors(kavetta.design_view)) {
        stretch_rubber_band(x, y, kavetta.design_view);
    }
}

void rubber_band_up(program& kavetta, user& person, double x, double y) {
    if (!has_rotors(kavetta.design_view)) {
        kavetta.design_view.Line3.visible = false;
        return;
    }
    if (end_rubber_band(x, y, kavetta.view_state, kavetta.design_view)) {
        zoom_to_present_band(kavetta, person);
    }
    person.set_busy(false);
    if (kavetta.view_state.rotation_angle != 0.0) {
        redraw_at_angle(kavetta);
    }
}

void zoom_by_wheel(program& kavetta, double factor, double x, double y) {
    if (has_rotors(kavetta.design_view) &&
        zoom_at(kavetta.design_params, factor, x, y, kavetta.view_state)) {
        redraw_in_place_at_angle(kavetta);
    }
}

void pan_view(program& kavetta, double dx, double dy) {
    if (has_rotors(kavetta.design_view)) {
        pan_by(dx, dy, kavetta.view_state);
        redraw_in_place_at_angle(kavetta);
    }
}

void zoom_all(program& kavetta, user& person) {
    kavetta.app_state.zoom_all_requested = -1;
    calculate_profiles(kavetta, person);
}

void rotation_tick(program& kavetta, turning direction) {
    if (has_rotors(kavetta.design_view)) {
        turn_one_tick(kavetta.design_params, direction, kavetta.view_state);
        show_rotation(kavetta);
    }
}

void take_typed_angle(program& kavetta) {
    if (has_rotors(kavetta.design_view)) {
        turn_to_typed(kavetta.design_params, kavetta.entries.rotated_angle, kavetta.view_state);
        show_rotation(kavetta);
    }
}

void save_view_picture(const program& kavetta, user& person,
                       const std::function<std::string(const std::string& path)>& bytes_of) {
    const std::int16_t language = kavetta.app_state.language;
    file_dialog dialog = save_text_dialog(form_text("viewpopupmenu", "title", language),
                                          form_text("viewpopupmenu", "filter", language), "");
    dialog.filter_index = 1;
    dialog.file_name =
        kavetta.app_state.project_name + " - " + std::string(form_text("viewwinfrm", "", language));
    if (const auto saved = ask_and_save_bytes(kavetta, person, dialog, bytes_of)) {
        tell_outcome(person, *saved);
    }
}

std::optional<view_layout> resize_design_view(program& kavetta, double form_height) {
    return resize_view(form_height, kavetta.view_state);
}

}  // namespace kvt
