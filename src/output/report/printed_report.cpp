#include "output/report/printed_report.hpp"

#include "output/report/report_rows.hpp"

namespace kvt {

namespace {

constexpr int LABEL_COLUMN = 5;
constexpr int VALUE_COLUMN = 40;
constexpr int UNIT_COLUMN = 50;
constexpr double TITLE_POINTS = 20.0;
constexpr double ROW_POINTS = 12.0;

void print_empty_lines(report_printer& printer, int count) {
    for (int i = 0; i < count; ++i) {
        printer.line({});
    }
}

void print_title(const report_source& source, report_printer& printer) {
    printer.font_size(TITLE_POINTS);
    printer.line({{LABEL_COLUMN, source.title}});
    printer.line({{LABEL_COLUMN, source.date}, {VALUE_COLUMN, source.time}});
    print_empty_lines(printer, 2);
    printer.font_size(ROW_POINTS);
}

void print_heading(const std::string& text, report_printer& printer) {
    print_empty_lines(printer, 2);
    printer.line({{LABEL_COLUMN, text}});
    print_empty_lines(printer, 1);
}

void print_row(const report_row& row, const report_source& source, report_printer& printer) {
    const std::string label = label_text(row, source);
    if (row.is_heading()) {
        print_heading(label, printer);
        return;
    }
    const std::string value = row.value(source);
    if (row.label == report_label::none) {
        printer.line({{LABEL_COLUMN, value}});
        return;
    }
    const std::string unit = row.unit == nullptr ? "" : row.unit(source);
    printer.line({{LABEL_COLUMN, label}, {VALUE_COLUMN, value}, {UNIT_COLUMN, unit}});
}

bool has_rows(const app_state& state) {
    return state.language == ENGLISH || state.language == GERMAN;
}

}  // namespace

void print_report(const report_source& source, report_printer& printer) {
    print_title(source, printer);
    if (has_rows(source.state)) {
        for (const report_row& row : report_rows()) {
            if (row.is_printed == nullptr || row.is_printed(source)) {
                print_row(row, source, printer);
            }
        }
    }
    printer.end_document();
}

}  // namespace kvt
