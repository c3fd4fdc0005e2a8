// study_chart: the designs of a study as dots over two of its columns, a third one as their colour.
// Source: docs/formulas/charts.md, "Dots".
#pragma once

#include "app/study/study_table.hpp"
#include "views/charts/result_chart.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

/// Columns of the table that hold numbers: variables and quantities.
struct study_axes {
    std::size_t x = 0, y = 0;
    std::optional<std::size_t> colour;  ///< nothing: all in one colour
    /// A variable: designs that differ in it alone are joined by lines, in its order.
    std::optional<std::size_t> along;
};

struct study_chart {
    result_chart chart;
    /// The numbers of the designs, by the indexes of curve and point.
    std::vector<std::vector<std::uint64_t>> designs;
};

/// The columns that can be chosen.
std::vector<std::size_t> number_columns(const study_table& table);

/// The rows that are shown and have all numbers: dots from left to right, the five curves the
/// fifths of the range of the colour's column. Dots of the front have rings. Nothing without a row.
std::optional<study_chart> make_study_chart(const study_table& table, const study_axes& axes,
                                            std::int16_t language);

}  // namespace kvt
