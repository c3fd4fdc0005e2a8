#include "gtsuite/model_name.hpp"

#include "base/letter_case.hpp"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>

namespace kvt {

namespace {

constexpr std::string_view ENDING = ".gtm";

/// The number of a file of the project; nothing for a file of another name.
std::optional<unsigned long long> model_number(std::string_view file, std::string_view project) {
    if (file.size() < project.size() + ENDING.size() ||
        !is_same_ignoring_case(file.substr(0, project.size()), project) ||
        !is_same_ignoring_case(file.substr(file.size() - ENDING.size()), ENDING)) {
        return std::nullopt;
    }
    file.remove_prefix(project.size());
    file.remove_suffix(ENDING.size());
    if (file.empty()) {
        return 0;
    }
    unsigned long long number = 0;
    const char* const end = file.data() + file.size();
    const bool is_numbered = file.size() > 1 && file.front() == '-' &&
                             std::isdigit(static_cast<unsigned char>(file[1])) != 0;
    const auto read = std::from_chars(file.data() + (is_numbered ? 1 : 0), end, number);
    return is_numbered && read.ec == std::errc() && read.ptr == end ? std::optional(number)
                                                                    : std::nullopt;
}

}  // namespace

std::string gt_model_name(std::string_view project, std::span<const std::string> files) {
    std::optional<unsigned long long> highest;
    for (const std::string& file : files) {
        highest = std::max(highest, model_number(file, project));
    }
    const std::string number = highest ? "-" + std::to_string(*highest + 1) : "";
    return std::string(project) + number + std::string(ENDING);
}

}  // namespace kvt
