// The date in the short form of the user's locale; a locale object of its own, as the global one
// stays "C".
#include "base/short_date.hpp"

#include <ctime>
#include <locale.h>

namespace kvt {

namespace {

std::string formatted(std::chrono::system_clock::time_point time, const char* format) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm local = {};
    localtime_r(&seconds, &local);
    locale_t locale = newlocale(LC_TIME_MASK, "", nullptr);
    if (locale == nullptr) {
        locale = newlocale(LC_TIME_MASK, "C", nullptr);
    }
    char text[64];
    const std::size_t length = strftime_l(text, sizeof text, format, &local, locale);
    freelocale(locale);
    return {text, length};
}

}  // namespace

std::string short_date(const clock& time) {
    return formatted(time.now(), "%x");
}

std::string time_of_day(const clock& time) {
    return formatted(time.now(), "%X");
}

std::string short_date_and_time(std::chrono::system_clock::time_point time) {
    return formatted(time, "%x %H:%M");
}

}  // namespace kvt
