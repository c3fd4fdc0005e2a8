// Locks by flock; a file is known by its number on its device.
#include "base/file_lock.hpp"

#include <cerrno>
#include <sys/file.h>
#include <sys/stat.h>

namespace kvt {

lock_answer try_lock(const descriptor& file) {
    if (::flock(file.number(), LOCK_EX | LOCK_NB) == 0) {
        return lock_answer::taken;
    }
    return errno == EWOULDBLOCK ? lock_answer::held_by_another : lock_answer::unknown;
}

bool is_at(const descriptor& file, const std::filesystem::path& path) {
    struct stat open_file = {};
    struct stat named = {};
    return ::fstat(file.number(), &open_file) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           open_file.st_dev == named.st_dev && open_file.st_ino == named.st_ino;
}

}  // namespace kvt
