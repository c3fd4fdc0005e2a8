// Locks that end with the program, and the file that carries one.
#include "base/file_lock.hpp"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>

namespace kvt {

namespace {

/// A holder that ends takes its file away between our opening and our locking of it: then the next
/// file of that name is tried.
constexpr int TRIES = 100;

}  // namespace

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

std::optional<file_lock> file_lock::take(const std::filesystem::path& path) {
    for (int left = TRIES; left > 0; --left) {
        descriptor file(
            ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600));
        if (!file.is_open() || try_lock(file) == lock_answer::held_by_another) {
            return std::nullopt;
        }
        if (is_at(file, path)) {
            return file_lock(path, std::move(file));
        }
    }
    return std::nullopt;
}

file_lock::~file_lock() {
    if (file_.is_open()) {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
}

}  // namespace kvt
