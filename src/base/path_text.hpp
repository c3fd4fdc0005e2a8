// path_text: texts as paths. Inside the program texts are UTF-8; a path made of one directly would
// be read in another code page on a system whose paths are not bytes.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kvt {

/// The path that a UTF-8 text names; where paths are bytes, of the same bytes. Its own text is
/// path.string().
inline std::filesystem::path path_of_utf8(std::string_view text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

}  // namespace kvt
