// Tests of the text table: what must hold for every row, the choice of language, and rows kept
// letter for letter.
#include "core/text_table.hpp"

#include "base/code_page.hpp"
#include "core/entries.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tuple>

namespace kvt {
namespace {

constexpr std::int16_t ENGLISH = 1;
constexpr std::int16_t GERMAN = 2;

std::string place_of(const text_row& row) {
    return std::string(row.form) + "." + std::string(row.name);
}

std::ptrdiff_t row_count(text_kind kind) {
    return std::ranges::count(text_rows(), kind, &text_row::kind);
}

TEST(text_table, has_a_german_text_in_every_row_but_the_english_only_ones) {
    for (const text_row& row : text_rows()) {
        EXPECT_FALSE(row.english.empty()) << place_of(row);
        EXPECT_EQ(row.german.empty(), row.languages == text_languages::english_only)
            << place_of(row);
    }
}

TEST(text_table, names_no_text_twice) {
    std::set<std::tuple<text_kind, std::string_view, std::string_view>> seen;
    for (const text_row& row : text_rows()) {
        EXPECT_TRUE(seen.emplace(row.kind, row.form, row.name).second) << place_of(row);
    }
    EXPECT_GT(seen.size(), 300U);
}

TEST(text_table, keeps_the_rows_of_one_form_together) {
    std::set<std::string_view> finished;
    std::string_view current;
    for (const text_row& row : text_rows()) {
        if (row.form != current) {
            finished.insert(current);
            current = row.form;
            EXPECT_FALSE(finished.contains(current)) << place_of(row);
        }
    }
}

TEST(text_table, holds_only_characters_of_the_code_page) {
    for (const text_row& row : text_rows()) {
        EXPECT_TRUE(fits_code_page(row.english)) << place_of(row);
        EXPECT_TRUE(fits_code_page(row.german)) << place_of(row);
    }
}

TEST(text_table, gives_every_millimetre_caption_an_inch_caption) {
    EXPECT_EQ(row_count(text_kind::caption_mm),
              8 + 8 + 11 + 5);  // on the forms, in the tables of the batch program, in the data
                                // files, on the charts
    EXPECT_EQ(row_count(text_kind::caption_inch), 8 + 8 + 11 + 5);
    for (const text_row& row : text_rows()) {
        if (row.kind == text_kind::caption_mm) {
            EXPECT_NE(find_text(text_kind::caption_inch, row.form, row.name), nullptr)
                << place_of(row);
        }
    }
}

TEST(text_table, explains_every_entry_with_a_tooltip) {
    for (const entry_field& field : entry_fields()) {
        if (field.form != "select_graphs") {
            EXPECT_NE(find_text(text_kind::tooltip, field.form, field.name), nullptr) << field.name;
        }
    }
}

TEST(text_table, names_the_length_unit_in_the_tooltip_of_every_length) {
    const std::string_view lengths[][2] = {
        {"Form1", "shaftdiameter"},
        {"Form1", "clearn"},
        {"Form1", "thick"},
        {"Form1", "minmaterial"},
        {"Form1", "maxdiameter"},
        {"Form1", "axial_clear"},
        {"Form1", "radial_clear"},
        {"Form1", "ecc"},
        {"Form1", "radinnroot"},
        {"Form1", "radouter"},
        {"Form1", "fillet"},
        {"Form1", "outer_root"},
        {"portdes", "inlet_inner_radius"},
        {"portdes", "inlet_outer_radius"},
        {"portdes", "Outlet_inner_radius"},
        {"portdes", "Outlet_outer_radius"},
        {"portdes", "port_radii"},
        {"portdes", "groove_width"},
        {"portdes", "groove_depth"},
    };
    for (const auto& [form, name] : lengths) {
        const text_row* tip = find_text(text_kind::tooltip, form, name);
        ASSERT_NE(tip, nullptr) << name;
        EXPECT_NE(tip->english.find("in the length unit chosen (mm or inches)"),
                  std::string_view::npos)
            << name;
        EXPECT_NE(tip->german.find("in der gewählten Längeneinheit (mm oder Zoll)"),
                  std::string_view::npos)
            << name;
    }
}

TEST(message_text, is_german_for_language_2_and_english_for_anything_else) {
    EXPECT_EQ(message_text(message::screen_layout_saved, GERMAN), "Schirmanordnung Hat Gespart");
    for (const std::int16_t language :
         {ENGLISH, std::int16_t{0}, std::int16_t{3}, std::int16_t{-2}}) {
        EXPECT_EQ(message_text(message::screen_layout_saved, language), "Screen Layout Saved")
            << language;
    }
}

TEST(message_text, is_english_in_german_too_where_the_message_has_no_german_text) {
    EXPECT_EQ(message_text(message::radouter_too_small, GERMAN),
              "The value of Radius Outer Lobes is too small, enter a larger value");
    EXPECT_EQ(message_text(message::maximum_root_radius, GERMAN),
              "Maximum value for Outer Rotor Root Radius is ");
}

TEST(message_text, finds_the_row_of_the_first_and_of_a_late_enumerator) {
    EXPECT_EQ(message_text(message::keep_existing_values, ENGLISH),
              "Keep existing Fluid Property and Gerotor Material Property values?");
    EXPECT_EQ(message_text(message::no_button, ENGLISH), "No");
    EXPECT_EQ(text_rows()[static_cast<std::size_t>(message::no_button)].name, "no_button");
}

// Kept: both branches of the update messages share one German literal, so a German user reads OFF
// in both cases.
TEST(message_text, says_off_in_german_when_the_updates_are_switched_on) {
    EXPECT_EQ(message_text(message::auto_updates_on, ENGLISH), "Auto updates are ON");
    EXPECT_EQ(message_text(message::auto_updates_on, GERMAN),
              message_text(message::auto_updates_off, GERMAN));
}

// Kept: blanks at the end and inside, the missing blank before the number, quotes, umlauts left
// out.
TEST(message_text, keeps_blanks_and_quotes_as_they_stand) {
    EXPECT_EQ(message_text(message::must_be_greater_than_zero, GERMAN),
              "Dieser Wert muss größer als Null sein! ");
    EXPECT_EQ(message_text(message::port_into_outlet, GERMAN),
              "Hafen dehnt zu weit in „Auslauf“ Gebiet der Pumpe aus");
    EXPECT_TRUE(message_text(message::tool_too_great_for_rotor, ENGLISH).ends_with("allowed is "));
    EXPECT_TRUE(
        message_text(message::tool_too_great_for_rotor, GERMAN).ends_with("erlaubt wird, ist"));
}

TEST(find_caption, knows_a_control_a_form_and_nothing_else) {
    ASSERT_NE(find_caption("MDIForm1", "mnufilesave"), nullptr);
    EXPECT_EQ(find_caption("MDIForm1", "mnufilesave")->german, "Parade");
    ASSERT_NE(find_caption("Form1", ""), nullptr);
    EXPECT_EQ(find_caption("Form1", "")->german, "Entwurf");
    EXPECT_EQ(find_caption("Form1", "no_such_control"), nullptr);
    EXPECT_EQ(find_caption("", "keep_existing_values"), nullptr);
    EXPECT_EQ(find_caption("Form1", "ecc"), nullptr)
        << "an entry has a tooltip, which is no caption";
}

TEST(find_caption, prefers_the_caption_routine_to_the_label_routines) {
    EXPECT_EQ(find_caption("Perffrm", "Label3")->kind, text_kind::caption);
    EXPECT_EQ(find_caption("portdes", "Label11")->kind, text_kind::caption_mm);
    EXPECT_EQ(find_caption("Form3", "cancelbutton")->kind, text_kind::design_caption);
}

TEST(find_text, gives_the_unit_captions_in_both_languages) {
    const text_row* inches = find_text(text_kind::caption_inch, "portdes", "Label12");
    ASSERT_NE(inches, nullptr);
    EXPECT_EQ(row_text(*inches, ENGLISH), "Depth (inches)");
    EXPECT_EQ(row_text(*inches, GERMAN), "Tiefe ('')");
}

}  // namespace
}  // namespace kvt
