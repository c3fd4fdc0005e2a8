#include "automation/answer.hpp"

#include "automation/automation_error.hpp"

#include <functional>
#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

/// Answers what it was made with; remembers the last name.
class one_answer : public object {
  public:
    explicit one_answer(value answer) : answer_(std::move(answer)) {}
    value get(std::string_view name, values) override {
        asked = name;
        return answer_;
    }
    void run(std::string_view, values) override {}
    void put(std::string_view, value) override {}

    std::string asked;

  private:
    value answer_;
};

object_ref some_object() {
    return std::make_shared<one_answer>(value{});
}

std::int32_t error_in(const std::function<void()>& reading) {
    try {
        reading();
    } catch (const run_time_error& error) {
        return error.number();
    }
    return 0;
}

TEST(answer, is_the_object_that_was_wanted) {
    const object_ref one = some_object();
    EXPECT_EQ(as_object(one), one);
    EXPECT_EQ(as_objects(object_array{{one, one}}).size(), 2U);
    EXPECT_EQ(as_objects(variant_array{{one}}).at(0), one);
}

TEST(answer, without_an_object_is_error_91) {
    EXPECT_EQ(error_in([] { as_object(object_ref{}); }), 91);
    EXPECT_EQ(error_in([] { as_object(nothing{}); }), 91);
    EXPECT_EQ(error_in([] { as_object(value{}); }), 91);
}

TEST(answer, of_another_kind_is_error_13) {
    EXPECT_EQ(error_in([] { as_object(1.0); }), 13);
    EXPECT_EQ(error_in([] { as_objects(some_object()); }), 13);
    EXPECT_EQ(error_in([] { as_integer(std::string("1")); }), 13);
    EXPECT_EQ(error_in([] { as_text(1.0); }), 13);
}

TEST(answer, is_a_number_in_any_of_its_kinds) {
    EXPECT_EQ(as_integer(std::int32_t{7}), 7);
    EXPECT_EQ(as_integer(2.5), 2) << "half to even";
    EXPECT_EQ(as_integer(true), -1);
    EXPECT_EQ(error_in([] { as_integer(3e9); }), 6);
    EXPECT_TRUE(as_bool(true));
    EXPECT_TRUE(as_bool(std::int32_t{1}));
    EXPECT_FALSE(as_bool(0.0));
    EXPECT_EQ(as_text(std::string("RefPlane")), "RefPlane");
}

TEST(answer, of_a_member_is_its_object) {
    const object_ref inner = some_object();
    const auto outer = std::make_shared<one_answer>(inner);
    EXPECT_EQ(object_of(outer, "ModelSpace"), inner);
    EXPECT_EQ(outer->asked, "ModelSpace");
}

}  // namespace
}  // namespace kvt::automation
