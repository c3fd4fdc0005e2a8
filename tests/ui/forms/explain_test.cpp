// explain and port_explain: pictures, titles, the flags that the screen layout reads.
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

#include <QImage>

namespace kvt {

namespace {

class explain_test : public desktop_test {
  protected:
    /// Delivers a picture of one colour.
    void deliver(const char* name, QSize size, Qt::GlobalColor colour) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(colour);
        EXPECT_TRUE(picture.save(qt_text(utf8_of_path(folder.path() / name)), "JPG", 100));
    }
    void deliver_all() {
        deliver("explain screen - small1.jpg", QSize(300, 200), Qt::red);
        deliver("explain screen - small german1.jpg", QSize(300, 200), Qt::blue);
        deliver("port explain - small2.jpg", QSize(2000, 500), Qt::green);
        deliver("port explain - small german2.jpg", QSize(300, 200), Qt::yellow);
    }
    QColor colour_of(const char* form) {
        const QImage seen = find_on<QWidget>(form, "Image1")->grab().toImage();
        return seen.pixelColor(seen.rect().center());
    }
};

}  // namespace

TEST_F(explain_test, shows_the_picture_of_the_rotor_parameters) {
    deliver_all();
    start();
    choose("mnuhelpexplain");
    ASSERT_NE(loaded("explain"), nullptr);
    EXPECT_TRUE(loaded("explain")->isVisible());
    EXPECT_EQ(loaded("explain")->windowTitle(), "Gerotor Parameter Explanation");
    EXPECT_GT(colour_of("explain").red(), 200);
    EXPECT_EQ(find_on<QWidget>("explain", "Image1")->size(), QSize(300, 200));
    EXPECT_FALSE(kavetta().app_state.explain_closed);
    EXPECT_TRUE(kavetta().app_state.port_explain_closed);
}

TEST_F(explain_test, speaks_the_language_of_its_load) {
    deliver_all();
    start();
    press("Image2");
    choose("mnuhelpport_explain");
    choose("mnuhelpexplain");
    EXPECT_EQ(utf8_text(loaded("port_explain")->windowTitle()), "Portierenparametererklärung");
    EXPECT_GT(colour_of("explain").blue(), 200);
    press("Image1");
    EXPECT_EQ(utf8_text(loaded("explain")->windowTitle()), "Gerotorparametererklärung");
    loaded("explain")->close();
    choose("mnuhelpexplain");
    EXPECT_EQ(utf8_text(loaded("explain")->windowTitle()), "Gerotor Parameter Explanation");
}

TEST_F(explain_test, closing_sets_its_flag_again) {
    deliver_all();
    start();
    choose("mnuhelpport_explain");
    EXPECT_FALSE(kavetta().app_state.port_explain_closed);
    loaded("port_explain")->close();
    EXPECT_TRUE(kavetta().app_state.port_explain_closed);
    EXPECT_EQ(loaded("port_explain"), nullptr);
}

TEST_F(explain_test, the_picture_keeps_its_proportions_in_a_window_of_any_size) {
    deliver_all();
    start();
    choose("mnuhelpport_explain");
    loaded("port_explain")->resize(400, 400);
    settle();
    const QImage seen = find_on<QWidget>("port_explain", "Image1")->grab().toImage();
    // 2000 x 500 in a width of about 390 is about 97 high: paper above and below.
    EXPECT_EQ(seen.pixelColor(seen.width() / 2, 20), QColor(Qt::white));
    EXPECT_GT(seen.pixelColor(seen.width() / 2, seen.height() / 2).green(), 200);
    EXPECT_LT(seen.pixelColor(seen.width() / 2, seen.height() / 2).red(), 60);
}

TEST_F(explain_test, shown_again_it_is_the_same_window) {
    deliver_all();
    start();
    choose("mnuhelpexplain");
    const QMdiSubWindow* first = loaded("explain");
    choose("mnuhelpexplain");
    EXPECT_EQ(loaded("explain"), first);
}

TEST_F(explain_test, a_missing_picture_is_fatal_and_saves_the_entries) {
    start();
    type("ecc", "2.75");
    choose("mnuhelpexplain");
    EXPECT_TRUE(desk().runner().has_ended());
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_NE(robot.messages[0].find("Run-time error 53"), std::string::npos) << robot.messages[0];
    EXPECT_NE(read_file(folder.path() / "recovery.KVT").find("2.75\r\n"), std::string::npos);
}

TEST_F(explain_test, a_file_that_is_no_picture_is_fatal_too) {
    write_file(folder.path() / "explain screen - small1.jpg", "no picture");
    start();
    choose("mnuhelpexplain");
    EXPECT_TRUE(desk().runner().has_ended());
    EXPECT_EQ(robot.messages.size(), 1U);
}

}  // namespace kvt
