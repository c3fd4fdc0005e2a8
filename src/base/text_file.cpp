// Lines in memory, lines of bytes, and whole files read and replaced.
#include "base/text_file.hpp"

#include "base/code_page.hpp"
#include "base/run_time_error.hpp"

#include <cassert>
#include <cstdio>
#include <memory>
#include <optional>
#include <system_error>

namespace kvt {

namespace fs = std::filesystem;

namespace {

struct file_closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using open_file = std::unique_ptr<std::FILE, file_closer>;

/// Names tried for the temporary file before the folder is given up.
constexpr int TEMPORARY_NAME_COUNT = 1000;

[[noreturn]] void fail(failure kind, const fs::path& path) {
    throw run_time_error(kind, path.string());
}

void require_folder(const fs::path& path) {
    std::error_code ignored;
    if (path.has_parent_path() && !fs::is_directory(path.parent_path(), ignored)) {
        fail(failure::path_not_found, path);
    }
}

/// Writes all bytes and closes the file. False when the disk or the device refuses some of them.
bool wrote_all(open_file file, std::string_view bytes) {
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    const bool closed = std::fclose(file.release()) == 0;
    return written && closed;
}

/// An open file under a name of its own in a folder; it is removed unless it has been renamed.
class temporary_file {
  public:
    explicit temporary_file(const fs::path& folder) {
        for (int number = 0; number < TEMPORARY_NAME_COUNT && !file_; ++number) {
            path_ = folder / (".kvt-" + std::to_string(number) + ".tmp");
            file_.reset(std::fopen(path_.c_str(), "wbx"));  // x: never a file that is there already
        }
        created_ = file_ != nullptr;
    }
    ~temporary_file() {
        std::error_code ignored;
        if (created_) {
            fs::remove(path_, ignored);
        }
    }
    temporary_file(const temporary_file&) = delete;
    temporary_file& operator=(const temporary_file&) = delete;

    bool is_created() const { return created_; }
    bool write(std::string_view bytes) { return wrote_all(std::move(file_), bytes); }
    bool rename_to(const fs::path& target) {
        std::error_code error;
        fs::rename(path_, target, error);
        created_ = created_ && error;
        return !error;
    }
    void take_permissions(fs::perms permissions) {
        std::error_code ignored;
        fs::permissions(path_, permissions, ignored);
    }

  private:
    fs::path path_;
    open_file file_;
    bool created_ = false;
};

/// The new bytes stand complete under the temporary name before the old file goes.
void replace_file(const fs::path& target, std::optional<fs::perms> old_permissions,
                  std::string_view bytes) {
    temporary_file temporary(target.parent_path());
    if (!temporary.is_created() || !temporary.write(bytes)) {
        fail(failure::path_file_access, target);
    }
    if (old_permissions) {
        temporary.take_permissions(*old_permissions);
    }
    if (!temporary.rename_to(target)) {
        fail(failure::path_file_access, target);
    }
}

/// A device or a pipe has no old content to keep, and a rename would replace it by a plain file.
void write_in_place(const fs::path& path, std::string_view bytes) {
    open_file file(std::fopen(path.c_str(), "wb"));
    if (!file || !wrote_all(std::move(file), bytes)) {
        fail(failure::path_file_access, path);
    }
}

/// The old file is opened for writing without touching it: what the user may not write must not be
/// replaced either.
bool may_be_written(const fs::path& path) {
    return open_file(std::fopen(path.c_str(), "r+b")) != nullptr;
}

}  // namespace

void text_lines::line(std::string_view utf8) {
    raw_line(code_page_of_utf8(utf8));
}

void text_lines::end_line() {
    // Two searches for one character are several times as fast as one for either.
    const std::string_view open_line = std::string_view(bytes_).substr(line_start_);
    if (open_line.find('\n') != std::string_view::npos ||
        open_line.find('\r') != std::string_view::npos) {
        bytes_.resize(line_start_);
        throw run_time_error(failure::invalid_property_value, "line end inside a line");
    }
    bytes_ += "\r\n";
    line_start_ = bytes_.size();
}

void text_lines::raw_block(std::string_view lines) {
    assert(line_start_ == bytes_.size() && lines.ends_with("\r\n"));
    bytes_ += lines;
    line_start_ = bytes_.size();
}

std::vector<std::string> split_lines(std::string_view bytes) {
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find_first_of("\r\n");
        lines.emplace_back(bytes.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        const bool is_cr_lf = bytes.substr(end).starts_with("\r\n");
        bytes.remove_prefix(end + (is_cr_lf ? 2 : 1));
    }
    return lines;
}

std::string read_file(const fs::path& path) {
    if (path.empty()) {
        fail(failure::file_not_found, path);
    }
    require_folder(path);
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    if (status.type() == fs::file_type::not_found) {
        fail(failure::file_not_found, path);
    }
    const open_file file(fs::is_directory(status) ? nullptr : std::fopen(path.c_str(), "rb"));
    if (!file) {
        fail(failure::path_file_access, path);
    }
    std::string bytes;
    char block[65536];
    while (const std::size_t count = std::fread(block, 1, sizeof block, file.get())) {
        bytes.append(block, count);
    }
    if (std::ferror(file.get()) != 0) {
        fail(failure::path_file_access, path);
    }
    return bytes;
}

void write_file(const fs::path& path, std::string_view bytes) {
    require_folder(path);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (path.empty() || fs::is_directory(status)) {
        fail(failure::path_file_access, path);
    }
    if (!fs::exists(status)) {
        replace_file(path, std::nullopt, bytes);
        return;
    }
    if (!fs::is_regular_file(status)) {
        write_in_place(path, bytes);
        return;
    }
    const fs::path target =
        fs::canonical(path, error);  // a link stays a link, its target is replaced
    if (error || !may_be_written(target)) {
        fail(failure::path_file_access, path);
    }
    replace_file(target, status.permissions(), bytes);
}

}  // namespace kvt
