#include "base/loaded_function.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(loaded_function, finds_a_function_of_a_library) {
    EXPECT_NE(loaded_function("libm.so.6", "cos"), nullptr);
    EXPECT_EQ(loaded_function("libm.so.6", "cos"), loaded_function("libm.so.6", "cos"));
}

TEST(loaded_function, is_null_without_the_library_or_the_function) {
    EXPECT_EQ(loaded_function("no_such_library.so", "cos"), nullptr);
    EXPECT_EQ(loaded_function("libm.so.6", "kvt_no_such_function"), nullptr);
}

}  // namespace
}  // namespace kvt
