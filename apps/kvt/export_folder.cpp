#include "kvt/export_folder.hpp"

#include "kvt/batch_run.hpp"

#include <ostream>

namespace kvt {

void export_folder::write(std::string_view name, const text_writer& writer) {
    const std::string path = path_of(name);
    if (const auto failed = save_text(path, writer, disk_write::left_to_the_system)) {
        note(path, run_time_error_line(*failed, language_));
        refuse();
        return;
    }
    out_ << path << '\n';
}

void export_folder::note(std::string_view name, std::string_view text) {
    err_ << name << ": " << text << '\n';
}

}  // namespace kvt
