#include "kvt/text_report.hpp"

#include "app/program.hpp"
#include "kvt/aligned_lines.hpp"
#include "kvt/performance_summary.hpp"
#include "kvt/port_summary.hpp"
#include "kvt/report_texts.hpp"

#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace kvt {

namespace {

/// A value of the table: from the program to its text.
using value_text = std::string (*)(const program&);

enum class row_kind { entry, result };

struct report_row {
    row_kind kind;
    std::string_view form;  ///< where the caption stands in the text table
    std::string_view caption;
    value_text value;
};

template <std::string entries::*box>
std::string typed(const program& kavetta) {
    return kavetta.entries.*box;
}

template <std::string entries::*box>
std::string typed_length(const program& kavetta) {
    return kavetta.entries.*box + length_unit_text(kavetta.app_state);
}

template <std::string labels::*label>
std::string shown(const program& kavetta) {
    return kavetta.labels.*label;
}

std::string capacity(const program& kavetta) {
    return kavetta.labels.capacity + " " + kavetta.labels.units_label;
}

std::string base_radius(const program& kavetta) {
    return length_text(kavetta.app_state, kavetta.rotor_profiles.base_radius);
}

std::string roll_radius(const program& kavetta) {
    return length_text(kavetta.app_state, kavetta.rotor_profiles.roll_radius);
}

std::string trochoid_ratio(const program& kavetta) {
    return rounded(kavetta.rotor_profiles.trochoid_ratio);
}

constexpr std::array REPORT_ROWS = {
    report_row{row_kind::entry, "Form1", "Label7", typed<&entries::numlobes>},
    report_row{row_kind::entry, "Form1", "Label3", typed_length<&entries::ecc>},
    report_row{row_kind::entry, "Form1", "Label5", typed_length<&entries::radouter>},
    report_row{row_kind::entry, "Form1", "Label10", typed_length<&entries::radinnroot>},
    report_row{row_kind::entry, "Form1", "Label8", typed_length<&entries::thick>},
    report_row{row_kind::entry, "Form1", "Label6", typed_length<&entries::fillet>},
    report_row{row_kind::result, "Form1", "Label20", typed_length<&entries::outer_root>},
    report_row{row_kind::result, "Form1", "Label11", capacity},
    report_row{row_kind::result, "Form1", "Label17", shown<&labels::area_ratio>},
    report_row{row_kind::result, "Form1", "Label18", shown<&labels::max_chamb_vol>},
    report_row{row_kind::result, "Form1", "Label19", shown<&labels::min_chamb_vol>},
    report_row{row_kind::result, "kvt", "trochoid_ratio", trochoid_ratio},
    report_row{row_kind::result, "kvt", "base_radius", base_radius},
    report_row{row_kind::result, "kvt", "roll_radius", roll_radius},
};

bool is_reported(row_kind kind, batch_end end) {
    return kind == row_kind::entry ? end != batch_end::read_error : end == batch_end::ok;
}

}  // namespace

std::string text_report(const program& kavetta, const batch_result& result) {
    const std::int16_t language = kavetta.app_state.language;
    std::vector<std::pair<std::string, std::string>> lines;
    for (const report_row& row : REPORT_ROWS) {
        if (is_reported(row.kind, result.end)) {
            lines.emplace_back(caption_text(row.form, row.caption, language), row.value(kavetta));
        }
    }
    lines.emplace_back(caption_text("kvt", "ended", language), batch_end_name(result.end));
    std::string report = aligned_lines(lines);
    if (result.ports_reached) {
        report += "\n" + port_summary(kavetta);
    }
    if (result.performance_reached) {
        report += "\n" + performance_summary(kavetta);
    }
    return report;
}

}  // namespace kvt
