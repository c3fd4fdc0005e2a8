// Tests of the record: its initial state and the table of its names.
#include "ports/port_params.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

TEST(port_params, starts_at_zero_with_whole_arrays) {
    const port_params ports;
    for (const auto& [name, value] : port_values(ports)) {
        EXPECT_EQ(*value, 0.0) << name;
    }
    for (const auto& [name, index] : port_indexes(ports)) {
        EXPECT_EQ(*index, 0) << name;
    }
    for (const auto& array : port_arrays(ports)) {
        EXPECT_EQ(array.values->size(), 72001U) << array.name;
        EXPECT_EQ(array.last, 0) << array.name;
    }
}

TEST(port_params, every_name_stands_once_and_reaches_a_field_of_its_own) {
    std::set<std::string> names;
    port_params ports;
    double number = 1.0;
    for (const auto& [name, value] : port_values(ports)) {
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_EQ(*value, 0.0) << name;
        *value = number;
        number += 1.0;
    }
    for (const auto& index : port_indexes(ports)) {
        EXPECT_TRUE(names.insert(index.name).second) << index.name;
    }
    for (const auto& array : port_arrays(ports)) {
        EXPECT_TRUE(names.insert(array.name).second) << array.name;
    }
}

/// A value under its name.
double value_of(const port_params& ports, const std::string& name) {
    const auto values = port_values(ports);
    const auto found = std::ranges::find(values, name, &port_field<const double>::name);
    return found == values.end() ? std::nan("") : *found->held;
}

TEST(port_params, names_tell_port_corner_and_axis) {
    port_params ports;
    ports.inlet.corners[START_INNER].c = {1.0, 2.0};
    ports.inlet.corners[END_OUTER].t_deg = 3.0;
    ports.outlet.corners[END_INNER].s = {4.0, 5.0};
    ports.outlet.corners[START_OUTER].r = {6.0, 7.0};
    ports.outlet.corners[START_OUTER].p = {8.0, 9.0};
    ports.outlet.corners[START_OUTER].angle_deg = 10.0;
    ports.inlet.corners[END_INNER].angle_deg = 11.0;
    ports.outlet.outer_r = 12.0;
    EXPECT_EQ(value_of(ports, "inlet_c1_x"), 1.0);
    EXPECT_EQ(value_of(ports, "inlet_c1_y"), 2.0);
    EXPECT_EQ(value_of(ports, "inlet_t3_deg"), 3.0);
    EXPECT_EQ(value_of(ports, "outlet_s2_x"), 4.0);
    EXPECT_EQ(value_of(ports, "outlet_s2_y"), 5.0);
    EXPECT_EQ(value_of(ports, "outlet_r4_x"), 6.0);
    EXPECT_EQ(value_of(ports, "outlet_p4_y"), 9.0);
    EXPECT_EQ(value_of(ports, "outlet_start_outer_deg"), 10.0);
    EXPECT_EQ(value_of(ports, "inlet_end_inner_deg"), 11.0);
    EXPECT_EQ(value_of(ports, "outlet_outer_r"), 12.0);
    ports.outlet.marks = {1, 2, 3, 4};
    const auto indexes = port_indexes(ports);
    const auto mark_c =
        std::ranges::find(indexes, "outlet_mark_c", &port_field<const std::int16_t>::name);
    ASSERT_NE(mark_c, indexes.end());
    EXPECT_EQ(*mark_c->held, 3);
}

}  // namespace
}  // namespace kvt
