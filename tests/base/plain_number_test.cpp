// Tests of the text of a number without an exponent.
#include "base/plain_number.hpp"

#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "support/property_runs.hpp"

#include <gtest/gtest.h>
#include <limits>

namespace kvt {
namespace {

TEST(plain_number_text, is_the_default_text_where_that_has_no_exponent) {
    EXPECT_EQ(plain_number_text(0.0), "0");
    EXPECT_EQ(plain_number_text(-0.0), "0");
    EXPECT_EQ(plain_number_text(10.0), "10");
    EXPECT_EQ(plain_number_text(-0.5), "-0.5");
    EXPECT_EQ(plain_number_text(1.0 / 1259.0), "0.00079428117553614");
    EXPECT_EQ(plain_number_text(123456789012345.0), "123456789012345");
}

TEST(plain_number_text, writes_small_numbers_with_their_zeros) {
    EXPECT_EQ(plain_number_text(1e-5), "0.00001");
    EXPECT_EQ(plain_number_text(-1.25e-5), "-0.0000125");
    EXPECT_EQ(plain_number_text(9.99999999999999e-5), "0.0000999999999999999");
    EXPECT_EQ(plain_number_text(1e-16), "0.0000000000000001");
}

TEST(plain_number_text, writes_large_numbers_with_their_zeros) {
    EXPECT_EQ(plain_number_text(1e15), "1000000000000000");
    EXPECT_EQ(plain_number_text(-1.5e15), "-1500000000000000");
    EXPECT_EQ(plain_number_text(1.23456789012345e16), "12345678901234500");
    EXPECT_EQ(plain_number_text(1e22), "10000000000000000000000");
}

TEST(plain_number_text, reads_back_to_what_the_default_text_says) {
    random_values random;
    for (int i = property_count(20000); i > 0; --i) {
        const double value = std::ldexp(random.real(-1.0, 1.0), random.whole(-120, 120));
        const std::string text = plain_number_text(value);
        EXPECT_EQ(text.find_first_not_of("-0123456789."), std::string::npos) << text;
        ASSERT_EQ(val(text), val(number_text(value))) << text;
    }
}

TEST(plain_number_text, refuses_what_is_no_number) {
    EXPECT_THROW(plain_number_text(std::numeric_limits<double>::infinity()), run_time_error);
    EXPECT_THROW(plain_number_text(std::numeric_limits<double>::quiet_NaN()), run_time_error);
}

}  // namespace
}  // namespace kvt
