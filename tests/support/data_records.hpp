// The records of the performance data files, filled by a test.
#pragma once

#include "output/file_source.hpp"

namespace kvt {

struct data_records {
    design_params design;
    rotor_profiles rotors;
    port_params ports;
    perf_results results;
    entries boxes;
    cnc_choices choices;
    std::int16_t language = ENGLISH;
    std::int16_t unit = MILLIMETRES;

    /// Speeds 100 .. 600 rpm, pressures 101300 .. 607800 Pa.
    data_records() {
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            results.speed_rpm[i] = 100.0 * static_cast<double>(i + 1);
            results.press_pa[i] = 101300.0 * static_cast<double>(i + 1);
        }
    }

    file_source source() const {
        return {.design = design,
                .rotors = rotors,
                .ports = ports,
                .results = results,
                .boxes = boxes,
                .choices = choices,
                .project_name = "pump",
                .language = language,
                .unit = length_unit_of(unit),
                .version = "2021.1.1"};
    }
};

}  // namespace kvt
