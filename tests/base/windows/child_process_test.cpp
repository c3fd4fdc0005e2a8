#include "base/child_process.hpp"

#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace kvt {
namespace {

const std::filesystem::path SHELL = "C:\\windows\\system32\\cmd.exe";

bool ends(child_process& child) {
    for (int i = 0; i < 200 && child.is_running(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return !child.is_running();
}

TEST(child_process, runs_in_its_folder) {
    const temporary_folder folder;
    child_process child;
    child.start(SHELL, {"/c", "mkdir", "there"}, folder.path());
    EXPECT_TRUE(ends(child));
    EXPECT_TRUE(std::filesystem::exists(folder / "there"));
}

TEST(child_process, is_ended_with_its_own_children) {
    const temporary_folder folder;
    child_process child;
    child.start(SHELL, {"/c", "cmd", "/c", "pause"}, folder.path());
    EXPECT_TRUE(child.is_running());
    child.end();
    EXPECT_FALSE(child.is_running());
}

TEST(child_process, that_cannot_be_started_is_a_failure) {
    const temporary_folder folder;
    child_process child;
    EXPECT_FAILURE(child.start(folder / "none.exe", {}, folder.path()), failure::path_file_access);
    EXPECT_FALSE(child.is_running());
}

}  // namespace
}  // namespace kvt
