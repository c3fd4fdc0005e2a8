#include "base/environment.hpp"

#include "base/windows/wide_text.hpp"

#include <cstdlib>
#include <windows.h>

namespace kvt {

std::vector<std::string> program_arguments(int /*count*/, const char* const* /*arguments*/) {
    // Those of main have lost what the system's code page doesn't have.
    int count = 0;
    wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        texts.push_back(utf8_of_wide(wide[i]));
    }
    LocalFree(wide);
    return texts;
}

std::optional<std::string> environment_variable(const char* name) {
    const wchar_t* value = _wgetenv(wide_of_utf8(name).c_str());
    return value == nullptr ? std::nullopt : std::optional(utf8_of_wide(value));
}

std::filesystem::path user_data_folder() {
    const wchar_t* folder = _wgetenv(L"LOCALAPPDATA");
    return folder == nullptr ? L"" : folder;
}

std::filesystem::path running_program() {
    std::wstring path(32768, L'\0');  // no path of this system is longer
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    path.resize(length);
    return path;
}

}  // namespace kvt
