// study_sample: which designs of the variables' ranges a study calculates, and in which order.
#pragma once

#include "app/study/study_variable.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

enum class sample_kind {
    grid,     ///< every level with every other one; the last variable changes first
    latin,    ///< Latin hypercube: each variable's range evenly, its parts put together by chance
    sobol,    ///< Sobol sequence: the whole space evenly
    searched  ///< what a search asks for, known as it comes
};

struct study_sample {
    sample_kind kind = sample_kind::grid;
    std::uint64_t count = 0;  ///< of designs, of a search about so many; the grid has its own
    std::uint64_t seed = 0;
};

/// "grid", "latin:N" or "sobol:N"; N is a whole number from 1 on. Throws study_problem for others.
study_sample study_sample_of(std::string_view text);

/// The number of designs; a grid without variables has one, the project itself. Throws
/// study_problem for a grid of a continuous range, for one of more than 2^53 designs, a number that
/// not every program could hold, and for a sample of several designs that would all be the same.
std::uint64_t design_count(const std::vector<study_variable>& variables,
                           const study_sample& sample);

/// The texts of the variables, in their order, of design `number` = 0 .. design_count - 1; not of a
/// search.
std::vector<std::string> sampled_texts(const std::vector<study_variable>& variables,
                                       const study_sample& sample, std::uint64_t number);

}  // namespace kvt
