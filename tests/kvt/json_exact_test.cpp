// Tests of the exact figures as JSON: only when they are asked for, and as far as the run came.
#include "kvt/json_exact.hpp"

#include "kvt/kvt_run.hpp"

namespace kvt {
namespace {

json exact_of_engine_oil(std::vector<std::string> options) {
    options.emplace_back("--exact");
    return calc_engine_oil(options).report()["exact"];
}

TEST(json_exact, stands_in_the_report_only_when_it_is_asked_for) {
    json plain = calc_engine_oil({}).report();
    EXPECT_FALSE(plain.contains("exact"));
    json with = calc_engine_oil({"--exact"}).report();
    ASSERT_TRUE(with.contains("exact"));
    with.erase("exact");
    EXPECT_EQ(with, plain) << "nothing else changes";
}

TEST(json_exact, goes_as_far_as_the_run) {
    const auto names = [](const json& object) {
        std::vector<std::string> all;
        for (const auto& item : object.items()) {
            all.push_back(item.key());
        }
        return all;
    };
    EXPECT_EQ(names(exact_of_engine_oil({"--stage", "profiles"})),
              (std::vector<std::string>{"rotors", "gap", "left_out"}));
    EXPECT_EQ(names(exact_of_engine_oil({"--stage", "ports"})),
              (std::vector<std::string>{"rotors", "gap", "timing", "left_out"}));
    EXPECT_EQ(names(exact_of_engine_oil({})),
              (std::vector<std::string>{"rotors", "gap", "timing", "performance"}));
}

TEST(json_exact, tells_why_a_part_is_left_out) {
    const json left_out = exact_of_engine_oil({"--stage", "profiles"})["left_out"];
    EXPECT_EQ(left_out.size(), 2U);
    EXPECT_EQ(left_out["timing"], "Design Ports first: there are no ports of this project yet.");
    EXPECT_EQ(left_out["performance"],
              "Calculate Performance first: there is no performance of this project yet.");
}

TEST(json_exact, tells_why_an_outlet_that_ends_at_180_delivers_nothing_in_the_product) {
    const json exact =
        exact_of_engine_oil({"--set", "outlet_end_inner=180", "--set", "outlet_end_outer=180"});
    EXPECT_EQ(exact["timing"]["outlet_open"].size(), 1U) << "the drawn outlet is open";
    EXPECT_EQ(
        exact["timing"]["note"],
        "The drawn outlet ends at 180 degrees and is open; the product's flow is 0 because it "
        "takes that end angle as 0.");
    EXPECT_FALSE(exact_of_engine_oil({})["timing"].contains("note"));
}

TEST(json_exact, is_empty_after_a_refused_design) {
    const json exact = exact_of_engine_oil({"--set", "ecc=0"});
    EXPECT_TRUE(exact.is_object());
    EXPECT_TRUE(exact.empty());
}

/// The volume by an integral of Simpson's rule outside of the program.
TEST(json_exact, has_volumes_angles_and_speeds) {
    const json exact = exact_of_engine_oil({});
    EXPECT_NEAR(exact["rotors"]["swept_cc"].get<double>(), 7.564147032276793, 1e-9);
    EXPECT_EQ(exact["rotors"]["pulses"], 7);
    EXPECT_EQ(exact["rotors"]["harmonics"].size(), 6U);
    EXPECT_NEAR(exact["rotors"]["largest_chamber_at"].get<double>(), 180.0 * 8.0 / 7.0, 1e-9);
    EXPECT_EQ(exact["gap"]["gap"].size(), 361U);
    EXPECT_EQ(exact["performance"]["contact_pressure"].size(), 6U);
    EXPECT_EQ(exact["performance"]["flow_m3s"].size(), 6U);
    EXPECT_EQ(exact["timing"]["inlet_open"].size(), 1U);
    const double slow = exact["timing"]["inlet_speed"]["speed_lo"].get<double>();
    const double fast = exact["timing"]["inlet_speed"]["speed_hi"].get<double>();
    EXPECT_GT(slow, 0.0);
    EXPECT_GT(fast, slow);
}

}  // namespace
}  // namespace kvt
