// present_layout: Save Current Layout, Restore Default Layout and the layout of the start.
#include "ui/shell/present_layout.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

#include <QImage>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

namespace kvt {

namespace {

class present_layout_test : public desktop_test {
  protected:
    QMdiSubWindow* form(const char* name) { return find<QMdiSubWindow>(name); }
    std::filesystem::path file() const { return folder.path() / "screen.ini"; }
    std::string save() {
        choose("mnuscreensave");
        EXPECT_EQ(robot.messages, std::vector<std::string>{"Screen Layout Saved"});
        return read_file(file());
    }
    /// The five fixed blocks of the built-in layout.
    static std::string fixed_blocks() {
        return block("Design", 8085, 5430, 0, 0) + block("Port Design", 2895, 10200, 8100, 0) +
               block("View", 7185, 6375, 0, 8995) + block("Performance", 8085, 3525, 0, 5450) +
               block("Charts", 2355, 4395, 8100, 10220);
    }
    static std::string chart_blocks() {
        std::string blocks;
        for (const char* chart :
             {"Flow", "Power", "Stress", "Ripple", "VE", "Mech Effic", "Overall Effic"}) {
            blocks += block(std::string(chart) + " Chart", 4500, 6000, 150, 300);
        }
        return blocks;
    }
    /// The five windows are on display, inside their area, none over another.
    void expect_side_by_side() {
        const QRect room(QPoint(0, 0), find<QMdiArea>("")->maximumViewportSize());
        QList<QMdiSubWindow*> forms;
        for (const form_row& row : fixed_child_rows()) {
            forms.append(form(std::string(row.name).c_str()));
        }
        for (const QMdiSubWindow* one : forms) {
            EXPECT_TRUE(one->isVisible()) << one->objectName().toStdString();
            EXPECT_TRUE(room.contains(one->geometry())) << one->objectName().toStdString();
            for (const QMdiSubWindow* other : forms) {
                EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()))
                    << one->objectName().toStdString() << " and "
                    << other->objectName().toStdString();
            }
        }
    }
    void deliver_explanation() {
        QImage picture(300, 200, QImage::Format_RGB32);
        picture.fill(Qt::white);
        EXPECT_TRUE(picture.save(
            qt_text(utf8_of_path(folder.path() / "explain screen - small1.jpg")), "JPG"));
    }
    static std::string block(const std::string& heading, int height, int width, int top, int left) {
        std::string text = heading + "\r\n";
        for (const int number : {height, width, top, left}) {
            text += " " + std::to_string(number) + " \r\n";
        }
        return text + "\r\n";
    }
};

}  // namespace

TEST_F(present_layout_test, saves_the_windows_as_they_stand) {
    start();
    form("Form1")->setGeometry(20, 30, 380, 560);
    form("portdes")->setGeometry(0, 600, 700, 200);
    const std::string saved = save();
    EXPECT_EQ(saved,
              block("Design", 8400, 5700, 450, 300) + block("Port Design", 3000, 10500, 9000, 0) +
                  block("View", 7185, 6390, 0, 9000) + block("Performance", 8085, 3525, 0, 5445) +
                  block("Charts", 2355, 4395, 8100, 10215));
}

TEST_F(present_layout_test, a_saved_layout_comes_back_at_the_next_start) {
    start();
    form("Form1")->setGeometry(20, 30, 380, 560);
    form("viewwinfrm")->setGeometry(450, 15, 500, 379);
    save();
    start();
    EXPECT_EQ(form("Form1")->geometry(), QRect(20, 30, 380, 560));
    EXPECT_EQ(form("viewwinfrm")->geometry(), QRect(450, 15, 326, 379));
    EXPECT_EQ(kavetta().view_state.view_size, 4500);
    EXPECT_TRUE(window().isMaximized());
}

TEST_F(present_layout_test, a_main_window_that_is_not_maximised_gets_its_block) {
    start();
    window().showNormal();
    window().move(40, 50);
    window().resize(700, 500);
    settle();
    EXPECT_TRUE(save().ends_with(block("Main Screen", 7500, 10500, 750, 600)));
}

TEST_F(present_layout_test,
       lines_behind_the_last_block_leave_the_main_window_where_its_block_says) {
    write_file(file(), fixed_blocks() + block("Main Screen", 7500, 10500, 750, 600) +
                           chart_blocks() + "\r\n");
    start();
    EXPECT_FALSE(window().isMaximized());
    EXPECT_EQ(window().pos(), QPoint(40, 50));
    EXPECT_EQ(window().size(), QSize(700, 500));
    EXPECT_EQ(form("Form1")->geometry(), QRect(0, 0, 362, 539));
    EXPECT_EQ(kavetta().window_rectangles.of("FLOW_graphview2")->height, 4500);
}

TEST_F(present_layout_test, a_layout_that_is_none_gives_the_built_in_sizes) {
    write_file(file(), "Design\r\n 8400 \r\nmany\r\n");
    start();
    EXPECT_EQ(form("Form1")->size(), QSize(362, 539));
    EXPECT_EQ(form("viewwinfrm")->geometry(), QRect(600, 0, 426, 479));
    EXPECT_TRUE(window().isMaximized());
}

