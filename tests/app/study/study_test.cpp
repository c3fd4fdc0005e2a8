// Tests of a study: each row is what the stages say of the same texts, whatever the threads do.
#include "app/study/study.hpp"

#include "app/stages/silent_user.hpp"
#include "app/study/study_problem.hpp"
#include "base/number_text.hpp"
#include "support/open_design.hpp"

#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace kvt {
namespace {

const char* const DESIGN = "n07_engine_oil_groove";

study_plan plan_of(const std::vector<std::string>& varied,
                   const std::vector<std::string>& recorded) {
    study_plan plan;
    for (const std::string& text : varied) {
        plan.variables.push_back(study_variable_of(text));
    }
    plan.recorded = recorded;
    return plan;
}

std::vector<study_row> rows_of(const study& designs, const work_range& range, unsigned jobs = 2) {
    std::vector<study_row> rows;
    EXPECT_TRUE(run_study(designs, range, jobs, [&](study_row&& row) {
        rows.push_back(std::move(row));
        return true;
    }));
    return rows;
}

std::vector<study_row> all_rows(const study& designs, unsigned jobs = 2) {
    return rows_of(designs, {0, designs.size()}, jobs);
}

bool are_equal(const study_row& a, const study_row& b) {
    return a.number == b.number && a.texts == b.texts && a.values == b.values &&
           a.messages == b.messages && a.hints == b.hints && a.result.end == b.result.end;
}

TEST(study, says_what_the_stages_say_of_the_same_texts) {
    // From a good design over one without ports to refused ones.
    const study designs(opened_design(DESIGN),
                        plan_of({"ecc=1:5:0.5", "port_radii=0.5,9"},
                                {"capacity", "flow_max", "ripple", "inlet_c1_x"}));
    std::set<batch_end> ends;
    for (const study_row& row : all_rows(designs)) {
        program kavetta = opened_design(DESIGN);
        silent_user person;
        type_entry(kavetta, person, {"ecc", row.texts[0]});
        type_entry(kavetta, person, {"port_radii", row.texts[1]});
        const batch_result result = calculate_open_design(kavetta, person, calc_stage::performance);
        ends.insert(result.end);
        EXPECT_EQ(row.result.end, result.end);
        EXPECT_EQ(row.result.ports_refused, result.ports_refused);
        EXPECT_EQ(row.result.performance_refused, result.performance_refused);
        EXPECT_EQ(row.messages, person.messages());
        if (result.end == batch_end::ok) {
            EXPECT_EQ(row.values[0], val(kavetta.labels.capacity));
        }
        if (result.performance_reached) {
            EXPECT_EQ(row.values[1], kavetta.perf_results.flow_max);
            EXPECT_EQ(row.values[2], kavetta.perf_results.ripple_percent);
        }
    }
    EXPECT_GE(ends.size(), 2U);
}

TEST(study, has_the_same_rows_however_many_threads_work) {
    study_plan plan = plan_of({"ecc=2:4", "thick=5:20"}, {"capacity", "overall_eff_max"});
    plan.sample = {sample_kind::sobol, 60, 3};
    const study designs(opened_design(DESIGN), plan);
    const std::vector<study_row> one = all_rows(designs, 1);
    const std::vector<study_row> many = all_rows(designs, 4);
    ASSERT_EQ(one.size(), 60U);
    EXPECT_TRUE(std::ranges::equal(one, many, are_equal));
}

TEST(study, keeps_nothing_of_the_design_before) {
    // Between two equal designs stands one that leaves other records behind.
    const study designs(opened_design(DESIGN),
                        plan_of({"ecc=2.5,9,2.5"}, {"capacity", "ripple", "hertz_max"}));
    const std::vector<study_row> rows = all_rows(designs, 1);
    EXPECT_NE(rows[1].result.end, batch_end::ok);
    EXPECT_EQ(rows[0].values, rows[2].values);
    EXPECT_EQ(rows[0].messages, rows[2].messages);
}

TEST(study, gives_refused_designs_rows_with_their_reason) {
    const study designs(opened_design(DESIGN), plan_of({"shaftdiameter=0"}, {"capacity"}));
    const study_row row = all_rows(designs).front();
    EXPECT_EQ(row.result.end, batch_end::validation);
    EXPECT_EQ(row.messages,
              std::vector<std::string>{"Input a value for the diameter of the shaft"});
    EXPECT_EQ(row.values, std::vector<std::optional<double>>{std::nullopt});
    EXPECT_FALSE(row.result.is_accepted());
}

TEST(study, compares_with_every_condition) {
    study_plan plan = plan_of({"ecc=2:3:0.1"}, {"capacity"});
    plan.conditions = {study_condition_of("capacity>=5"), study_condition_of("ecc<2.9")};
    const study designs(opened_design(DESIGN), plan);
    int met = 0;
    for (const study_row& row : all_rows(designs)) {
        const bool meets = row.values[0] && *row.values[0] >= 5.0 && val(row.texts[0]) < 2.9;
        EXPECT_EQ(row.meets_conditions, meets) << row.texts[0];
        met += meets ? 1 : 0;
    }
    EXPECT_GT(met, 0);
    EXPECT_LT(met, 11);
}

TEST(study, records_what_it_aims_at) {
    study_plan plan = plan_of({"ecc=2,2.5"}, {"capacity"});
    plan.aims = {study_aim_of("ripple:min"), study_aim_of("capacity:max")};
    const study designs(opened_design(DESIGN), plan);
    ASSERT_EQ(designs.recorded().size(), 2U);
    EXPECT_EQ(designs.recorded()[1].name, "ripple");
    EXPECT_EQ(designs.column_of_aim(0), 1U);
    EXPECT_EQ(designs.column_of_aim(1), 0U);
}

TEST(study, works_out_the_exact_parts_that_are_asked_for) {
    const study designs(opened_design(DESIGN),
                        plan_of({"ecc=2.5,9"}, {"exact_swept_cc", "capacity"}));
    const std::vector<study_row> rows = all_rows(designs);
    EXPECT_NEAR(*rows[0].values[0], *rows[0].values[1], *rows[0].values[1]);
    EXPECT_FALSE(rows[1].values[0].has_value());
}

TEST(study, stops_after_its_last_stage) {
    study_plan plan = plan_of({"ecc=2.5"}, {"capacity", "ripple"});
    plan.last = calc_stage::profiles;
    const study_row row = all_rows(study(opened_design(DESIGN), plan)).front();
    EXPECT_TRUE(row.values[0].has_value());
    EXPECT_FALSE(row.values[1].has_value());
    EXPECT_FALSE(row.result.ports_reached);
}

TEST(study, leaves_its_project_alone) {
    const program base = opened_design(DESIGN);
    const study designs(base, plan_of({"ecc=2,3"}, {"capacity"}));
    all_rows(designs);
    EXPECT_EQ(designs.base().entries, base.entries);
    EXPECT_FALSE(designs.base().performance_valid);
}

TEST(study, refuses_a_plan_that_is_none) {
    const program base = opened_design(DESIGN);
    EXPECT_THROW(study(base, plan_of({"ecc=2", "ecc=3"}, {})), study_problem);
    EXPECT_THROW(study(base, plan_of({"ecc=2:3"}, {})), study_problem);
    EXPECT_THROW(study(base, plan_of({"ecc=2"}, {"capacty"})), study_problem);
}

TEST(study, has_parts_that_are_the_whole) {
    for (const std::uint64_t size : {0U, 1U, 7U, 100U}) {
        for (const std::uint64_t parts : {1U, 2U, 3U, 9U}) {
            std::uint64_t next = 0;
            for (std::uint64_t part = 1; part <= parts; ++part) {
                const work_range range = part_of_study(size, part, parts);
                EXPECT_EQ(range.begin, next);
                EXPECT_LE(range.size(), size / parts + 1);
                next = range.end;
            }
            EXPECT_EQ(next, size);
        }
    }
}

TEST(study, has_the_same_rows_in_parts) {
    study_plan plan = plan_of({"ecc=2:4", "thick=5:20"}, {"capacity"});
    plan.sample = {sample_kind::latin, 25, 3};
    const study designs(opened_design(DESIGN), plan);
    std::vector<study_row> put_together;
    for (std::uint64_t part = 1; part <= 4; ++part) {
        for (study_row& row : rows_of(designs, part_of_study(designs.size(), part, 4))) {
            put_together.push_back(std::move(row));
        }
    }
    EXPECT_TRUE(std::ranges::equal(put_together, all_rows(designs), are_equal));
}

}  // namespace
}  // namespace kvt
