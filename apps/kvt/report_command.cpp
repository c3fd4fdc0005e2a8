#include "kvt/report_command.hpp"

#include "app/files/print_project.hpp"
#include "app/program.hpp"
#include "base/letter_case.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "kvt/batch_user.hpp"
#include "kvt/exit_status.hpp"
#include "kvt/given_date.hpp"
#include "output/report/pdf_printer.hpp"
#include "output/report/text_printer.hpp"

#include <filesystem>
#include <ostream>

namespace kvt {

namespace {

bool ends_in(const std::string& file, std::string_view ending) {
    return is_same_ignoring_case(utf8_of_path(path_of_utf8(file).extension()), ending);
}

std::string text_bytes(const text_printer& text) {
    text_lines file;
    for (const std::string& line : text.lines()) {
        file.line(line);
    }
    return file.bytes();
}

void print_lines(const text_printer& text, std::ostream& out) {
    for (const std::string& line : text.lines()) {
        out << line << '\n';
    }
}

void print(const program& kavetta, const std::string& date, report_printer& printer) {
    if (date.empty()) {
        print_report(report_of(kavetta, system_clock()), printer);
    } else {
        print_report(report_of(kavetta, given_clock(date)), printer);
    }
}

void write_report(const program& kavetta, const report_request& request, std::ostream& out) {
    if (ends_in(request.file, ".pdf")) {
        pdf_printer pdf;
        print(kavetta, request.date, pdf);
        write_file(path_of_utf8(request.file), pdf.bytes(), disk_write::left_to_the_system);
        return;
    }
    text_printer text;
    print(kavetta, request.date, text);
    if (request.file.empty()) {
        print_lines(text, out);
    } else {
        write_file(path_of_utf8(request.file), text_bytes(text), disk_write::left_to_the_system);
    }
}

}  // namespace

std::string report_file_problem(const std::string& file) {
    return ends_in(file, ".txt") || ends_in(file, ".pdf")
               ? ""
               : "'" + file + "' is no FILE.txt or FILE.pdf";
}

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
