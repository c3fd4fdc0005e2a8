#include "app/export/report_file.hpp"

#include "app/export/given_date.hpp"
#include "app/files/print_project.hpp"
#include "base/letter_case.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "output/report/pdf_printer.hpp"
#include "output/report/text_printer.hpp"

#include <filesystem>
#include <string_view>

namespace kvt {

namespace {

bool ends_in(const std::string& file, std::string_view ending) {
    return is_same_ignoring_case(utf8_of_path(path_of_utf8(file).extension()), ending);
}

void print(const program& kavetta, const std::string& date, report_printer& printer) {
    if (date.empty()) {
        print_report(report_of(kavetta, system_clock()), printer);
    } else {
        print_report(report_of(kavetta, given_clock(date)), printer);
    }
}

std::string pdf_bytes(const program& kavetta, const std::string& date) {
    pdf_printer pdf;
    print(kavetta, date, pdf);
    return pdf.bytes();
}

std::string text_bytes(const program& kavetta, const std::string& date) {
    text_lines file;
    for (const std::string& line : report_text(kavetta, date)) {
        file.line(line);
    }
    return file.bytes();
}

}  // namespace

std::string report_file_problem(const std::string& file) {
    return ends_in(file, ".txt") || ends_in(file, ".pdf")
               ? ""
               : "'" + file + "' is no FILE.txt or FILE.pdf";
}

std::vector<std::string> report_text(const program& kavetta, const std::string& date) {
    text_printer text;
    print(kavetta, date, text);
    return text.lines();
}

void write_report_file(const program& kavetta, const std::string& file, const std::string& date) {
    const bool is_pdf = ends_in(file, ".pdf");
    write_file(path_of_utf8(file), is_pdf ? pdf_bytes(kavetta, date) : text_bytes(kavetta, date),
               disk_write::left_to_the_system);
}

}  // namespace kvt
