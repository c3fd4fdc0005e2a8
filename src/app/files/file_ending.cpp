#include "app/files/file_ending.hpp"

#include <algorithm>

namespace kvt {

namespace {

/// Endings are ASCII.
char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool ends_in(std::string_view path, std::string_view ending) {
    return path.size() >= ending.size() &&
           std::ranges::equal(path.substr(path.size() - ending.size()), ending,
                              [](char a, char b) { return lower(a) == lower(b); });
}

}  // namespace

std::string with_ending(std::string_view path, std::string_view extension) {
    const std::string ending = "." + std::string(extension);
    if (path.empty() || extension.empty() || ends_in(path, ending)) {
        return std::string(path);
    }
    return std::string(path) + ending;
}

}  // namespace kvt
