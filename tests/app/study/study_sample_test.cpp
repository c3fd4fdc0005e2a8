// Tests of the samples: which designs they have, in which order.
#include "app/study/study_sample.hpp"

#include "app/study/study_problem.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

std::vector<study_variable> variables_of(const texts& written) {
    std::vector<study_variable> variables;
    for (const std::string& text : written) {
        variables.push_back(study_variable_of(text));
    }
    return variables;
}

TEST(study_sample, is_read_from_its_text) {
    EXPECT_EQ(study_sample_of("grid").kind, sample_kind::grid);
    EXPECT_EQ(study_sample_of("latin:50").kind, sample_kind::latin);
    EXPECT_EQ(study_sample_of("latin:50").count, 50U);
    EXPECT_EQ(study_sample_of("sobol:10000").kind, sample_kind::sobol);
    for (const char* wrong : {"", "grid:5", "latin", "latin:", "latin:0", "latin:-1", "latin:5.5",
                              "sobol:1e5", "sobol:9007199254740993", "random:5"}) {
        EXPECT_THROW(study_sample_of(wrong), study_problem) << wrong;
    }
}

TEST(study_sample, goes_through_a_grid_with_the_last_variable_first) {
    const auto variables = variables_of({"numlobes=5,6", "ecc=2:2.2:0.1"});
    const study_sample grid;
    ASSERT_EQ(design_count(variables, grid), 6U);
    EXPECT_EQ(sampled_texts(variables, grid, 0), (texts{"5", "2"}));
    EXPECT_EQ(sampled_texts(variables, grid, 1), (texts{"5", "2.1"}));
    EXPECT_EQ(sampled_texts(variables, grid, 2), (texts{"5", "2.2"}));
    EXPECT_EQ(sampled_texts(variables, grid, 3), (texts{"6", "2"}));
    EXPECT_EQ(sampled_texts(variables, grid, 5), (texts{"6", "2.2"}));
}

TEST(study_sample, is_the_design_itself_without_variables) {
    EXPECT_EQ(design_count({}, study_sample{}), 1U);
    EXPECT_TRUE(sampled_texts({}, study_sample{}, 0).empty());
}

TEST(study_sample, is_not_many_times_the_same_design) {
    for (const sample_kind kind : {sample_kind::latin, sample_kind::sobol}) {
        EXPECT_THROW(design_count({}, {kind, 200, 0}), study_problem);
        EXPECT_THROW(design_count(variables_of({"ecc=2", "thick=8:8:1"}), {kind, 200, 0}),
                     study_problem);
        EXPECT_THROW(design_count(variables_of({"ecc=2,2"}), {kind, 2, 0}), study_problem);
        EXPECT_EQ(design_count({}, {kind, 1, 0}), 1U);
        EXPECT_EQ(design_count(variables_of({"ecc=2", "thick=8:9"}), {kind, 200, 0}), 200U);
        EXPECT_EQ(design_count(variables_of({"ecc=2,2.5"}), {kind, 200, 0}), 200U);
    }
}

TEST(study_sample, refuses_a_grid_that_is_none) {
    EXPECT_THROW(design_count(variables_of({"ecc=2:3"}), study_sample{}), study_problem);
    const auto large =
        variables_of({"ecc=0:999:0.001", "radouter=0:999:0.001", "radinnroot=0:999:0.001"});
    EXPECT_THROW(design_count(large, study_sample{}), study_problem);
}

TEST(study_sample, has_as_many_designs_of_each_level) {
    const auto variables = variables_of({"numlobes=5,6,7,8", "ecc=2:3"});
    for (const sample_kind kind : {sample_kind::latin, sample_kind::sobol}) {
        const study_sample sample{kind, 64, 5};
        std::map<std::string, int> counts;
        for (std::uint64_t i = 0; i < 64; ++i) {
            ++counts[sampled_texts(variables, sample, i)[0]];
        }
        EXPECT_EQ(counts, (std::map<std::string, int>{{"5", 16}, {"6", 16}, {"7", 16}, {"8", 16}}));
    }
}

TEST(study_sample, stays_within_the_ranges) {
    const auto variables = variables_of({"ecc=2:3", "thick=8:14:0.5"});
    const study_sample sample{sample_kind::latin, 200, 1};
    for (std::uint64_t i = 0; i < 200; ++i) {
        const texts typed = sampled_texts(variables, sample, i);
        EXPECT_GE(std::stod(typed[0]), 2.0);
        EXPECT_LT(std::stod(typed[0]), 3.0);
        EXPECT_TRUE(std::ranges::count(variables[1].levels, typed[1]) == 1) << typed[1];
    }
}

}  // namespace
}  // namespace kvt
