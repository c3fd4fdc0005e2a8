// Programs that the desktop program starts: hidden, watched, ended with their children, or left.
#include "ui/shell/qt_tools.hpp"

#include "base/whole_file.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"

#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

namespace kvt {

namespace {

started_tool shell(const temporary_folder& folder, const std::string& script) {
    return {"/bin/sh", {"-c", script, "sh", "a \"b\" ö"}, folder.path()};
}

}  // namespace

TEST(qt_tools, run_in_their_folder_with_their_arguments_as_they_are) {
    const temporary_folder folder;
    qt_tools tools;
    tools.start(shell(folder, "printf '%s|%s' \"$(pwd)\" \"$1\" > out"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tools.is_running(); }));
    EXPECT_EQ(read_file(folder / "out"), folder.path().string() + "|a \"b\" ö");
}

TEST(qt_tools, are_ended_with_their_children) {
    const temporary_folder folder;
    qt_tools tools;
    QElapsedTimer timer;
    timer.start();
    tools.start(shell(folder, "sleep 30; : > late"));
    EXPECT_TRUE(tools.is_running());
    tools.end();
    EXPECT_FALSE(tools.is_running());
    EXPECT_LT(timer.elapsed(), 10000);
    EXPECT_FALSE(std::filesystem::exists(folder / "late"));
}

TEST(qt_tools, that_cannot_be_started_are_a_failure) {
    const temporary_folder folder;
    qt_tools tools;
    const started_tool none = {folder / "none", {}, folder.path()};
    EXPECT_FAILURE(tools.start(none), failure::path_file_access);
    EXPECT_FAILURE(start_detached_tool(none), failure::path_file_access);
}

TEST(qt_tools, that_are_detached_go_on_by_themselves) {
    const temporary_folder folder;
    start_detached_tool(shell(folder, ": > done"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(folder / "done"); }));
}

}  // namespace kvt
