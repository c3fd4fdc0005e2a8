// The explanation windows explain and port_explain: what their load and unload do to the program.
#pragma once

#include <filesystem>
#include <string_view>

namespace kvt {

class user;
struct program;

enum class explanation_window { gerotor, porting };

/// The name of the window's form.
std::string_view form_of(explanation_window window);

/// The load of the window: clears its flag explain_closed or port_explain_closed, sets its title,
/// and returns the file of its picture in the program's folder, both in the current language.
/// Throws run_time_error (file not found) when the picture is missing; the flag is cleared by then.
std::filesystem::path load_explanation(program& kavetta, explanation_window window);

/// The unload of the window: sets its flag again.
void unload_explanation(program& kavetta, explanation_window window);

/// The menu entries mnuhelpexplain and mnuhelpport_explain.
void show_gerotor_explanation(program& kavetta, user& person);
void show_porting_explanation(program& kavetta, user& person);

}  // namespace kvt
