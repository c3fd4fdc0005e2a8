// The source of a design sheet from a calculated program, for tests.
#pragma once

#include "app/program.hpp"
#include "views/sheet/design_sheet.hpp"

namespace kvt {

inline sheet_source source_of_sheet(const program& kavetta, bool has_ports = true,
                                    bool has_performance = true) {
    sheet_source source{kavetta.design_params,
                        kavetta.rotor_profiles,
                        kavetta.port_params,
                        kavetta.perf_results,
                        kavetta.labels,
                        kavetta.app_state.language,
                        length_unit_of(kavetta.app_state),
                        kavetta.app_state.project_name,
                        "Kavetta 2021.1.1",
                        "2026-11-22",
                        {kavetta.entries, false},
                        std::nullopt,
                        std::nullopt,
                        {true, true, kavetta.port_params.has_groove},
                        {},
                        {}};
    if (has_ports) {
        source.of_ports = sheet_stage{kavetta.entries, false};
    }
    if (has_performance) {
        source.of_performance = sheet_stage{kavetta.entries, false};
    }
    return source;
}

}  // namespace kvt
