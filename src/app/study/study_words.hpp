// study_words: a study in words, as the options of the batch program and the calls of scripts have
// it.
#pragma once

#include "app/study/study.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace kvt {

struct study_words {
    std::vector<std::string> varied = {}, recorded = {}, conditions = {}, aims = {};
    std::string sample = "grid";
    std::uint64_t seed = 0;
    calc_stage last = calc_stage::performance;
};

/// What was named, or what an engineer sees of a design.
std::vector<std::string> recorded_or_usual(const std::vector<std::string>& named);

/// Throws study_problem for words that say nothing.
study_plan study_plan_of(const study_words& words);

}  // namespace kvt
