// Tests of the module of the search, on problems whose front is known.
#include "app/desk/delivered_module.hpp"
#include "app/study/front_search.hpp"
#include "base/loaded_function.hpp"

#include <gtest/gtest.h>
#include <set>
#include <stdexcept>

namespace kvt {
namespace {

run_front_search_function* module() {
    return reinterpret_cast<run_front_search_function*>(
        loaded_function(delivered_module("kvt_search.so"), RUN_FRONT_SEARCH));
}

/// Two variables of 41 levels, x and y from -1 to 3: x^2 + y^2 against (x - 2)^2 + y^2. Its front
/// is y = 0, x from 0 to 2: levels 10 to 30 and 10.
std::vector<double> two_bowls(const level_numbers& levels) {
    const double x = static_cast<double>(levels[0]) / 10.0 - 1.0;
    const double y = static_cast<double>(levels[1]) / 10.0 - 1.0;
    return {x * x + y * y, (x - 2.0) * (x - 2.0) + y * y};
}

/// A search with a first generation spread over all levels, for so many generations.
struct bowl_search {
    front_search search;
    int generations = 0;
    std::vector<level_numbers> last;  ///< generation that was asked for

    explicit bowl_search(int count) {
        search.level_counts = {41, 41};
        search.aim_count = 2;
        for (std::size_t i = 0; i < 40; ++i) {
            search.first.push_back({i, (7 * i) % 41});
        }
        search.seed = 5;
        search.values = [this](const std::vector<level_numbers>& generation) {
            last = generation;
            std::vector<std::vector<double>> values;
            for (const level_numbers& levels : generation) {
                values.push_back(two_bowls(levels));
            }
            return values;
        };
        search.goes_on = [this, count] { return generations++ < count; };
    }
};

TEST(front_search, draws_its_generations_to_the_front) {
    bowl_search run(60);
    module()(run.search);
    int on_front = 0;
    for (const level_numbers& levels : run.last) {
        ASSERT_LT(levels[0], 41U);
        ASSERT_LT(levels[1], 41U);
        on_front += levels[1] == 10 && levels[0] >= 10 && levels[0] <= 30 ? 1 : 0;
    }
    EXPECT_EQ(run.last.size(), 40U);
    EXPECT_GE(on_front, 20) << "of 40";
}

TEST(front_search, begins_with_the_first_generation_and_ends_when_told) {
    bowl_search run(0);
    module()(run.search);
    EXPECT_EQ(run.generations, 1);
    EXPECT_EQ(run.last, run.search.first);
}

TEST(front_search, is_the_same_for_the_same_seed) {
    bowl_search one(10);
    bowl_search same(10);
    bowl_search other(10);
    other.search.seed = 6;
    module()(one.search);
    module()(same.search);
    module()(other.search);
    EXPECT_EQ(one.last, same.last);
    EXPECT_NE(one.last, other.last);
}

TEST(front_search, lets_out_what_the_values_throw) {
    bowl_search run(10);
    run.search.values = [&](const std::vector<level_numbers>& generation) {
        if (generation != run.search.first) {
            throw std::runtime_error("second generation");
        }
        return std::vector(generation.size(), std::vector{1.0, 1.0});
    };
    EXPECT_THROW(module()(run.search), std::runtime_error);
}

}  // namespace
}  // namespace kvt
