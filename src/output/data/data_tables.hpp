// data_tables: what the performance data files and the workbook say, as tables: titles, headers and
// rows of numbers in the language and units of the source. Factors: docs/formulas/flow.md, "Results
// as they are shown"; the lines: docs/file-formats.md, "Performance data files (`.txt`)".
#pragma once

#include "output/file_source.hpp"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// In the order in which the files are written.
enum class data_file { flow, torque, contact, efficiency, volumetric };

/// Rows of numbers under their headers.
struct data_block {
    std::string heading;  ///< the line above the headers; empty without one
    std::vector<std::string>
        headers;                 ///< one a column, with the leading blank that two of them have
    std::vector<double> values;  ///< row by row

    std::size_t row_count() const { return values.size() / headers.size(); }
    /// Row 0 .. row_count() - 1.
    std::span<const double> row(std::size_t index) const {
        return std::span(values).subspan(index * headers.size(), headers.size());
    }
};

struct data_table {
    std::string title;                 ///< "Efficiency Data For Project: 'pump'"
    std::string ripple_caption;        ///< "Pressure Ripple: ", of the volumetric file; else empty
    double ripple_percent = 0.0;       ///< stands behind it, with "%"
    std::vector<std::string> remarks;  ///< the explaining lines of the contact file
    std::vector<data_block> blocks;
    std::string end;  ///< "End of File"
};

/// The table of a file, from the results as they stand. Speeds and pressures 0 .. 5 of the grid;
/// angles of the inner rotor in whole degrees: 0 .. 360 of the sliding velocities, 0 .. 179 of the
/// contact, 0 .. 359 of the rest. Angle 0 of the contact and of the velocities is never computed
/// and says 0.
data_table make_data_table(data_file file, const file_source& source);

/// A text of the data files: that of the unit of the source where it has one.
std::string_view data_text(std::string_view row, const file_source& source);

}  // namespace kvt
