// Locks on a byte far behind the end of the file: whoever reads or writes the file is not kept
// from it. A file is known by its number on its volume.
#include "base/file_lock.hpp"

#include "base/system_file.hpp"

#include <cstdint>
#include <io.h>
#include <windows.h>

namespace kvt {

namespace {

constexpr DWORD FAR_BEHIND = 0x7fffffff;

HANDLE handle_of(const descriptor& file) {
    const std::intptr_t handle = _get_osfhandle(file.number());
    return reinterpret_cast<HANDLE>(handle);  // NOLINT(performance-no-int-to-ptr): it is a handle
}

}  // namespace

lock_answer try_lock(const descriptor& file) {
    OVERLAPPED place = {};
    place.OffsetHigh = FAR_BEHIND;
    constexpr DWORD AT_ONCE = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
    if (LockFileEx(handle_of(file), AT_ONCE, 0, 1, 0, &place) != 0) {
        return lock_answer::taken;
    }
    const DWORD error = GetLastError();
    return error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING ? lock_answer::held_by_another
                                                                      : lock_answer::unknown;
}

bool is_at(const descriptor& file, const std::filesystem::path& path) {
    const descriptor other = open_file(path, {});
    BY_HANDLE_FILE_INFORMATION own = {};
    BY_HANDLE_FILE_INFORMATION named = {};
    return other.is_open() && GetFileInformationByHandle(handle_of(file), &own) != 0 &&
           GetFileInformationByHandle(handle_of(other), &named) != 0 &&
           own.dwVolumeSerialNumber == named.dwVolumeSerialNumber &&
           own.nFileIndexHigh == named.nFileIndexHigh && own.nFileIndexLow == named.nFileIndexLow;
}

}  // namespace kvt
