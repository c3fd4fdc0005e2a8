#include "app/desk/layout_commands.hpp"

#include "app/program.hpp"
#include "app/windows/close_forms.hpp"
#include "base/run_time_error.hpp"
#include "base/text_file.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

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
    for (const form_row& form : form_rows()) {
        if (is_fixed_child(form)) {
            layout.shown.push_back(form.name);
        }
    }
    return layout;
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

void save_layout(program& kavetta, user& person, window_rectangles windows) {
    if (kavetta.app_state.explain_closed) {
        windows.of("explain").reset();
    }
    if (kavetta.app_state.port_explain_closed) {
        windows.of("port_explain").reset();
    }
    write_layout_file(kavetta, windows);
    person.show_message(message_text(message::screen_layout_saved, kavetta.app_state.language));
}

void restore_default_layout(program& kavetta, user& person) {
    const window_rectangles built_in;
    for (const form_row& form : form_rows()) {
        if (is_fixed_child(form)) {
            kavetta.window_rectangles.of(form.name) = form.rectangle;
            person.show_form(form.name);
        }
    }
    kavetta.window_rectangles.main_window_maximised = true;
    close_forms(form_closer::default_layout, person);
    kavetta.app_state.explain_closed = true;
    kavetta.app_state.port_explain_closed = true;
    write_layout_file(kavetta, built_in);
}

start_layout read_start_layout(program& kavetta) {
    kavetta.app_state.explain_closed = true;
    kavetta.app_state.port_explain_closed = true;
    const layout_reading reading = read_layout_file(kavetta);
    start_layout start = reading.failed ? layout_after_failure() : fixed_children();
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
