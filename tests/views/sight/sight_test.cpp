// Tests of what the ticks of the Design view show.
#include "views/sight/sight.hpp"

#include "views/sight/sample_sight.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

struct seen_pair : sample_sight {
    sight_ticks ticks{false, false, false, false, false, false};
    measurement measured;
    std::int16_t language = ENGLISH;

    sight_source source() const {
        return {design, state, view, ticks, measured, length_unit_of(MILLIMETRES), language};
    }
    sight_drawing drawn() const { return draw_sight(source(), letters_of(5.0, 12.0)); }
};

bool is_empty(const sight_drawing& drawing) {
    return drawing.areas.empty() && drawing.grid.empty() && drawing.lines.empty() &&
           drawing.arrows.empty() && drawing.circles.empty() && drawing.texts.empty();
}

TEST(draw_sight, draws_nothing_without_a_tick) {
    EXPECT_TRUE(is_empty(seen_pair().drawn()));
    EXPECT_EQ(sight_words(seen_pair().source()), "");
}

TEST(draw_sight, draws_nothing_before_there_are_rotors) {
    seen_pair pair;
    pair.view = {};
    pair.ticks = {true, true, true, true, true, true};
    EXPECT_TRUE(is_empty(pair.drawn()));
    EXPECT_EQ(sight_words(pair.source()), "");
}

TEST(draw_sight, draws_each_part_by_its_own_tick) {
    seen_pair pair;
    pair.ticks.grid = true;
    EXPECT_FALSE(pair.drawn().grid.empty());
    EXPECT_TRUE(pair.drawn().arrows.empty());
    pair.ticks = {};
    pair.ticks.dimensions = true;
    EXPECT_FALSE(pair.drawn().arrows.empty());
    EXPECT_TRUE(pair.drawn().grid.empty());
    pair.ticks = {};
    pair.ticks.contacts = true;
    EXPECT_EQ(pair.drawn().circles.size(), 7U);
    EXPECT_TRUE(pair.drawn().areas.empty());
    pair.ticks = {};
    pair.ticks.chambers = true;
    EXPECT_EQ(pair.drawn().areas.size(), 7U);
    EXPECT_TRUE(pair.drawn().circles.empty());
}

TEST(draw_sight, draws_what_was_measured_while_measuring_is_ticked) {
    seen_pair pair;
    pair.measured.set_point({0.0, 0.0});
    pair.measured.set_point({3.0, 4.0});
    EXPECT_TRUE(is_empty(pair.drawn()));
    pair.ticks.measuring = true;
    EXPECT_EQ(pair.drawn().texts.size(), 3U);
    EXPECT_EQ(sight_words(pair.source()), "Measured: 5 mm, dx 3 mm, dy 4 mm.");
}

TEST(sight_words, say_what_is_shown) {
    seen_pair pair;
    pair.ticks.dimensions = pair.ticks.grid = pair.ticks.contacts = true;
    EXPECT_EQ(sight_words(pair.source()), "Shown, too: dimensions, grid of 5 mm, contact points.");
    pair.language = GERMAN;
    EXPECT_EQ(sight_words(pair.source()),
              "Außerdem zu sehen: Maße, Raster mit 5 mm, Berührpunkte.");
}

TEST(sight_words, have_each_area_of_a_chamber_once) {
    seen_pair pair;
    pair.ticks.chambers = true;
    const std::string words = sight_words(pair.source());
    EXPECT_TRUE(words.starts_with("Shown, too: chamber areas ")) << words;
    // At angle 0 the pair is symmetric: one chamber on the line of centres, three pairs beside it.
    std::size_t areas = 0;
    for (std::size_t at = words.find("mm²"); at != std::string::npos;
         at = words.find("mm²", at + 1)) {
        ++areas;
    }
    EXPECT_EQ(areas, 4U) << words;
}

}  // namespace
}  // namespace kvt
