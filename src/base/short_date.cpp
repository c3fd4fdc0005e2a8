// The date in the short form of the user's locale; a locale object of its own, as the global one
// stays "C".
#include "base/short_date.hpp"

#include <ctime>
#include <locale.h>

namespace kvt {

std::string short_date(const clock& time) {
    const std::time_t now = std::chrono::system_clock::to_time_t(time.now());
    std::tm local = {};
    localtime_r(&now, &local);
    locale_t locale = newlocale(LC_TIME_MASK, "", nullptr);
    if (locale == nullptr) {
        locale = newlocale(LC_TIME_MASK, "C", nullptr);
    }
    char text[64];
    const std::size_t length = strftime_l(text, sizeof text, "%x", &local, locale);
    freelocale(locale);
    return {text, length};
}

}  // namespace kvt
