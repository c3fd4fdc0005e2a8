#include "base/file_time.hpp"

#include <system_error>

namespace kvt {

std::chrono::system_clock::time_point written_at(const std::filesystem::path& file) {
    std::error_code error;
    const std::filesystem::file_time_type time = std::filesystem::last_write_time(file, error);
    return error ? std::chrono::system_clock::time_point()
                 : std::chrono::time_point_cast<std::chrono::system_clock::duration>(
                       std::chrono::file_clock::to_sys(time));
}

}  // namespace kvt
