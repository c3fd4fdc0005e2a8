// window_menu: the titles of the child windows, and how a hidden one comes back.
#include "ui/desktop_fixture.hpp"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

namespace kvt {

namespace {

class window_menu_test : public desktop_test {
  protected:
    std::vector<std::string> titles() {
        std::vector<std::string> found;
        for (const QAction* entry : find<QMenu>("mnuwindow")->actions()) {
            found.push_back(utf8_text(entry->text()));
        }
        return found;
    }
    QMdiSubWindow* form(const char* name) { return find<QMdiSubWindow>(name); }
    QMdiSubWindow* active() { return find<QMdiArea>("")->activeSubWindow(); }
};

}  // namespace

TEST_F(window_menu_test, has_the_titles_of_the_five_windows_the_results_and_the_models) {
    start();
    const std::vector<std::string> expected = {"Preview",
                                               "Pin Design",
                                               "Pin Project File...",
                                               "Unpin Design",
                                               "",  // a line
                                               "Design",
                                               "Port Design",
                                               "Design View",
                                               "Performance",
                                               "Charts",
                                               "Performance Results",
                                               "Result Tables",
                                               "Exact Figures",
                                               "Model View",
                                               "Study"};
    EXPECT_EQ(titles(), expected);
}

TEST_F(window_menu_test, shows_the_results_again_while_they_stand) {
    start(own_design_file("n07_engine_oil_groove"));
    EXPECT_FALSE(find<QAction>("mnuwindow_perf_res")->isEnabled());
    press("Calc");
    press("design_ports");
    press("calc_perf");
    ASSERT_NE(loaded("perf_res"), nullptr);
    loaded("perf_res")->close();
    settle();
    EXPECT_EQ(loaded("perf_res"), nullptr);
    EXPECT_TRUE(find<QAction>("mnuwindow_perf_res")->isEnabled());
    choose("mnuwindow_perf_res");
    ASSERT_NE(loaded("perf_res"), nullptr);
    EXPECT_TRUE(loaded("perf_res")->isVisible());
    EXPECT_EQ(label_on("perf_res", "max_speed"), kavetta().labels.max_speed);
}

TEST_F(window_menu_test, shows_the_titles_in_german) {
    write_settings('2');
    start();
    EXPECT_EQ(utf8_text(find<QMenu>("mnuwindow")->title()), "&Fenster") << "with its access key";
    EXPECT_EQ(titles()[5], utf8_text(form("Form1")->windowTitle()));
    EXPECT_EQ(titles()[7], "Entwerfen Sie Blick");
}

TEST_F(window_menu_test, shows_a_closed_window_again_in_front_with_its_entries) {
    start();
    type("rotated_angle", "5");
    form("viewwinfrm")->close();
    EXPECT_FALSE(form("viewwinfrm")->isVisible());
    choose("mnuwindow_viewwinfrm");
    EXPECT_TRUE(form("viewwinfrm")->isVisible());
    EXPECT_EQ(active(), form("viewwinfrm"));
    EXPECT_EQ(shown("rotated_angle"), "5");
}

TEST_F(window_menu_test, brings_a_minimised_window_back) {
    start();
    form("portdes")->showMinimized();
    choose("mnuwindow_portdes");
    EXPECT_FALSE(form("portdes")->isMinimized());
    EXPECT_EQ(active(), form("portdes"));
}

TEST_F(window_menu_test, is_the_last_menu_before_help) {
    start();
    const QList<QAction*> bar = window().menuBar()->actions();
    EXPECT_EQ(bar[bar.size() - 2]->menu()->objectName(), "mnuwindow");
    EXPECT_EQ(bar[bar.size() - 1]->menu()->objectName(), "mnuhelp");
}

}  // namespace kvt
