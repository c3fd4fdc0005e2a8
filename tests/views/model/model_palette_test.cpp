// Tests of the colours of the Model View.
#include "views/model/model_palette.hpp"

#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

namespace kvt {
namespace {

/// The largest difference of a channel, 0 .. 255.
int difference_of(const rgb_colour& a, const rgb_colour& b) {
    return std::max(
        {std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

}  // namespace

TEST(model_palette, tells_all_parts_from_each_other_and_from_the_ground) {
    for (const bool dark : {false, true}) {
        const model_palette& palette = model_palette_on(dark);
        const std::vector<rgb_colour> colours = {
            palette.background, palette.inner_rotor, palette.outer_rotor, palette.inlet,
            palette.outlet,     palette.groove,      palette.housing,     palette.curve};
        for (std::size_t i = 0; i < colours.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_GT(difference_of(colours[i], colours[j]), 30) << dark << i << j;
            }
        }
    }
}

TEST(model_palette, has_the_hues_of_the_design_view) {
    for (const bool dark : {false, true}) {
        const model_palette& palette = model_palette_on(dark);
        EXPECT_GT(palette.inlet.blue, palette.inlet.red + 100);
        EXPECT_GT(palette.outlet.red, palette.outlet.blue + 100);
        EXPECT_GT(palette.groove.red, palette.groove.green);
        EXPECT_GT(palette.groove.green, palette.groove.blue + 50);
    }
}

TEST(model_palette, has_a_dark_ground_on_demand) {
    EXPECT_GT(model_palette_on(false).background.green, 200);
    EXPECT_LT(model_palette_on(true).background.green, 60);
}

}  // namespace kvt
