// The seven lines of KVT.ini, and the recent paths of preferences.ini.
#include "core/settings_file.hpp"

#include "base/text_file.hpp"
#include "support/property_runs.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kvt {

namespace {

constexpr const char* FULL =
    "C:\\pumps\\one.KVT\r\n"
    "C:\\pumps\\Gr\xF6\xDF"
    "e.KVT\r\n"
    "\r\n"
    "Built-in\r\n"
    "2\r\n"
    "auto\r\n"
    "#03-Nov-21#\r\n";

TEST(read_settings, fills_each_line_into_its_place) {
    app_state state;
    read_settings(FULL, state);
    EXPECT_EQ(state.mnufileprev[0], "&1");
    EXPECT_EQ(state.mnufileprev[1], "C:\\pumps\\one.KVT");
    EXPECT_EQ(state.mnufileprev[2], "C:\\pumps\\Größe.KVT");
    EXPECT_EQ(state.mnufileprev[3], "");
    EXPECT_EQ(state.modelling_package, "Built-in");
    EXPECT_EQ(state.language, GERMAN);
    EXPECT_EQ(state.auto_update_mode, "auto");
    EXPECT_EQ(state.last_update_check, "03-Nov-21");
}

TEST(write_settings, gives_back_the_bytes_that_were_read) {
    app_state state;
    read_settings(FULL, state);
    EXPECT_EQ(write_settings(state), FULL);
}

TEST(read_settings, leaves_empty_values_for_missing_lines) {
    app_state state;
    state.language = GERMAN;
    state.modelling_package = "Built-in";
    state.auto_update_mode = "auto";
    state.last_update_check = "03-Nov-21";
    read_settings("one\r\n", state);
    EXPECT_EQ(state.mnufileprev[0], "&1") << "no line of the file is its";
    EXPECT_EQ(state.mnufileprev[1], "one");
    EXPECT_EQ(state.mnufileprev[2], "");
    EXPECT_EQ(state.mnufileprev[3], "");
    EXPECT_EQ(state.modelling_package, "");
    EXPECT_EQ(state.language, 0);
    EXPECT_EQ(state.auto_update_mode, "");
    EXPECT_EQ(state.last_update_check, "");
}

TEST(read_settings, of_every_length_reads_as_if_the_missing_lines_were_empty) {
    std::string present;
    for (const std::string& line : split_lines(FULL)) {
        app_state cut;
        app_state filled;
        read_settings(present, cut);
        read_settings(present + std::string("\r\n\r\n\r\n\r\n\r\n\r\n\r\n"), filled);
        EXPECT_EQ(write_settings(cut), write_settings(filled));
        present += line + "\r\n";
    }
}

struct language_case {
    const char* line;
    std::int16_t language;
    const char* written;
};

constexpr language_case LANGUAGES[] = {
    {"1", 1, "1"}, {"2", 2, "2"}, {" 2 ", 2, "2"}, {"", 0, ""},
    {"3", 0, ""},  {"22", 0, ""}, {"de", 0, ""},
};

TEST(settings_file, empties_line_5_when_it_names_no_language) {
    for (const language_case& expected : LANGUAGES) {
        app_state state;
        read_settings(std::string("\r\n\r\n\r\n\r\n") + expected.line + "\r\n", state);
        EXPECT_EQ(state.language, expected.language) << expected.line;
        EXPECT_EQ(write_settings(state),
                  std::string("\r\n\r\n\r\n\r\n") + expected.written + "\r\n\r\n##\r\n");
    }
}

TEST(read_settings, keeps_the_date_when_line_7_is_no_date_field) {
    app_state state;
    state.last_update_check = "03-Nov-21";
    for (const char* line : {"", "04-Nov-21", "#04-Nov-21", "04-Nov-21#"}) {
        read_settings(std::string("\r\n\r\n\r\n\r\n1\r\n\r\n") + line + "\r\n", state);
        EXPECT_EQ(state.last_update_check, "03-Nov-21") << line;
    }
}

/// preferences.ini of a program that had none.
std::string own_text(const app_state& state) {
    preferences kept;
    write_own_settings(state, kept);
    return kept.text();
}

/// The recent entries after both files have been written and read.
std::vector<std::string> kept(const std::vector<std::string>& recent) {
    app_state state;
    std::copy(recent.begin(), recent.end(), state.mnufileprev + 1);
    app_state again;
    read_settings(write_settings(state), again);
    read_own_settings(preferences(own_text(state)), again);
    return {again.mnufileprev + 1, again.mnufileprev + 4};
}

TEST(own_settings, keep_paths_whole_that_the_code_page_can_not_hold) {
    const std::vector<std::vector<std::string>> cases = {
        {"/home/Насос.KVT", "/home/Größe.KVT", "/home/泵.KVT"},
        {"", "/泵.KVT", ""},
        {"/а.KVT", "/б.KVT", "/?.KVT"},  // all the same in the code page
        {"/?.KVT", "/а.KVT", "/б.KVT"},
        {"/a\nb.KVT", "/100%0A.KVT", "/c\rЖ%25.KVT"},
        {"/broken\xFFutf8", "/а.KVT", "/а.KVT"},
    };
    for (const std::vector<std::string>& recent : cases) {
        EXPECT_EQ(kept(recent), recent);
    }
}

TEST(own_settings, are_empty_when_KVT_ini_holds_every_path) {
    app_state state;
    read_settings(FULL, state);
    EXPECT_EQ(own_text(state), "");
}

TEST(own_settings, are_utf8_and_KVT_ini_gets_what_it_can_hold) {
    app_state state;
    state.mnufileprev[1] = "/Größe/Насос.KVT";
    EXPECT_TRUE(
        write_settings(state).starts_with("/Gr\xF6\xDF"
                                          "e/?????.KVT\r\n"));
    EXPECT_EQ(own_text(state), "[projects]\r\nrecent_1=/Größe/Насос.KVT\r\n");
}

TEST(read_own_settings, leaves_a_list_alone_that_was_written_without_it) {
    app_state state;
    read_settings("/other.KVT\r\n/???.KVT\r\n", state);
    read_own_settings(preferences("[projects]\r\nrecent_1=/Насос.KVT\r\nrecent_3=/три.KVT\r\n"
                                  "unknown=1\r\nrecent_2\r\nrecent_9=/???.KVT\r\n"),
                      state);
    EXPECT_EQ(state.mnufileprev[1], "/other.KVT");
    EXPECT_EQ(state.mnufileprev[2], "/три.KVT");
    EXPECT_EQ(state.mnufileprev[3], "");
}

TEST(write_own_settings, keeps_what_it_does_not_know_and_drops_what_is_no_longer_true) {
    app_state state;
    state.mnufileprev[1] = "/a.KVT";
    state.mnufileprev[2] = "/Насос.KVT";
    state.mnufileprev[3] = "/b.KVT";
    preferences kept(
        "; mine\r\n[later]\r\nrecent_1=x\r\n[projects]\r\nrecent_1=/泵.KVT\r\n"
        "pinned=/c.KVT\r\nno line of ours\r\n");
    write_own_settings(state, kept);
    EXPECT_EQ(kept.text(),
              "; mine\r\n[later]\r\nrecent_1=x\r\n[projects]\r\n"
              "pinned=/c.KVT\r\nno line of ours\r\nrecent_2=/Насос.KVT\r\n");
}

TEST(own_settings, have_a_line_of_the_preview_while_it_is_off) {
    app_state state;
    EXPECT_TRUE(state.preview_on);
    state.preview_on = false;
    EXPECT_EQ(own_text(state), "[view]\r\npreview=0\r\n");
    app_state again;
    read_own_settings(preferences("[view]\r\npreview=0\r\n"), again);
    EXPECT_FALSE(again.preview_on);
    read_own_settings(preferences("[view]\r\npreview=off\r\n"), again);
    EXPECT_TRUE(again.preview_on);
}

TEST(write_own_settings, drops_the_preview_that_is_on_again) {
    preferences kept("[view]\r\npreview=0\r\n");
    write_own_settings(app_state(), kept);
    EXPECT_EQ(kept.text(), "");
}

TEST(own_settings, keep_the_ticks_of_the_design_view_that_are_not_as_at_first) {
    app_state state;
    state.sight_ticks.filled = false;
    state.sight_ticks.grid = true;
    EXPECT_EQ(own_text(state), "[design_view]\r\nfilled=0\r\ngrid=1\r\n");
    app_state again;
    read_own_settings(preferences(own_text(state)), again);
    EXPECT_EQ(again.sight_ticks, state.sight_ticks);
}

TEST(read_own_settings, leaves_a_tick_whose_value_is_neither_0_nor_1) {
    app_state state;
    read_own_settings(preferences("[design_view]\r\nfilled=no\r\ndimensions=2\r\n"), state);
    EXPECT_EQ(state.sight_ticks, sight_ticks{});
}

TEST(preferences_of_earlier_file, holds_its_recent_paths) {
    app_state state;
    read_settings("/?????.KVT\r\n", state);
    read_own_settings(preferences_of_earlier_file("recent_1=/Насос.KVT\r\n"), state);
    EXPECT_EQ(state.mnufileprev[1], "/Насос.KVT");
}

TEST(settings_file, writes_the_same_bytes_again_for_any_bytes_read) {
    random_values random;
    for (int left = property_count(5000); left > 0; --left) {
        app_state state;
        read_settings(random.text("12ab#\r\n\xE4\x81 ", 40), state);
        const std::string written = write_settings(state);
        app_state again;
        read_settings(written, again);
        EXPECT_EQ(write_settings(again), written);
    }
}

}  // namespace

}  // namespace kvt
