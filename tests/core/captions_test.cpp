// Tests of the captions that the controls show: the state at start and a change.
#include "core/captions.hpp"

#include "core/text_table.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(captions, are_the_english_texts_at_start) {
    const captions shown;
    EXPECT_EQ(shown.of("Form1", "Calc"), "Calculate Profiles");
    EXPECT_EQ(shown.of("Form1", ""), "Design");
    EXPECT_EQ(shown.of("Form1", "Des_assist_check"), "Assist OFF");
    EXPECT_EQ(shown.of("portdes", "Label11"), "Width (mm)");
    EXPECT_EQ(shown.of("Perffrm", "Label2"), "Vapour Pressure (mmHg)");
    EXPECT_EQ(shown.of("MDIForm1", "mnustep"), "S&tep Files");
}

TEST(captions, exist_for_every_control_with_a_caption_row) {
    const captions shown;
    for (const text_row& row : text_rows()) {
        if (row.kind != text_kind::message && row.kind != text_kind::tooltip &&
            row.kind != text_kind::spoken) {
            EXPECT_FALSE(shown.of(row.form, row.name).empty()) << row.form << "." << row.name;
        }
    }
}

TEST(captions, are_empty_for_a_control_without_one) {
    const captions shown;
    EXPECT_EQ(shown.of("Form1", "ecc"), "");
    EXPECT_EQ(shown.of("no_such_form", "Calc"), "");
}

TEST(captions, change_for_one_control_of_one_form) {
    captions shown;
    shown.set(*find_caption("portdes", "Label2"), 2);
    EXPECT_EQ(shown.of("portdes", "Label2"), find_caption("portdes", "Label2")->german);
    EXPECT_NE(shown.of("portdes", "Label2"), captions().of("portdes", "Label2"));
    EXPECT_EQ(shown.of("Form1", "Label2"), "Shaft Diameter");
    EXPECT_EQ(shown.of("Form1", ""), "Design");
}

TEST(captions, follow_the_row_of_the_unit_that_was_set_last) {
    captions shown;
    shown.set(*find_text(text_kind::caption_inch, "portdes", "Label11"), 1);
    EXPECT_EQ(shown.of("portdes", "Label11"), "Width (inches)");
    shown.set(*find_text(text_kind::caption_mm, "portdes", "Label11"), 1);
    EXPECT_EQ(shown.of("portdes", "Label11"), "Width (mm)");
}

}  // namespace
}  // namespace kvt
