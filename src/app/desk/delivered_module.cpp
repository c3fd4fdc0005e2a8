#include "app/desk/delivered_module.hpp"

#include "base/environment.hpp"
#include "base/path_text.hpp"

#include <system_error>

namespace kvt {

std::filesystem::path delivered_module(std::string_view name) {
    const std::filesystem::path module = path_of_utf8(name);
    const std::filesystem::path beside =
        running_program().parent_path() / KVT_INSTALLED_MODULE_FOLDER / module;
    std::error_code ignored;
    return std::filesystem::exists(beside, ignored) ? beside : KVT_MODULE_FOLDER / module;
}

}  // namespace kvt
