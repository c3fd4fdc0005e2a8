#include "app/stages/near_names.hpp"

#include "base/letter_case.hpp"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kvt {

namespace {

constexpr std::size_t MOST_NAMES = 3;

bool same_letter(char a, char b) {
    return lower_case(a) == lower_case(b);
}

bool begins_with(std::string_view name, std::string_view typed) {
    return !typed.empty() && typed.size() <= name.size() &&
           std::equal(typed.begin(), typed.end(), name.begin(), same_letter);
}

}  // namespace

std::size_t edit_distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(
        b.size() + 1);  // distances of the letters of a so far to 0 .. all letters of b
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t replaced = diagonal + (same_letter(a[i], b[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

std::vector<std::string_view> near_names(std::string_view typed,
                                         const std::vector<std::string_view>& names) {
    const std::size_t allowed = std::max<std::size_t>(2, typed.size() / 3);
    std::vector<std::pair<std::size_t, std::string_view>> found;
    for (const std::string_view name : names) {
        const std::size_t distance = edit_distance(typed, name);
        if (distance <= allowed || begins_with(name, typed)) {
            found.emplace_back(distance, name);
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string_view> near;
    for (std::size_t i = 0; i < found.size() && i < MOST_NAMES; ++i) {
        near.push_back(found[i].second);
    }
    return near;
}

}  // namespace kvt
