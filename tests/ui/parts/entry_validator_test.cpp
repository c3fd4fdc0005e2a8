// What boxes refuse, and that everything else stays as typed.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QClipboard>

namespace kvt {

namespace {

class entry_validator_test : public desktop_test {};

}  // namespace

TEST_F(entry_validator_test, a_sign_that_is_in_no_number_is_refused_with_a_line_in_the_status_bar) {
    start();
    type("ecc", "2.5");
    for (const QChar sign : {QChar('a'), QChar('%'), QChar(0x00D8), QChar(0x0436)}) {
        window().statusBar()->clearMessage();
        type_keys(box("ecc"), QString(sign));
        EXPECT_EQ(shown("ecc"), "2.5");
        EXPECT_EQ(kavetta().entries.ecc, "2.5");
        EXPECT_EQ(status(), "Only a number can be entered here.");
    }
}

TEST_F(entry_validator_test, a_pasted_text_that_is_no_number_is_refused_whole) {
    write_settings('2');
    start();
    type("ecc", "2.5");
    box("ecc")->selectAll();
    QApplication::clipboard()->setText("2.85 mm");
    box("ecc")->paste();
    EXPECT_EQ(shown("ecc"), "2.5");
    EXPECT_EQ(kavetta().entries.ecc, "2.5");
    EXPECT_EQ(status(), "Hier kann nur eine Zahl eingegeben werden.");
}

TEST_F(entry_validator_test, a_text_from_a_file_that_is_no_number_can_be_edited) {
    start();
    kavetta().entries.ecc = "2.5 mm";
    window().refresh();
    ASSERT_EQ(shown("ecc"), "2.5 mm");
    box("ecc")->setCursorPosition(6);
    QTest::keyClick(box("ecc"), Qt::Key_Backspace);
    EXPECT_EQ(kavetta().entries.ecc, "2.5 m");
    QTest::keyClick(box("ecc"), Qt::Key_Backspace);
    type_keys(box("ecc"), "x");
    EXPECT_EQ(kavetta().entries.ecc, "2.5 ");
}

TEST_F(entry_validator_test, every_text_of_signs_of_a_number_stays_as_typed) {
    start();
    for (const char* text : {"2,5", "  2.5 ", "1e3", "1E-3", "-1", "3.", "+.5", "5,0"}) {
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
