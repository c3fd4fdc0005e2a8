// Which results a command has changed, as a screen reader says it.
#include "app/desk/result_news.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "base/path_text.hpp"
#include "support/open_design.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class result_news_test : public testing::Test {
  protected:
    result_news_test() {
        kavetta.app_state.projects_folder = utf8_of_path(folder.path());
        news.take(kavetta);
    }

    temporary_folder folder;
    program kavetta = opened_design("n07_engine_oil_groove");
    scripted_user person;
    result_news news;
};

TEST_F(result_news_test, are_empty_before_a_stage_has_run) {
    EXPECT_EQ(news.take(kavetta), "");
}

TEST_F(result_news_test, name_each_result_with_its_caption_and_unit) {
    calculate_profiles(kavetta, person);
    const std::string said = news.take(kavetta);
    EXPECT_TRUE(said.starts_with("Approx. Capacity: " + kavetta.labels.capacity + " " +
                                 kavetta.labels.units_label + ", Area Ratio: "))
        << said;
    EXPECT_NE(said.find("Min Chamber Volume: " + kavetta.labels.min_chamb_vol + "."),
              std::string::npos)
        << said;
    EXPECT_EQ(news.take(kavetta), "") << "said once";
}

TEST_F(result_news_test, say_of_the_ports_what_is_drawn) {
    calculate_profiles(kavetta, person);
    news.take(kavetta);
    design_ports(kavetta, person);
    EXPECT_EQ(news.take(kavetta), "Ports: inlet, outlet, metering groove.");
}

TEST_F(result_news_test, say_the_performance_results) {
    calculate_profiles(kavetta, person);
    design_ports(kavetta, person);
    news.take(kavetta);
    calculate_performance(kavetta, person);
    kavetta.results_shown = true;
    const std::string said = news.take(kavetta);
    EXPECT_TRUE(said.starts_with("Max pump speed to avoid cavitation: " + kavetta.labels.max_speed))
        << said;
    EXPECT_NE(said.find(kavetta.labels.Label1), std::string::npos) << said;
}

TEST_F(result_news_test, are_silent_when_the_same_is_said_in_another_language) {
    calculate_profiles(kavetta, person);
    news.take(kavetta);
    kavetta.app_state.language = GERMAN;
    set_german_captions(kavetta);
    EXPECT_EQ(news.take(kavetta), "");
    design_ports(kavetta, person);
    EXPECT_EQ(news.take(kavetta), "Anschlüsse: Einlass, Auslass, Messrille.");
}

}  // namespace
}  // namespace kvt
