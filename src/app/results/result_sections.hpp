// result_sections: everything that a finished run has to say, section by section. The JSON report
// and the Python module loop over it, so that both have the same names.
#pragma once

#include "app/results/named_values.hpp"
#include "performance/perf_results.hpp"

#include <span>
#include <string_view>

namespace kvt {

struct batch_result;
struct program;

/// entries: the boxes of the input forms, labels: the result texts as the forms show them, numbers:
/// the numbers behind these texts; the others are the records of the stages.
enum class result_section {
    entries,
    labels,
    numbers,
    design_params,
    rotor_profiles,
    port_params,
    perf_results
};

struct result_section_row {
    result_section section;
    std::string_view name;
    bool batch_result::*reached;  ///< the stage that fills it; null for what is always there
};

/// In the order of a report.
std::span<const result_section_row> result_sections();

/// Whether a run came far enough for a section to say something.
bool is_reached(const result_section_row& row, const batch_result& result);

/// The values of a section. Numbers lie where the program has them: they are good as long as it
/// lives and calculates nothing.
named_values values_of(result_section section, const program& kavetta);

/// Those of the performance: all scalars, the axes of the grid and its tables; of the full form
/// only the lists over speeds or pressures and the arrays over the rotation angle, cut to their
/// used length.
named_values performance_values(const perf_results& results);

}  // namespace kvt
