// What boxes refuse, and that everything else stays as typed.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QClipboard>

namespace kvt {

namespace {

class entry_validator_test : public desktop_test {};

}  // namespace

TEST_F(entry_validator_test,
       a_character_outside_the_code_page_is_refused_with_a_line_in_the_status_bar) {
    start();
    type("ecc", "2.5");
    type_keys(box("ecc"), QString(QChar(0x0436)));
    EXPECT_EQ(shown("ecc"), "2.5");
    EXPECT_EQ(kavetta().entries.ecc, "2.5");
    EXPECT_EQ(status(), "This character cannot be stored in a project file.");
}

TEST_F(entry_validator_test, every_other_text_stays_as_typed) {
    start();
    for (const char* text : {"2,5", "  2.5 mm", "1e3", "abc", "-1", "Ø 12 €", "3.", "+.5"}) {
        type("ecc", text);
        EXPECT_EQ(kavetta().entries.ecc, text);
        EXPECT_EQ(shown("ecc"), text);
    }
}

TEST_F(entry_validator_test,
       a_pasted_line_end_is_dropped_because_an_entry_is_one_line_of_the_file) {
    start();
    type("ecc", "");
    QApplication::clipboard()->setText("2.85\r\n");
    box("ecc")->paste();
    EXPECT_EQ(kavetta().entries.ecc, "2.85");
    EXPECT_EQ(shown("ecc"), "2.85");
}

TEST_F(entry_validator_test, undo_reaches_the_entry_too) {
    start();
    type("ecc", "2.5");
    box("ecc")->undo();
    EXPECT_EQ(kavetta().entries.ecc, shown("ecc"));
}

}  // namespace kvt
