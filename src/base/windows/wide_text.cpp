#include "base/windows/wide_text.hpp"

#include <windows.h>

namespace kvt {

std::wstring wide_of_utf8(std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');  // never more units than bytes
    const int used = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), length);
    wide.resize(static_cast<std::size_t>(used));
    return wide;
}

std::string utf8_of_wide(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    std::string utf8(3 * text.size(), '\0');  // the most that a unit takes
    const int used = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), 3 * length,
                                         nullptr, nullptr);
    utf8.resize(static_cast<std::size_t>(used));
    return utf8;
}

}  // namespace kvt
