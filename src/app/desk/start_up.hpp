// Start-up: the program's folder, the settings, the new-or-open prompt, the captions.
#pragma once

#include <filesystem>
#include <string_view>

namespace kvt {

class user;
struct program;

/// The folder named by KAVETTA_HOME, else ~/.local/share/Kavetta.
std::filesystem::path program_folder();

/// Creates the program's folder and copies the delivered files that are missing from the share
/// folder into it. Throws run_time_error when that fails.
void fill_program_folder(const std::filesystem::path& folder, const std::filesystem::path& share);

/// Reads the settings and puts the program into its initial state. Throws file_not_found without a
/// settings file.
void load_settings(program& kavetta);

/// The prompt New or Open and its command, then the captions of the language. With a path, opens
/// that project in place of the prompt. Entries that an earlier run left unsaved are offered first,
/// and take the place of both.
void start_project(program& kavetta, user& person, std::string_view path = {});

}  // namespace kvt
