// fontfrm: the font of all controls.
#include "ui/forms/fontfrm.hpp"

#include "ui/desktop_fixture.hpp"

#include <QMenuBar>

namespace kvt {

namespace {

class fontfrm_test : public desktop_test {
  protected:
    /// Chooses the font and the size, and presses OK.
    void choose_font(const char* option, const QString& size) {
        fontfrm form(kavetta(), &window());
        form.findChild<QRadioButton*>(option)->setChecked(true);
        form.findChild<QLineEdit*>("Text1")->setText(size);
        form.findChild<QPushButton*>("chngfntOK")->click();
        EXPECT_EQ(form.result(), QDialog::Accepted);
    }
};

}  // namespace

TEST_F(fontfrm_test, arial_goes_to_the_controls_of_every_form_but_the_main_window) {
    start();
    const QFont menu = window().menuBar()->font();
    choose_font("fntarial", "11");
    for (const char* control : {"ecc", "inlet_start_inner", "fluid_density"}) {
        EXPECT_EQ(box(control)->font().family(), "Arial") << control;
        EXPECT_EQ(box(control)->font().pointSizeF(), 11.0) << control;
    }
    EXPECT_EQ(window().menuBar()->font(), menu);
}

TEST_F(fontfrm_test, ms_sans_serif_goes_to_the_main_window_too) {
    start();
    choose_font("fntsansserif", "10");
    EXPECT_EQ(box("ecc")->font().family(), "MS Sans Serif");
    EXPECT_EQ(window().menuBar()->font().family(), "MS Sans Serif");
}

TEST_F(fontfrm_test, no_size_counts_as_8) {
    start();
    for (const char* size : {"", "0", " "}) {
        box("ecc")->setFont(QFont("Arial", 20));
        choose_font("fntarial", size);
        EXPECT_EQ(box("ecc")->font().pointSizeF(), 8.0) << "\"" << size << "\"";
    }
}

TEST_F(fontfrm_test, cancel_changes_nothing) {
    start();
    const QFont before = box("ecc")->font();
    fontfrm form(kavetta(), &window());
    form.findChild<QRadioButton*>("fntarial")->setChecked(true);
    form.findChild<QPushButton*>("chngfntcancel")->click();
    EXPECT_EQ(box("ecc")->font(), before);
}

TEST_F(fontfrm_test, has_its_texts) {
    start();
    press("Image2");
    fontfrm form(kavetta(), &window());
    EXPECT_EQ(utf8_text(form.windowTitle()), "Schrift Ändern");
    EXPECT_EQ(form.findChild<QRadioButton*>("fntsansserif")->text(), "MS Sans Serif");
    EXPECT_EQ(form.findChild<QPushButton*>("chngfntcancel")->text(), "Abbrechen");
}

}  // namespace kvt
