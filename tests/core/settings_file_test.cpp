// The seven lines of KVT.ini.
#include "core/settings_file.hpp"

#include "support/property_runs.hpp"

#include <gtest/gtest.h>
#include <string>

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

TEST(read_settings, leaves_the_values_of_missing_lines) {
    app_state state;
    state.language = GERMAN;
    state.auto_update_mode = "auto";
    state.last_update_check = "03-Nov-21";
    read_settings("one\r\n", state);
    EXPECT_EQ(state.mnufileprev[1], "one");
    EXPECT_EQ(state.mnufileprev[2], "&3");
    EXPECT_EQ(state.language, GERMAN);
    EXPECT_EQ(state.auto_update_mode, "auto");
    EXPECT_EQ(state.last_update_check, "03-Nov-21");
}

TEST(read_settings, leaves_everything_of_an_empty_file) {
    app_state state;
    state.modelling_package = "Built-in";
    read_settings("", state);
    EXPECT_EQ(state.mnufileprev[1], "&2");
    EXPECT_EQ(state.modelling_package, "Built-in");
    EXPECT_EQ(state.language, ENGLISH);
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

TEST(first_settings_line, is_the_first_line_in_utf8_or_empty) {
    EXPECT_EQ(first_settings_line(FULL), "C:\\pumps\\one.KVT");
    EXPECT_EQ(first_settings_line("C:\\\xD6l"), "C:\\Öl");
    EXPECT_EQ(first_settings_line("\r\nC:\\pumps"), "");
    EXPECT_EQ(first_settings_line(""), "");
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
