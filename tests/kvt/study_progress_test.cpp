// Tests of what a person sees of a long study, and of Ctrl+C.
#include "kvt/study_progress.hpp"

#include <csignal>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace kvt {
namespace {

TEST(study_progress, tells_count_time_and_rate_at_the_end) {
    std::ostringstream err;
    study_progress progress(err, 3, false);
    for (int i = 0; i < 3; ++i) {
        progress.step();
    }
    EXPECT_EQ(err.str(), "");
    progress.finish();
    EXPECT_TRUE(std::regex_match(err.str(), std::regex("3 designs in \\d+ s, \\d+ a second\n")))
        << err.str();
}

TEST(interruption, notes_the_first_signal_and_leaves_the_second_to_the_system) {
    const interruption by_user;
    EXPECT_FALSE(by_user.flag());
    std::raise(SIGINT);
    EXPECT_TRUE(by_user.flag());
    EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_DFL);
}

TEST(interruption, puts_back_what_was_there) {
    std::signal(SIGINT, SIG_IGN);
    {
        const interruption by_user;
        std::raise(SIGINT);
    }
    EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_IGN);
}

TEST(interruption, begins_without_a_signal) {
    {
        const interruption by_user;
        std::raise(SIGINT);
    }
    EXPECT_FALSE(interruption().flag());
}

}  // namespace
}  // namespace kvt
