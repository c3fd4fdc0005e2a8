#include "base/short_date.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// Noon of 3 November 2021 in UTC: the same day from -11 to +11 hours.
class stopped_clock : public clock {
  public:
    std::chrono::system_clock::time_point now() const override {
        return std::chrono::sys_days(std::chrono::year(2021) / 11 / 3) + std::chrono::hours(12);
    }
};

TEST(short_date, has_day_month_and_year_in_the_form_of_the_user) {
    const std::string date = short_date(stopped_clock());
    EXPECT_NE(date.find("21"), std::string::npos) << date;
    EXPECT_NE(date.find("11"), std::string::npos) << date;
    EXPECT_NE(date.find('3'), std::string::npos) << date;
}

TEST(short_date_and_time, ends_with_hours_and_minutes) {
    const std::string text = short_date_and_time(stopped_clock().now());
    EXPECT_TRUE(text.starts_with(short_date(stopped_clock()) + " ")) << text;
    EXPECT_TRUE(text.ends_with(":00")) << text;
    EXPECT_NE(time_of_day(stopped_clock()).find(":00:00"), std::string::npos);
}

}  // namespace
}  // namespace kvt
