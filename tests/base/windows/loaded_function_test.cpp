#include "base/loaded_function.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(loaded_function, finds_a_function_of_a_library) {
    EXPECT_NE(loaded_function("kernel32.dll", "GetTickCount"), nullptr);
    EXPECT_EQ(loaded_function("kernel32.dll", "GetTickCount"),
              loaded_function("kernel32.dll", "GetTickCount"));
}

TEST(loaded_function, is_null_without_the_library_or_the_function) {
    EXPECT_EQ(loaded_function("no_such_library.so", "GetTickCount"), nullptr);
    EXPECT_EQ(loaded_function("kernel32.dll", "kvt_no_such_function"), nullptr);
}

}  // namespace
}  // namespace kvt
