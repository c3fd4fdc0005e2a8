// Saving where the folder takes no further file, by permissions as this system has them.
#include "app/desk/autosave.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/project_entries.hpp"
#include "app/files/project_fixture.hpp"
#include "base/path_text.hpp"
#include "support/unprivileged.hpp"

namespace kvt {
namespace {

using save_project_test = project_test;

TEST_F(save_project_test, overwrites_in_a_folder_that_takes_no_file_only_after_a_question) {
    const std::string path = project_file("pump.KVT", project_lines());
    open_project_file(kavetta, person, path);
    const std::string before = read_file(path);
    const std::filesystem::path projects = folder.path() / "projects";
    std::filesystem::permissions(path_of_utf8(path), std::filesystem::perms(0666));
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(projects, std::filesystem::perms(0555));
    kavetta.entries.ecc = "3";
    person.answers = {answer::no, answer::yes};
    {
        const unprivileged somebody;
        save_project(kavetta, person);
        EXPECT_EQ(read_file(path), before);
        EXPECT_TRUE(has_unsaved_changes(kavetta));
        save_project(kavetta, person);
    }
    std::filesystem::permissions(projects, std::filesystem::perms(0755));
    EXPECT_EQ(person.questions.at(0),
              path +
                  " can only be overwritten where it stands, since its folder takes no other "
                  "file. A failure meanwhile would leave it incomplete. Do you wish to "
                  "overwrite it?");
    EXPECT_EQ(line_of(path, 11), "3");
    EXPECT_FALSE(has_unsaved_changes(kavetta));
}

}  // namespace
}  // namespace kvt
