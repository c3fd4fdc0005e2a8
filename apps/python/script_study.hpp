// script_study: a study of a held design, as a script asks for it, and its rows as columns.
#pragma once

#include "app/study/study_words.hpp"
#include "python/held_design.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kvt {

/// What a script asks for.
struct script_study : study_words {
    std::uint64_t part = 1, parts = 1;
    unsigned jobs = 0;  ///< 0: a thread a processor
};

/// The rows that meet the conditions, in the order of the sample; of a study with aims the front.
struct study_columns {
    std::vector<std::uint64_t> numbers;
    std::vector<std::string> ends;
    std::vector<bool> accepted;
    std::vector<std::vector<std::string>> messages, hints;
    std::vector<std::pair<std::string, std::vector<std::string>>> texts;  ///< of the variables
    /// Of the recorded quantities; not a number where a design has none.
    std::vector<std::pair<std::string, std::vector<double>>> values;
    bool is_whole = true;
};

/// Runs the study. `goes_on` is asked in the calling thread now and then, and ends it by false.
/// Throws study_refused for what can't be asked.
study_columns run_script_study(const held_design& design, const script_study& asked,
                               const std::function<bool()>& goes_on);

/// The names of the quantities of a design, with the indexes that they take, and their units.
std::vector<std::pair<std::string, std::string>> quantity_units(const held_design& design);

}  // namespace kvt
