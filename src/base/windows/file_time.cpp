// Times of files by the system's own call: the standard library of this compiler has whole seconds.
#include "base/file_time.hpp"

#include <cstdint>
#include <ratio>
#include <windows.h>

namespace kvt {

namespace {

/// What the system counts in, from 1601 on.
using ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
constexpr ticks EPOCH_OF_1970 = std::chrono::seconds(11'644'473'600);

}  // namespace

std::chrono::system_clock::time_point written_at(const std::filesystem::path& file) {
    WIN32_FILE_ATTRIBUTE_DATA found = {};
    if (GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &found) == 0) {
        return {};
    }
    const ULARGE_INTEGER written = {
        {found.ftLastWriteTime.dwLowDateTime, found.ftLastWriteTime.dwHighDateTime}};
    const ticks since_1970 = ticks(static_cast<std::int64_t>(written.QuadPart)) - EPOCH_OF_1970;
    return std::chrono::system_clock::time_point(
        std::chrono::duration_cast<std::chrono::system_clock::duration>(since_1970));
}

}  // namespace kvt
