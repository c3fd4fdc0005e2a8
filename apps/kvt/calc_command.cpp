#include "kvt/calc_command.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/json_report.hpp"
#include "kvt/text_report.hpp"

#include <ostream>

namespace kvt {

int calc_design(const calc_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program kavetta;
    kavetta.date = request.date;
    const batch_result result = calculate_design(kavetta, person, request.source, request.last);
    person.show_hints(kavetta.hints, request.source.language);
    if (request.json_file != "-") {
        out << text_report(kavetta, result);
    }
    if (request.json_file.empty()) {
        return exit_status(result);
    }
    const std::string report =
        json_report(kavetta, person.messages(), result, request.full, request.exact);
    if (request.json_file == "-") {
        out << report;
        return exit_status(result);
    }
    try {
        write_file(path_of_utf8(request.json_file), report, disk_write::left_to_the_system);
    } catch (const run_time_error& error) {
        err << request.json_file << ": " << run_time_error_line(error, request.source.language)
            << '\n';
        return result.end == batch_end::read_error ? EXIT_UNREADABLE : EXIT_REFUSED;
    }
    return exit_status(result);
}

}  // namespace kvt
