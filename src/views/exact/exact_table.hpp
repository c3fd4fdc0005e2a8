// exact_table: the exact figures beside the product's own as rows of texts, in a language and in
// units. Sources: the pages docs/formulas/exact_*.md.
#pragma once

#include "core/length_unit.hpp"
#include "exact/exact_results.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// How the figures are shown.
struct exact_manner {
    std::int16_t language;
    const length_unit& unit;
    std::int16_t capacity_unit;
    char decimal_mark;
};

struct exact_row {
    std::string name;  ///< "displacement"; of a quantity at a point of the grid with its indexes
    std::string quantity;
    std::string product;     ///< with its unit; empty where the product has none
    std::string exact;       ///< with its unit, or why there is none
    std::string difference;  ///< 100 (product - exact) / exact, "+16.62"
    std::string why;         ///< a sentence
    std::string section;     ///< of the guide's page
    bool differs = false;    ///< by more than EXACT_TOLERANCE_PERCENT
};

inline constexpr double EXACT_TOLERANCE_PERCENT = 1.0;

/// All rows, also of what is not worked out.
std::vector<exact_row> exact_rows(const exact_source& source, const exact_results& exact,
                                  const exact_manner& manner);

/// A figure of a form that has a row in the table.
struct exact_control {
    std::string_view form, control, row;
};
std::span<const exact_control> exact_controls();

/// Why a part has no figures, in the language; empty while it has, or waits.
std::string missing_reason(exact_part part, const exact_results& exact, std::int16_t language);

/// Whether both end angles of the outlet, entered as 180, are 0 in memory, so that the product
/// delivers nothing through it.
bool ends_at_180(const port_params& ports);

}  // namespace kvt
