// Pipes where the program's own files are looked for: nobody waits for what comes out of them.
#include "app/desk/layout_commands.hpp"
#include "app/desk/unsaved_files.hpp"
#include "app/files/project_fixture.hpp"

#include <sys/stat.h>

namespace kvt {
namespace {

using pipes_test = project_test;

TEST_F(pipes_test, start_takes_one_for_no_layout) {
    ASSERT_EQ(mkfifo((folder / "screen.ini").c_str(), 0600), 0);
    EXPECT_EQ(show_start_layout(kavetta, person).focus, "Form1");
    EXPECT_EQ(kavetta.window_rectangles, window_rectangles());
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(pipes_test, unsaved_files_say_why_one_can_not_be_read) {
    ASSERT_EQ(mkfifo((folder / "autosave.KVT").c_str(), 0600), 0);
    const std::vector<left_file> files = find_left_files(folder.path());
    ASSERT_EQ(files.size(), 1U);
    EXPECT_FALSE(files[0].record);
    ASSERT_TRUE(files[0].unreadable);
    EXPECT_EQ(files[0].unreadable->kind(), failure::path_file_access);
    EXPECT_TRUE(std::filesystem::exists(folder / "autosave.KVT"));
}

}  // namespace
}  // namespace kvt
