// The enabling chain, and the check boxes of the porting type.
#include "app/desk/enabling_chain.hpp"

#include "app/program.hpp"
#include "app/stages/porting_type.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(enabling_chain, project_reset_leads_back_to_the_state_at_the_start) {
    enabling state;
    for (const enabling_field& field : enabling_fields()) {
        if (field.name != "mnudxfmetering" && field.name.substr(0, 6) != "groove") {
            state.*field.member = true;
        }
    }
    apply_chain(state, chain_event::project_reset);
    EXPECT_EQ(state, enabling());
}

TEST(enabling_chain, calculate_profiles_opens_the_next_stage_and_closes_what_lies_downstream) {
    enabling state;
    state.calc_perf = state.GT_Sim_Button = state.GT_combo = state.GT_fluid = true;
    state.create_charts = state.export_excel = state.mnudataperf = true;
    apply_chain(state, chain_event::profiles_started);
    enabling expected;
    expected.design_ports = expected.rotate_rotors_ccw = expected.rotate_rotors_cw = true;
    expected.mnudxf = expected.mnustep = expected.mnumodel = expected.mnudata = true;
    EXPECT_EQ(state, expected);
}

TEST(porting_type, both_double_sided_boxes_untick_and_disable_the_shadow_ports) {
    program kavetta;
    kavetta.enabling.calc_perf = true;
    set_porting_check(kavetta, &entries::shadow_ports, "1");
    EXPECT_FALSE(kavetta.enabling.calc_perf);
    set_porting_check(kavetta, &entries::inlet_double_sided, "1");
    EXPECT_EQ(kavetta.entries.shadow_ports, "1") << "one box alone leaves it available";
    set_porting_check(kavetta, &entries::outlet_double_sided, "1");
    EXPECT_EQ(kavetta.entries.shadow_ports, "0");
    EXPECT_FALSE(kavetta.enabling.shadow_ports);
    set_porting_check(kavetta, &entries::inlet_double_sided, "0");
    EXPECT_TRUE(kavetta.enabling.shadow_ports);
}

TEST(porting_type, the_groove_box_opens_its_entries) {
    program kavetta;
    set_porting_check(kavetta, &entries::metering_groove, "1");
    EXPECT_TRUE(kavetta.enabling.groove_length && kavetta.enabling.groove_width &&
                kavetta.enabling.groove_depth);
    set_porting_check(kavetta, &entries::metering_groove, "0");
    EXPECT_FALSE(kavetta.enabling.groove_length || kavetta.enabling.groove_width ||
                 kavetta.enabling.groove_depth);
}

}  // namespace
}  // namespace kvt
