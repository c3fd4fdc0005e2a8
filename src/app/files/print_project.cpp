#include "app/files/print_project.hpp"

#include "app/desk/program_title.hpp"
#include "app/desk/settings_commands.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "core/user.hpp"

#include <filesystem>

namespace kvt {

namespace {

/// <project>.pdf beside the projects; a project without a name has that of the program.
print_request request_of(const program& kavetta) {
    const std::string& project = kavetta.app_state.project_name;
    const std::string name = project.empty() ? std::string(PROGRAM_NAME) : project;
    return {name,
            utf8_of_path(path_of_utf8(project_folder(kavetta)) / path_of_utf8(name + ".pdf"))};
}

}  // namespace

report_source report_of(const program& kavetta, const clock& time) {
    return {kavetta.entries,       kavetta.labels,       kavetta.captions,
            kavetta.app_state,     kavetta.perf_results, kavetta.performance_valid,
            kavetta.results_shown, program_title(),      short_date(time),
            time_of_day(time)};
}

void print_project(program& kavetta, user& person) {
    try {
        if (const auto printer = person.choose_printer(request_of(kavetta))) {
            print_report(report_of(kavetta, system_clock()), *printer);
        }
    } catch (const run_time_error&) {
        // The page stays as far as it came.
    }
}

}  // namespace kvt
