// The recent project list and the halves of a path.
#include "core/recent_list.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace kvt {

namespace {

std::vector<std::string> captions(const app_state& state) {
    return {std::begin(state.mnufileprev), std::end(state.mnufileprev)};
}

app_state state_with(const std::vector<std::string>& entries) {
    app_state state;
    std::copy(entries.begin(), entries.end(), state.mnufileprev);
    return state;
}

using texts = std::vector<std::string>;

TEST(update_recent_list, moves_the_others_down_and_drops_the_last) {
    app_state state = state_with({"a", "b", "c", "d"});
    update_recent_list(state, "new");
    EXPECT_EQ(captions(state), (texts{"new", "a", "b", "c"}));
}

TEST(update_recent_list, leaves_the_list_when_the_path_stands_first) {
    app_state state = state_with({"a", "b", "c", "d"});
    update_recent_list(state, "a");
    EXPECT_EQ(captions(state), (texts{"a", "b", "c", "d"}));
}

TEST(update_recent_list, lets_a_path_stand_twice) {
    app_state state = state_with({"a", "b", "c", "d"});
    update_recent_list(state, "c");
    EXPECT_EQ(captions(state), (texts{"c", "a", "b", "c"}));
}

TEST(update_recent_list, compares_the_case_too) {
    app_state state = state_with({"a", "b", "c", "d"});
    update_recent_list(state, "A");
    EXPECT_EQ(captions(state), (texts{"A", "a", "b", "c"}));
}

TEST(update_recent_list, takes_one_of_its_own_captions) {
    app_state state = state_with({"a", "b", "a longer path that is moved while it is read", "d"});
    update_recent_list(state, state.mnufileprev[2]);
    EXPECT_EQ(state.mnufileprev[0], "a longer path that is moved while it is read");
}

struct path_case {
    const char* path;
    const char* folder;
    const char* name;
};

constexpr path_case PATHS[] = {
    {"", "", ""},
    {"a.KVT", "", "a.KVT"},
    {"C:\\pumps\\a.KVT", "C:\\pumps", "a.KVT"},
    {"/home/me/a.KVT", "/home/me", "a.KVT"},
    {"/home\\me/a.KVT", "/home\\me", "a.KVT"},
    {"/home/me\\a.KVT", "/home/me", "a.KVT"},
    {"/a.KVT", "", "a.KVT"},
    {"C:\\pumps\\", "C:\\pumps", ""},
};

TEST(folder_of_path, is_the_text_before_the_last_separator) {
    for (const path_case& expected : PATHS) {
        EXPECT_EQ(folder_of_path(expected.path), expected.folder) << expected.path;
    }
}

TEST(file_name_of_path, is_the_text_behind_the_last_separator) {
    for (const path_case& expected : PATHS) {
        EXPECT_EQ(file_name_of_path(expected.path), expected.name) << expected.path;
    }
}

}  // namespace

}  // namespace kvt
