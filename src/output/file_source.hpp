// What a file is written from: the records, the boxes, the choices of the CNC output dialog, and
// what changes from run to run.
#pragma once

#include "core/app_state.hpp"
#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/rotor_profiles.hpp"
#include "output/cnc/cnc_choices.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace kvt {

/// How far the triangles of an STL file may lie from its contours, mm.
inline constexpr double DEFAULT_CHORD_ERROR_MM = 0.005;

/// All records by reference; the writers change none of them.
struct file_source {
    const design_params& design;
    const rotor_profiles& rotors;
    const port_params& ports;
    const perf_results& results;
    const entries& boxes;
    const cnc_choices& choices;
    std::string_view project_name;
    std::int16_t language = ENGLISH;
    const length_unit& unit = length_unit_of(MILLIMETRES);  ///< of most files
    std::string path = {};                 ///< of the file, as the save dialog gave it
    std::string date = {};                 ///< in the form in which it shall stand there
    std::string version = {};              ///< "2021.1.1"
    const length_unit& boxes_unit = unit;  ///< of the lengths in boxes
    char decimal_mark = '.';               ///< of the performance data files; no other file has it
    double chord_error_mm = DEFAULT_CHORD_ERROR_MM;  ///< of the STL files
};

}  // namespace kvt
