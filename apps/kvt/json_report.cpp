#include "kvt/json_report.hpp"

#include "app/files/port_report_file.hpp"
#include "app/program.hpp"
#include "app/results/result_sections.hpp"
#include "kvt/json_charts.hpp"
#include "kvt/json_exact.hpp"
#include "kvt/json_fields.hpp"
#include "kvt/json_values.hpp"
#include "kvt/json_view.hpp"

namespace kvt {

namespace {

json json_hints(const std::vector<hint>& hints) {
    json texts = json::array();
    for (const hint& row : hints) {
        texts.push_back(row.text);
    }
    return texts;
}

/// What stands behind a section and is no record.
void add_behind(json& report, result_section section, const program& kavetta, bool full) {
    if (section == result_section::rotor_profiles && full) {
        report["view"] = json_view(kavetta.design_view);
    } else if (section == result_section::port_params) {
        report["report_lines"] = port_report(kavetta);
    } else if (section == result_section::perf_results && full) {
        report["charts"] = json_charts(kavetta.perf_results, kavetta.app_state.language,
                                       length_unit_of(kavetta.app_state).system);
    }
}

void add_report(json& report, const program& kavetta, const std::vector<std::string>& messages,
                const batch_result& result, bool full, bool exact) {
    report["ended"] = batch_end_name(result.end);
    report["messages"] = messages;
    report["hints"] = json_hints(kavetta.hints);
    for (const result_section_row& row : result_sections()) {
        if (is_reached(row, result)) {
            report[std::string(row.name)] = json_of_values(values_of(row.section, kavetta), full);
            add_behind(report, row.section, kavetta, full);
        }
    }
    if (exact) {
        report["exact"] = json_exact(kavetta, result);
    }
}

}  // namespace

std::string json_report(const program& kavetta, const std::vector<std::string>& messages,
                        const batch_result& result, bool full, bool exact) {
    json report = json::object();
    add_report(report, kavetta, messages, result, full, exact);
    return json_text(report, full);
}

std::string json_report_line(const std::string& project, const program& kavetta,
                             const std::vector<std::string>& messages, const batch_result& result,
                             bool full, bool exact) {
    json report = {{"project", project}};
    add_report(report, kavetta, messages, result, full, exact);
    return json_text(report, true);
}

}  // namespace kvt
