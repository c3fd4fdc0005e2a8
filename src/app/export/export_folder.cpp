#include "app/export/export_folder.hpp"

#include "app/stages/batch_run.hpp"
#include "base/path_text.hpp"

#include <ostream>
#include <system_error>

namespace kvt {

void create_folder(const std::filesystem::path& folder) {
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    if (failed) {
        throw run_time_error(failure::path_not_found, utf8_of_path(folder));
    }
}

void export_folder::write(std::string_view name, const text_writer& writer) {
    const std::string path = path_of(name);
    if (const auto failed = save_text(path, writer, disk_write::left_to_the_system)) {
        const std::string reason = run_time_error_line(failed->error, language_);
        if (failed->is_there) {
            err_ << incomplete_line(path, reason, language_) << '\n';
        } else {
            note(path, reason);
        }
        refuse();
        return;
    }
    tell_written(path);
}

void export_folder::write_whole(std::string_view name, const std::function<std::string()>& bytes) {
    write_by(name, [&](const std::string& path) {
        write_file(path_of_utf8(path), bytes(), disk_write::left_to_the_system);
    });
}

void export_folder::write_by(std::string_view name,
                             const std::function<void(const std::string&)>& writer) {
    const std::string path = path_of(name);
    try {
        writer(path);
    } catch (const run_time_error& error) {
        note(path, run_time_error_line(error, language_));
        refuse();
        return;
    }
    tell_written(path);
}

void export_folder::note(std::string_view name, std::string_view text) {
    err_ << name << ": " << text << '\n';
}

void export_folder::tell_written(const std::string& path) {
    written_.push_back(path);
    out_ << path << '\n';
}

}  // namespace kvt
