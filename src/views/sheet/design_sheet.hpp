// design_sheet: a design on two or three pages for whoever reviews it: the pair and the ports to
// scale with their dimensions, entries and results, the charts, and what the run told.
#pragma once

#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_results.hpp"
#include "ports/port_params.hpp"
#include "views/port_explanation.hpp"
#include "views/sheet/sheet_page.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

/// What a section shows of one stage.
struct sheet_stage {
    entries boxes;          ///< that its results were made from
    bool is_older = false;  ///< the entries have changed since
};

/// Everything on the sheet. The profiles must be there; ports and performance may be missing.
struct sheet_source {
    const design_params& design;
    const rotor_profiles& rotors;
    const port_params& ports;
    const perf_results& results;
    const labels& shown;
    std::int16_t language;
    const length_unit& unit;  ///< of the boxes
    std::string project, version, date;
    sheet_stage of_profiles;
    std::optional<sheet_stage> of_ports, of_performance;
    drawn_ports outlines;  ///< that were finished
    std::vector<std::string> messages, hints;
};

/// The paper, and how wide texts are on it.
struct sheet_paper {
    sheet_size size;
    sheet_metrics metrics;
};

/// The pages in their order, every one with its number and theirs.
std::vector<sheet_page> make_design_sheet(const sheet_source& source, const sheet_paper& paper);

}  // namespace kvt
