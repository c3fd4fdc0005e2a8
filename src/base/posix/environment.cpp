#include "base/environment.hpp"

#include "base/path_text.hpp"

#include <cstdlib>
#include <system_error>

namespace kvt {

std::vector<std::string> program_arguments(int count, const char* const* arguments) {
    return {arguments, arguments + count};
}

std::optional<std::string> environment_variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

std::filesystem::path user_data_folder() {
    return path_of_utf8(environment_variable("HOME").value_or("")) / ".local" / "share";
}

std::filesystem::path running_program() {
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored);
}

}  // namespace kvt
