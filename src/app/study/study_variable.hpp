// study_variable: what a study types into one control, from design to design.
#pragma once

#include "app/stages/typed_entry.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

struct program;

/// A control that a project's entry can be typed into, with the texts that it gets: those of a
/// list, or any number of a range.
struct study_variable {
    std::string control;
    std::vector<std::string> levels;     ///< in their order; none of a continuous range
    double lowest = 0.0, highest = 0.0;  ///< of a continuous range

    bool is_continuous() const { return levels.empty(); }
};

/// More levels than this are a slip of the pen.
inline constexpr double MOST_LEVELS = 1e6;

/// "ecc=2,2.1,2.5" is a list, "ecc=2:3:0.05" the numbers from the first to the last in equal steps,
/// with as many decimals as they are written with, and "ecc=2:3" any number between these two; of a
/// control that takes whole numbers, each of them. Throws study_problem: no such control (near
/// names are offered), a text that it does not take, a range that is none.
study_variable study_variable_of(std::string_view text);

/// The unit of its entry in the open project; empty where it has none.
std::string unit_of_variable(const study_variable& variable, const program& base);

/// What is typed into the variables, each with its text.
std::vector<typed_entry> typed_entries(const std::vector<study_variable>& variables,
                                       const std::vector<std::string>& texts);

/// The text at a place in 0 .. 1: level Int(place count), or number_text(lowest + place (highest -
/// lowest)). 1 is the last one.
std::string text_at(const study_variable& variable, double place);

}  // namespace kvt
