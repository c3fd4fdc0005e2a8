#include "views/outline_looks.hpp"

#include <array>
#include <cstddef>

namespace kvt {

namespace {

constexpr rgb_colour INK = {0x20, 0x20, 0x20};
constexpr rgb_colour FAINT = {0x90, 0x90, 0x90};

/// In the order of outline_style.
constexpr std::array LOOKS = {
    outline_look{outline_style::body, INK, rgb_colour{0xd5, 0xdd, 0xe6}, 1.5},
    outline_look{outline_style::space, INK, rgb_colour{0xff, 0xff, 0xff}, 1.5},
    outline_look{outline_style::shaft, INK, rgb_colour{0xb4, 0xbd, 0xc7}, 1.0},
    outline_look{outline_style::housing, FAINT, rgb_colour{0xec, 0xe6, 0xdb}, 1.0},
    outline_look{outline_style::background, {0xa8, 0xa8, 0xa8}, std::nullopt, 1.0},
    outline_look{outline_style::axis, FAINT, std::nullopt, 0.8, true},
    outline_look{outline_style::inlet, {0, 0, 0xff}, rgb_colour{0xe3, 0xe6, 0xff}, 2.0},
    outline_look{outline_style::outlet, {0xff, 0, 0}, rgb_colour{0xff, 0xe6, 0xe6}, 2.0},
    outline_look{outline_style::groove, {0xff, 0x80, 0}, rgb_colour{0xff, 0xee, 0xdd}, 2.0},
};

}  // namespace

const outline_look& look_of(outline_style style) {
    return LOOKS[static_cast<std::size_t>(style)];
}

}  // namespace kvt
