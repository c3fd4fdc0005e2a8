#include "base/decimal_mark.hpp"

#include <algorithm>

namespace kvt {

std::string with_decimal_mark(std::string number, char mark) {
    std::ranges::replace(number, '.', mark);
    return number;
}

}  // namespace kvt
