// The menu tree: every entry and its state at the start.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QMenu>
#include <QMenuBar>

#include <set>

namespace kvt {

namespace {

class main_menu_test : public desktop_test {};

std::string without_key(std::string_view text) {
    std::string plain(text);
    std::erase(plain, '&');
    return plain;
}

}  // namespace

TEST_F(main_menu_test, has_every_entry_of_the_text_table_with_its_caption) {
    start();
    for (const text_row& row : text_rows()) {
        if (row.form == "MDIForm1" && row.name.starts_with("mnu")) {
            const std::string name(row.name);
            QObject* found = window().findChild<QMenu*>(name.c_str());
            const QAction* action = found == nullptr
                                        ? find<QAction>(name.c_str())
                                        : window().findChild<QMenu*>(name.c_str())->menuAction();
            ASSERT_NE(action, nullptr) << name;
            // The titles in the bar have access keys of their own, those of a menu come as it
            // opens.
            const bool is_title = window().menuBar()->actions().contains(action);
            const QString text = is_title ? action->text().remove('&') : action->text();
            EXPECT_EQ(utf8_text(text), is_title ? without_key(row.english) : row.english) << name;
        }
    }
}

TEST_F(main_menu_test, stands_in_the_bar_in_its_order) {
    start();
    std::vector<std::string> bar;
    for (const QAction* action : window().menuBar()->actions()) {
        bar.push_back(utf8_text(action->menu()->objectName()));
    }
    const std::vector<std::string> expected = {"mnufile",    "mnuedit",   "mnumodel", "mnustep",
                                               "mnudxf",     "mnuother",  "mnudata",  "mnuscreen",
                                               "mnuupdates", "mnuwindow", "mnuhelp"};
    EXPECT_EQ(bar, expected);
}

TEST_F(main_menu_test, enables_the_other_files_with_the_dxf_files) {
    start();
    const auto is_usable = [this](const char* name) {
        return find<QMenu>(name)->menuAction()->isEnabled();
    };
    EXPECT_FALSE(is_usable("mnuother"));
    kavetta().enabling.mnudxf = true;
    window().findChild<main_menu*>()->refresh();
    EXPECT_TRUE(is_usable("mnudxf"));
    EXPECT_TRUE(is_usable("mnuother"));
    EXPECT_TRUE(find<QMenu>("mnustepexact")->findChildren<QAction*>().size() >= 4);
}

TEST_F(main_menu_test, hides_updates_and_the_two_port_files_for_simulation) {
    start();
    EXPECT_FALSE(find<QMenu>("mnuupdates")->menuAction()->isVisible());
    EXPECT_FALSE(find<QAction>("mnustepports_inlet_GT")->isVisible());
    EXPECT_FALSE(find<QAction>("mnustepport_outlet_GT")->isVisible());
    EXPECT_TRUE(find<QAction>("mnuupdatesauto")->isChecked());
}

TEST_F(main_menu_test, shows_no_recent_entry_before_one_was_opened) {
    start();
    for (const char* entry : {"mnufileprev0", "mnufileprev1", "mnufileprev2", "mnufileprev3"}) {
        EXPECT_FALSE(find<QAction>(entry)->isVisible()) << entry;
    }
}

TEST_F(main_menu_test, a_recent_entry_that_was_never_set_stays_hidden_when_the_list_moves) {
    start(design_file("n04_fuel"));
    EXPECT_EQ(kavetta().app_state.mnufileprev[1], "&1");
    EXPECT_TRUE(find<QAction>("mnufileprev0")->isVisible());
    EXPECT_FALSE(find<QAction>("mnufileprev1")->isVisible());
}

TEST_F(main_menu_test, every_entry_has_a_command) {
    start();
    // The commands of these need the windows themselves.
    const std::set<std::string_view> by_window = {"mnuscreensave", "mnuscreenrestore",
                                                  "mnuscreenfit",  "mnuhelpabout",
                                                  "mnudatacnc",    "mnuedithistory"};
    for (const menu_row& row : menu_rows()) {
        if (row.kind == menu_kind::entry && row.command == nullptr &&
            !by_window.contains(row.name)) {
            ADD_FAILURE() << row.name << " does nothing";
        }
    }
}

TEST_F(main_menu_test, has_the_usual_shortcuts) {
    start();
    EXPECT_EQ(find<QAction>("mnufilenew")->shortcut(), QKeySequence(QKeySequence::New));
    EXPECT_EQ(find<QAction>("mnufileopen")->shortcut(), QKeySequence(QKeySequence::Open));
    EXPECT_EQ(find<QAction>("mnufilesave")->shortcut(), QKeySequence(QKeySequence::Save));
    EXPECT_EQ(find<QAction>("mnufilesaveas")->shortcut(),
              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    EXPECT_EQ(find<QAction>("mnufileprint")->shortcut(), QKeySequence(QKeySequence::Print));
    EXPECT_EQ(find<QAction>("mnufileexit")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_EQ(find<QAction>("mnuhelpcontents")->shortcut(), QKeySequence(Qt::Key_F1));
}

}  // namespace kvt
