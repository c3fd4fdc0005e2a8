// sheet_rows: what stands in the tables of the design sheet and beside its dimension lines, as
// texts in the language and the unit of the sheet.
#pragma once

#include "views/explanation.hpp"
#include "views/sheet/design_sheet.hpp"
#include "views/sheet/sheet_drawing.hpp"

#include <string>
#include <vector>

namespace kvt {

/// The cells of a line from left to right: a name and its values. A name alone takes the whole
/// width.
using page_row = std::vector<std::string>;

std::vector<page_row> rotor_entry_rows(const sheet_source& source);
std::vector<page_row> rotor_result_rows(const sheet_source& source);
/// With of_ports: a heading, then inlet and outlet side by side; the groove where it was made.
std::vector<page_row> port_rows(const sheet_source& source);
/// With of_performance.
std::vector<page_row> performance_entry_rows(const sheet_source& source);
std::vector<page_row> performance_result_rows(const sheet_source& source);

/// The caption of the parameter's entry, and the entry with its unit: "Ø 58 mm", "R 9 mm", "35°".
dimension_text dimension_of(const explained_parameter& parameter, const sheet_source& source);

/// A text of the sheet itself.
std::string sheet_text_of(std::string_view name, const sheet_source& source);

}  // namespace kvt
