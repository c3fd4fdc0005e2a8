// Locks that end with the program, and the file that carries one.
#include "base/file_lock.hpp"

#include "base/system_file.hpp"

#include <system_error>

namespace kvt {

namespace {

/// A holder that ends takes its file away between our opening and our locking of it: then the next
/// file of that name is tried.
constexpr int TRIES = 100;

}  // namespace

std::optional<file_lock> file_lock::take(const std::filesystem::path& path) {
    for (int left = TRIES; left > 0; --left) {
        descriptor file = open_file(path, {.access = file_access::both,
                                           .creation = file_creation::where_missing,
                                           .follows_links = false,
                                           .waits_for_devices = false,
                                           .mode = 0600});
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