TEST_F(present_layout_test, restore_brings_closed_and_maximised_windows_back_to_their_places) {
    start();
    form("viewwinfrm")->close();
    form("portdes")->showMaximized();
    form("Form1")->setGeometry(200, 200, 300, 300);
    window().showNormal();
    settle();
    choose("mnuscreenrestore");
    EXPECT_EQ(form("Form1")->geometry(), QRect(0, 0, 362, 539));
    EXPECT_TRUE(form("viewwinfrm")->isVisible());
    EXPECT_EQ(form("viewwinfrm")->geometry(), QRect(600, 0, 426, 479));
    EXPECT_FALSE(form("portdes")->isMaximized());
    EXPECT_EQ(form("portdes")->geometry(), QRect(0, 540, 680, 193));
    EXPECT_TRUE(window().isMaximized());
    EXPECT_EQ(robot.messages, std::vector<std::string>());
    EXPECT_TRUE(read_file(file()).starts_with(block("Design", 8085, 5430, 0, 0)));
}

TEST_F(present_layout_test, a_maximised_or_minimised_window_is_saved_where_it_goes_back_to) {
    start();
    form("portdes")->setGeometry(10, 500, 700, 200);
    form("portdes")->showMaximized();
    form("Form1")->showMinimized();
    settle();
    const window_rectangles windows = present_layout(window());
    EXPECT_EQ(windows.of("portdes"), (window_rectangle{3000, 10500, 7500, 150}));
    EXPECT_EQ(windows.of("Form1"), (window_rectangle{8085, 5430, 0, 0}));
}

TEST_F(present_layout_test,
       an_explanation_window_of_the_layout_is_open_at_the_start_and_saved_again) {
    deliver_explanation();
    write_file(file(), fixed_blocks() + block("Gerotor Explanation", 3000, 4500, 600, 750) +
                           chart_blocks());
    start();
    ASSERT_NE(loaded("explain"), nullptr);
    EXPECT_TRUE(loaded("explain")->isVisible());
    EXPECT_EQ(loaded("explain")->geometry(), QRect(50, 40, 300, 200));
    EXPECT_FALSE(kavetta().app_state.explain_closed);
    EXPECT_TRUE(save().ends_with(block("Gerotor Explanation", 3000, 4500, 600, 750)));
}

TEST_F(present_layout_test, restore_unloads_the_explanation_windows) {
    deliver_explanation();
    start();
    choose("mnuhelpexplain");
    ASSERT_NE(loaded("explain"), nullptr);
    choose("mnuscreenrestore");
    EXPECT_EQ(loaded("explain"), nullptr);
    EXPECT_TRUE(kavetta().app_state.explain_closed);
}

TEST_F(present_layout_test, a_layout_that_cannot_be_written_is_fatal) {
    start();
    std::filesystem::remove(file());
    std::filesystem::create_directory(file());
    choose("mnuscreensave");
    EXPECT_TRUE(desk().runner().has_ended());
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_TRUE(robot.messages[0].starts_with("Run-time error ")) << robot.messages[0];
}

TEST_F(present_layout_test, fit_to_window_shows_all_forms_side_by_side) {
    start();
    window().showNormal();
    window().resize(760, 620);
    form("portdes")->close();
    choose("mnuscreenfit");
    expect_side_by_side();
    EXPECT_EQ(window().size(), QSize(760, 620));
    EXPECT_EQ(robot.messages, std::vector<std::string>());
}

TEST_F(present_layout_test, the_first_start_on_a_small_screen_fits_the_window) {
    std::filesystem::remove(file());
    start();
    settle();
    expect_side_by_side();
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(present_layout_test, a_later_start_has_the_layout_of_the_file_also_on_a_small_screen) {
    write_file(file(), fixed_blocks());
    start();
    settle();
    EXPECT_EQ(form("select_graphs")->x(), 10220 / 15);
}

TEST_F(present_layout_test, a_window_outside_every_screen_opens_inside) {
    write_file(file(),
               block("Design", 8085, 5430, 0, 0) +
                   block("Port Design", 2895, 10200, 900000, 900000) +
                   block("View", 7185, 6375, 0, 8995) + block("Performance", 8085, 3525, 0, 5450) +
                   block("Charts", 2355, 4395, 8100, 10220) +
                   block("Main Screen", 7500, 10500, 300000, 300000) + chart_blocks() + "\r\n");
    start();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    // Its frame of two pixels is the window system's.
    EXPECT_TRUE(screen.adjusted(0, 0, 4, 4).contains(window().geometry()))
        << window().pos().x() << ", " << window().pos().y();
    EXPECT_EQ(window().size(), QSize(700, 500));
    EXPECT_TRUE(screen.contains(form("portdes")->geometry().topLeft()));
    EXPECT_EQ(form("portdes")->size(), QSize(680, 193));
}

TEST_F(present_layout_test,
       a_layout_without_the_picture_of_its_explanation_gives_the_built_in_one) {
    write_file(file(), block("Design", 8400, 5700, 0, 0) +
                           fixed_blocks().substr(fixed_blocks().find("Port Design")) +
                           block("Gerotor Explanation", 3000, 4500, 600, 750) + chart_blocks());
    start();
    EXPECT_FALSE(desk().runner().has_ended());
    EXPECT_EQ(robot.messages, std::vector<std::string>());
    EXPECT_EQ(loaded("explain"), nullptr);
    EXPECT_TRUE(kavetta().app_state.explain_closed);
    EXPECT_EQ(form("Form1")->size(), QSize(362, 539));
    EXPECT_TRUE(window().isMaximized());
}

}  // namespace kvt
