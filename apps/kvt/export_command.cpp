#include "kvt/export_command.hpp"

#include "app/export/export_files.hpp"
#include "app/export/export_folder.hpp"
#include "app/export/export_performance.hpp"
#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"

#include <ostream>

namespace kvt {

namespace {

/// <name of the input>.KVT.
std::filesystem::path exported_project_name(const design_source& source) {
    std::filesystem::path name = path_of_utf8(source.project).filename();
    name.replace_extension(".KVT");
    return name;
}

/// The project as it stands, before anything is calculated. False when it could not be written.
bool export_project(const program& kavetta, const export_request& request, std::ostream& out,
                    std::ostream& err) {
    const std::string path = utf8_of_path(request.folder / exported_project_name(request.source));
    try {
        create_folder(request.folder);
        write_entries(kavetta, path, disk_write::left_to_the_system);
    } catch (const run_time_error& error) {
        err << path << ": " << run_time_error_line(error, request.source.language) << '\n';
        return false;
    }
    out << path << '\n';
    return true;
}

calc_stage last_stage(const export_request& request) {
    return request.wants_performance() ? calc_stage::performance : calc_stage::ports;
}

}  // namespace

int export_design(const export_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program kavetta;
    kavetta.date = request.date;
    if (const std::optional<batch_end> early = open_design(kavetta, person, request.source)) {
        return exit_status(*early);
    }
    if (!export_project(kavetta, request, out, err)) {
        return EXIT_REFUSED;
    }
    kavetta.decimal_mark = request.decimal_mark;
    kavetta.chord_error_mm = request.chord_error_mm;
    batch_result result = calculate_open_design(kavetta, person, last_stage(request));
    export_folder folder(request.folder, request.source.language, out, err);
    if (result.ports_reached) {
        export_files(kavetta, person, request, folder);
    }
    export_performance(kavetta, request, folder);
    if (request.force) {
        result.performance_refused = false;
    }
    person.show_hints(kavetta.hints, request.source.language);
    return folder.complete() ? exit_status(result) : EXIT_REFUSED;
}

}  // namespace kvt
