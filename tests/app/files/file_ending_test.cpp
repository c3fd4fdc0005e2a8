// Tests of the ending that a file's name gets.
#include "app/files/file_ending.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(with_ending, adds_what_the_name_does_not_end_in) {
    EXPECT_EQ(with_ending("Pump 2.5", "KVT"), "Pump 2.5.KVT");
    EXPECT_EQ(with_ending("rotor v1.2", "dxf"), "rotor v1.2.dxf");
    EXPECT_EQ(with_ending("/p/pump.dxf", "stp"), "/p/pump.dxf.stp");
    EXPECT_EQ(with_ending("KVT", "KVT"), "KVT.KVT");
    EXPECT_EQ(with_ending("pumpKVT", "KVT"), "pumpKVT.KVT");
    EXPECT_EQ(with_ending("Ölpumpe", "KVT"), "Ölpumpe.KVT");
}

TEST(with_ending, leaves_a_name_that_ends_in_it_in_any_case_of_letters) {
    for (const char* name : {"pump.KVT", "pump.kvt", "pump.Kvt", "Pump 2.5.kVt"}) {
        EXPECT_EQ(with_ending(name, "KVT"), name);
    }
    EXPECT_EQ(with_ending("OUTER.CNC", "cnc"), "OUTER.CNC");
}

TEST(with_ending, leaves_a_name_that_is_none_and_one_without_an_ending_of_its_own) {
    EXPECT_EQ(with_ending("", "KVT"), "");
    EXPECT_EQ(with_ending("pump", ""), "pump");
}

}  // namespace
}  // namespace kvt
