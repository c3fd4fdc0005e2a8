// length_unit: the units of length, one row a unit with everything that the program asks of it.
#pragma once

#include "core/app_state.hpp"
#include "core/text_table.hpp"

#include <cstdint>
#include <span>
#include <string_view>

namespace kvt {

/// The family of units that goes with a unit of length: bar, kW, N, or psi, hp, lbsf.
enum class unit_system { metric, imperial };

/// One unit of length. Records hold millimetres; entries, written files and texts hold this unit.
struct length_unit {
    std::int16_t code;               ///< drawing_units
    std::string_view option_button;  ///< the button of Form1 that chooses it
    std::string_view project_text;   ///< line 3 of a project file
    double mm;                       ///< millimetres in one unit
    unit_system system;              ///< what pressures, loads and powers stand beside it
    text_kind captions;              ///< the captions that the label routine sets
    message short_name;              ///< behind a length of the desk and of the summaries
    std::string_view long_name;      ///< behind the largest cutter
    std::string_view toolunits;      ///< the caption of Form3 behind the tool diameters
    std::string_view cnc_comment;    ///< the row of the CNC texts that names it
    int cursor_decimals;             ///< of the position of the mouse
    bool cuts_texts;                 ///< a length written back is cut to three decimals

    /// True for millimetres, the unit of the records: nothing is converted.
    bool is_of_records() const { return mm == 1.0; }
    /// length * mm: a length in this unit in millimetres.
    double to_mm(double length) const { return length * mm; }
    /// millimetres / mm: a length of the records in this unit.
    double from_mm(double millimetres) const { return millimetres / mm; }
    /// A diameter in this unit as a radius in millimetres, halved once: diameter * (mm / 2).
    /// Half of a unit is a double without rounding, so 12.7 stands for an inch.
    double half_to_mm(double diameter) const { return diameter * (mm / 2.0); }
    /// from_mm as it is written back to an entry: Int(millimetres * 1000 / mm) / 1000 where the
    /// unit cuts its texts. Throws overflow beyond a whole number.
    double cut_from_mm(double millimetres) const;
};

/// The table in the order of the option buttons.
std::span<const length_unit> length_units();

/// The unit of a code drawing_units; millimetres for a code that is not in the table.
const length_unit& length_unit_of(std::int16_t drawing_units);
const length_unit& length_unit_of(const app_state& state);

/// The unit of line 3 of a project file; inches for a text that is not in the table.
const length_unit& length_unit_of_project(std::string_view text);

/// The row of a control among the captions of a system of units, else find_caption; nullptr without
/// either.
const text_row* find_text(std::string_view form, std::string_view name, unit_system system);
/// The text of that row, which must be there.
std::string_view form_text(std::string_view form, std::string_view name, std::int16_t language,
                           unit_system system);

}  // namespace kvt
