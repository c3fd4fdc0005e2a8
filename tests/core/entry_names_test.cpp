// Tests of what the entries are called outside their forms.
#include "core/entry_names.hpp"

#include "core/app_state.hpp"
#include "core/text_table.hpp"

#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

std::string name_of(std::string_view entry) {
    return entry_name(*find_entry(entry), captions(), ENGLISH);
}

TEST(entry_name, is_the_caption_beside_the_box) {
    EXPECT_EQ(name_of("ecc"), "Eccentricity");
    EXPECT_EQ(name_of("maxdiameter"), "Maximum Outer Rotor Diameter");
    EXPECT_EQ(name_of("shadow_ports"), "Shadow Ports");
    EXPECT_EQ(name_of("flow_checkbox"), "Flow");
}

TEST(entry_name, says_the_group_and_which_of_two_boxes) {
    EXPECT_EQ(name_of("inlet_start_inner"), "Inlet Port: Start Angle Inner Radius");
    EXPECT_EQ(name_of("Outlet_outer_radius"), "Outlet Port: Outer Radius");
    EXPECT_EQ(name_of("groove_width"), "Metering Groove: Width (mm)");
    EXPECT_EQ(name_of("speed_hi"), "Highest Speed");
    EXPECT_EQ(name_of("young_inner"), "Youngs Modulus, Inner Rotor");
}

TEST(entry_label, is_the_control_with_the_caption_of_the_box) {
    EXPECT_STREQ(entry_label("ecc"), "Label3");
    EXPECT_STREQ(entry_label("inlet_inner_radius"), "Label15");
    EXPECT_STREQ(entry_label("UTS_value"), "UTS_label");
    EXPECT_STREQ(entry_label("speed_lo"), "") << "it shares a caption";
    EXPECT_STREQ(entry_label("shadow_ports"), "");
}

TEST(entry_name, is_another_for_every_entry) {
    std::set<std::string> names;
    for (const entry_field& field : entry_fields()) {
        const std::string name = entry_name(field, captions(), ENGLISH);
        EXPECT_FALSE(name.empty()) << field.name;
        EXPECT_TRUE(names.insert(name).second) << name;
    }
}

TEST(entry_name, follows_the_captions) {
    captions shown;
    shown.set(*find_text(text_kind::caption, "Form1", "Label3"), GERMAN);
    EXPECT_EQ(entry_name(*find_entry("ecc"), shown, GERMAN), "Exzentrizität");
    EXPECT_EQ(entry_name(*find_entry("speed_lo"), shown, GERMAN), "Niedrigste Drehzahl");
}

}  // namespace
}  // namespace kvt
