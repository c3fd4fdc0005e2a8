// settings_file: KVT.ini, seven positional lines in the program's folder.
#pragma once

#include "core/app_state.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// The name of the settings file in the program's folder.
inline constexpr std::string_view SETTINGS_FILE_NAME = "KVT.ini";

/// Reads lines 1 to 7 into recent entries 1 to 3, modelling_package, language, auto_update_mode and
/// last_update_check (the text between the "#" characters). Missing lines leave their values as
/// they are.
void read_settings(std::string_view bytes, app_state& state);

/// The first line of the settings file, UTF-8; empty when there is none.
std::string first_settings_line(std::string_view bytes);

/// The bytes of the settings file. A language that is neither 1 nor 2 gives an empty line 5.
std::string write_settings(const app_state& state);

}  // namespace kvt
