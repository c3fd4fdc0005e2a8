// Tests of the Design Sheet entry in the running program, with the save dialog answered.
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

#include <QProcess>

namespace kvt {
namespace {

class design_sheet_desktop_test : public desktop_test {
  protected:
    std::string file() const { return utf8_of_path(folder / "sheet.pdf"); }
};

TEST_F(design_sheet_desktop_test, writes_the_pages_of_a_calculated_design) {
    start(design_file("n04_fuel"));
    press("Calc");
    robot.files.emplace_back(file());
    find<QAction>("mnufilesheet")->trigger();
    QProcess reader;
    reader.start("pdftotext", {"-layout", qt_text(file()), "-"});
    ASSERT_TRUE(reader.waitForFinished());
    const std::string text = reader.readAllStandardOutput().toStdString();
    EXPECT_NE(text.find("Eccentricity"), std::string::npos) << text;
    EXPECT_NE(text.find("There are no ports of this project yet."), std::string::npos) << text;
}

TEST_F(design_sheet_desktop_test, says_that_profiles_are_missing) {
    start(design_file("n04_fuel"));
    find<QAction>("mnufilesheet")->trigger();
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{
                  "Calculate Profiles first: there are no profiles of this project yet."});
    EXPECT_FALSE(std::filesystem::exists(file()));
}

}  // namespace
}  // namespace kvt
