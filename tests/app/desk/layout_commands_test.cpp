// Tests of the Screen Layout menu and of the layout at the start.
#include "app/desk/layout_commands.hpp"

#include "app/files/project_fixture.hpp"
#include "base/run_time_error.hpp"
#include "core/text_table.hpp"

#include <sys/stat.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;
using forms = std::vector<std::string_view>;

/// A user on whose screen one form can't be shown.
class user_without : public scripted_user {
  public:
    explicit user_without(std::string form) : form_(std::move(form)) {}
    void show_form(std::string_view form) override {
        if (form == form_) {
            throw run_time_error(failure::file_not_found, "its picture");
        }
        scripted_user::show_form(form);
    }

  private:
    std::string form_;
};

class layout_commands_test : public project_test {
  protected:
    std::string written() const { return read_file(folder.path() / "screen.ini"); }
    static window_rectangles some_windows() {
        window_rectangles windows;
        windows.of("Form1") = window_rectangle{8000, 5000, 10, 20};
        windows.of("explain") = windows.of("port_explain") = window_rectangle{1, 2, 3, 4};
        return windows;
    }
};

TEST_F(layout_commands_test, save_writes_the_window_rectangles_and_tells_in_both_languages) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        kavetta.app_state.language = language;
        person.messages.clear();
        save_layout(kavetta, person, some_windows());
        EXPECT_TRUE(written().starts_with("Design\r\n 8000 \r\n 5000 \r\n 10 \r\n 20 \r\n\r\n"));
        EXPECT_EQ(person.messages,
                  texts{std::string(message_text(message::screen_layout_saved, language))});
    }
}

TEST_F(layout_commands_test, save_leaves_closed_explanation_windows_out) {
    save_layout(kavetta, person, some_windows());
    EXPECT_EQ(written().find("Explanation"), std::string::npos);
    kavetta.app_state.explain_closed = false;
    save_layout(kavetta, person, some_windows());
    EXPECT_NE(written().find("Gerotor Explanation"), std::string::npos);
    EXPECT_EQ(written().find("Port Explanation"), std::string::npos);
}

