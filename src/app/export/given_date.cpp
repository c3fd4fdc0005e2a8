#include "app/export/given_date.hpp"

#include <charconv>
#include <cstddef>
#include <ctime>

namespace kvt {

namespace {

constexpr std::size_t DAY_LENGTH = 10;   // "YYYY-MM-DD"
constexpr std::size_t TIME_LENGTH = 19;  // with "THH:MM:SS"

/// The digits at a place of the text; -1 when another character stands among them.
int number_at(const std::string& text, std::size_t at, std::size_t length) {
    const char* end = text.data() + at + length;
    int number = 0;
    const auto read = std::from_chars(text.data() + at, end, number);
    return read.ptr == end && number >= 0 ? number : -1;
}

bool is_day(const std::string& text) {
    if (text.size() < DAY_LENGTH || text[4] != '-' || text[7] != '-') {
        return false;
    }
    const int year = number_at(text, 0, 4);
    const int month = number_at(text, 5, 2);
    const int day = number_at(text, 8, 2);
    return year >= 0 && month >= 0 && day >= 0 &&
           std::chrono::year_month_day(std::chrono::year(year),
                                       std::chrono::month(static_cast<unsigned>(month)),
                                       std::chrono::day(static_cast<unsigned>(day)))
               .ok();
}

bool is_in(int number, int last) {
    return 0 <= number && number <= last;
}

bool is_time(const std::string& text) {
    return text.size() == TIME_LENGTH && text[10] == 'T' && text[13] == ':' && text[16] == ':' &&
           is_in(number_at(text, 11, 2), 23) && is_in(number_at(text, 14, 2), 59) &&
           is_in(number_at(text, 17, 2), 59);
}

}  // namespace

std::string date_problem(const std::string& text) {
    return text.size() == DAY_LENGTH && is_day(text) ? "" : "'" + text + "' is no date YYYY-MM-DD";
}

std::string date_time_problem(const std::string& text) {
    const bool is_good = is_day(text) && (text.size() == DAY_LENGTH || is_time(text));
    return is_good ? "" : "'" + text + "' is no date YYYY-MM-DD or YYYY-MM-DDTHH:MM:SS";
}

std::string day_of(const std::string& date) {
    return date.substr(0, DAY_LENGTH);
}

given_clock::given_clock(const std::string& date) {
    std::tm local = {};
    local.tm_year = number_at(date, 0, 4) - 1900;
    local.tm_mon = number_at(date, 5, 2) - 1;
    local.tm_mday = number_at(date, 8, 2);
    if (date.size() == TIME_LENGTH) {
        local.tm_hour = number_at(date, 11, 2);
        local.tm_min = number_at(date, 14, 2);
        local.tm_sec = number_at(date, 17, 2);
    }
    local.tm_isdst = -1;
    time_ = std::chrono::system_clock::from_time_t(std::mktime(&local));
}

}  // namespace kvt
