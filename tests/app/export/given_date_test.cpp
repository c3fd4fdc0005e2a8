// Tests of dates that stand in for today.
#include "app/export/given_date.hpp"

#include <ctime>
#include <gtest/gtest.h>
#include <iomanip>
#include <sstream>

namespace kvt {
namespace {

std::string local_time_of(const char* given) {
    const std::time_t time = std::chrono::system_clock::to_time_t(given_clock(given).now());
    std::ostringstream text;
    text << std::put_time(std::localtime(&time), "%Y-%m-%d %H:%M:%S");
    return text.str();
}

TEST(given_date, is_a_day_of_the_calendar) {
    EXPECT_EQ(date_problem("2024-02-29"), "");
    for (const char* text : {"2023-02-29", "2024-13-01", "2024-1-01", "24-01-01", "2024-01-0x", "",
                             "2024-01-01T10:00:00", "-024-01-01"}) {
        EXPECT_EQ(date_problem(text), "'" + std::string(text) + "' is no date YYYY-MM-DD");
    }
}

TEST(given_date, may_carry_a_time_of_day) {
    EXPECT_EQ(date_time_problem("2024-02-29"), "");
    EXPECT_EQ(date_time_problem("2024-02-29T23:59:59"), "");
    for (const char* text : {"2024-02-29T24:00:00", "2024-02-29T10:60:00", "2024-02-29T10:00:60",
                             "2024-02-29 10:00:00", "2024-02-29T10:00", "2024-02-29T", ""}) {
        EXPECT_NE(date_time_problem(text), "") << text;
    }
}

TEST(given_clock, stands_at_the_local_date_and_time) {
    EXPECT_EQ(local_time_of("2021-11-03T14:32:07"), "2021-11-03 14:32:07");
    EXPECT_EQ(local_time_of("2021-07-03"), "2021-07-03 00:00:00");
}

TEST(given_date, is_its_day_for_files_without_a_time) {
    EXPECT_EQ(day_of("2021-11-03T14:32:07"), "2021-11-03");
    EXPECT_EQ(day_of(""), "");
}

}  // namespace
}  // namespace kvt
