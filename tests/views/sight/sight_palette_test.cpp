// Tests of the colours of the Design view.
#include "views/sight/sight_palette.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr sight_ink INKS[] = {sight_ink::scale_bar, sight_ink::dimension, sight_ink::extension,
                              sight_ink::chamber,   sight_ink::contact,   sight_ink::measure};

/// Relative luminance. Source: WCAG 2.1.
double luminance(const rgb_colour& colour) {
    const auto linear = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) +
           0.0722 * linear(colour.blue);
}

double contrast_of(const rgb_colour& a, const rgb_colour& b) {
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(sight_palette, can_be_read_on_its_paper_on_either_ground) {
    for (const bool dark : {false, true}) {
        const sight_palette& palette = sight_palette_on(dark);
        for (const sight_ink ink : INKS) {
            EXPECT_GT(contrast_of(colour_of(ink, palette), palette.paper), 4.5)
                << dark << " " << static_cast<int>(ink);
        }
        EXPECT_GT(contrast_of(palette.ink, palette.body), 7.0);
        EXPECT_GT(contrast_of(palette.ink, palette.inner_rotor), 7.0);
    }
}

TEST(sight_palette, keeps_black_ink_and_the_colours_of_the_ports_on_white_paper) {
    const sight_palette& palette = sight_palette_on(false);
    EXPECT_EQ(palette.paper, (rgb_colour{255, 255, 255}));
    EXPECT_EQ(palette.ink, (rgb_colour{0, 0, 0}));
    EXPECT_EQ(palette.inlet, (rgb_colour{0, 0, 255}));
    EXPECT_EQ(palette.outlet, (rgb_colour{255, 0, 0}));
    EXPECT_EQ(palette.groove, (rgb_colour{255, 128, 0}));
    EXPECT_EQ(palette.groove_end, (rgb_colour{0, 192, 0}));
}

}  // namespace
}  // namespace kvt
