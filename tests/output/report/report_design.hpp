// A design on its way to the printed report, with what changes from run to run held still.
#pragma once

#include "app/files/print_project.hpp"
#include "app/stages/calculate_performance.hpp"
#include "output/report/text_printer.hpp"
#include "support/cnc_design.hpp"

#include <string>

namespace kvt {

inline program design_with_results(const std::string& name) {
    program kavetta = design_with_ports(name);
    scripted_user person;
    calculate_performance(kavetta, person);
    return kavetta;
}

/// What its report is printed from, on a fixed day and from a fixed path.
inline report_source report_source_of(program& kavetta) {
    kavetta.app_state.project_path = "C:\\pumps\\" + kavetta.app_state.project_name + ".KVT";
    report_source source = report_of(kavetta, system_clock());
    source.date = "11/03/21";
    source.time = "14:32:07";
    return source;
}

inline std::string report_text_of(program& kavetta) {
    text_printer text;
    print_report(report_source_of(kavetta), text);
    std::string lines;
    for (const std::string& line : text.lines()) {
        lines += line + "\n";
    }
    return lines;
}

}  // namespace kvt
