// A project by a link, as this system has them.
#include "app/desk/handed_project.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/project_fixture.hpp"

namespace kvt {
namespace {

using handed_link = project_test;

TEST_F(handed_link, is_the_same_project_as_the_file_that_it_names) {
    person.files = {folder.file("own.KVT")};
    ASSERT_TRUE(save_project_as(kavetta, person));
    std::filesystem::create_symlink(folder / "own.KVT", folder / "link.KVT");
    EXPECT_EQ(answer_handover(kavetta, folder.file("link.KVT"), true), handover_answer::shows);
}

}  // namespace
}  // namespace kvt
