// Tests of the record: its initial state and the table of its names.
#include "ports/port_params.hpp"

#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

TEST(port_params, starts_at_zero_with_whole_arrays) {
    const port_params ports;
    for (const auto& field : port_values()) {
        EXPECT_EQ(ports.*field.member, 0.0) << field.name;
    }
    for (const auto& field : port_indexes()) {
        EXPECT_EQ(ports.*field.member, 0) << field.name;
    }
    for (const auto& field : port_arrays()) {
        EXPECT_EQ((ports.*field.member).size(), 72001U) << field.name;
    }
}

TEST(port_params, every_name_stands_once_and_reaches_a_field_of_its_own) {
    std::set<std::string_view> names;
    port_params ports;
    double number = 1.0;
    for (const auto& field : port_values()) {
        EXPECT_TRUE(names.insert(field.name).second) << field.name;
        EXPECT_EQ(ports.*field.member, 0.0) << field.name;
        ports.*field.member = number;
        number += 1.0;
    }
    for (const auto& field : port_indexes()) {
        EXPECT_TRUE(names.insert(field.name).second) << field.name;
    }
    for (const auto& field : port_arrays()) {
        EXPECT_TRUE(names.insert(field.name).second) << field.name;
    }
}

}  // namespace
}  // namespace kvt
