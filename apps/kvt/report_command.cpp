#include "kvt/report_command.hpp"

#include "app/export/given_date.hpp"
#include "app/export/report_file.hpp"
#include "app/program.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"

#include <ostream>

namespace kvt {

namespace {

void write_report(const program& kavetta, const report_request& request, std::ostream& out) {
    if (!request.file.empty()) {
        write_report_file(kavetta, request.file, request.date);
        return;
    }
    for (const std::string& line : report_text(kavetta, request.date)) {
        out << line << '\n';
    }
}

}  // namespace

int report_design(const report_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program kavetta;
    kavetta.date = day_of(request.date);
    const batch_result result = calculate_design(kavetta, person, request.source, request.last);
    person.show_hints(kavetta.hints, request.source.language);
    if (result.end == batch_end::read_error) {
        return exit_status(result);
    }
    try {
        write_report(kavetta, request, out);
    } catch (const run_time_error& error) {
        err << (request.file.empty() ? "report" : request.file) << ": "
            << run_time_error_line(error, request.source.language) << '\n';
        return EXIT_REFUSED;
    }
    return exit_status(result);
}

}  // namespace kvt
