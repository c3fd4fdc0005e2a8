// Tests of the limits of an entry: whole designs, the edges, and what they leave alone.
#include "app/trial/entry_limits.hpp"

#include "app/trial/design_trial.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "support/open_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr calc_stage PROFILES = calc_stage::profiles;
constexpr calc_stage PORTS = calc_stage::ports;

class entry_limits_test : public testing::Test {
  protected:
    std::optional<entry_limits> limits_of(const char* entry, calc_stage last = PROFILES) const {
        return find_limits(kavetta, *find_entry(entry), last);
    }
    bool accepts(const char* entry, const std::string& text, calc_stage last = PROFILES) const {
        return try_design(kavetta, typed_entry{entry, text}, last).accepted;
    }

    program kavetta = opened_design("n07_engine_oil_groove");
};

TEST_F(entry_limits_test, hold_the_present_number_and_end_where_it_is_refused) {
    const auto limits = limits_of("radouter");
    ASSERT_TRUE(limits && limits->lowest && limits->highest);
    const double present = val(kavetta.entries.radouter);
    EXPECT_TRUE(limits->is_present_accepted);
    EXPECT_EQ(limits->nearest(), nullptr);
    EXPECT_LT(limits->lowest->accepted, present);
    EXPECT_GT(limits->highest->accepted, present);
    for (const entry_limit& end : {*limits->lowest, *limits->highest}) {
        EXPECT_TRUE(accepts("radouter", number_text(end.accepted)));
        EXPECT_FALSE(accepts("radouter", number_text(end.refused)));
        EXPECT_NEAR(end.accepted, end.refused, 1e-7 * present);
        EXPECT_EQ(end.message, message_text(message::inner_rotor_errors, ENGLISH));
    }
}

TEST_F(entry_limits_test, are_shown_rounded_into_the_interval) {
    const auto limits = limits_of("ecc");
    ASSERT_TRUE(limits && limits->highest);
    EXPECT_FALSE(limits->lowest);
    EXPECT_LE(val(limits->highest->shown), limits->highest->accepted);
    EXPECT_NEAR(val(limits->highest->shown), limits->highest->accepted, 0.01);
    EXPECT_EQ(limits->highest->shown, "2.94");
    EXPECT_TRUE(accepts("ecc", limits->highest->shown));
}

/// 2 radinnroot >= minmaterial + shaftdiameter.
TEST_F(entry_limits_test, show_a_round_limit_as_it_is) {
    const auto limits = limits_of("shaftdiameter");
    ASSERT_TRUE(limits && limits->highest);
    EXPECT_EQ(limits->highest->shown, "25.8");  // 2 * 14.15 - 2.5
    EXPECT_EQ(limits->highest->accepted, 25.8);
    EXPECT_EQ(limits->highest->message, message_text(message::shaft_material_too_thin, ENGLISH));
    EXPECT_EQ(limits->lowest, std::nullopt);
}

TEST_F(entry_limits_test, count_whole_numbers) {
    const auto lobes = limits_of("numlobes");
    ASSERT_TRUE(lobes && lobes->highest);
    EXPECT_TRUE(accepts("numlobes", lobes->highest->shown));
    EXPECT_EQ(lobes->highest->refused, lobes->highest->accepted + 1.0);
    EXPECT_EQ(lobes->lowest->shown, "3");
    const auto coarseness = limits_of("coarseness");
    ASSERT_TRUE(coarseness && coarseness->highest);
    EXPECT_EQ(coarseness->highest->shown, "6");  // 7 doesn't divide the points
    EXPECT_EQ(coarseness->highest->message, "");
}

