// Tests of the result labels of the Design form: how their numbers are cut.
#include "app/stages/rotor_labels.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

std::string max_chamber_label(double area, double volume) {
    rotor_profiles rotors;
    rotors.max_chamber_area = area;
    rotors.max_chamber_volume = volume;
    labels texts;
    set_max_chamber_label(rotors, texts);
    return texts.max_chamb_vol;
}

TEST(rotor_labels, cut_large_chambers_to_whole_volumes) {
    EXPECT_EQ(max_chamber_label(10.0, 100.0), "100 mm3");
    EXPECT_EQ(max_chamber_label(103.89, 1038.9), "1038 mm3");
}

TEST(rotor_labels, test_the_area_and_not_the_volume_for_their_decimals) {
    EXPECT_EQ(max_chamber_label(9.99, 99.9), "99.9 mm3");
    EXPECT_EQ(max_chamber_label(3.27777, 32.7777), "32.77 mm3");
    EXPECT_EQ(max_chamber_label(-0.001, -0.001), "-0.01 mm3") << "cut downwards, not towards 0";
}

TEST(rotor_labels, of_the_minimum_chamber_has_the_same_cut) {
    rotor_profiles rotors;
    rotors.min_chamber_area = 3.27777;
    rotors.min_chamber_volume = 32.7777;
    labels texts;
    set_min_chamber_label(rotors, texts);
    EXPECT_EQ(texts.min_chamb_vol, "32.77 mm3");
    EXPECT_EQ(texts.max_chamb_vol, "");
}

TEST(rotor_labels, cut_the_area_ratio_to_two_decimals_of_a_percent) {
    rotor_profiles rotors;
    rotors.inner_area = 2.0;
    rotors.outer_area = 3.0;
    labels texts;
    set_area_ratio_label(rotors, texts);
    EXPECT_EQ(texts.area_ratio, "33.33 %");
}

TEST(rotor_labels, show_the_capacity_in_the_unit_of_the_record) {
    rotor_profiles rotors;
    rotors.capacity = fixed4::from(1.58882);
    rotors.capacity_cc = 6.0137;
    labels texts;
    set_capacity_label(rotors, texts);
    EXPECT_EQ(texts.capacity, "1.5888");
}

}  // namespace
}  // namespace kvt
