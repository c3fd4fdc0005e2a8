// loaded_function: a function of code that is loaded while the program runs.
#pragma once

#include <filesystem>

namespace kvt {

/// The address of a C function of a shared library; null when the file can't be loaded or doesn't
/// have it. What was loaded stays until the program ends: objects of it may live as long.
void* loaded_function(const std::filesystem::path& library, const char* name);

}  // namespace kvt
