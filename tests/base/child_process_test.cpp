#include "base/child_process.hpp"

#include "base/path_text.hpp"
#include "base/whole_file.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"

#include <chrono>
#include <thread>

namespace kvt {
namespace {

/// Waits for the end of a program, ten seconds at most.
bool ends(child_process& child) {
    for (int i = 0; i < 1000 && child.is_running(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return !child.is_running();
}

TEST(child_process, runs_in_its_folder_with_its_arguments_as_they_are) {
    const temporary_folder folder;
    child_process child;
    child.start("/bin/sh", {"-c", "printf '%s|%s' \"$(pwd)\" \"$1\" > out", "sh", "a \"b\" $c"},
                folder.path());
    ASSERT_TRUE(ends(child));
    EXPECT_EQ(read_file(folder / "out"), utf8_of_path(folder.path()) + "|a \"b\" $c");
}

TEST(child_process, is_ended_with_its_own_children) {
    const temporary_folder folder;
    const auto start = std::chrono::steady_clock::now();
    {
        child_process child;
        child.start("/bin/sh", {"-c", "sleep 30; : > late"}, folder.path());
        EXPECT_TRUE(child.is_running());
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_FALSE(std::filesystem::exists(folder / "late"));
}

TEST(child_process, that_was_never_started_does_not_run) {
    child_process child;
    EXPECT_FALSE(child.is_running());
    child.end();
}

TEST(child_process, that_cannot_be_started_is_a_failure) {
    const temporary_folder folder;
    child_process child;
    EXPECT_FAILURE(child.start(folder / "none", {}, folder.path()), failure::path_file_access);
    EXPECT_FAILURE(child.start("/bin/sh", {}, folder / "none"), failure::path_file_access);
    EXPECT_FALSE(child.is_running());
}

}  // namespace
}  // namespace kvt
