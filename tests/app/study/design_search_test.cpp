// Tests of the search: its front against that of all designs, its limits, and what it refuses.
#include "app/study/design_search.hpp"

#include "app/desk/delivered_module.hpp"
#include "app/study/study_problem.hpp"
#include "support/open_design.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <utility>

namespace kvt {
namespace {

const char* const DESIGN = "n07_engine_oil_groove";

std::filesystem::path module() {
    return delivered_module("kvt_search.so");
}

/// 21 by 31 by 3 designs of the rotors alone.
search_plan small_problem() {
    search_plan plan;
    plan.variables = {study_variable_of("ecc=2:3"), study_variable_of("thick=8:14"),
                      study_variable_of("numlobes=6,7,8")};
    plan.variables[0] = study_variable_of("ecc=2:3:0.05");
    plan.variables[1] = study_variable_of("thick=8:14:0.2");
    plan.targets = {search_target_of("capacity=6:0.3")};
    plan.limits = {study_condition_of("outer_diameter<=57")};
    plan.aims = {study_aim_of("area_ratio:max"), study_aim_of("min_chamb_vol:min")};
    plan.last = calc_stage::profiles;
    return plan;
}

struct found_front {
    std::vector<study_row> rows;
    std::uint64_t calculated = 0;
    std::set<std::vector<std::string>> texts;  ///< of every calculated design
};

found_front searched(const search_plan& plan, unsigned jobs = 2) {
    found_front found;
    design_search search(opened_design(DESIGN), plan);
    EXPECT_TRUE(search.run(jobs, module(), [&](const study_row& row) {
        EXPECT_EQ(row.number, found.calculated++);
        found.texts.insert(row.texts);
    }));
    found.rows = search.front().rows();
    return found;
}

std::set<std::vector<std::string>> texts_of(const std::vector<study_row>& rows) {
    std::set<std::vector<std::string>> texts;
    for (const study_row& row : rows) {
        texts.insert(row.texts);
    }
    return texts;
}

/// The area between a front and a corner that every member beats: chambers of 0 mm3, 60 mm wide.
double dominated_area(const std::vector<study_row>& rows) {
    std::vector<std::pair<double, double>> places;  // ahead of the corner
    for (const study_row& row : rows) {
        places.emplace_back(*row.values[0], 60.0 - *row.values[1]);
    }
    std::ranges::sort(places, std::greater());
    double area = 0.0;
    double reached = 0.0;
    for (const auto& [first, second] : places) {
        area += first * std::max(0.0, second - reached);
        reached = std::max(reached, second);
    }
    return area;
}

TEST(search_target, is_a_value_with_a_tolerance) {
    EXPECT_EQ(search_target_of("capacity=7.5").quantity, "capacity");
    EXPECT_DOUBLE_EQ(search_target_of("capacity=7.5").tolerance, 0.075);
    EXPECT_EQ(search_target_of("capacity=7.5:0.02").value, 7.5);
    EXPECT_EQ(search_target_of("capacity=7.5:0.02").tolerance, 0.02);
    for (const char* wrong : {"", "capacity", "=5", "capacity=", "capacity=x",
                              "capacity=5:", "capacity=5:-1", "capacity=5:1:2"}) {
        EXPECT_THROW(search_target_of(wrong), study_problem) << wrong;
    }
}

TEST(design_search, calculates_all_designs_where_the_budget_allows_it) {
    search_plan plan = small_problem();
    plan.variables[1] = study_variable_of("thick=10:12:0.5");
    plan.budget = 21 * 5 * 3;
    const found_front found = searched(plan);
    EXPECT_EQ(found.calculated, 21U * 5U * 3U);
    EXPECT_EQ(found.texts.size(), found.calculated);
    EXPECT_FALSE(found.rows.empty());
}

TEST(design_search, finds_the_front_of_the_full_grid) {
    search_plan all = small_problem();
    all.targets.clear();
    all.aims = {study_aim_of("max_chamb_vol:max"), study_aim_of("outer_diameter:min")};
    all.budget = 21 * 31 * 3;
    const found_front exact = searched(all);
    ASSERT_GE(exact.rows.size(), 5U);

    search_plan plan = all;
    plan.budget = 500;  // of 1953
    plan.seed = 1;
    const found_front found = searched(plan);
    EXPECT_LT(found.calculated, 560U);
    EXPECT_EQ(found.texts.size(), found.calculated) << "a design was calculated twice";
    const double area = dominated_area(found.rows) / dominated_area(exact.rows);
    EXPECT_LE(area, 1.0);
    EXPECT_GT(area, 0.98) << found.rows.size() << " of " << exact.rows.size() << " members";
    // What it has lies on the true front, or next to it.
    const auto true_front = texts_of(exact.rows);
    EXPECT_GE(
        2 * std::ranges::count_if(
                found.rows, [&](const study_row& row) { return true_front.contains(row.texts); }),
        static_cast<std::ptrdiff_t>(exact.rows.size()));
}

TEST(design_search, keeps_within_targets_limits_and_steps) {
    search_plan plan = small_problem();
    plan.variables[0] = study_variable_of("ecc=2:3");
    plan.variables[1] = study_variable_of("thick=8:14");
    plan.step = 0.02;
    plan.budget = 400;
    const found_front found = searched(plan);
    ASSERT_FALSE(found.rows.empty());
    for (const study_row& row : found.rows) {
        EXPECT_TRUE(row.result.is_accepted());
        const double ecc = std::stod(row.texts[0]);
        EXPECT_NEAR(ecc * 50.0, std::round(ecc * 50.0), 1e-9) << row.texts[0];
        const double capacity = *row.values[0];
        EXPECT_GE(capacity, 5.7);
        EXPECT_LE(capacity, 6.3);
    }
}

TEST(design_search, finds_the_same_whatever_the_threads_do) {
    search_plan plan = small_problem();
    plan.budget = 300;
    plan.seed = 7;
    const found_front one = searched(plan, 1);
    const found_front many = searched(plan, 4);
    EXPECT_EQ(one.calculated, many.calculated);
    EXPECT_EQ(one.texts, many.texts);
    EXPECT_EQ(texts_of(one.rows), texts_of(many.rows));
    plan.seed = 8;
    EXPECT_NE(searched(plan).texts, one.texts);
}

TEST(design_search, begins_with_what_is_there) {
    search_plan plan = small_problem();
    plan.budget = 100;
    plan.first = {{"2.33", "9.1", "8"}};
    std::vector<std::vector<std::string>> order;
    design_search search(opened_design(DESIGN), plan);
    search.run(1, module(), [&](const study_row& row) { order.push_back(row.texts); });
    ASSERT_GE(order.size(), 2U);
    EXPECT_EQ(order[0], (std::vector<std::string>{"2.35", "9", "8"}));
    // The project itself, its numbers rounded to the levels.
    const entries& project = opened_design(DESIGN).entries;
    EXPECT_EQ(order[1][2], project.numlobes);
}

TEST(design_search, ends_when_it_is_given_up) {
    search_plan plan = small_problem();
    plan.budget = 1900;
    std::atomic<bool> is_given_up = false;
    int calculated = 0;
    design_search search(opened_design(DESIGN), plan);
    EXPECT_FALSE(search.run(
        2, module(), [&](const study_row&) { is_given_up = ++calculated == 60; }, &is_given_up));
    EXPECT_EQ(calculated, 60);
}

TEST(design_search, ends_when_there_is_nothing_new) {
    search_plan plan = small_problem();
    plan.variables = {study_variable_of("ecc=2:3:0.1")};
    plan.limits.clear();
    plan.targets.clear();
    plan.budget = 10;  // of 11
    EXPECT_LE(searched(plan).calculated, 11U);
}

TEST(design_search, says_what_it_lacks) {
    const program base = opened_design(DESIGN);
    search_plan plan = small_problem();
    plan.variables.clear();
    EXPECT_THROW(design_search(base, plan), study_problem);
    plan = small_problem();
    plan.aims.clear();
    EXPECT_THROW(design_search(base, plan), study_problem);
    plan = small_problem();
    plan.variables[0] = study_variable_of("ecc=2:3");
    plan.step = 0.0;
    EXPECT_THROW(design_search(base, plan), study_problem);
    plan = small_problem();
    plan.budget = 100;
    design_search search(base, plan);
    EXPECT_THROW(search.run(1, "no_such_module.so", [](const study_row&) {}), study_problem);
}

}  // namespace
}  // namespace kvt
