// file_lock: a name that one running program holds and no other one can take meanwhile.
#pragma once

#include "base/descriptor.hpp"

#include <filesystem>
#include <optional>

namespace kvt {

/// Takes the system's lock on an open file, without waiting. Where the file system knows no locks
/// the answer is unknown.
enum class lock_answer { taken, held_by_another, unknown };
lock_answer try_lock(const descriptor& file);

/// True while the path leads to this open file, and not to another one or to none.
bool is_at(const descriptor& file, const std::filesystem::path& path);

/// A lock file. The system gives the lock back when the program ends, however it ends; in order,
/// the file goes too.
class file_lock {
  public:
    /// Creates the file and locks it. Nothing when another program holds it, or when it can't be
    /// created. Where the file system knows no locks it counts as taken.
    static std::optional<file_lock> take(const std::filesystem::path& path);

    ~file_lock();
    file_lock(file_lock&& other) noexcept = default;
    file_lock& operator=(file_lock&& other) noexcept = default;

  private:
    file_lock(std::filesystem::path path, descriptor file)
        : path_(std::move(path)), file_(std::move(file)) {}

    std::filesystem::path path_;
    descriptor file_;
};

}  // namespace kvt
