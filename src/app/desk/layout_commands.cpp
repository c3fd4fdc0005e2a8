#include "app/desk/layout_commands.hpp"

#include "app/program.hpp"
#include "base/run_time_error.hpp"
#include "base/text_file.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

namespace kvt {

namespace {

void write_layout_file(const program& kavetta, const present_windows& windows) {
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

/// What the error path shows.
start_layout layout_after_failure() {
    return {{"Form1", "viewwinfrm", "Perffrm", "portdes", "select_graphs"}, "Form1"};
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
        kavetta.window_rectangles.explain.reset();
    } else if (form == "port_explain") {
        kavetta.app_state.port_explain_closed = true;
        kavetta.window_rectangles.port_explain.reset();
    }
}

}  // namespace

void save_layout(program& kavetta, user& person, present_windows windows) {
    if (kavetta.app_state.explain_closed) {
        windows.explain.reset();
    }
    if (kavetta.app_state.port_explain_closed) {
        windows.port_explain.reset();
    }
    write_layout_file(kavetta, windows);
    person.show_message(message_text(message::screen_layout_saved, kavetta.app_state.language));
}

void restore_default_layout(program& kavetta, user& person) {
    const window_rectangles built_in;
    for (const window_rectangle_field& field : window_rectangle_fields()) {
        kavetta.window_rectangles.*field.member = built_in.*field.member;
        person.show_form(field.name);
    }
    kavetta.window_rectangles.main_window_maximised = true;
    person.unload_form("explain");
    person.unload_form("port_explain");
    kavetta.app_state.explain_closed = true;
    kavetta.app_state.port_explain_closed = true;
    present_windows windows;
    windows.Form1 = built_in.Form1;
    windows.portdes = built_in.portdes;
    windows.viewwinfrm = built_in.viewwinfrm;
    windows.Perffrm = built_in.Perffrm;
    windows.select_graphs = built_in.select_graphs;
    write_layout_file(kavetta, windows);
}

start_layout read_start_layout(program& kavetta) {
    kavetta.app_state.explain_closed = true;
    kavetta.app_state.port_explain_closed = true;
    const layout_reading reading = read_layout_file(kavetta);
    start_layout start;
    if (reading.failed) {
        start = layout_after_failure();
    } else {
        for (const window_rectangle_field& field : window_rectangle_fields()) {
            start.shown.push_back(field.name);
        }
    }
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
    kavetta.window_rectangles.MDIForm1.reset();
    const start_layout built_in = layout_after_failure();
    for (const std::string_view form : built_in.shown) {
        person.show_form(form);
    }
    return built_in;
}

}  // namespace kvt
