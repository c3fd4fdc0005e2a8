// Tests of where studies and searches write.
#include "kvt/study_output.hpp"

#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(study_output, takes_the_format_of_the_ending_or_of_the_option) {
    EXPECT_EQ((study_out{"a.csv"}.format()), study_format::csv);
    EXPECT_EQ((study_out{"a.jsonl"}.format()), study_format::json_lines);
    EXPECT_EQ((study_out{"a.csv", true}.format()), study_format::json_lines);
    EXPECT_EQ(study_out{}.format(), study_format::csv);
}

TEST(study_output, has_its_table_in_the_folder_of_saved_projects) {
    EXPECT_EQ(utf8_of_path(study_out{"a.csv"}.table()), "a.csv");
    EXPECT_EQ((study_out{"best", false, 2}.table().filename()), "study.csv");
    EXPECT_EQ((study_out{"best", true, 2}.table().filename()), "study.jsonl");
}

TEST(study_output, makes_the_folder_of_saved_projects_alone) {
    const temporary_folder folder;
    study_out{folder.file("a/b"), false, 0}.make_folder();
    EXPECT_FALSE(std::filesystem::exists(folder / "a"));
    study_out{folder.file("a/b"), false, 1}.make_folder();
    EXPECT_TRUE(std::filesystem::is_directory(folder / "a" / "b"));
    write_file(folder / "file", "");
    EXPECT_FAILURE((study_out{folder.file("file/b"), false, 1}.make_folder(), 0),
                   failure::path_file_access);
}

}  // namespace
}  // namespace kvt
