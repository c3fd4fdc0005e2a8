#include "base/loaded_function.hpp"

#include <dlfcn.h>

namespace kvt {

void* loaded_function(const std::filesystem::path& library, const char* name) {
    void* code = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    return code == nullptr ? nullptr : dlsym(code, name);
}

}  // namespace kvt
