#include "base/loaded_function.hpp"

#include <windows.h>

namespace kvt {

void* loaded_function(const std::filesystem::path& library, const char* name) {
    const HMODULE code = LoadLibraryW(library.c_str());
    return code == nullptr ? nullptr : reinterpret_cast<void*>(GetProcAddress(code, name));
}

}  // namespace kvt
