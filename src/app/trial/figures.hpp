// figures: the results of the forms with those of another design beside them, as texts.
#pragma once

#include "core/entries.hpp"

#include <span>
#include <string>
#include <string_view>

namespace kvt {

/// A result label with a number in it.
struct figure {
    std::string_view form, control;
    std::string labels::*text;
    bool is_angle = false;  ///< a direction, of which a percentage says nothing
};

std::span<const figure> figures();

/// The row of a control; null for one that is no figure.
const figure* find_figure(std::string_view form, std::string_view control);

/// The number of a result without its unit; empty where there is none.
std::string figure_text(const figure& row, const labels& texts, char decimal_mark);

/// From the present result to another design's: "→ 7.94, +4.5 %", the change 100 (other - present)
/// / |present| with one decimal. The number has no unit: that stands behind the present result.
/// Without the change where the present result is 0, missing or an angle; empty where the other
/// design has none.
std::string changed_figure_text(const figure& row, const labels& present, const labels& other,
                                char decimal_mark);

}  // namespace kvt
