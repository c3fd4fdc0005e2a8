// Tests of the looks of outlines: each style has its own row, areas are filled, axes are dashed.
#include "views/outline_looks.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(outline_looks, every_style_has_its_own) {
    using enum outline_style;
    for (const outline_style style :
         {body, space, shaft, housing, background, axis, inlet, outlet, groove}) {
        EXPECT_EQ(look_of(style).style, style) << static_cast<int>(style);
    }
}

TEST(outline_looks, lines_alone_have_no_ground) {
    EXPECT_FALSE(look_of(outline_style::axis).fill);
    EXPECT_FALSE(look_of(outline_style::background).fill);
    EXPECT_TRUE(look_of(outline_style::body).fill);
    EXPECT_TRUE(look_of(outline_style::axis).is_dashed);
    EXPECT_FALSE(look_of(outline_style::body).is_dashed);
}

TEST(outline_looks, ports_have_the_colours_of_the_design_view) {
    EXPECT_EQ(look_of(outline_style::inlet).line, (rgb_colour{0, 0, 255}));
    EXPECT_EQ(look_of(outline_style::outlet).line, (rgb_colour{255, 0, 0}));
    EXPECT_EQ(look_of(outline_style::groove).line, (rgb_colour{255, 128, 0}));
}

}  // namespace
}  // namespace kvt
