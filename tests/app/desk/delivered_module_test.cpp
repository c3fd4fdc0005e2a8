// Tests of where modules are looked for.
#include "app/desk/delivered_module.hpp"

#include "base/path_text.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(delivered_module, lies_in_the_build_where_none_is_installed) {
    const std::filesystem::path module = delivered_module("no_such_module.so");
    EXPECT_EQ(utf8_of_path(module.filename()), "no_such_module.so");
    EXPECT_EQ(utf8_of_path(module.parent_path().filename()), "lib");
    EXPECT_FALSE(std::filesystem::exists(module));
}

}  // namespace
}  // namespace kvt
