// Tests of the front: against all pairs of designs, and its order.
#include "app/study/pareto_front.hpp"

#include "app/study/sample_places.hpp"
#include "support/open_design.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

const std::vector<study_aim> AIMS = {study_aim_of("capacity:max"), study_aim_of("ripple:min")};

study two_aims() {
    study_plan plan;
    plan.variables = {study_variable_of("ecc=2:3:0.01")};
    plan.aims = AIMS;
    return {opened_design("n07_engine_oil_groove"), plan};
}

study_row row_of(std::uint64_t number, std::optional<double> capacity,
                 std::optional<double> ripple) {
    study_row row;
    row.number = number;
    row.values = {capacity, ripple};
    row.meets_conditions = true;
    return row;
}

std::vector<std::uint64_t> numbers_of(const std::vector<study_row>& rows) {
    std::vector<std::uint64_t> numbers;
    for (const study_row& row : rows) {
        numbers.push_back(row.number);
    }
    return numbers;
}

using numbers = std::vector<std::uint64_t>;

TEST(beats, is_at_least_as_good_in_all_and_better_in_one) {
    EXPECT_TRUE(beats({8.0, 10.0}, {7.0, 10.0}, AIMS));
    EXPECT_TRUE(beats({8.0, 9.0}, {8.0, 10.0}, AIMS));
    EXPECT_FALSE(beats({8.0, 10.0}, {8.0, 10.0}, AIMS));
    EXPECT_FALSE(beats({8.0, 11.0}, {7.0, 10.0}, AIMS));
    EXPECT_FALSE(beats({7.0, 9.0}, {8.0, 10.0}, AIMS));
}

TEST(pareto_front, keeps_what_no_other_beats) {
    const study designs = two_aims();
    pareto_front front(designs);
    front.add(row_of(0, 5.0, 10.0));
    front.add(row_of(1, 4.0, 11.0));  // beaten by 0
    front.add(row_of(2, 6.0, 12.0));
    front.add(row_of(3, 5.0, 10.0));  // as good as 0
    EXPECT_EQ(numbers_of(front.rows()), (numbers{0, 2, 3}));
    front.add(row_of(4, 6.0, 9.0));  // beats them all
    EXPECT_EQ(numbers_of(front.rows()), numbers{4});
}

TEST(pareto_front, leaves_out_refused_designs_and_those_without_a_value) {
    const study designs = two_aims();
    pareto_front front(designs);
    study_row refused = row_of(0, 9.0, 1.0);
    refused.result.ports_refused = true;
    front.add(refused);
    study_row other = row_of(1, 9.0, 1.0);
    other.meets_conditions = false;
    front.add(other);
    front.add(row_of(2, 9.0, std::nullopt));
    EXPECT_TRUE(front.rows().empty());
}

TEST(pareto_front, takes_a_design_once) {
    const study designs = two_aims();
    pareto_front front(designs);
    front.add(row_of(0, 5.0, 10.0));
    front.add(row_of(0, 5.0, 10.0));
    EXPECT_EQ(front.rows().size(), 1U);
}

TEST(pareto_front, equals_the_comparison_of_all_pairs) {
    const study designs = two_aims();
    pareto_front front(designs);
    std::vector<study_row> all;
    for (std::uint64_t i = 0; i < 400; ++i) {
        // Few different numbers, so that equal ones meet.
        const double capacity = std::floor(20.0 * uniform_number(1, i));
        const double ripple = std::floor(20.0 * uniform_number(2, i));
        all.push_back(row_of(i, capacity, ripple));
        front.add(all.back());
    }
    numbers expected;
    for (const study_row& row : all) {
        const bool is_beaten = std::ranges::any_of(all, [&](const study_row& other) {
            return beats({*other.values[0], *other.values[1]}, {*row.values[0], *row.values[1]},
                         AIMS);
        });
        if (!is_beaten) {
            expected.push_back(row.number);
        }
    }
    EXPECT_EQ(numbers_of(front.rows()), expected);
}

TEST(pareto_front, is_spread_from_the_best_of_the_first_aim) {
    const study designs = two_aims();
    pareto_front front(designs);
    for (const std::uint64_t i : {3U, 1U, 4U, 0U, 2U}) {
        front.add(row_of(i, static_cast<double>(i), static_cast<double>(i)));
    }
    EXPECT_EQ(numbers_of(front.spread_rows(1)), numbers{4});
    EXPECT_EQ(numbers_of(front.spread_rows(3)), (numbers{4, 2, 0}));
    EXPECT_EQ(numbers_of(front.spread_rows(9)), (numbers{4, 3, 2, 1, 0}));
}

}  // namespace
}  // namespace kvt
