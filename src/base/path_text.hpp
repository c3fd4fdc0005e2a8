// path_text: texts as paths and paths as texts. Inside the program texts are UTF-8; a path made of
// one directly would be read in another code page on a system whose paths are not bytes.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kvt {

/// The path that a UTF-8 text names; where paths are bytes, of the same bytes.
inline std::filesystem::path path_of_utf8(std::string_view text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

/// The text of a path as it is shown and kept: UTF-8, with the separators of the system.
inline std::string utf8_of_path(const std::filesystem::path& path) {
    const std::u8string text = std::filesystem::path(path).make_preferred().u8string();
    return {text.begin(), text.end()};
}

}  // namespace kvt
