// The numbers under which a run-time failure reaches the user.
#include "base/run_time_error.hpp"

#include <cerrno>
#include <gtest/gtest.h>
#include <string>

namespace kvt {

namespace {

struct failure_case {
    failure kind;
    int number;
};

constexpr failure_case FAILURES[] = {
    {failure::invalid_procedure_call, 5},
    {failure::overflow, 6},
    {failure::out_of_memory, 7},
    {failure::subscript_out_of_range, 9},
    {failure::division_by_zero, 11},
    {failure::type_mismatch, 13},
    {failure::file_not_found, 53},
    {failure::input_past_end, 62},
    {failure::path_file_access, 75},
    {failure::path_not_found, 76},
    {failure::invalid_property_value, 380},
};

TEST(run_time_error, has_the_number_of_its_kind) {
    for (const failure_case& expected : FAILURES) {
        const run_time_error error(expected.kind, "for developers");
        EXPECT_EQ(error.kind(), expected.kind);
        EXPECT_EQ(error.number(), expected.number);
        EXPECT_EQ(error.detail(), "for developers");
    }
}

TEST(run_time_error, knows_no_reason_unless_it_is_given_one) {
    EXPECT_EQ(run_time_error(failure::overflow).fault().why, file_fault::reason::unknown);
    const run_time_error full(failure::path_file_access, "a.KVT",
                              {file_fault::reason::system, ENOSPC});
    EXPECT_EQ(full.fault().why, file_fault::reason::system);
    EXPECT_EQ(full.fault().system_error, ENOSPC);
}

TEST(run_time_error, tells_developers_the_detail_behind_the_number) {
    EXPECT_STREQ(run_time_error(failure::division_by_zero, "3 / 0").what(), "failure 11: 3 / 0");
}

TEST(run_time_error, tells_the_number_alone_without_a_detail) {
    EXPECT_STREQ(run_time_error(failure::overflow).what(), "failure 6");
}

}  // namespace

}  // namespace kvt
