#include "app/files/port_report_file.hpp"

#include "app/desk/settings_commands.hpp"
#include "app/files/file_output.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "core/failure_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ports/port_report.hpp"

#include <iostream>

namespace kvt {

namespace {

void tell_unwritten(const program& kavetta, user& person, const std::filesystem::path& path,
                    const run_time_error& error) {
    const std::int16_t language = kavetta.app_state.language;
    const std::string line = std::string(message_text(message::save_failed, language)) +
                             utf8_of_path(path) + ": " + failure_text(error, language);
    person.show_status(line);
    std::cerr << line << '\n';
}

}  // namespace

std::vector<std::string> port_report(const program& kavetta) {
    const file_source source = source_of(kavetta);
    return port_report_lines(source.ports, source.design,
                             {source.version, source.date, kavetta.app_state.project_name});
}

void write_port_report(const program& kavetta, user& person) {
    if (kavetta.folder.empty()) {
        return;
    }
    text_lines text;
    const written_file& report = files_of(file_group::report).front();
    report.write(source_of(kavetta), text);
    const std::filesystem::path path =
        path_of_utf8(project_folder(kavetta)) / path_of_utf8(file_name(report));
    try {
        write_file(path, text.bytes());
    } catch (const run_time_error& error) {
        tell_unwritten(kavetta, person, path, error);
    }
}

}  // namespace kvt
