#include "cad/point_arguments.hpp"

#include "automation/automation_error.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using automation::automation_error;
using automation::number_array;

}  // namespace

TEST(point_arguments, are_places_of_three_numbers) {
    EXPECT_EQ(place({true, number_array{{1.0, 2.0, 3.0}}}, 1), (point3{1.0, 2.0, 3.0}));
    EXPECT_THROW(place({number_array{{1.0, 2.0}}}, 0), automation_error);
    EXPECT_THROW(place({1.0}, 0), automation_error);
}

TEST(point_arguments, are_lists_of_pairs_or_triples) {
    const std::vector<point2> two = {{1.0, 2.0}, {3.0, 4.0}};
    EXPECT_EQ(flat_points({1.0, 2.0, 3.0, 4.0}, 2), two);
    EXPECT_EQ(flat_points({1.0, 2.0, 0.0, 3.0, 4.0, 9.0}, 3), two);
    EXPECT_EQ(flat_points({0.1, 0.2, 0.3, 0.4}, 2, 10.0).back(), (point2{3.0, 4.0}));
    EXPECT_THROW(flat_points({1.0, 2.0, 3.0, 4.0, 5.0}, 2), automation_error) << "an odd count";
    EXPECT_THROW(flat_points({1.0, 2.0}, 2), automation_error) << "one point";
    EXPECT_THROW(flat_points({}, 2), automation_error);
}

}  // namespace kvt
