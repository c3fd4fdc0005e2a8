// given_date: a date that stands in for today.
#pragma once

#include "base/short_date.hpp"

#include <chrono>
#include <string>

namespace kvt {

/// What is wrong with a text as "YYYY-MM-DD", a day of the calendar, or nothing.
std::string date_problem(const std::string& text);

/// What is wrong with a text as a date, or a date with the time of day: "YYYY-MM-DDTHH:MM:SS".
std::string date_time_problem(const std::string& text);

/// "YYYY-MM-DD" of a date with or without a time; empty for an empty text.
std::string day_of(const std::string& date);

/// A clock that stands at a date and time that date_time_problem accepts, local time; without a
/// time at 00:00:00.
class given_clock : public clock {
  public:
    explicit given_clock(const std::string& date);
    std::chrono::system_clock::time_point now() const override { return time_; }

  private:
    std::chrono::system_clock::time_point time_;
};

}  // namespace kvt
