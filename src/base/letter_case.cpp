#include "base/letter_case.hpp"

#include <algorithm>

namespace kvt {

char lower_case(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool is_same_ignoring_case(std::string_view a, std::string_view b) {
    return std::ranges::equal(
        a, b, [](char left, char right) { return lower_case(left) == lower_case(right); });
}

}  // namespace kvt
