#include "app/files/port_report_file.hpp"

#include "app/desk/settings_commands.hpp"
#include "app/files/file_output.hpp"
#include "app/program.hpp"
#include "ports/port_report.hpp"

namespace kvt {

std::filesystem::path port_report_folder(const program& kavetta) {
    const app_state& state = kavetta.app_state;
    return state.projects_folder.empty() ? existing_folder_of(kavetta, state.project_path)
                                         : state.projects_folder;
}

std::vector<std::string> port_report(const program& kavetta) {
    const file_source source = source_of(kavetta);
    return port_report_lines(source.ports, source.design,
                             {source.version, source.date, kavetta.app_state.project_name});
}

void write_port_report(const program& kavetta) {
    if (kavetta.folder.empty()) {
        return;
    }
    text_lines text;
    const written_file& report = files_of(file_group::report).front();
    report.write(source_of(kavetta), text);
    write_file(port_report_folder(kavetta) / file_name(report), text.bytes());
}

}  // namespace kvt
