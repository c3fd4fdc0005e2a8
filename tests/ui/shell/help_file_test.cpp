// help_file: F1 and Display Help File.
#include "ui/shell/help_file.hpp"

#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/recording_viewer.hpp"

namespace kvt {

namespace {

class help_file_test : public desktop_test {
  protected:
    std::filesystem::path help() const { return folder.path() / "KVT_V2021_Help_EN.pdf"; }
    recording_viewer viewer;
};

}  // namespace

TEST_F(help_file_test, the_menu_opens_it_in_either_language) {
    for (const char language : {'1', '2'}) {
        write_settings(language);
        write_file(help(), "%PDF");
        start();
        viewer.opened.clear();
        choose("mnuhelpcontents");
        EXPECT_EQ(viewer.opened, std::vector<std::string>{utf8_of_path(help())}) << language;
    }
}

TEST_F(help_file_test, f1_opens_it_from_every_child_window_and_leaves_the_entry_alone) {
    write_file(help(), "%PDF");
    start();
    type("ecc", "2.5");
    for (const char* entry : {"ecc", "rotated_angle"}) {
        viewer.opened.clear();
        QTest::mouseClick(box(entry), Qt::LeftButton);
        QTest::keyClick(box(entry), Qt::Key_F1);
        settle();
        EXPECT_EQ(viewer.opened.size(), 1U) << entry;
    }
    EXPECT_EQ(shown("ecc"), "2.5");
}

TEST_F(help_file_test, a_missing_file_is_told_in_the_status_bar) {
    start();
    choose("mnuhelpcontents");
    EXPECT_EQ(viewer.opened, std::vector<std::string>());
    EXPECT_EQ(status(), "The file could not be opened: " + utf8_of_path(help()));
    EXPECT_FALSE(desk().runner().has_ended());
}

}  // namespace kvt
