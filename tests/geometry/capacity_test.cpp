// Tests of the capacity and its units.
#include "geometry/capacity.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <gtest/gtest.h>

namespace kvt {

TEST(capacity, is_the_annulus_between_tip_and_root) {
    // Tip 24.5 + 2.85 - 0.06 - 7.5 = 19.79, root 14.15: (391.6441 - 200.2225) * 3.1415927 * 10 /
    // 1000
    const rotor_profiles rotors = prepared_rotors(sample_design());
    EXPECT_NEAR(annulus_volume(sample_design(), rotors), 6.01368701, 1e-8);
}

TEST(capacity, keeps_four_decimals) {
    rotor_profiles rotors = prepared_rotors(sample_design());
    calculate_capacity(sample_design(), 1, rotors);
    EXPECT_EQ(rotors.capacity.text(), "6.0137");
    EXPECT_EQ(rotors.capacity_cc, 6.0137);
    calculate_capacity(sample_design(), 2, rotors);
    EXPECT_EQ(rotors.capacity.text(), "1.5888");  // 6.0137 / 3.785 = 1.58882
    EXPECT_EQ(rotors.capacity_cc, 6.0137);
}

TEST(capacity, of_100_cc_in_each_unit) {
    const fixed4 hundred = fixed4::from(100.0);
    EXPECT_EQ(capacity_in_unit(hundred, 1).text(), "100");
    EXPECT_EQ(capacity_in_unit(hundred, 2).text(), "26.4201");
    EXPECT_EQ(capacity_in_unit(hundred, 3).text(), "22.0264");
    EXPECT_EQ(capacity_in_unit(hundred, 4).text(), "100");
    EXPECT_EQ(capacity_in_unit(hundred, 5).text(), "6.1024");
    EXPECT_EQ(capacity_in_unit(hundred, 0), hundred);
    EXPECT_EQ(capacity_in_unit(hundred, 6), hundred);
}

TEST(capacity, starts_all_units_from_the_rounded_value) {
    // 12.34565 is kept as 12.3456; from there on its fifth decimal is gone.
    EXPECT_EQ(fixed4::from(12.34565).text(), "12.3456");
    EXPECT_EQ(capacity_in_unit(fixed4::from(12.34565), 4).text(), "12.3456");
    EXPECT_EQ(capacity_in_unit(fixed4::from(0.00014), 5).text(), "0");
}

TEST(capacity, that_does_not_fit_the_fixed_point_number_fails) {
    design_params design = sample_design();
    design.thick = 1e20;
    rotor_profiles rotors = prepared_rotors(design);
    rotors.capacity = fixed4::from(7.0);
    EXPECT_FAILURE(calculate_capacity(design, 1, rotors), failure::overflow);
    EXPECT_EQ(rotors.capacity.text(), "7") << "the older number stays";
}

}  // namespace kvt
