// Tests of the areas of all chambers and of the contacts.
#include "views/sight/chamber_sight.hpp"

#include "exact/chamber.hpp"
#include "views/sight/sample_sight.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

struct turned_pair : sample_sight {
    using sample_sight::sample_sight;

    /// How far a place of the box lies from the nearest arc of the outer rotor as drawn, pixels.
    double from_outer_rotor(const point2& place) const {
        double nearest = 1e9;
        for (const drawn_arc& arc : view.Picture1) {
            const double away = std::hypot(place.x * 15.0 - arc.x, place.y * 15.0 - arc.y);
            nearest = std::min(nearest, std::abs(away - arc.radius) / 15.0);
        }
        return nearest;
    }
};

TEST(chambers_at, are_one_for_each_lobe_and_a_pitch_of_the_life_apart) {
    const std::vector<seen_chamber> chambers = chambers_at(sample_design(), 17.0);
    ASSERT_EQ(chambers.size(), 7U);
    const double life = chamber_life(nominal_pair(sample_design()));
    for (std::size_t k = 1; k < chambers.size(); ++k) {
        const double step = std::fmod(chambers[k].place - chambers[k - 1].place + life, life);
        EXPECT_NEAR(step, life / 7.0, 1e-9);
    }
}

TEST(chambers_at, fill_the_space_between_the_rotors_at_every_angle) {
    // What the outer profile encloses less the inner rotor stays the same while the pair turns.
    const auto total = [](double degrees) {
        double sum = 0.0;
        for (const seen_chamber& chamber : chambers_at(sample_design(), degrees)) {
            sum += chamber.area_mm2;
        }
        return sum;
    };
    const double at_rest = total(0.0);
    EXPECT_GT(at_rest, 100.0);
    for (const double degrees : {1.0, 30.0, 77.0, 190.0, 359.0}) {
        EXPECT_NEAR(total(degrees), at_rest, 1e-6 * at_rest) << degrees;
    }
}

TEST(chambers_at, are_none_for_a_geometry_without_them) {
    design_params design = sample_design();
    design.outer_root = 1000.0;
    EXPECT_TRUE(chambers_at(design, 0.0).empty());
}

TEST(area_text, has_the_unit_of_the_project) {
    EXPECT_EQ(area_text(83.123, length_unit_of(MILLIMETRES), ENGLISH), "83.12 mm²");
    EXPECT_EQ(area_text(645.16, length_unit_of(INCHES), ENGLISH), "1 in²");
}

TEST(add_chambers, lie_between_the_rotors_as_they_are_drawn) {
    for (const double degrees : {0.0, 33.0, 200.0}) {
        const turned_pair pair(degrees);
        sight_drawing drawing;
        add_chambers(pair.design, pair.state.rotation_angle, length_unit_of(MILLIMETRES), ENGLISH,
                     view_box(pair.state), letters_of(5.0, 12.0), drawing);
        EXPECT_EQ(drawing.areas.size(), 7U);
        for (const std::vector<point2>& area : drawing.areas) {
            EXPECT_LT(pair.from_outer_rotor(area.front()), 0.2) << degrees;
        }
    }
}

TEST(add_chambers, leave_out_a_text_that_would_lie_over_another) {
    const turned_pair pair(0.0);
    sight_drawing drawing;
    add_chambers(pair.design, 0.0, length_unit_of(MILLIMETRES), ENGLISH, view_box(pair.state),
                 {[](const std::string&) { return 390.0; }, 150.0}, drawing);
    EXPECT_LT(drawing.texts.size(), 7U);
    EXPECT_GE(drawing.texts.size(), 1U);
}

TEST(add_contacts, lie_on_the_outer_rotor_as_it_is_drawn) {
    for (const double degrees : {0.0, 12.0, 147.0}) {
        const turned_pair pair(degrees);
        sight_drawing drawing;
        add_contacts(pair.design, pair.state.rotation_angle, view_box(pair.state), drawing);
        ASSERT_EQ(drawing.circles.size(), 7U);
        for (const sight_circle& contact : drawing.circles) {
            EXPECT_LT(pair.from_outer_rotor(contact.centre), 0.05) << degrees;
        }
    }
}

}  // namespace
}  // namespace kvt
