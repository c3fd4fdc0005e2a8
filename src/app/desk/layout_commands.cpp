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
        bytes = read_file(kavetta.folder / LAYOUT_FILE_NAME);
    } catch (const run_time_error&) {
        bytes.clear();
    }
    return read_layout(bytes, kavetta.window_rectangles);
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
        start.shown = {"Form1", "viewwinfrm", "Perffrm", "portdes", "select_graphs"};
        start.focus = "Form1";
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

}  // namespace kvt