TEST_F(layout_commands_test, save_fails_for_good_when_the_file_cannot_be_written) {
    kavetta.folder = folder.path() / "gone";
    EXPECT_THROW(save_layout(kavetta, person, some_windows()), run_time_error);
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(layout_commands_test, restore_sets_the_built_in_layout_and_writes_its_five_blocks) {
    window_rectangles& windows = kavetta.window_rectangles;
    windows.of("Form1") = window_rectangle{1, 2, 3, 4};
    windows.of("select_graphs") = window_rectangle{1, 2, 3, 4};
    windows.main_window_maximised = false;
    windows.of("FLOW_graphview2") = window_rectangle{5, 6, 7, 8};
    kavetta.app_state.explain_closed = false;
    restore_default_layout(kavetta, person);
    window_rectangles expected;
    expected.of("FLOW_graphview2") = window_rectangle{5, 6, 7, 8};
    EXPECT_EQ(windows, expected);
    EXPECT_TRUE(kavetta.app_state.explain_closed);
    EXPECT_EQ(person.log, (texts{"show Form1", "show portdes", "show viewwinfrm", "show Perffrm",
                                 "show select_graphs", "unload explain", "unload port_explain"}));
    EXPECT_EQ(written(),
              "Design\r\n 8085 \r\n 5430 \r\n 0 \r\n 0 \r\n\r\n"
              "Port Design\r\n 2895 \r\n 10200 \r\n 8100 \r\n 0 \r\n\r\n"
              "View\r\n 7185 \r\n 6375 \r\n 0 \r\n 8995 \r\n\r\n"
              "Performance\r\n 8085 \r\n 3525 \r\n 0 \r\n 5450 \r\n\r\n"
              "Charts\r\n 2355 \r\n 4395 \r\n 8100 \r\n 10220 \r\n\r\n");
}

TEST_F(layout_commands_test,
       start_without_a_file_shows_the_built_in_layout_with_the_focus_on_Form1) {
    kavetta.app_state.explain_closed = false;
    const start_layout start = read_start_layout(kavetta);
    EXPECT_EQ(start.shown, (forms{"Form1", "portdes", "viewwinfrm", "Perffrm", "select_graphs"}));
    EXPECT_EQ(start.focus, "Form1");
    EXPECT_EQ(kavetta.window_rectangles, window_rectangles());
    EXPECT_TRUE(kavetta.app_state.explain_closed);
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(layout_commands_test,
       start_after_a_restore_shows_the_five_windows_in_the_order_of_the_file) {
    restore_default_layout(kavetta, person);
    const start_layout start = read_start_layout(kavetta);
    EXPECT_EQ(start.shown, (forms{"Form1", "portdes", "viewwinfrm", "Perffrm", "select_graphs"}));
    EXPECT_EQ(start.focus, "");
}

TEST_F(layout_commands_test, save_leaves_charts_out_whose_flag_is_not_set) {
    window_rectangles windows = some_windows();
    windows.of("LOAD_graphview2") = windows.of("VE_graphview2") = window_rectangle{1, 2, 3, 4};
    kavetta.app_state.chart_open_ve = true;
    save_layout(kavetta, person, windows);
    EXPECT_EQ(written().find("Power Chart"), std::string::npos);
    EXPECT_NE(written().find("VE Chart"), std::string::npos);
}

TEST_F(layout_commands_test, start_after_a_save_with_a_chart_of_all_shows_the_explanation_windows) {
    window_rectangles windows = some_windows();
    windows.of("OVREFF_graphview2") = window_rectangle{6630, 8790, 2100, 2100};
    kavetta.app_state.explain_closed = false;
    kavetta.app_state.port_explain_closed = false;
    kavetta.app_state.chart_open_overall = true;
    save_layout(kavetta, person, windows);
    const start_layout start = read_start_layout(kavetta);
    EXPECT_EQ(start.shown.size(), 7U);
    EXPECT_EQ(start.shown[5], "explain");
    EXPECT_EQ(start.shown[6], "port_explain");
    EXPECT_EQ(kavetta.window_rectangles.of("Form1"), (window_rectangle{8000, 5000, 10, 20}));
    EXPECT_EQ(kavetta.window_rectangles.of("OVREFF_graphview2"),
              (window_rectangle{6630, 8790, 2100, 2100}));
}

/// The five windows in a room of so many pixels, by the rectangles in force.
struct fitted : layout_commands_test {
    static bool overlap(const window_rectangle& a, const window_rectangle& b) {
        return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
               b.top < a.top + a.height;
    }
    void expect_side_by_side(layout_room room) const {
        const auto fixed = fixed_child_rows();
        for (const form_row& one : fixed) {
            const window_rectangle a = place(one.name);
            EXPECT_GE(a.left, 0.0F) << one.name;
            EXPECT_GE(a.top, 0.0F) << one.name;
            EXPECT_LE(a.left + a.width, room.width) << one.name << " in " << room.width;
            EXPECT_LE(a.top + a.height, room.height) << one.name << " in " << room.height;
            EXPECT_GT(a.width, 0.0F) << one.name;
            EXPECT_GT(a.height, 0.0F) << one.name;
            for (const form_row& other : fixed) {
                EXPECT_TRUE(one.name == other.name || !overlap(a, place(other.name)))
                    << one.name << " and " << other.name << " in " << room.width;
            }
        }
    }
    window_rectangle place(std::string_view form) const {
        return kavetta.window_rectangles.of(form).value();
    }
};

TEST_F(fitted, puts_all_windows_side_by_side_in_any_room) {
    for (const float width : {640.0F, 800.0F, 1024.0F, 1366.0F, 1920.0F, 3840.0F}) {
        for (const float height : {480.0F, 600.0F, 701.0F, 1000.0F, 2000.0F}) {
            const layout_room room{height * TWIPS_PER_PIXEL, width * TWIPS_PER_PIXEL};
            fit_layout(kavetta, person, room);
            expect_side_by_side(room);
        }
    }
}

TEST_F(fitted, keeps_the_view_square_below_its_buttons) {
    fit_layout(kavetta, person, {12000.0F, 18000.0F});
    const window_rectangle view = place("viewwinfrm");
    EXPECT_EQ(view.height - view.width, 795.0F);  // 1185 below the picture, 390 beside it
}

TEST_F(fitted, shows_closed_windows_again_and_writes_nothing) {
    kavetta.window_rectangles.main_window_maximised = false;
    fit_layout(kavetta, person, {12000.0F, 18000.0F});
    EXPECT_EQ(person.log, (texts{"show Form1", "show portdes", "show viewwinfrm", "show Perffrm",
                                 "show select_graphs"}));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "screen.ini"));
    EXPECT_FALSE(kavetta.window_rectangles.main_window_maximised);
}

