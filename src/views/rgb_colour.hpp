// A colour of the drawings.
#pragma once

#include <cstdint>

namespace kvt {

struct rgb_colour {
    std::uint8_t red = 0, green = 0, blue = 0;

    friend bool operator==(const rgb_colour&, const rgb_colour&) = default;
};

}  // namespace kvt
