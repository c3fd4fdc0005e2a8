// study_words: a study in words, as the options of the batch program and the calls of scripts have
// it.
#pragma once

#include "app/study/study.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

struct study_words {
    std::vector<std::string> varied = {}, recorded = {}, conditions = {}, aims = {};
    std::string sample = "grid";
    std::uint64_t seed = 0;
    calc_stage last = calc_stage::performance;
};

/// Each text as what it says. Throws study_problem for one that says nothing.
template <typename part>
std::vector<part> parts_of(const std::vector<std::string>& texts,
                           part (*part_of)(std::string_view)) {
    std::vector<part> parts;
    parts.reserve(texts.size());
    for (const std::string& text : texts) {
        parts.push_back(part_of(text));
    }
    return parts;
}

/// What was named, or what an engineer sees of a design.
std::vector<std::string> recorded_or_usual(const std::vector<std::string>& named);

/// Throws study_problem for words that say nothing.
study_plan study_plan_of(const study_words& words);

}  // namespace kvt
