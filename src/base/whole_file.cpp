// Reading within a limit; the temporary file, its lock, the flush, the rename.
#include "base/whole_file.hpp"

#include "base/file_lock.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/system_file.hpp"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>

namespace kvt {

namespace fs = std::filesystem;

namespace {

/// Names tried for the temporary file before the folder is given up.
constexpr int TEMPORARY_NAME_COUNT = 1000;
constexpr std::string_view TEMPORARY_START = ".kvt-";
constexpr std::string_view TEMPORARY_END = ".tmp";
/// Who may read and write a new file.
constexpr int EVERYBODY = 0666;

[[noreturn]] void fail(failure kind, const fs::path& path, file_fault fault = {}) {
    throw run_time_error(kind, utf8_of_path(path), fault);
}

/// With what the system said last.
[[noreturn]] void fail_access(const fs::path& path, int system_error) {
    fail(failure::path_file_access, path, {file_fault::reason::system, system_error});
}

void require_folder(const fs::path& path) {
    std::error_code ignored;
    if (path.has_parent_path() && !fs::is_directory(path.parent_path(), ignored)) {
        fail(failure::path_not_found, path);
    }
}

bool wrote_all(const descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const std::ptrdiff_t count = write_bytes(file, bytes);
        if (count > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

/// Opens the file itself and writes bytes from its start.
void write_to(const fs::path& path, file_creation creation, std::string_view bytes) {
    descriptor file =
        open_file(path, {.access = file_access::writing, .creation = creation, .mode = EVERYBODY});
    if (!file.is_open() || !wrote_all(file, bytes) || !reached_the_disk(file) || !file.close()) {
        fail_access(path, errno);
    }
}

/// ".kvt-NUMBER.tmp"
bool is_temporary_name(std::string_view name) {
    if (!name.starts_with(TEMPORARY_START) || !name.ends_with(TEMPORARY_END) ||
        name.size() <= TEMPORARY_START.size() + TEMPORARY_END.size()) {
        return false;
    }
    const std::string_view number = name.substr(
        TEMPORARY_START.size(), name.size() - TEMPORARY_START.size() - TEMPORARY_END.size());
    return std::ranges::all_of(number, [](char c) { return c >= '0' && c <= '9'; });
}

/// Whoever writes a temporary file holds its lock, so one without belongs to a program that was
/// killed.
void remove_if_left_over(const fs::path& path) {
    const descriptor file = open_file(
        path, {.access = file_access::both, .follows_links = false, .waits_for_devices = false});
    if (file.is_open() && kind_of(file) == file_kind::plain &&
        try_lock(file) == lock_answer::taken && is_at(file, path)) {
        std::error_code ignored;
        fs::remove(path, ignored);
    }
}

void remove_left_over_files(const fs::path& folder) {
    std::error_code error;
    fs::directory_iterator file(folder.empty() ? fs::path(".") : folder, error);
    for (; !error && file != fs::directory_iterator(); file.increment(error)) {
        if (is_temporary_name(utf8_of_path(file->path().filename()))) {
            remove_if_left_over(file->path());
        }
    }
}

/// An open file under a name of its own in a folder, locked; it is removed unless it has been
/// renamed.
class temporary_file {
  public:
    explicit temporary_file(const fs::path& folder) {
        for (int number = 0; number < TEMPORARY_NAME_COUNT && !file_.is_open(); ++number) {
            path_ = folder / path_of_utf8(std::string(TEMPORARY_START) + std::to_string(number) +
                                          std::string(TEMPORARY_END));
            if (!create() && errno != EEXIST) {
                return;
            }
        }
    }
    ~temporary_file() {
        std::error_code ignored;
        if (file_.is_open()) {
            fs::remove(path_, ignored);
        }
    }
    temporary_file(const temporary_file&) = delete;
    temporary_file& operator=(const temporary_file&) = delete;

    bool is_created() const { return file_.is_open(); }
    bool write(std::string_view bytes) { return wrote_all(file_, bytes); }
    bool flush() { return reached_the_disk(file_); }
    void take_permissions(fs::perms permissions) { set_permissions(file_, permissions); }
    bool rename_to(const fs::path& target) {
        if (!rename_file(path_, target)) {
            return false;
        }
        // Some network file systems refuse the bytes only now, when the old file is gone.
        return file_.close();
    }

  private:
    /// Never a file that is there already. Between creation and lock another program may take the
    /// file for a left-over one: then the next name is tried.
    bool create() {
        descriptor file = open_file(path_, {.access = file_access::writing,
                                            .creation = file_creation::always_new,
                                            .mode = EVERYBODY});
        if (!file.is_open()) {
            return false;
        }
        if (try_lock(file) == lock_answer::held_by_another || !is_at(file, path_)) {
            errno = EEXIST;
            return false;
        }
        file_ = std::move(file);
        return true;
    }

    fs::path path_;
    descriptor file_;
};

/// The new bytes stand complete under the temporary name before the old file goes.
void replace_file(const fs::path& target, std::optional<fs::perms> old_permissions,
                  std::string_view bytes, disk_write kind) {
    const fs::path folder = target.parent_path();
    remove_left_over_files(folder);
    temporary_file temporary(folder);
    if (!temporary.is_created() || !temporary.write(bytes)) {
        fail_access(target, errno);
    }
    if (old_permissions) {
        temporary.take_permissions(*old_permissions);
    }
    const bool flushed = kind == disk_write::flushed;
    if ((flushed && !temporary.flush()) || !temporary.rename_to(target)) {
        fail_access(target, errno);
    }
    if (flushed) {
        flush_folder(folder);
    }
}

/// The old file is opened for writing without touching it: what the user may not write must not be
/// replaced either.
bool may_be_written(const fs::path& path) {
    return open_file(path, {.access = file_access::writing, .waits_for_devices = false}).is_open();
}

/// The file that the path names, opened for reading; devices and pipes are never waited for.
descriptor open_plain_file(const fs::path& path) {
    descriptor file = open_file(path, {.waits_for_devices = false});
    const file_kind kind = file.is_open() ? kind_of(file) : file_kind::unknown;
    if (kind == file_kind::unknown) {
        const int error = errno;
        fail(error == ENOENT ? failure::file_not_found : failure::path_file_access, path,
             {file_fault::reason::system, error});
    }
    if (kind == file_kind::folder) {
        fail_access(path, EISDIR);
    }
    if (kind != file_kind::plain) {
        fail(failure::path_file_access, path, {file_fault::reason::not_plain});
    }
    return file;
}

}  // namespace

std::string read_file(const fs::path& path, std::size_t largest) {
    if (path.empty()) {
        fail(failure::file_not_found, path);
    }
    require_folder(path);
    const descriptor file = open_plain_file(path);
    std::string bytes;
    char block[65536];
    for (;;) {
        const std::ptrdiff_t count = read_bytes(file, block, sizeof block);
        if (count == 0) {
            return bytes;
        }
        if (count < 0 && errno != EINTR) {
            fail_access(path, errno);
        }
        bytes.append(block, count < 0 ? 0 : static_cast<std::size_t>(count));
        if (bytes.size() > largest) {
            fail(failure::path_file_access, path, {file_fault::reason::too_large});
        }
    }
}

void write_file(const fs::path& path, std::string_view bytes, disk_write kind) {
    require_folder(path);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (path.empty() || fs::is_directory(status)) {
        fail_access(path, path.empty() ? ENOENT : EISDIR);
    }
    if (!fs::exists(status)) {
        replace_file(path, std::nullopt, bytes, kind);
        return;
    }
    if (!fs::is_regular_file(status)) {
        write_in_place(path, bytes);
        return;
    }
    const fs::path target =
        fs::canonical(path, error);  // a link stays a link, its target is replaced
    if (error || !may_be_written(target)) {
        fail_access(path, error ? error.value() : errno);
    }
    replace_file(target, status.permissions(), bytes, kind);
}

bool is_only_written_in_place(const fs::path& path) {
    std::error_code error;
    const fs::path target = fs::canonical(path, error);
    if (error || !fs::is_regular_file(target, error) || !may_be_written(target)) {
        return false;
    }
    return !may_add_files(target.parent_path());
}

void write_in_place(const fs::path& path, std::string_view bytes) {
    write_to(path, file_creation::emptied, bytes);
}

void write_at_start(const fs::path& path, std::string_view bytes) {
    require_folder(path);
    write_to(path, file_creation::where_missing, bytes);
}

}  // namespace kvt