TEST_F(fitted, is_the_first_layout_where_the_built_in_one_is_too_large) {
    EXPECT_TRUE(read_start_layout(kavetta).is_first);
    use_first_layout(kavetta, {10995.0F, 15385.0F});  // as large as the built-in one just needs
    EXPECT_EQ(place("Form1"), find_form("Form1")->rectangle);
    const layout_room room{10980.0F, 15385.0F};
    use_first_layout(kavetta, room);
    expect_side_by_side(room);
    restore_default_layout(kavetta, person);
    EXPECT_FALSE(read_start_layout(kavetta).is_first);
}

TEST_F(layout_commands_test, start_shows_the_forms_of_the_layout) {
    restore_default_layout(kavetta, person);
    person.log.clear();
    const start_layout start = show_start_layout(kavetta, person);
    EXPECT_EQ(start.focus, "");
    EXPECT_EQ(person.log, (texts{"show Form1", "show portdes", "show viewwinfrm", "show Perffrm",
                                 "show select_graphs"}));
}

TEST_F(layout_commands_test, start_without_the_picture_of_an_explanation_gives_the_built_in_sizes) {
    window_rectangles windows = some_windows();
    windows.of("OVREFF_graphview2") = window_rectangle{6630, 8790, 2100, 2100};
    kavetta.app_state.explain_closed = kavetta.app_state.port_explain_closed = false;
    kavetta.app_state.chart_open_overall = true;
    save_layout(kavetta, person, windows);
    user_without without("port_explain");
    const start_layout start = show_start_layout(kavetta, without);
    EXPECT_EQ(start.shown, (forms{"Form1", "portdes", "viewwinfrm", "Perffrm", "select_graphs"}));
    EXPECT_EQ(start.focus, "Form1");
    EXPECT_TRUE(without.messages.empty());
    EXPECT_EQ(kavetta.window_rectangles.of("Form1"), (window_rectangle{8085, 5430, 10, 20}))
        << "Top and Left as they were read";
    EXPECT_TRUE(kavetta.window_rectangles.main_window_maximised);
    EXPECT_TRUE(kavetta.window_rectangles.of("explain")) << "shown before the failure";
    EXPECT_FALSE(kavetta.window_rectangles.of("port_explain"));
    EXPECT_TRUE(kavetta.app_state.port_explain_closed);
}

TEST_F(layout_commands_test, start_takes_a_folder_or_a_huge_file_for_no_layout) {
    const std::filesystem::path file = folder.path() / "screen.ini";
    const auto starts_with_the_built_in_layout = [&] {
        const start_layout start = show_start_layout(kavetta, person);
        return start.focus == "Form1" && kavetta.window_rectangles == window_rectangles();
    };
    std::filesystem::create_directory(file);
    EXPECT_TRUE(starts_with_the_built_in_layout());
    std::filesystem::remove(file);
    write_file(file, std::string(LARGEST_TEXT + 1, '1'));
    EXPECT_TRUE(starts_with_the_built_in_layout());
    EXPECT_TRUE(person.messages.empty());
}

}  // namespace
}  // namespace kvt
