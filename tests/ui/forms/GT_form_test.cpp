// GT_form: five pictures, one after the other, and the failure of a missing one.
#include "ui/forms/GT_form.hpp"

#include "support/expect_failure.hpp"
#include "support/scripted_user.hpp"
#include "ui/desktop_fixture.hpp"

#include <QPixmap>
#include <QTimer>

namespace kvt {

namespace {

class GT_form_test : public desktop_test {
  protected:
    GT_form_test() {
        for (int screen = 1; screen <= 5; ++screen) {
            const std::string name = "GT_screen_" + std::to_string(screen) + ".jpg";
            std::filesystem::copy_file(std::string(KVT_SHARE_FOLDER) + "/" + name, folder / name);
        }
        robot.left_open = "GT_form";
        kavetta_.folder = folder.path();
        set_captions();
    }
    void set_captions() {
        for (const text_row* row : caption_rows()) {
            kavetta_.captions.set(*row, kavetta_.app_state.language);
        }
    }
    static QPushButton& next_of(GT_form& form) { return *form.findChild<QPushButton*>("cmd_next"); }
    static QImage shown_in(GT_form& form) {
        return form.findChild<QLabel*>("Picture1")->pixmap(Qt::ReturnByValue).toImage();
    }

    kvt::program kavetta_;
    scripted_user person_;
};

}  // namespace

TEST_F(GT_form_test, shows_five_pictures_and_closes) {
    GT_form form(kavetta_, person_, nullptr);
    form.show();
    EXPECT_EQ(utf8_text(form.windowTitle()), "Kavetta & GT-SUITE");
    std::vector<QImage> seen = {shown_in(form)};
    for (int screen = 2; screen <= 5; ++screen) {
        EXPECT_EQ(next_of(form).text(), "Learn More...") << screen;
        QTest::mouseClick(&next_of(form), Qt::LeftButton);
        EXPECT_NE(shown_in(form), seen.back()) << screen;
        seen.push_back(shown_in(form));
    }
    EXPECT_EQ(next_of(form).text(), "Close");
    EXPECT_TRUE(form.isVisible());
    QTest::mouseClick(&next_of(form), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(GT_form_test, is_english_in_either_language) {
    kavetta_.app_state.language = GERMAN;
    set_captions();
    GT_form form(kavetta_, person_, nullptr);
    EXPECT_EQ(utf8_text(form.windowTitle()), "Kavetta & GT-SUITE");
    EXPECT_EQ(next_of(form).text(), "Learn More...");
}

TEST_F(GT_form_test, fails_without_its_first_picture) {
    std::filesystem::remove(folder / "GT_screen_1.jpg");
    EXPECT_FAILURE(GT_form(kavetta_, person_, nullptr), failure::file_not_found);
    write_file(folder / "GT_screen_1.jpg", "no picture");
    EXPECT_FAILURE(GT_form(kavetta_, person_, nullptr), failure::invalid_property_value);
}

TEST_F(GT_form_test, closes_and_fails_without_a_later_picture) {
    std::filesystem::remove(folder / "GT_screen_2.jpg");
    GT_form form(kavetta_, person_, nullptr);
    QTimer::singleShot(0, &form, [&form] { next_of(form).click(); });
    EXPECT_FAILURE(form.run(), failure::file_not_found);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(GT_form_test, f1_looks_for_the_help_file) {
    GT_form form(kavetta_, person_, nullptr);
    form.show();
    QTest::keyClick(&form, Qt::Key_F1);
    ASSERT_EQ(person_.statuses.size(), 1U);
    EXPECT_NE(person_.statuses[0].find("KVT_V2021_Help_EN.pdf"), std::string::npos);
}

}  // namespace kvt
