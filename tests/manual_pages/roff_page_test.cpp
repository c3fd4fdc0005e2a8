// Tests of the pages' text: what the formatter would take for its own, and the macros.
#include "manual_pages/roff_page.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(roff_text, leaves_nothing_to_the_formatter) {
    EXPECT_EQ(roff_text("--set a\\b ~/x it's ^2"), "\\-\\-set a\\(rsb \\(ti/x it\\(aqs \\(ha2");
    EXPECT_EQ(roff_text(".5 mm\n.6 mm 7.8"), "\\&.5 mm\n\\&.6 mm 7.8");
    EXPECT_EQ(roff_text("kg/m\xC2\xB3"), "kg/m\xC2\xB3");
}

TEST(roff_page, is_a_head_sections_and_rows) {
    roff_page page("KVT", "Kavetta 1", "User Commands");
    page.section("OPTIONS");
    page.row(bold("--set") + " " + italic("A=B"), "Types B.");
    page.part("calc");
    page.paragraph("Calculates.");
    page.example("  kvt calc");
    EXPECT_EQ(page.text(),
              ".TH KVT 1 \"\" \"Kavetta 1\" \"User Commands\"\n"
              ".ad l\n.nh\n"
              ".SH OPTIONS\n"
              ".TP\n\\fB\\-\\-set\\fR \\fIA=B\\fR\nTypes B.\n"
              ".SS calc\n"
              ".PP\nCalculates.\n"
              ".PP\n.nf\n  kvt calc\n.fi\n");
}

}  // namespace
}  // namespace kvt
