#include "automation/table_object.hpp"

#include "support/expect_failure.hpp"

#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

/// A box that is asked for its volume, emptied and given a height.
struct box : table_object {
    box() {
        on_get("Volume", 2, [this](const values& arguments) {
            return value(real(arguments, 0) * whole(arguments, 1) * height);
        });
        on_run("Empty", 0, [this](const values&) { height = 0.0; });
        on_put("Height", [this](const value& put) { height = real({put}, 0); });
        on_run("Delete", 0, [this](const values&) { is_gone = true; });
        has("Name", std::string("box"));
        has_switch("Visible", is_visible);
        has_switch("Locked");
    }
    double height = 3.0;
    bool is_visible = false;
};

}  // namespace

TEST(table_object, calls_the_function_of_a_name) {
    box one;
    EXPECT_EQ(std::get<double>(one.get("Volume", {2.0, 5})), 30.0);
    one.put("Height", 4.0);
    EXPECT_EQ(std::get<double>(one.get("Volume", {2.0, 5})), 40.0);
    one.run("Empty");
    EXPECT_EQ(one.height, 0.0);
    EXPECT_EQ(std::get<std::string>(one.get("Name")), "box");
    one.put("Visible", true);
    EXPECT_TRUE(one.is_visible);
    one.put("Locked", true);
}

TEST(table_object, refuses_other_names_with_438) {
    box one;
    EXPECT_FAILURE(one.get("Area"), 438);
    EXPECT_FAILURE(one.get("volume", {2.0, 5}), 438);
    EXPECT_FAILURE(one.run("Fill"), 438);
    EXPECT_FAILURE(one.put("Name", std::string("chest")), 438);
    EXPECT_FAILURE(one.get("Height"), 438);  // it can only be put
    EXPECT_FAILURE(one.get("Empty"), 438);   // it has no result
}

TEST(table_object, refuses_another_count_of_arguments_with_450) {
    box one;
    EXPECT_FAILURE(one.get("Volume", {2.0}), 450);
    EXPECT_FAILURE(one.run("Empty", {true}), 450);
}

TEST(table_object, refuses_another_kind_of_argument_with_13) {
    box one;
    EXPECT_FAILURE(one.get("Volume", {2, 5}), 13);  // nothing is coerced
    EXPECT_FAILURE(one.get("Volume", {2.0, 5.0}), 13);
    EXPECT_FAILURE(one.put("Height", std::string("4")), 13);
    EXPECT_FAILURE(one.put("Visible", 1), 13);
    EXPECT_FAILURE(one.put("Locked", 1), 13);
    EXPECT_FAILURE(three_reals({number_array{{1.0, 2.0}}}, 0), 13);
}

TEST(table_object, is_used_no_more_once_it_is_gone) {
    box one;
    one.run("Delete");
    EXPECT_FAILURE(one.get("Name"), REFUSED);
    EXPECT_FAILURE(one.run("Delete"), REFUSED);
    EXPECT_FAILURE(one.put("Height", 1.0), REFUSED);
}

TEST(table_object, is_taken_as_an_argument_for_what_it_is) {
    const auto one = std::make_shared<box>();
    const object_ref another = std::make_shared<table_object>();
    EXPECT_EQ(object_argument<box>({std::static_pointer_cast<object>(one)}, 0), one);
    EXPECT_FAILURE(object_argument<box>({another}, 0), 13);
    EXPECT_FAILURE(object_argument<box>({nothing{}}, 0), 13);
    one->is_gone = true;
    EXPECT_FAILURE(object_put<box>(std::static_pointer_cast<object>(one)), REFUSED);
    EXPECT_EQ(held_argument<double>({holding(2.5)}, 0), 2.5);
    EXPECT_FAILURE(held_argument<int>({holding(2.5)}, 0), 13);
}

TEST(table_object, answers_9_for_a_number_that_is_not_there) {
    EXPECT_EQ(item_number({1}, 0, 3, "planes"), 0U);
    EXPECT_EQ(item_number({3}, 0, 3, "planes"), 2U);
    EXPECT_FAILURE(item_number({0}, 0, 3, "planes"), 9);
    EXPECT_FAILURE(item_number({4}, 0, 3, "planes"), 9);
    EXPECT_FAILURE(item_number({-1}, 0, 3, "planes"), 9);
}

}  // namespace kvt::automation
