// The load on the shaft.
#include "performance/side_load.hpp"

#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

class side_load_test : public testing::Test {
  protected:
    side_load_test() {
        sample.design_params.numlobes = 5;      // lobes 90 degrees apart, a = 1 .. 89
        sample.design_params.radinnroot = 0.0;  // no pressure load
    }
    void calculate() { set_side_loads(sample.design_params, sample.perf_inputs, now()); }
    perf_results& now() { return sample.perf_results; }
    void set_contact(std::size_t degrees, double force, double angle) {
        for (auto& speed : now().contact_force) {
            for (perf_array& turn : speed) {
                turn[degrees] = force;
            }
        }
        now().pressure_angle[degrees] = angle;
    }
    void set_all_contacts(double force, double angle) {
        for (std::size_t a = 1; a <= 180; ++a) {
            set_contact(a, force, angle);
        }
    }
    performance_case sample = load_performance_case("n07_engine_oil_groove");
};

TEST_F(side_load_test, adds_the_lobes_up_to_180_degrees) {
    set_all_contacts(1.0, 1.5707963267948966);  // along x
    calculate();
    EXPECT_NEAR(now().side_x[10], 2.0, 1e-12) << "lobes at 10 and 100, not at 190";
    EXPECT_NEAR(now().side_x[89], 2.0, 1e-12);
    EXPECT_EQ(now().side_x[90], 0.0) << "89 is the last";
    EXPECT_NEAR(now().side_load[0][0], 2.0, 1e-12);
}

TEST_F(side_load_test, is_that_of_the_last_angle_and_not_the_largest) {
    set_all_contacts(1.0, 1.0);
    set_contact(45, 1000.0, 1.0);
    calculate();
    EXPECT_GT(now().side_mag[45], 1000.0);
    EXPECT_NEAR(now().side_load[2][3], now().side_mag[89], 1e-12);
    EXPECT_NEAR(now().side_load[2][3], 2.0, 1e-12);
    EXPECT_EQ(now().side_load_angle[2][3], now().side_dir[89]);
}

/// N = 8: lobes 51.43 degrees apart. For a = 25 they stand at 76.43, 127.86 and 179.29, which are
/// 76, 128 and 179; for a = 26 the last one at 180.29 counts no more, though it would round to 180.
TEST_F(side_load_test, rounds_the_lobe_angle_after_the_test_against_180) {
    sample.design_params.numlobes = 8;
    set_all_contacts(0.0, 1.0);
    set_contact(25, 1.0, 1.5707963267948966);
    set_contact(76, 10.0, 1.5707963267948966);
    set_contact(128, 100.0, 1.5707963267948966);
    set_contact(179, 1000.0, 1.5707963267948966);
    set_contact(26, 1.0, 1.5707963267948966);
    set_contact(77, 10.0, 1.5707963267948966);
    set_contact(129, 100.0, 1.5707963267948966);
    set_contact(180, 1000.0, 1.5707963267948966);
    // Every angle needs an x component, or its direction divides by 0.
    for (std::size_t a = 1; a <= 24; ++a) {
        set_contact(a, 1.0, 1.5707963267948966);
    }
    for (std::size_t a = 27; a <= 51; ++a) {
        set_contact(a, 1.0, 1.5707963267948966);
    }
    calculate();
    EXPECT_NEAR(now().side_x[25], 1111.0, 1e-9);
    EXPECT_NEAR(now().side_x[26], 111.0, 1e-9);
}

TEST_F(side_load_test, fails_without_an_x_component) {
    set_all_contacts(0.0, 1.0);
    EXPECT_FAILURE(calculate(), failure::division_by_zero);
}

/// 2 r PI_D t span / 360 with r 10, t 5, span 36 degrees: PI_D 10 mm2; at 1 MPa as many newtons.
TEST_F(side_load_test, adds_the_pressure_on_the_root_between_the_texts_of_the_angles) {
    sample.design_params.radinnroot = 10.0;
    sample.design_params.thick = 5.0;
    sample.perf_inputs.outlet_start_inner = 100.0;
    sample.perf_inputs.outlet_end_inner = 136.0;
    sample.port_params.outlet.corners[START_INNER].angle_deg = 0.0;
    sample.port_params.outlet.corners[END_INNER].angle_deg = 180.0;
    now().press_pa = {1e6, 2e6, 0, 0, 0, 0};
    set_all_contacts(1.0, 1.0);
    calculate();
    EXPECT_NEAR(now().root_arc, 31.415927, 1e-12);
    EXPECT_NEAR(now().side_load[4][0] - now().side_mag[89], 31.415927, 1e-9);
    EXPECT_NEAR(now().side_load[4][1] - now().side_mag[89], 62.831854, 1e-9);
    EXPECT_NEAR(now().side_load[4][2], now().side_mag[89], 1e-12);
}

}  // namespace
}  // namespace kvt
