// utf8_paths_alone: read before every source on this system. A path that is made of a char text in
// another way than by path_of_utf8 reads it in another code page; such sources are not compiled.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// The library's templates are refused where they take a text; literals and the names of literals
// stay.
namespace std::filesystem {

template <>
path::path(const std::string&, format) = delete;
template <>
path::path(const std::string_view&, format) = delete;
template <>
path& path::operator=(const std::string&) = delete;
template <>
path& path::operator=(const std::string_view&) = delete;
template <>
path& path::operator/=(const std::string&) = delete;
template <>
path& path::operator/=(const std::string_view&) = delete;

}  // namespace std::filesystem
