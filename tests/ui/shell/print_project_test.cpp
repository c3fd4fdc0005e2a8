// Tests of the Print entry in the running program, with the print dialog answered.
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

#include <QProcess>

namespace kvt {
namespace {

class print_project_desktop_test : public desktop_test {
  protected:
    void print() { find<QAction>("mnufileprint")->trigger(); }
    std::string page() {
        QProcess reader;
        reader.start("pdftotext", {"-layout", qt_text(utf8_of_path(folder / "page.pdf")), "-"});
        return reader.waitForFinished() ? reader.readAllStandardOutput().toStdString()
                                        : "no pdftotext";
    }
};

TEST_F(print_project_desktop_test, prints_the_project_as_it_stands) {
    start(design_file("n04_fuel"));
    robot.prints = {utf8_of_path(folder / "page.pdf")};
    print();
    const std::string text = page();
    EXPECT_NE(text.find("Kavetta V2021"), std::string::npos) << text;
    EXPECT_NE(text.find("Min Overall Efficiency"), std::string::npos) << text;
    EXPECT_EQ(robot.proposed_prints.size(), 1U);
    EXPECT_TRUE(robot.proposed_prints[0].ends_with("n04_fuel.pdf")) << robot.proposed_prints[0];
}

TEST_F(print_project_desktop_test, prints_nothing_when_the_dialog_is_cancelled) {
    start(design_file("n04_fuel"));
    robot.prints = {std::nullopt};
    print();
    EXPECT_FALSE(std::filesystem::exists(folder / "page.pdf"));
    EXPECT_EQ(robot.messages, std::vector<std::string>());
}

TEST_F(print_project_desktop_test, ends_without_a_word_where_printing_can_not_begin) {
    start(design_file("n04_fuel"));
    robot.prints = {utf8_of_path(folder / "no folder/page.pdf")};
    print();
    EXPECT_EQ(robot.messages, std::vector<std::string>());
    EXPECT_FALSE(desk().runner().has_ended());
}

}  // namespace
}  // namespace kvt
