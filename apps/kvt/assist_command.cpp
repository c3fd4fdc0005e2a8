#include "kvt/assist_command.hpp"

#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "kvt/aligned_lines.hpp"
#include "kvt/json_report.hpp"
#include "kvt/report_texts.hpp"

#include <ostream>
#include <utility>
#include <vector>

namespace kvt {

namespace {

/// The entries that the assist writes, under their captions on the Design form.
std::string assist_report(const program& kavetta, batch_end end) {
    const std::int16_t language = kavetta.app_state.language;
    const std::string unit = length_unit_text(kavetta.app_state);
    const entries& boxes = kavetta.entries;
    std::vector<std::pair<std::string, std::string>> rows;
    if (end == batch_end::ok) {
        rows = {{caption_text("Form1", "Label3", language), boxes.ecc + unit},
                {caption_text("Form1", "Label5", language), boxes.radouter + unit},
                {caption_text("Form1", "Label10", language), boxes.radinnroot + unit},
                {caption_text("Form1", "Label20", language),
                 boxes.outer_root + " mm"},  // in inch mode too
                {caption_text("Form1", "Label11", language),
                 kavetta.labels.capacity + " " + kavetta.labels.units_label}};
    }
    rows.emplace_back(caption_text("kvt", "ended", language), batch_end_name(end));
    return aligned_lines(rows);
}

}  // namespace

int assist_design(const assist_request& request, std::ostream& out, std::ostream& err) {
    batch_user person(err);
    program kavetta;
    const batch_end end = find_design(kavetta, person, request.source);
    person.show_hints(kavetta.hints, request.source.language);
    out << (request.json ? json_report(kavetta, person.messages(), {end, false}, false)
                         : assist_report(kavetta, end));
    if (end != batch_end::ok || request.write_file.empty()) {
        return exit_status(end);
    }
    try {
        write_entries(kavetta, request.write_file);
    } catch (const run_time_error& error) {
        err << request.write_file << ": " << run_time_error_line(error, request.source.language)
            << '\n';
        return EXIT_REFUSED;
    }
    return EXIT_OK;
}

}  // namespace kvt
