// The explanation windows: flags, titles, pictures.
#include "app/desk/explanation_windows.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/text_file.hpp"
#include "support/scripted_user.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

class explanation_windows : public testing::Test {
  protected:
    explanation_windows() { kavetta.folder = folder.path(); }

    void deliver(const std::string& picture) { write_file(folder.path() / picture, "picture"); }
    std::string loaded_picture(explanation_window window) {
        return utf8_of_path(load_explanation(kavetta, window).filename());
    }

    temporary_folder folder;
    program kavetta;
};

}  // namespace

TEST_F(explanation_windows, load_their_english_pictures_and_titles) {
    deliver("explain screen - small1.jpg");
    deliver("port explain - small2.jpg");
    EXPECT_EQ(loaded_picture(explanation_window::gerotor), "explain screen - small1.jpg");
    EXPECT_EQ(loaded_picture(explanation_window::porting), "port explain - small2.jpg");
    EXPECT_EQ(kavetta.captions.of("explain", ""), "Gerotor Parameter Explanation");
    EXPECT_EQ(kavetta.captions.of("port_explain", ""), "Porting Parameter Explanation");
}

TEST_F(explanation_windows, load_their_german_pictures_and_titles) {
    kavetta.app_state.language = GERMAN;
    deliver("explain screen - small german1.jpg");
    deliver("port explain - small german2.jpg");
    EXPECT_EQ(loaded_picture(explanation_window::gerotor), "explain screen - small german1.jpg");
    EXPECT_EQ(loaded_picture(explanation_window::porting), "port explain - small german2.jpg");
    EXPECT_EQ(kavetta.captions.of("explain", ""), "Gerotorparametererklärung");
    EXPECT_EQ(kavetta.captions.of("port_explain", ""), "Portierenparametererklärung");
}

TEST_F(explanation_windows, have_a_flag_each_that_is_cleared_while_the_window_is_open) {
    deliver("port explain - small2.jpg");
    loaded_picture(explanation_window::porting);
    EXPECT_FALSE(kavetta.app_state.port_explain_closed);
    EXPECT_TRUE(kavetta.app_state.explain_closed);
    unload_explanation(kavetta, explanation_window::porting);
    EXPECT_TRUE(kavetta.app_state.port_explain_closed);
}

TEST_F(explanation_windows, fail_to_load_without_their_picture) {
    try {
        load_explanation(kavetta, explanation_window::gerotor);
        FAIL() << "a missing picture was accepted";
    } catch (const run_time_error& error) {
        EXPECT_EQ(error.number(), 53);
    }
    EXPECT_FALSE(kavetta.app_state.explain_closed);
}

TEST_F(explanation_windows, are_shown_by_their_menu_entries) {
    scripted_user person;
    show_gerotor_explanation(kavetta, person);
    show_porting_explanation(kavetta, person);
    EXPECT_EQ(person.log, (std::vector<std::string>{"show explain", "show port_explain"}));
}

}  // namespace kvt
