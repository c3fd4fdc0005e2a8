#include "app/desk/unsaved_files.hpp"

#include "base/file_time.hpp"
#include "base/path_text.hpp"
#include "base/whole_file.hpp"

#include <algorithm>
#include <system_error>

namespace kvt {

namespace fs = std::filesystem;

namespace {

/// Far more than anyone leaves lying about.
constexpr int MOST_NUMBERED_FILES = 1000;

/// "autosave.KVT", "autosave-2.KVT"
std::string numbered_name(std::string_view name, int number) {
    return std::string(name) + (number == 1 ? "" : "-" + std::to_string(number)) + ".KVT";
}

/// True for the names that numbered_name gives.
bool is_numbered_name(std::string_view file, std::string_view name) {
    if (!file.starts_with(name) || !file.ends_with(".KVT")) {
        return false;
    }
    file.remove_prefix(name.size());
    file.remove_suffix(std::string_view(".KVT").size());
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    return file.empty() || (file.size() > 1 && file.front() == '-' &&
                            std::ranges::all_of(file.substr(1), is_digit));
}

std::optional<file_lock> lock_of(fs::path file) {
    return file_lock::take(file.replace_extension(".lock"));
}

left_file read_left_file(held_file file) {
    left_file left{std::move(file), {}, std::nullopt, std::nullopt};
    left.written = written_at(left.file.path);
    try {
        left.file.bytes = read_file(left.file.path, LARGEST_TEXT);
        left.record = read_unsaved(left.file.bytes);
    } catch (const run_time_error& error) {
        left.unreadable = error;
    }
    return left;
}

}  // namespace

std::optional<held_file> hold_new_file(const fs::path& folder, std::string_view name) {
    std::error_code error;
    for (int number = 1; number < MOST_NUMBERED_FILES && fs::is_directory(folder, error);
         ++number) {
        const fs::path path = folder / path_of_utf8(numbered_name(name, number));
        if (fs::exists(fs::symlink_status(path, error))) {
            continue;
        }
        std::optional<file_lock> lock = lock_of(path);
        // Another program may have written it and ended between the two.
        if (lock && !fs::exists(fs::symlink_status(path, error))) {
            return held_file{path, std::move(*lock), false, {}};
        }
    }
    return std::nullopt;
}

std::vector<left_file> find_left_files(const fs::path& folder) {
    std::vector<left_file> left;
    std::error_code error;
    for (fs::directory_iterator file(folder, error), end; !error && file != end;
         file.increment(error)) {
        const std::string name = utf8_of_path(file->path().filename());
        if (!is_numbered_name(name, AUTOSAVE_NAME) && !is_numbered_name(name, RECOVERY_NAME)) {
            continue;
        }
        std::optional<file_lock> lock = lock_of(file->path());
        std::error_code gone;
        // The program that held it may have deleted it meanwhile.
        if (lock && fs::exists(file->path(), gone)) {
            left.push_back(read_left_file({file->path(), std::move(*lock), false, {}}));
        }
    }
    // At the same time the recovery project comes first: its failure was the last thing that
    // happened.
    std::ranges::sort(left, [](const left_file& a, const left_file& b) {
        return a.written != b.written ? a.written > b.written : a.file.path > b.file.path;
    });
    return left;
}

void delete_file(held_file file) {
    std::error_code ignored;
    fs::remove(file.path, ignored);
}

}  // namespace kvt
