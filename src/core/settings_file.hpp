// settings_file: KVT.ini, seven positional lines in the program's folder, and what preferences.ini
// keeps beside it: the recent paths that the code page of KVT.ini can't hold, whether the preview
// is off, and the ticks of the Design view.
#pragma once

#include "core/app_state.hpp"
#include "core/preferences.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// The name of the settings file in the program's folder.
inline constexpr const char* SETTINGS_FILE_NAME = "KVT.ini";

/// The name of our own settings file beside it, UTF-8, and that of the file with its recent paths
/// alone, which stood in its place in earlier versions.
inline constexpr const char* PREFERENCES_FILE_NAME = "preferences.ini";
inline constexpr const char* EARLIER_PREFERENCES_FILE_NAME = "Kavetta.ini";

/// Reads lines 1 to 7 into recent entries 1 to 3, modelling_package, language, auto_update_mode and
/// last_update_check (the text between the "#" characters). Missing lines leave empty
/// values, and no language.
void read_settings(std::string_view bytes, app_state& state);

/// The bytes of the settings file. A language that is neither 1 nor 2 gives an empty line 5. A path
/// comes as far as the code page holds it, with "?" for every other character and line end.
std::string write_settings(const app_state& state);

/// Reads the keys recent_1 to recent_3 of the section projects into the recent entries that
/// read_settings has filled. A path counts for an entry that is what write_settings made of it, the
/// one of its number first, so that a list which another version wrote to KVT.ini later stays. And
/// the key preview of the section view: 0 is off, anything else, or no key, is on. And the ticks of
/// the section design_view, 0 or 1; without their keys they stay.
void read_own_settings(const preferences& kept, app_state& state);

/// Sets the keys of the recent paths that KVT.ini can't hold whole, of the preview when it is off,
/// and of the ticks that are not as they are at first, and drops the others.
void write_own_settings(const app_state& state, preferences& kept);

/// The lines "recent_1=PATH" of an earlier version as the section that they are today.
preferences preferences_of_earlier_file(std::string_view utf8);

}  // namespace kvt
