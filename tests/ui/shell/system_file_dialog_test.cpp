// The dialog of the system, in whose place Qt's own stands here: it adds an ending to names without
// a point alone, as such dialogs may.
#include "ui/shell/system_file_dialog.hpp"

#include "base/text_file.hpp"
#include "base/whole_file.hpp"
#include "support/temporary_folder.hpp"
#include "ui/dialog_robot.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class system_file_dialog : public testing::Test {
  protected:
    std::optional<std::string> chosen(bool saving) {
        file_dialog dialog;
        dialog.saving = saving;
        dialog.filter = "All files|*.*|KVT|*.KVT";
        dialog.default_extension = "KVT";
        dialog.flags = OVERWRITE_PROMPT;
        return run_system_file_dialog(dialog, nullptr);
    }

    temporary_folder folder;
    dialog_robot robot;
};

TEST_F(system_file_dialog, has_names_with_their_ending) {
    robot.files = {folder.file("pump"), folder.file("Pump 2.5"), folder.file("lower.kvt"),
                   std::nullopt};
    EXPECT_EQ(chosen(true), folder.file("pump.KVT"));
    EXPECT_EQ(chosen(true), folder.file("Pump 2.5.KVT"));
    EXPECT_EQ(chosen(true), folder.file("lower.kvt"));
    EXPECT_EQ(chosen(true), std::nullopt);
    EXPECT_TRUE(robot.questions.empty());
}

TEST_F(system_file_dialog, asks_about_a_name_that_got_its_ending_and_comes_again_after_no) {
    write_file(folder / "Pump 2.5.KVT", "there");
    robot.files = {folder.file("Pump 2.5"), folder.file("Pump 3.5")};
    robot.answers = {"&No"};
    EXPECT_EQ(chosen(true), folder.file("Pump 3.5.KVT"));
    EXPECT_EQ(robot.questions,
              std::vector<std::string>{"Pump 2.5.KVT already exists.\nDo you want to replace it?"});
    robot.files = {folder.file("Pump 2.5")};
    robot.answers = {"&Yes"};
    EXPECT_EQ(chosen(true), folder.file("Pump 2.5.KVT"));
}

TEST_F(system_file_dialog, opens_what_is_there_as_it_is_called) {
    write_file(folder / "pump.bak", "there");
    robot.files = {folder.file("pump.bak")};
    EXPECT_EQ(chosen(false), folder.file("pump.bak"));
}

}  // namespace
}  // namespace kvt
