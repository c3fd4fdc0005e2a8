#include "app/gt/gt_folders.hpp"

#include "base/path_text.hpp"
#include "base/run_time_error.hpp"

namespace kvt {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void throw_no_access(const fs::path& path, const std::error_code& error) {
    throw run_time_error(failure::path_file_access, utf8_of_path(path),
                         {file_fault::reason::system, error.value()});
}

void create_folder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        throw run_time_error(failure::path_not_found, utf8_of_path(folder));
    }
}

void close_to_others(const fs::path& folder) {
    std::error_code error;
    fs::permissions(folder, fs::perms::owner_all, error);
    if (error) {
        throw_no_access(folder, error);
    }
}

/// What stands directly in a folder but other folders.
std::vector<fs::path> files_of_folder(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator file(folder, error), end; !error && file != end;
         file.increment(error)) {
        if (std::error_code ignored; !fs::is_directory(file->symlink_status(ignored))) {
            files.push_back(file->path());
        }
    }
    if (error) {
        throw run_time_error(failure::path_not_found, utf8_of_path(folder));
    }
    return files;
}

}  // namespace

gt_folders gt_folders_of(const fs::path& program_folder) {
    return {program_folder / "KVT_GT_temp", program_folder / "GT_files"};
}

void make_gt_folders(const gt_folders& folders) {
    create_folder(folders.gt_temp_dir);
    close_to_others(folders.gt_temp_dir);
    create_folder(folders.results);
}

void prepare_gt_folders(const gt_folders& folders) {
    make_gt_folders(folders);
    empty_folder(folders.gt_temp_dir);
}

void empty_folder(const fs::path& folder) {
    for (const fs::path& file : files_of_folder(folder)) {
        remove_file(file);
    }
}

std::vector<std::string> file_names(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::path& file : files_of_folder(folder)) {
        names.push_back(utf8_of_path(file.filename()));
    }
    return names;
}

fs::path named_file(const fs::path& folder, const std::string& name) {
    if (name.find_first_of(std::string_view("/\0", 2)) != std::string::npos) {
        throw run_time_error(failure::invalid_property_value, "no file name: " + name);
    }
    return folder / path_of_utf8(name);
}

void copy_over(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
    if (error) {
        throw_no_access(to, error);
    }
}

void remove_file(const fs::path& file) {
    std::error_code error;
    fs::remove(file, error);
    if (error) {
        throw_no_access(file, error);
    }
}

}  // namespace kvt
