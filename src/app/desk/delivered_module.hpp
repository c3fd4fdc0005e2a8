// delivered_module: where the modules lie that the programs load when something is asked of them.
#pragma once

#include <filesystem>
#include <string_view>

namespace kvt {

/// The module of a name ("kvt_models.so") beside the installed program, else that of the build; it
/// may be missing.
std::filesystem::path delivered_module(std::string_view name);

}  // namespace kvt
