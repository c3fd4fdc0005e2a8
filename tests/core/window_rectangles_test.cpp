// Tests of the built-in window layout and its table.
#include "core/window_rectangles.hpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kvt {
namespace {

TEST(window_rectangle_fields, stand_in_the_order_of_the_layout_file) {
    std::vector<std::string> names;
    for (const window_rectangle_field& field : window_rectangle_fields()) {
        names.emplace_back(field.name);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Form1", "portdes", "viewwinfrm", "Perffrm",
                                               "select_graphs"}));
}

TEST(window_rectangle_fields, lead_from_a_name_to_the_window_of_that_name) {
    const window_rectangles layout;
    EXPECT_EQ(&(layout.*find_named(window_rectangle_fields(), "Perffrm")->member), &layout.Perffrm);
    EXPECT_EQ(find_named(window_rectangle_fields(), "MDIForm1"), nullptr);
}

// Height, width, top and left in twips. The windows stand beside each other: Design, Performance,
// Design view.
TEST(window_rectangles, hold_the_built_in_layout) {
    const window_rectangles layout;
    EXPECT_EQ(layout.Form1, (window_rectangle{8085, 5430, 0, 0}));
    EXPECT_EQ(layout.portdes, (window_rectangle{2895, 10200, 8100, 0}));
    EXPECT_EQ(layout.viewwinfrm, (window_rectangle{7185, 6375, 0, 8995}));
    EXPECT_EQ(layout.Perffrm, (window_rectangle{8085, 3525, 0, 5450}));
    EXPECT_EQ(layout.select_graphs, (window_rectangle{2355, 4395, 8100, 10220}));
    EXPECT_TRUE(layout.main_window_maximised);
}

}  // namespace
}  // namespace kvt
