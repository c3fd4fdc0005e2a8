#include "app/files/file_ending.hpp"

#include "base/letter_case.hpp"

namespace kvt {

namespace {

bool ends_in(std::string_view path, std::string_view ending) {
    return path.size() >= ending.size() &&
           is_same_ignoring_case(path.substr(path.size() - ending.size()), ending);
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
