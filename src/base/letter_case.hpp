// letter_case: comparing ASCII names that are the same in any case of letters. Other letters are as
// they stand, whatever the locale.
#pragma once

#include <string_view>

namespace kvt {

/// "a" of "A"; every other character as it is.
char lower_case(char letter);

bool is_same_ignoring_case(std::string_view a, std::string_view b);

}  // namespace kvt
