// Tests of the limits in words.
#include "app/trial/limits_text.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/trial/entry_limits.hpp"
#include "core/text_table.hpp"
#include "support/open_design.hpp"

#include <gtest/gtest.h>
#include <set>
#include <utility>

namespace kvt {
namespace {

entry_limit end_at(const char* shown, message told) {
    return {0.0, 0.0, std::string(message_text(told, ENGLISH)), shown};
}

class limits_text_test : public testing::Test {
  protected:
    std::string text(const char* entry) const {
        return limits_text(kavetta, *find_entry(entry), limits);
    }

    program kavetta = opened_design("n07_engine_oil_groove");
    entry_limits limits;
};

TEST_F(limits_text_test, says_both_ends_and_the_reason_once) {
    limits.lowest = end_at("1.92", message::inner_rotor_errors);
    limits.highest = end_at("2.87", message::inner_rotor_errors);
    EXPECT_EQ(text("ecc"), "Eccentricity: 1.92 to 2.87 mm (limited by: inner rotor errors)");
}

TEST_F(limits_text_test, says_two_reasons) {
    limits.lowest = end_at("1.92", message::radouter_too_small);
    limits.highest = end_at("2.87", message::does_not_fit_diameter);
    EXPECT_EQ(
        text("ecc"),
        "Eccentricity: 1.92 to 2.87 mm (limited by: lobe radius too small; maximum diameter)");
}

TEST_F(limits_text_test, says_one_end) {
    limits.highest = end_at("2.87", message::inner_rotor_errors);
    EXPECT_EQ(text("ecc"), "Eccentricity: up to 2.87 mm (limited by: inner rotor errors)");
    limits.lowest = std::exchange(limits.highest, std::nullopt);
    EXPECT_EQ(text("ecc"), "Eccentricity: from 2.87 mm (limited by: inner rotor errors)");
}

TEST_F(limits_text_test, says_nothing_without_an_end) {
    EXPECT_EQ(text("ecc"), "");
}

TEST_F(limits_text_test, has_a_comma_in_german) {
    scripted_user person;
    choose_language(kavetta, person, GERMAN);
    limits.highest = entry_limit{
        0.0, 0.0, std::string(message_text(message::inner_rotor_errors, GERMAN)), "2.87"};
    limits.lowest = entry_limit{0.0, 0.0, "", "1.92"};
    EXPECT_EQ(text("ecc"),
              "Exzentrizität: 1,92 bis 2,87 mm (begrenzt durch: Fehler im inneren "
              "Rotor)");
    EXPECT_EQ(nearest_text(kavetta, *find_entry("ecc"), limits), "Nächster gültiger Wert: 2,87 mm");
}

TEST_F(limits_text_test, names_the_nearest_value_of_a_refused_number) {
    limits.lowest = end_at("1.92", message::inner_rotor_errors);
    limits.highest = end_at("2.87", message::inner_rotor_errors);
    const entry_field& ecc = *find_entry("ecc");
    EXPECT_EQ(nearest_text(kavetta, ecc, limits), "Nearest valid value: 2.87 mm");
    limits.is_above_present = true;
    EXPECT_EQ(nearest_text(kavetta, ecc, limits), "Nearest valid value: 1.92 mm");
    limits.is_present_accepted = true;
    EXPECT_EQ(nearest_text(kavetta, ecc, limits), "");
}

TEST_F(limits_text_test, leaves_the_unit_of_a_caption_to_the_range) {
    limits.highest = end_at("3.1", message::metering_port_angle);
    EXPECT_EQ(text("groove_width"),
              "Metering Groove: Width: up to 3.1 mm (limited by: angle of the metering groove)");
    EXPECT_EQ(text("speed_lo"),
              "Lowest Speed: up to 3.1 RPM (limited by: angle of the metering groove)");
}

TEST(limit_reason, is_the_first_sentence_of_a_message_without_words_of_its_own) {
    EXPECT_EQ(limit_reason(message_text(message::input_density, ENGLISH), ENGLISH),
              "Enter a Density for the pumped fluid");
    EXPECT_EQ(limit_reason("Something else. And more.", ENGLISH), "Something else");
}

TEST(limit_reason, knows_a_message_that_goes_on_with_a_number) {
    EXPECT_EQ(limit_reason("Run-time error 11: Division by zero", ENGLISH),
              "the calculation fails");
}

TEST(limit_reason, belongs_to_a_message_each) {
    const std::set<std::string_view> other_words = {
        "to",        "from",         "up_to", "limited_by", "nearest_value", "nearest_tooltip",
        "no_limits", "none_accepted"};
    for (const text_row& row : text_rows()) {
        if (row.form == "limits" && !other_words.contains(row.name)) {
            EXPECT_NE(find_text(text_kind::message, "", row.name), nullptr) << row.name;
        }
    }
}

}  // namespace
}  // namespace kvt
