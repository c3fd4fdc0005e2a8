// front_search: a search for the designs that no other one beats in all aims, as the module that
// holds it sees them: whole numbers and what comes out of them.
// Source: Deb, Pratap, Agarwal and Meyarivan, "A fast and elitist multiobjective genetic algorithm:
// NSGA-II", IEEE Transactions on Evolutionary Computation 6 (2002).
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace kvt {

/// Of each variable the number of one of its levels.
using level_numbers = std::vector<std::size_t>;

struct front_search {
    level_numbers level_counts;  ///< of each variable, at least 1
    std::size_t aim_count = 1;
    std::vector<level_numbers> first;  ///< the first generation, a multiple of 4, at least 8
    std::uint32_t seed = 0;
    /// A generation's values, aim_count each, all of them to be as small as can be.
    std::function<std::vector<std::vector<double>>(const std::vector<level_numbers>&)> values;
    /// Asked before each further generation.
    std::function<bool()> goes_on;
};

/// The function of the module that runs a search; it ends when goes_on says no. What values throws
/// comes out of it.
inline constexpr const char* RUN_FRONT_SEARCH = "kvt_run_front_search";
using run_front_search_function = void(const front_search&);

}  // namespace kvt
