// Tests of --set: a text is typed as a user would type it, and leaving the entry fires its handler.
#include "kvt/kvt_run.hpp"

namespace kvt {
namespace {

json entries_after(const std::vector<std::string>& options) {
    return calc_engine_oil(options).report()["entries"];
}

TEST(typed_entry, replaces_the_text_of_a_box) {
    const json report = calc_engine_oil({"--set", "thick=13.5"}).report();
    EXPECT_EQ(report["entries"]["thick"], "13.5");
    EXPECT_EQ(report["design_params"]["thick"], 13.5);
}

TEST(typed_entry, keeps_texts_of_the_port_and_performance_forms_as_typed) {
    const json boxes = entries_after({"--set", "Outlet_inner_radius= 17,4 ", "--set",
                                      "speed_hi=6500 rpm", "--stage", "profiles"});
    EXPECT_EQ(boxes["Outlet_inner_radius"], " 17,4 ");
    EXPECT_EQ(boxes["speed_hi"], "6500 rpm");
}

TEST(typed_entry, takes_a_decimal_comma) {
    const json report = calc_engine_oil({"--set", "thick=12,5"}).report();
    EXPECT_EQ(report["entries"]["thick"], "12.5");
    EXPECT_EQ(report["design_params"]["thick"], 12.5);
}

TEST(typed_entry, fires_the_handler_of_the_drawing_resolution) {
    EXPECT_EQ(entries_after({"--set", "coarseness=7"})["coarseness"], "1");
    EXPECT_EQ(entries_after({"--set", "coarseness=11"})["coarseness"], "1");
    EXPECT_EQ(entries_after({"--set", "coarseness=9"})["coarseness"], "9");
}

TEST(typed_entry, fires_the_handler_of_the_lobe_number) {
    const kvt_run run = calc_engine_oil({"--set", "numlobes=2"});
    EXPECT_EQ(run.report()["messages"][0],
              "The number of Outer Lobes must be an integer, of minimum value = 3");
    EXPECT_EQ(run.report()["entries"]["numlobes"], "3");
}

TEST(typed_entry, fires_the_handler_of_the_maximum_diameter) {
    const kvt_run run = calc_engine_oil({"--set", "maxdiameter=-4"});
    EXPECT_EQ(run.report()["messages"][0], "This value must be greater than zero!");
    EXPECT_EQ(run.report()["entries"]["maxdiameter"], "1");
}

TEST(typed_entry, types_in_the_given_order) {
    EXPECT_EQ(entries_after({"--set", "thick=9", "--set", "thick=11"})["thick"], "11");
}

TEST(typed_entry, clicks_a_porting_type_with_what_follows_from_it) {
    const json boxes =
        entries_after({"--set", "inlet_double_sided=1", "--set", "outlet_double_sided=1"});
    EXPECT_EQ(boxes["inlet_double_sided"], "1");
    EXPECT_EQ(boxes["outlet_double_sided"], "1");
    EXPECT_EQ(boxes["shadow_ports"],
              "0");  // both sides leave no room for shadow ports; they were on in the file
}

TEST(typed_entry, switches_to_inches_with_dimens2) {
    // 2.6 inches of eccentricity are 66.04 mm.
    EXPECT_EQ(calc_engine_oil({"--set", "dimens2=1"}).report()["design_params"]["ecc"], 2.6 * 25.4);
}

TEST(typed_entry, switches_to_millimetres_with_dimens1) {
    const kvt_run run =
        run_kvt({"calc", example("inch_hydraulic"), "--json", "-", "--set", "dimens1=1"});
    EXPECT_EQ(run.report()["design_params"]["ecc"], 0.15);
}

TEST(typed_entry, selects_a_capacity_unit_by_its_list_text) {
    const json report = calc_engine_oil({"--set", "unittype=CC/Rev"}).report();
    EXPECT_EQ(report["labels"]["unittype"], "CC/Rev");
    EXPECT_EQ(report["labels"]["units_label"], "CC/Rev");
}

TEST(typed_entry, converts_the_required_capacity_with_the_unit) {
    const std::string project = example("engine_oil");
    // 7.57 / 3.785 = 2 US gallons
    const kvt_run run = run_kvt({"calc", project, "--json", "-", "--set", "volumereqd=7.57",
                                 "--set", "unittype=USGall/Min/1000rpm"});
    EXPECT_EQ(run.report()["entries"]["volumereqd"], "2");
}

TEST(typed_entry, comes_after_the_unit_of_the_option_capacity_unit) {
    const json report =
        calc_engine_oil({"--capacity-unit", "2", "--set", "volumereqd=7.57"}).report();
    EXPECT_EQ(report["labels"]["unittype"], "USGall/Min/1000rpm");
    EXPECT_EQ(report["entries"]["volumereqd"], "7.57");
}

}  // namespace
}  // namespace kvt
