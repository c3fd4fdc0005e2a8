// The file dialogs: filters, start folder, proposed name, default extension.
#include "ui/shell/file_dialogs.hpp"

#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QFileDialog>
#include <QTreeView>

namespace kvt {

namespace {

class file_dialogs_test : public desktop_test {};

}  // namespace

TEST(name_filters, match_both_ways_to_write_the_extension) {
    EXPECT_EQ(name_filters("All files|*.*|KVT|*.KVT"),
              QStringList({"All files (*)", "KVT (*.KVT *.kvt)"}));
    EXPECT_EQ(name_filters(""), QStringList());
}

TEST_F(file_dialogs_test, the_save_dialog_proposes_the_name_and_adds_the_extension) {
    start();
    kavetta().app_state.project_name = "pump";
    QString proposed;
    QString filter;
    QString title;
    robot.at_file_dialog = [&](QFileDialog& dialog) {
        proposed = dialog.findChild<QLineEdit*>("fileNameEdit")->text();
        filter = dialog.selectedNameFilter();
        title = dialog.windowTitle();
        EXPECT_EQ(dialog.directory().absolutePath(),
                  qt_text((folder.path() / "projects").string()));
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    };
    robot.files.emplace_back((folder.path() / "projects" / "mine").string());
    choose("mnufilesaveas");
    EXPECT_EQ(proposed, "pump");
    EXPECT_EQ(filter, "KVT (*.KVT *.kvt)");
    EXPECT_EQ(title, "Kavetta V2021 - Save Project");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "projects" / "mine.KVT"));
    EXPECT_EQ(kavetta().app_state.project_name, "mine");
}

TEST_F(file_dialogs_test, show_names_in_full) {
    start();
    const std::string name = "oil pump " + std::string(60, 'm') + ".KVT";
    write_file(folder.path() / "projects" / name, "");
    int needed = 0;
    int width = 0;
    robot.at_file_dialog = [&](QFileDialog& dialog) {
        const auto* list = dialog.findChild<QTreeView*>("treeView");
        ASSERT_TRUE(list->isVisible());
        needed = list->fontMetrics().horizontalAdvance(qt_text(name));
        width = list->columnWidth(0);
    };
    robot.files.emplace_back(std::nullopt);
    choose("mnufileopen");
    EXPECT_GT(needed, 0);
    EXPECT_GT(width, needed);
}

}  // namespace kvt
