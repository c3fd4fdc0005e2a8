// Tests of what closes which forms.
#include "app/windows/close_forms.hpp"

#include "app/program.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

texts closed_by(form_closer closer) {
    scripted_user person;
    program kavetta;
    close_forms(kavetta, closer, person);
    return person.log;
}

const texts CHARTS = {"unload FLOW_graphview2",  "unload LOAD_graphview2",
                      "unload HERTZ_graphview2", "unload PRESS_RIP_graphview2",
                      "unload VE_graphview2",    "unload EFFIC_graphview2",
                      "unload OVREFF_graphview2"};

texts results() {
    texts forms = CHARTS;
    forms.insert(forms.begin(), {"unload perf_res", "unload result_tables"});
    return forms;
}

/// Another project leaves nothing of the one before, not even what follows its calculations.
texts all_of_the_project() {
    texts forms = results();
    forms.insert(forms.begin() + 2, "unload exact_figures");
    return forms;
}

TEST(close_forms, of_a_changed_design_closes_all_results) {
    EXPECT_EQ(closed_by(form_closer::profiles), results());
    EXPECT_EQ(closed_by(form_closer::ports), results());
    EXPECT_EQ(closed_by(form_closer::new_project), all_of_the_project());
}

TEST(close_forms, of_new_results_closes_the_charts_alone) {
    EXPECT_EQ(closed_by(form_closer::performance), CHARTS);
}

TEST(close_forms, of_open_leaves_the_pressure_ripple) {
    texts forms = all_of_the_project();
    std::erase(forms, "unload PRESS_RIP_graphview2");
    EXPECT_EQ(closed_by(form_closer::open_project), forms);
}

TEST(close_forms, of_language_and_layout) {
    EXPECT_EQ(closed_by(form_closer::language), texts{"unload perf_res"});
    EXPECT_EQ(closed_by(form_closer::default_layout),
              (texts{"unload explain", "unload port_explain"}));
}

TEST(close_forms, takes_what_perf_res_showed_with_it) {
    scripted_user person;
    program kavetta;
    open_form(kavetta, "portdes", person);
    EXPECT_FALSE(kavetta.results_shown);
    open_form(kavetta, "perf_res", person);
    close_forms(kavetta, form_closer::performance, person);
    EXPECT_TRUE(kavetta.results_shown) << "that leaves perf_res open";
    close_forms(kavetta, form_closer::language, person);
    EXPECT_FALSE(kavetta.results_shown);
    EXPECT_EQ(person.log.front(), "show portdes");
}

}  // namespace
}  // namespace kvt
