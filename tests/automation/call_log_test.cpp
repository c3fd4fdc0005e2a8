#include "automation/call_log.hpp"

#include "automation/answer.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace kvt::automation {
namespace {

recorded_call call_with(values arguments) {
    recorded_call call;
    call.kind = call_kind::run;
    call.object = 1;
    call.name = "Do";
    call.arguments = std::move(arguments);
    return call;
}

std::string line_with(values arguments, log_length length = log_length::shortened) {
    return line_of(call_with(std::move(arguments)), length);
}

number_array numbers_to(int last) {
    number_array array;
    array.numbers.resize(static_cast<std::size_t>(last));
    std::iota(array.numbers.begin(), array.numbers.end(), 1.0);
    return array;
}

TEST(call_log, has_a_form_for_each_kind_of_value) {
    EXPECT_EQ(line_with({}), "#1.Do");
    EXPECT_EQ(line_with({true, std::int32_t{-3}, 0.5, std::string("a b")}),
              "#1.Do(true, -3, 0.5, \"a b\")");
    EXPECT_EQ(line_with({nothing{}, omitted{}, object_ref{}, value{}}),
              "#1.Do(nothing, omitted, nothing, empty)");
    EXPECT_EQ(line_with({table{2, 2, {cell{}, cell{1.5}, cell{std::string("n")}, cell{}}}}),
              "#1.Do(2 x 2 [empty, 1.5, \"n\", empty])");
    EXPECT_EQ(line_with({variant_array{{object_ref{}}}}), "#1.Do({nothing})");
    EXPECT_EQ(line_with({by_reference{}, by_reference_numbers{}}), "#1.Do(&, &[])");
}

TEST(call_log, shortens_an_array_of_more_than_twelve_numbers) {
    EXPECT_EQ(line_with({numbers_to(12)}), "#1.Do([1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12])");
    EXPECT_EQ(line_with({numbers_to(13)}),
              "#1.Do([1, 2, 3, 4, 5, 6, ..., 12, 13 (13 numbers, sum 91)])");
    EXPECT_EQ(line_with({numbers_to(13)}, log_length::full),
              "#1.Do([1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13])");
}

TEST(call_log, shortens_an_array_of_more_than_twelve_objects) {
    EXPECT_EQ(line_with({object_array{std::vector<object_ref>(13)}}),
              "#1.Do({nothing, nothing, nothing, nothing, nothing, nothing, ..., nothing, nothing "
              "(13 objects)})");
}

TEST(call_log, shortens_more_than_twelve_calls_that_differ_in_numbers) {
    recorder_host programs;
    const object_ref part = programs.create("catia.application");
    for (int i = 1; i <= 13; ++i) {
        object_of(part, "CreateControlPoint", {static_cast<double>(i), 0.5});
    }
    part->run("Update");
    EXPECT_EQ(programs.log(),
              "#1 = create catia.application\n"
              "#2 = #1.CreateControlPoint(1, 0.5)\n"
              "#3 = #1.CreateControlPoint(2, 0.5)\n"
              "#4 = #1.CreateControlPoint(3, 0.5)\n"
              "... (13 calls, sum 97.5)\n"
              "#14 = #1.CreateControlPoint(13, 0.5)\n"
              "#1.Update\n");
}

TEST(call_log, keeps_twelve_like_calls_and_those_of_another_member) {
    recorder_host programs;
    const object_ref part = programs.create("catia.application");
    for (int i = 1; i <= 12; ++i) {
        part->run("Spline2", {1.0});
    }
    part->run("Spline3", {1.0});
    const std::string log = programs.log();
    EXPECT_EQ(log, programs.log(log_length::full));
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 14);
}

TEST(call_log, shortens_calls_that_take_turns) {
    recorder_host programs;
    const object_ref package = programs.create("inventor.application");
    for (int i = 1; i <= 20; ++i) {
        const object_ref point = object_of(package, "CreatePoint2d", {1.0 * i, 2.0});
        package->run("Add", {point});
    }
    EXPECT_EQ(programs.log(),
              "#1 = create inventor.application\n"
              "#2 = #1.CreatePoint2d(1, 2)\n"
              "#1.Add(#2)\n"
              "#3 = #1.CreatePoint2d(2, 2)\n"
              "#1.Add(#3)\n"
              "#4 = #1.CreatePoint2d(3, 2)\n"
              "#1.Add(#4)\n"
              "... (40 calls, sum 250)\n"
              "#21 = #1.CreatePoint2d(20, 2)\n"
              "#1.Add(#21)\n");
    const std::string full = programs.log(log_length::full);
    EXPECT_EQ(std::count(full.begin(), full.end(), '\n'), 41);
}

TEST(call_log, sums_all_numbers_of_like_calls_with_long_arrays) {
    std::vector<recorded_call> calls(13, call_with({numbers_to(20)}));
    EXPECT_NE(log_of(calls, log_length::shortened).find("... (13 calls, sum 2730)\n"),
              std::string::npos);
}

}  // namespace
}  // namespace kvt::automation
