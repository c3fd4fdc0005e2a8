// environment: what the system tells a program about its user.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

/// What main was started with, program name first, in UTF-8.
std::vector<std::string> program_arguments(int count, const char* const* arguments);

/// An environment variable in UTF-8; nothing when it is not set.
std::optional<std::string> environment_variable(const char* name);

/// Where programs keep what is the user's own: ~/.local/share, %LOCALAPPDATA% on Windows.
std::filesystem::path user_data_folder();

/// The program that runs; empty when the system doesn't say.
std::filesystem::path running_program();

}  // namespace kvt
