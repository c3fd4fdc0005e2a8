#include "app/files/port_report_file.hpp"

#include "app/desk/program_title.hpp"
#include "app/desk/settings_commands.hpp"
#include "app/program.hpp"
#include "base/short_date.hpp"
#include "base/text_file.hpp"
#include "ports/port_report.hpp"

namespace kvt {

std::filesystem::path port_report_folder(const program& kavetta) {
    const app_state& state = kavetta.app_state;
    return state.projects_folder.empty() ? existing_folder_of(kavetta, state.project_path)
                                         : state.projects_folder;
}

std::vector<std::string> port_report(const program& kavetta) {
    const std::string date = kavetta.date.empty() ? short_date(system_clock()) : kavetta.date;
    return port_report_lines(kavetta.port_params, kavetta.design_params,
                             {std::string(FULL_VERSION), date, kavetta.app_state.project_name});
}

std::string port_report_bytes(const program& kavetta) {
    text_lines text;
    for (const std::string& line : port_report(kavetta)) {
        text.line(line);
    }
    return text.bytes();
}

void write_port_report(const program& kavetta) {
    if (!kavetta.folder.empty()) {
        write_file(port_report_folder(kavetta) / PORT_REPORT_NAME, port_report_bytes(kavetta));
    }
}

}  // namespace kvt
