// Tests of a study's file: how far it is after whatever killed the program, and whose it is.
#include "app/study/study_file.hpp"

#include "app/study/study_problem.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "support/expect_failure.hpp"
#include "support/open_design.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

namespace fs = std::filesystem;

study five_designs(const std::string& recorded = "capacity") {
    study_plan plan;
    plan.variables = {study_variable_of("ecc=2:2.4:0.1")};
    plan.recorded = {recorded};
    return {opened_design("n04_fuel"), plan};
}

study_row row_of(std::uint64_t number) {
    study_row row;
    row.number = number;
    row.texts = {"2"};
    row.values = {static_cast<double>(number)};
    row.meets_conditions = true;
    return row;
}

class study_files : public testing::TestWithParam<study_format> {
  protected:
    std::string text() const { return read_file(place_.path); }
    bool is_unfinished() const {
        return fs::exists(path_of_utf8(utf8_of_path(place_.path) + UNFINISHED_ENDING));
    }
    std::string whole_text() const {
        std::string whole = head_line(designs_, GetParam());
        for (std::uint64_t i = 0; i < 5; ++i) {
            whole += row_line(designs_, row_of(i), GetParam());
        }
        return whole;
    }
    /// What stands there after the program was killed behind three rows and `torn` bytes of the
    /// fourth.
    void kill_behind_three(std::size_t torn) const {
        growing_study_file file(designs_, place_, false);
        for (std::uint64_t i = 0; i < 3; ++i) {
            file.add(row_of(i));
        }
        const std::string next = row_line(designs_, row_of(3), GetParam());
        std::ofstream(place_.path, std::ios::binary | std::ios::app) << next.substr(0, torn);
    }

    temporary_folder folder_;
    study designs_ = five_designs();
    study_place place_{folder_.path() / "study", GetParam(), {0, 5}};
};

TEST_P(study_files, grows_by_whole_rows) {
    EXPECT_EQ(first_missing(designs_, place_), std::nullopt);
    growing_study_file file(designs_, place_, false);
    EXPECT_EQ(first_missing(designs_, place_), 0U);
    file.add(row_of(0));
    EXPECT_EQ(text(), head_line(designs_, GetParam()) + row_line(designs_, row_of(0), GetParam()));
    EXPECT_EQ(first_missing(designs_, place_), 1U);
    EXPECT_TRUE(is_unfinished());
    file.finish();
    EXPECT_FALSE(is_unfinished());
    EXPECT_EQ(first_missing(designs_, place_), 5U);
}

TEST_P(study_files, goes_on_behind_the_last_whole_row) {
    const std::size_t length = row_line(designs_, row_of(3), GetParam()).size();
    for (std::size_t torn = 0; torn < length; ++torn) {
        kill_behind_three(torn);
        ASSERT_EQ(first_missing(designs_, place_), 3U) << torn;
        growing_study_file file(designs_, place_, true);
        file.add(row_of(3));
        file.add(row_of(4));
        file.finish();
        ASSERT_EQ(text(), whole_text()) << torn;
    }
}

TEST_P(study_files, goes_on_when_not_even_the_head_was_written) {
    kill_behind_three(0);
    for (const std::uintmax_t length : {0U, 3U}) {
        fs::resize_file(place_.path, length);
        ASSERT_EQ(first_missing(designs_, place_), 0U);
        growing_study_file file(designs_, place_, true);
        for (std::uint64_t i = 0; i < 5; ++i) {
            file.add(row_of(i));
        }
        EXPECT_EQ(text(), whole_text());
    }
}

TEST_P(study_files, begins_anew_unless_it_goes_on) {
    kill_behind_three(2);
    growing_study_file file(designs_, place_, false);
    EXPECT_EQ(text(), head_line(designs_, GetParam()));
}

TEST_P(study_files, is_not_gone_on_with_as_another_study) {
    kill_behind_three(0);
    EXPECT_THROW(first_missing(five_designs("area_ratio"), place_), study_problem);
    study_place other_part = place_;
    other_part.part = {0, 4};
    EXPECT_THROW(first_missing(designs_, other_part), study_problem);
}

TEST_P(study_files, writes_fronts_as_a_whole_and_knows_how_far_they_are) {
    write_study_rows(designs_, place_, {}, 0);
    EXPECT_EQ(first_missing(designs_, place_), 0U);
    write_study_rows(designs_, place_, {row_of(1)}, 4);
    EXPECT_EQ(first_missing(designs_, place_), 4U);
    EXPECT_EQ(rows_of_file(designs_, place_).size(), 1U);
    EXPECT_EQ(rows_of_file(designs_, place_)[0].number, 1U);
    EXPECT_TRUE(rows_of_file(designs_, place_)[0].meets_conditions);
    write_study_rows(designs_, place_, {row_of(1), row_of(4)}, 5);
    EXPECT_FALSE(is_unfinished());
    EXPECT_EQ(first_missing(designs_, place_), 5U);
}

TEST_P(study_files, tells_that_its_folder_is_missing) {
    place_.path = folder_.path() / "none" / "study";
    EXPECT_FAILURE(growing_study_file(designs_, place_, false), failure::path_not_found);
    EXPECT_FAILURE(write_study_rows(designs_, place_, {}, 0), failure::path_not_found);
}

INSTANTIATE_TEST_SUITE_P(formats, study_files,
                         testing::Values(study_format::csv, study_format::json_lines));

TEST(study_file, is_of_another_study_with_another_head) {
    const temporary_folder folder;
    const study_place place{folder.path() / "study.csv", study_format::csv, {0, 5}};
    write_file(place.path, "some,table\r\n1,2\r\n");
    EXPECT_THROW(first_missing(five_designs(), place), study_problem);
}

}  // namespace
}  // namespace kvt
