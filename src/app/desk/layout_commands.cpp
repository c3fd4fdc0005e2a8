#include "app/desk/layout_commands.hpp"

#include "app/program.hpp"
#include "app/windows/close_forms.hpp"
#include "app/windows/result_charts.hpp"
#include "base/run_time_error.hpp"
#include "base/text_file.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace kvt {

namespace {

void write_layout_file(const program& kavetta, const window_rectangles& windows) {
    write_file(kavetta.folder / LAYOUT_FILE_NAME, write_layout(windows));
}

/// A file that can't be read is no layout.
layout_reading read_layout_file(program& kavetta) {
    std::string bytes;
    try {
        bytes = read_file(kavetta.folder / LAYOUT_FILE_NAME, LARGEST_TEXT);
    } catch (const run_time_error&) {
        bytes.clear();
    }
    return read_layout(bytes, kavetta.window_rectangles);
}

/// The child windows that stand from the start.
start_layout fixed_children() {
    start_layout layout;
    for (const form_row& form : fixed_child_rows()) {
        layout.shown.push_back(form.name);
    }
    return layout;
}

/// Whole pixels, so that neighbours touch and never overlap.
float in_pixels(float twips) {
    return std::floor(twips / TWIPS_PER_PIXEL) * TWIPS_PER_PIXEL;
}

/// A size of the built-in layout, or its share of the room where that is short.
float share(float built_in, float of_all, float room) {
    return in_pixels(std::min(built_in, room * built_in / of_all));
}

window_rectangles fitted_rectangles(layout_room room) {
    /// What the view is higher than wide: its buttons, less its borders.
    constexpr float VIEW_BELOW_PICTURE = 795.0F;
    constexpr float SMALLEST_VIEW = 1500.0F;
    const auto told = [](std::string_view form) { return find_form(form)->rectangle; };
    const float above = told("Form1").width + told("Perffrm").width + told("viewwinfrm").width;
    const float below = told("portdes").width + told("select_graphs").width;
    const float design = share(told("Form1").width, above, room.width);
    const float performance = share(told("Perffrm").width, above, room.width);
    const float lower =
        share(told("portdes").height, told("Form1").height + told("portdes").height, room.height);
    const float upper = in_pixels(room.height) - lower;
    const float view = in_pixels(std::max(
        SMALLEST_VIEW, std::min(room.width - design - performance, upper - VIEW_BELOW_PICTURE)));
    const float ports = share(told("portdes").width, below, room.width);
    const float charts = std::min(told("select_graphs").width, in_pixels(room.width) - ports);
    window_rectangles fitted;
    fitted.of("Form1") = {upper, design, 0.0F, 0.0F};
    fitted.of("Perffrm") = {upper, performance, 0.0F, design};
    fitted.of("viewwinfrm") = {view + VIEW_BELOW_PICTURE, view, 0.0F, design + performance};
    fitted.of("portdes") = {lower, ports, upper, 0.0F};
    fitted.of("select_graphs") = {std::min(lower, told("select_graphs").height), charts, upper,
                                  ports};
    return fitted;
}

bool fits(const window_rectangles& layout, layout_room room) {
    return std::ranges::all_of(fixed_child_rows(), [&](const form_row& form) {
        const auto& window = layout.of(form.name);
        return window->left + window->width <= room.width &&
               window->top + window->height <= room.height;
    });
}

void take_over(program& kavetta, const window_rectangles& layout) {
    for (const form_row& form : fixed_child_rows()) {
        kavetta.window_rectangles.of(form.name) = layout.of(form.name);
    }
}

/// What the error path shows.
start_layout layout_after_failure() {
    start_layout layout = fixed_children();
    layout.focus = "Form1";
    return layout;
}

/// False when the form could not be shown.
bool shows(user& person, std::string_view form) {
    try {
        person.show_form(form);
        return true;
    } catch (const run_time_error&) {
        return false;
    }
}

/// The window was not there when the reading failed.
void forget_explanation(program& kavetta, std::string_view form) {
    if (form == "explain") {
        kavetta.app_state.explain_closed = true;
        kavetta.window_rectangles.of("explain").reset();
    } else if (form == "port_explain") {
        kavetta.app_state.port_explain_closed = true;
        kavetta.window_rectangles.of("port_explain").reset();
    }
}

}  // namespace

void fit_layout(program& kavetta, user& person, layout_room room) {
    take_over(kavetta, fitted_rectangles(room));
    for (const form_row& form : fixed_child_rows()) {
        person.show_form(form.name);
    }
}

void use_first_layout(program& kavetta, layout_room room) {
    const window_rectangles built_in;
    take_over(kavetta, fits(built_in, room) ? built_in : fitted_rectangles(room));
}

void save_layout(program& kavetta, user& person, window_rectangles windows) {
    if (kavetta.app_state.explain_closed) {
        windows.of("explain").reset();
    }
    if (kavetta.app_state.port_explain_closed) {
        windows.of("port_explain").reset();
    }
    for (const chart_row& chart : chart_rows()) {
        if (!is_chart_open(kavetta.app_state, chart.kind)) {
            windows.of(chart.form).reset();
        }
    }
    write_layout_file(kavetta, windows);
    person.show_message(message_text(message::screen_layout_saved, kavetta.app_state.language));
}

void restore_default_layout(program& kavetta, user& person) {
    const window_rectangles built_in;
    take_over(kavetta, built_in);
    for (const form_row& form : fixed_child_rows()) {
        person.show_form(form.name);
    }
    kavetta.window_rectangles.main_window_maximised = true;
    close_forms(kavetta, form_closer::default_layout, person);
    kavetta.app_state.explain_closed = true;
    kavetta.app_state.port_explain_closed = true;
    write_layout_file(kavetta, built_in);
}

start_layout read_start_layout(program& kavetta) {
    kavetta.app_state.explain_closed = true;
    kavetta.app_state.port_explain_closed = true;
    const layout_reading reading = read_layout_file(kavetta);
    start_layout start = reading.failed ? layout_after_failure() : fixed_children();
    start.is_first = reading.failed && !std::filesystem::exists(kavetta.folder / LAYOUT_FILE_NAME);
    // Touched windows come before the others of the error path; the order among children doesn't
    // show.
    if (reading.explain) {
        start.shown.push_back("explain");
    }
    if (reading.port_explain) {
        start.shown.push_back("port_explain");
    }
    return start;
}

start_layout show_start_layout(program& kavetta, user& person) {
    const start_layout start = read_start_layout(kavetta);
    bool failed = false;
    for (const std::string_view form : start.shown) {
        failed = failed || !shows(person, form);
        if (failed) {
            forget_explanation(kavetta, form);
        }
    }
    if (!failed) {
        return start;
    }
    set_sizes_after_failure(kavetta.window_rectangles);
    kavetta.window_rectangles.of("MDIForm1").reset();
    const start_layout built_in = layout_after_failure();
    for (const std::string_view form : built_in.shown) {
        person.show_form(form);
    }
    return built_in;
}

}  // namespace kvt
