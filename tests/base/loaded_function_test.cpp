#include "base/loaded_function.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

#ifdef _WIN32
constexpr const char* LIBRARY = "kernel32.dll";
constexpr const char* FUNCTION = "GetTickCount";
#else
constexpr const char* LIBRARY = "libm.so.6";
constexpr const char* FUNCTION = "cos";
#endif

TEST(loaded_function, finds_a_function_of_a_library) {
    EXPECT_NE(loaded_function(LIBRARY, FUNCTION), nullptr);
    EXPECT_EQ(loaded_function(LIBRARY, FUNCTION), loaded_function(LIBRARY, FUNCTION));
}

TEST(loaded_function, is_null_without_the_library_or_the_function) {
    EXPECT_EQ(loaded_function("no_such_library.so", FUNCTION), nullptr);
    EXPECT_EQ(loaded_function(LIBRARY, "kvt_no_such_function"), nullptr);
}

}  // namespace
}  // namespace kvt
