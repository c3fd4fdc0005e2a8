#include "cad/port_planes.hpp"

#include "automation/recorder_host.hpp"

#include <gtest/gtest.h>

namespace kvt {

TEST(port_planes, are_the_base_and_one_plane_above_made_when_it_is_needed) {
    automation::recorder_host host;
    const automation::object_ref base = host.create("base"), upper = host.create("upper");
    std::vector<double> heights;
    port_planes planes(base, [&](double z) {
        heights.push_back(z);
        return upper;
    });
    const port_body below = {port_body_kind::groove, port_body_place::below, {}, -1.0, 0.0};
    const port_body above = {
        port_body_kind::inlet_upper, port_body_place::above_shadow, {}, 10.5, 12.5};
    EXPECT_EQ(planes.of(below), base);
    EXPECT_TRUE(heights.empty());
    EXPECT_EQ(planes.of(above), upper);
    EXPECT_EQ(planes.of(above), upper);
    EXPECT_EQ(heights, std::vector<double>{10.5});
}

}  // namespace kvt
