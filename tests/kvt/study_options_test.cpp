// Tests of how the options of studies are read.
#include "kvt/study_options.hpp"

#include <CLI/CLI.hpp>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

TEST(study_options, take_many_texts_and_lists) {
    CLI::App app;
    study_request study;
    add_study_options(app, study);
    app.parse(
        "--vary ecc=2,3 --vary thick=8:9 --record capacity,ripple --where 'a<1' --where b>2 "
        "--pareto ripple:min,capacity:max --sample sobol:8 --seed 18446744073709551615 "
        "--shard 2/3 --resume --out x.csv --save-best 4 --jobs 3");
    EXPECT_EQ(study.varied, (texts{"ecc=2,3", "thick=8:9"}));
    EXPECT_EQ(study.recorded, (texts{"capacity", "ripple"}));
    EXPECT_EQ(study.conditions, (texts{"a<1", "b>2"}));
    EXPECT_EQ(study.aims, (texts{"ripple:min", "capacity:max"}));
    EXPECT_EQ(study.sample, "sobol:8");
    EXPECT_EQ(study.seed, 18446744073709551615U);
    EXPECT_EQ(study.shard, "2/3");
    EXPECT_TRUE(study.resumes);
    EXPECT_EQ(study.out.out, "x.csv");
    EXPECT_EQ(study.out.saved_count, 4U);
    EXPECT_EQ(study.jobs, 3U);
}

TEST(study_options, of_a_search_keep_the_order_of_its_aims) {
    CLI::App app;
    search_request search;
    add_search_options(app, search);
    app.parse(
        "--vary ecc=2:3 --step 0.05 --target capacity=7.5 --limit 'ecc<3' --minimize ripple "
        "--minimize power_max --maximize overall_eff_max --budget 50 --seed 2");
    EXPECT_EQ(search.step, 0.05);
    EXPECT_EQ(search.minimized, (texts{"ripple", "power_max"}));
    EXPECT_EQ(search.maximized, texts{"overall_eff_max"});
    EXPECT_EQ(search.targets, texts{"capacity=7.5"});
    EXPECT_EQ(search.limits, texts{"ecc<3"});
    EXPECT_EQ(search.budget, 50U);
    EXPECT_EQ(search.seed, 2U);
}

TEST(study_options, refuse_what_is_no_number) {
    for (const char* wrong : {"--jobs 0", "--jobs x", "--seed -1", "--shard 3", "--save-best x"}) {
        CLI::App app;
        study_request study;
        add_study_options(app, study);
        EXPECT_THROW(app.parse(wrong), CLI::ParseError) << wrong;
    }
}

}  // namespace
}  // namespace kvt