TEST_F(entry_limits_test, begin_next_to_a_refused_number) {
    const auto wide = limits_of("radouter");
    ASSERT_TRUE(wide && wide->lowest && wide->highest);
    kavetta.entries.radouter = number_text(wide->highest->accepted * 1.3);
    const auto limits = limits_of("radouter");
    ASSERT_TRUE(limits && limits->nearest() != nullptr);
    EXPECT_FALSE(limits->is_present_accepted);
    EXPECT_EQ(limits->nearest(), &*limits->highest);
    EXPECT_FALSE(accepts("radouter", number_text(limits->highest->refused)));
    EXPECT_TRUE(accepts("radouter", limits->highest->shown));
    kavetta.entries.radouter = number_text(wide->lowest->accepted * 0.7);
    const auto above = limits_of("radouter");
    ASSERT_TRUE(above && above->nearest() != nullptr);
    EXPECT_EQ(above->nearest(), &*above->lowest);
    EXPECT_NEAR(above->lowest->accepted, wide->lowest->accepted, 1e-6);
}

TEST_F(entry_limits_test, do_not_name_a_message_that_only_informs) {
    const auto limits = limits_of("radinnroot");
    ASSERT_TRUE(limits && limits->highest);
    EXPECT_EQ(limits->highest->message, message_text(message::does_not_fit_diameter, ENGLISH));
}

TEST_F(entry_limits_test, are_none_where_no_number_is_accepted) {
    kavetta.entries.numlobes = "5000";
    EXPECT_FALSE(limits_of("ecc"));
    EXPECT_FALSE(limits_of("shadow_ports"));
}

TEST_F(entry_limits_test, are_open_where_every_number_is_accepted) {
    const auto limits = limits_of("axial_clear");
    ASSERT_TRUE(limits);
    EXPECT_FALSE(limits->lowest);
    EXPECT_FALSE(limits->highest);
    EXPECT_FALSE(limits_of("port_radii", PROFILES));
    EXPECT_FALSE(limits_of("volumereqd"));
}

TEST_F(entry_limits_test, of_a_port_end_where_it_is_refused) {
    const auto radius = limits_of("port_radii", PORTS);
    ASSERT_TRUE(radius && radius->highest);
    EXPECT_TRUE(accepts("port_radii", radius->highest->shown, PORTS));
    EXPECT_FALSE(accepts("port_radii", number_text(radius->highest->refused), PORTS));
}

TEST_F(entry_limits_test, of_an_empty_box_are_those_of_what_is_filled_in) {
    kavetta.entries.inlet_start_inner.clear();
    const auto limits = limits_of("inlet_start_inner", PORTS);
    ASSERT_TRUE(limits);
    EXPECT_GT(limits->inside, 0.0);
}

TEST_F(entry_limits_test, read_a_decimal_comma) {
    const auto point = limits_of("ecc");
    kavetta.entries.ecc.replace(kavetta.entries.ecc.find('.'), 1, ",");
    const auto comma = limits_of("ecc");
    ASSERT_TRUE(point && point->highest && comma && comma->highest);
    EXPECT_EQ(point->highest->shown, comma->highest->shown);
}

TEST_F(entry_limits_test, are_none_of_a_number_without_bounds) {
    for (const char* huge : {"1e308", "1e999"}) {
        kavetta.entries.axial_clear = huge;
        EXPECT_FALSE(limits_of("axial_clear")) << huge;
    }
}

TEST_F(entry_limits_test, of_a_negative_number_have_no_lowest) {
    kavetta.entries.axial_clear = "-1";
    const auto limits = limits_of("axial_clear");
    EXPECT_FALSE(limits && limits->is_present_accepted && limits->lowest);
}

TEST_F(entry_limits_test, are_given_up_at_once) {
    const std::atomic<bool> is_given_up = true;
    EXPECT_FALSE(find_limits(kavetta, *find_entry("ecc"), PROFILES, &is_given_up));
}

TEST_F(entry_limits_test, leave_the_program_as_it_was) {
    const program before = kavetta;
    limits_of("ecc", PORTS);
    EXPECT_EQ(kavetta.entries, before.entries);
    EXPECT_EQ(kavetta.stage_entries, before.stage_entries);
}

}  // namespace
}  // namespace kvt
