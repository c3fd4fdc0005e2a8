// The date and time in the user's own form, as this system keeps it.
#include "base/short_date.hpp"

#include "base/windows/wide_text.hpp"

#include <ctime>
#include <windows.h>

namespace kvt {

namespace {

constexpr int LONGEST = 128;

SYSTEMTIME local_time(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm local = {};
    localtime_s(&local, &seconds);
    SYSTEMTIME parts = {};
    parts.wYear = static_cast<WORD>(local.tm_year + 1900);
    parts.wMonth = static_cast<WORD>(local.tm_mon + 1);
    parts.wDay = static_cast<WORD>(local.tm_mday);
    parts.wHour = static_cast<WORD>(local.tm_hour);
    parts.wMinute = static_cast<WORD>(local.tm_min);
    parts.wSecond = static_cast<WORD>(local.tm_sec);
    return parts;
}

std::string date_text(const SYSTEMTIME& time) {
    wchar_t text[LONGEST] = {};
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text, LONGEST,
                    nullptr);
    return utf8_of_wide(text);
}

std::string time_text(const SYSTEMTIME& time, const wchar_t* format) {
    wchar_t text[LONGEST] = {};
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &time, format, text, LONGEST);
    return utf8_of_wide(text);
}

}  // namespace

std::string short_date(const clock& time) {
    return date_text(local_time(time.now()));
}

std::string time_of_day(const clock& time) {
    return time_text(local_time(time.now()), nullptr);
}

std::string short_date_and_time(std::chrono::system_clock::time_point time) {
    const SYSTEMTIME local = local_time(time);
    return date_text(local) + " " + time_text(local, L"HH:mm");
}

}  // namespace kvt
