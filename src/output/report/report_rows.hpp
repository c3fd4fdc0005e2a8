// report_rows: the rows of the printed report in both languages, in print order.
// Rows: docs/file-formats.md, "Printed report".
#pragma once

#include "output/report/printed_report.hpp"

#include <span>
#include <string>
#include <string_view>

namespace kvt {

/// From the program to the text of a value.
using report_text = std::string (*)(const report_source&);

/// How the label of a row is made of its own text and the caption of a control.
enum class report_label {
    own,                         ///< its own text alone
    own_with_caption_in_german,  ///< English its own text, German its own text and the caption
    caption_then_own,            ///< the caption, then its own text as a suffix
    none                         ///< no label: the value stands in its place
};

struct report_row {
    std::string_view name;  ///< of its own text; empty for none
    report_text value = nullptr;
    report_text unit = nullptr;  ///< in column 50
    report_label label = report_label::own;
    std::string_view form = {}, caption = {};            ///< the control of the caption
    bool (*is_printed)(const report_source&) = nullptr;  ///< nullptr: always

    /// A row of its own text alone.
    bool is_heading() const { return value == nullptr; }
};

std::span<const report_row> report_rows();

/// The label of a row in the language of the program.
std::string label_text(const report_row& row, const report_source& source);

}  // namespace kvt
