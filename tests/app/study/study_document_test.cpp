// Tests of studies as files, and of taking a design over.
#include "app/study/study_document.hpp"

#include "app/stages/design_assist.hpp"
#include "app/study/study_problem.hpp"
#include "base/whole_file.hpp"
#include "core/text_table.hpp"
#include "support/expect_failure.hpp"
#include "support/open_design.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

const char* const DESIGN = "n07_engine_oil_groove";

study_document sampled() {
    study_document document;
    document.varied = {"ecc=2:3", "numlobes=6,7"};
    document.sample = "sobol:12";
    document.seed = 4;
    document.recorded = {"capacity", "ripple"};
    document.conditions = {"capacity>=5"};
    document.aims = {"ripple:min"};
    const study designs = study_of(opened_design(DESIGN), document);
    run_study(designs, {0, designs.size()}, 2, [&](study_row&& row) {
        document.rows.push_back(std::move(row));
        return true;
    });
    return document;
}

TEST(study_document, is_read_as_it_was_written) {
    const temporary_folder folder;
    const program base = opened_design(DESIGN);
    const study_document document = sampled();
    ASSERT_EQ(document.rows.size(), 12U);
    write_study(folder / "a.KVTstudy", base, document);
    EXPECT_EQ(read_study(folder / "a.KVTstudy", base), document);
}

TEST(study_document, keeps_a_search) {
    const temporary_folder folder;
    const program base = opened_design(DESIGN);
    study_document document;
    document.searches = true;
    document.varied = {"ecc=2:3"};
    document.targets = {"capacity=7.5"};
    document.aims = {"ripple:min", "overall_eff_max:max"};
    document.begins_with_assist = true;
    document.step = 0.05;
    document.budget = 50;
    write_study(folder / "a.KVTstudy", base, document);
    EXPECT_EQ(read_study(folder / "a.KVTstudy", base), document);
    const search_plan plan = plan_of_search(document);
    EXPECT_EQ(plan.targets.front().value, 7.5);
    EXPECT_EQ(plan.budget, 50U);
    // The rows of a search hold its targets and aims, too.
    EXPECT_EQ(study_of(base, document).recorded().size(), 3U);
}

TEST(study_document, can_begin_with_what_the_assist_finds) {
    const program base = opened_design(DESIGN);
    program assisted = base;
    scripted_user person;
    ASSERT_EQ(design_assist(assisted, person), assist_end::found);
    const auto texts =
        assisted_texts(base, {study_variable_of("ecc=1:5"), study_variable_of("radouter=1:20")});
    ASSERT_TRUE(texts);
    EXPECT_EQ(*texts, (std::vector{assisted.entries.ecc, assisted.entries.radouter}));
    program none = base;
    none.entries.volumereqd = "0";
    EXPECT_FALSE(assisted_texts(none, {study_variable_of("ecc=1:5")}));
    none.entries.volumereqd = "7.5";
    none.entries.numlobes = "x";
    EXPECT_FALSE(assisted_texts(none, {study_variable_of("ecc=1:5")}));
}

TEST(study_document, keeps_texts_that_are_not_right_yet) {
    const temporary_folder folder;
    const program base = opened_design(DESIGN);
    study_document document;
    document.varied = {"ecc=", "eccc=2"};
    document.conditions = {"capacity"};
    write_study(folder / "a.KVTstudy", base, document);
    EXPECT_EQ(read_study(folder / "a.KVTstudy", base), document);
    EXPECT_THROW(plan_of_sample(document), study_problem);
}

TEST(study_document, refuses_other_files) {
    const temporary_folder folder;
    const program base = opened_design(DESIGN);
    const auto problem_of = [&](const std::string& text) {
        write_file(folder / "a.KVTstudy", text);
        try {
            read_study(folder / "a.KVTstudy", base);
        } catch (const study_problem& problem) {
            return std::string(problem.what());
        }
        return std::string();
    };
    const std::string none = folder.file("a.KVTstudy") + " holds no study";
    for (const char* text :
         {"", "x", "{}", "[1]", R"({"kavetta_study":2})", R"({"kavetta_study":1,"varied":5})"}) {
        EXPECT_EQ(problem_of(text), none) << text;
    }
    EXPECT_FAILURE(read_study(folder / "none.KVTstudy", base), failure::file_not_found);
}

TEST(study_document, refuses_rows_of_other_quantities) {
    const temporary_folder folder;
    const program base = opened_design(DESIGN);
    write_study(folder / "a.KVTstudy", base, sampled());
    std::string text = read_file(folder / "a.KVTstudy");
    text.replace(text.find("\"ripple\"]"), 9, "\"hertz_max\"");
    write_file(folder / "a.KVTstudy", text);
    EXPECT_THROW(read_study(folder / "a.KVTstudy", base), study_problem);
}

TEST(take_over_design, types_the_texts_as_one_step) {
    program kavetta = opened_design(DESIGN);
    scripted_user person;
    take_over_design(kavetta, person,
                     {study_variable_of("ecc=2:3"), study_variable_of("metering_groove=0,1")},
                     {"2.25", "0"});
    EXPECT_EQ(kavetta.entries.ecc, "2.25");
    EXPECT_EQ(kavetta.entries.metering_groove, "0");
    ASSERT_NE(kavetta.step_caption, nullptr);
    EXPECT_EQ(row_text(*kavetta.step_caption, 2), "Übernehmen");
}

}  // namespace
}  // namespace kvt
