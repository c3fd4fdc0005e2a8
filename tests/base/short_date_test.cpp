// Tests of the short date.
#include "base/short_date.hpp"

#include <cstdlib>
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

TEST(short_date, follows_the_locale_of_the_environment) {
    const char* before = std::getenv("LC_ALL");
    const std::string kept = before == nullptr ? "" : before;
    setenv("LC_ALL", "C", 1);
    EXPECT_EQ(short_date(stopped_clock()), "11/03/21");
    setenv("LC_ALL", "xx_YY.no_such_locale", 1);
    EXPECT_EQ(short_date(stopped_clock()), "11/03/21") << "without a usable locale";
    before == nullptr ? unsetenv("LC_ALL") : setenv("LC_ALL", kept.c_str(), 1);
}

TEST(time_of_day, has_hours_minutes_and_seconds) {
    setenv("LC_ALL", "C", 1);
    const std::string time = time_of_day(stopped_clock());
    EXPECT_EQ(time.size(), 8U);
    EXPECT_EQ(time.substr(5), ":00") << "noon in UTC, whatever the hours of the zone";
    unsetenv("LC_ALL");
}

}  // namespace
}  // namespace kvt
