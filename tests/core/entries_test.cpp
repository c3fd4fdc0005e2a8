// Tests of the table of entries and labels: every member reached once, and the texts of a new
// program.
#include "core/entries.hpp"

#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

TEST(entry_fields, reach_every_entry_exactly_once) {
    std::set<const std::string*> reached;
    const entries boxes;
    for (const entry_field& field : entry_fields()) {
        reached.insert(&(boxes.*field.member));
    }
    EXPECT_EQ(reached.size(), entry_fields().size());
    EXPECT_EQ(reached.size(), sizeof(entries) / sizeof(std::string))
        << "an entry has no row in the table";
}

TEST(entry_fields, lead_from_a_name_to_the_entry_of_that_name) {
    entries boxes;
    boxes.radinnroot = "22.7";
    boxes.Outlet_inner_radius = "8.5";
    EXPECT_EQ(boxes.*find_entry("radinnroot")->member, "22.7");
    EXPECT_EQ(boxes.*find_entry("Outlet_inner_radius")->member, "8.5");
    EXPECT_EQ(find_entry("outlet_inner_radius"), nullptr)
        << "names are letter for letter, capitals too";
    EXPECT_EQ(find_entry(""), nullptr);
}

TEST(entry_fields, hold_0_or_1_at_start_in_every_check_box) {
    const entries boxes;
    int check_boxes = 0;
    for (const entry_field& field : entry_fields()) {
        if (field.kind == entry_kind::check) {
            ++check_boxes;
            EXPECT_EQ(boxes.*field.member, "0") << field.name;
        }
    }
    EXPECT_EQ(check_boxes, 4 + 7);  // porting type on portdes, charts on select_graphs
}

TEST(entries, hold_the_initial_texts_of_the_design_form) {
    const entries boxes;
    EXPECT_EQ(boxes.numlobes, "3");
    for (const char* name : {"thick", "maxdiameter", "coarseness"}) {
        EXPECT_EQ(boxes.*find_entry(name)->member, "1") << name;
    }
    for (const char* name :
         {"volumereqd", "ecc", "radouter", "radinnroot", "clearn", "shaftdiameter", "minmaterial",
          "axial_clear", "radial_clear", "fillet"}) {
        EXPECT_EQ(boxes.*find_entry(name)->member, "0") << name;
    }
    EXPECT_EQ(boxes.outer_root, "");
    EXPECT_EQ(boxes.Face_area_value, "100");
    EXPECT_EQ(boxes.OD_area_value, "100");
}

TEST(label_fields, reach_different_labels_and_neither_title_nor_hidden_name) {
    std::set<const std::string*> reached;
    const labels shown;
    for (const label_field& field : label_fields()) {
        reached.insert(&(shown.*field.member));
    }
    EXPECT_EQ(reached.size(), label_fields().size());
    EXPECT_TRUE(reached.contains(&shown.capacity));
    EXPECT_FALSE(reached.contains(&shown.title));
    EXPECT_FALSE(reached.contains(&shown.hiddenprojnamelabel));
}

}  // namespace
}  // namespace kvt
