// The table of the length units, and the conversions of its rows.
#include "core/length_unit.hpp"

#include "base/constants.hpp"
#include "base/run_time_error.hpp"
#include "core/app_state.hpp"

#include <gtest/gtest.h>
#include <set>

namespace kvt {

namespace {

TEST(length_unit, is_found_by_its_code_and_is_millimetres_for_any_other) {
    EXPECT_EQ(length_unit_of(INCHES).code, INCHES);
    for (const std::int16_t code : {MILLIMETRES, std::int16_t{0}, std::int16_t{3}}) {
        EXPECT_EQ(length_unit_of(code).code, MILLIMETRES) << code;
    }
}

TEST(length_unit, of_a_project_is_inches_for_every_text_but_mm) {
    EXPECT_EQ(length_unit_of_project("mm").code, MILLIMETRES);
    for (const char* text : {"", "MM", "mm ", "in"}) {
        EXPECT_EQ(length_unit_of_project(text).code, INCHES) << text;
    }
}

TEST(length_unit, multiplies_into_millimetres_and_divides_out_of_them) {
    const length_unit& inch = length_unit_of(INCHES);
    EXPECT_EQ(inch.to_mm(0.3), 0.3 * 25.4);
    EXPECT_EQ(inch.from_mm(10.0), 10.0 / 25.4);  // not 10 * (1 / 25.4), which ends on another digit
    EXPECT_NE(inch.from_mm(10.0), 10.0 * (1.0 / 25.4));
    EXPECT_EQ(inch.half_to_mm(0.3), 0.3 * 12.7);
}

TEST(length_unit, leaves_every_digit_of_millimetres_as_it_is) {
    const length_unit& mm = length_unit_of(MILLIMETRES);
    for (const double length : {0.1, 25.4, 1.0 / 3.0, -7.25e-5, 1.0e300}) {
        EXPECT_EQ(mm.to_mm(length), length);
        EXPECT_EQ(mm.from_mm(length), length);
        EXPECT_EQ(mm.cut_from_mm(length), length);
        EXPECT_EQ(mm.half_to_mm(length), length / 2.0);
    }
    EXPECT_TRUE(mm.is_of_records());
    EXPECT_FALSE(length_unit_of(INCHES).is_of_records());
}

TEST(length_unit, cuts_a_text_in_inches_to_three_decimals_downwards) {
    const length_unit& inch = length_unit_of(INCHES);
    EXPECT_EQ(inch.cut_from_mm(10.0), 0.393);  // 10 / 25.4 = 0.3937
    EXPECT_EQ(inch.cut_from_mm(-10.0), -0.394);
}

TEST(length_unit, has_captions_and_names_of_its_own_in_every_row) {
    std::set<std::string_view> comments, buttons;
    for (const length_unit& unit : length_units()) {
        EXPECT_NE(find_text(text_kind::fixed_caption, "cnc", unit.cnc_comment), nullptr);
        EXPECT_NE(find_caption("Form3", unit.toolunits), nullptr);
        EXPECT_NE(find_caption("Form1", unit.option_button), nullptr);
        EXPECT_NE(find_text(unit.captions, "portdes", "Label11"), nullptr);
        comments.insert(unit.cnc_comment);
        buttons.insert(unit.option_button);
    }
    EXPECT_EQ(comments.size(), length_units().size());
    EXPECT_EQ(buttons.size(), length_units().size());
}

TEST(length_unit, chooses_the_row_of_its_system_where_a_text_has_two) {
    EXPECT_EQ(form_text("charts", "xaxis_title", ENGLISH, unit_system::metric),
              "Delivery Pressure (bar)");
    EXPECT_EQ(form_text("charts", "xaxis_title", GERMAN, unit_system::imperial),
              "Lieferungsdruck (psi)");
    EXPECT_EQ(form_text("data", "speed", ENGLISH, unit_system::imperial), "Pump Speed (rpm)");
    EXPECT_EQ(find_text("charts", "no_such_row", unit_system::metric), nullptr);
}

}  // namespace

}  // namespace kvt
