// settings_file: KVT.ini, seven positional lines in the program's folder, and Kavetta.ini, which
// keeps the recent paths that the code page of KVT.ini can't hold.
#pragma once

#include "core/app_state.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// The name of the settings file in the program's folder.
inline constexpr std::string_view SETTINGS_FILE_NAME = "KVT.ini";

/// The name of our own settings file beside it, UTF-8.
inline constexpr std::string_view OWN_SETTINGS_FILE_NAME = "Kavetta.ini";

/// Reads lines 1 to 7 into recent entries 1 to 3, modelling_package, language, auto_update_mode and
/// last_update_check (the text between the "#" characters). Missing lines leave empty
/// values, and no language.
void read_settings(std::string_view bytes, app_state& state);

/// The bytes of the settings file. A language that is neither 1 nor 2 gives an empty line 5. A path
/// comes as far as the code page holds it, with "?" for every other character and line end.
std::string write_settings(const app_state& state);

/// Reads "recent_1=PATH" to "recent_3=PATH" into the recent entries that read_settings has filled.
/// A path counts for an entry that is what write_settings made of it, the one of its number first,
/// so that a list which another version wrote to KVT.ini later stays. Other lines are ignored.
void read_own_settings(std::string_view utf8, app_state& state);

/// The text of our own settings file; empty when KVT.ini holds every path whole.
std::string write_own_settings(const app_state& state);

}  // namespace kvt
