// The date in the short form of the user's locale, as reports carry it, and the clock that it is
// taken from.
#pragma once

#include <chrono>
#include <string>

namespace kvt {

/// The date and time that files and reports carry; a test can stop it.
class clock {
  public:
    virtual ~clock() = default;
    virtual std::chrono::system_clock::time_point now() const = 0;
};

class system_clock : public clock {
  public:
    std::chrono::system_clock::time_point now() const override {
        return std::chrono::system_clock::now();
    }
};

/// The local date of the clock's time, e.g. "11/03/21" or "03.11.2021". LC_ALL, LC_TIME and LANG
/// decide; without a usable locale it is month/day/year in two digits each.
std::string short_date(const clock& time);

/// The local time of the clock, e.g. "14:32:07" or "02:32:07 PM", in the form of the locale.
std::string time_of_day(const clock& time);

/// The local date in the same form and the time of day, "11/03/21 14:32".
std::string short_date_and_time(std::chrono::system_clock::time_point time);

}  // namespace kvt
