#include "gtsuite/chamber_profile.hpp"

#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"

namespace kvt {
namespace {

void expect_volumes(const std::string& bytes, double biggest, double smallest) {
    const chamber_volumes volumes = read_chamber_volumes(bytes);
    EXPECT_EQ(volumes.biggest_mm3, biggest) << bytes;
    EXPECT_EQ(volumes.smallest_mm3, smallest) << bytes;
}

TEST(chamber_profile, is_read_while_the_volumes_fall) {
    expect_volumes("a\nb\n0 30.5\n1 20\n2 10\n3 15\n4 1\n", 30.5, 10.0);
}

TEST(chamber_profile, ends_at_an_equal_volume_which_is_not_used) {
    expect_volumes("a\nb\n0 30\n1 20\n2 20\n3 10\n", 30.0, 20.0);
}

TEST(chamber_profile, may_have_one_volume) {
    expect_volumes("a\nb\n0 30\n", 30.0, 30.0);
    expect_volumes("a\nb\n0 30", 30.0, 30.0);
}

TEST(chamber_profile, takes_any_blanks_and_line_ends_and_further_numbers) {
    expect_volumes("a\r\nb\r\n  0   30.5  7\r\n\t1\t20\t7\r\n", 30.5, 20.0);
}

TEST(chamber_profile, stands_in_the_sample) {
    expect_volumes(gt_sample("sample_chambers.txt"), 2154.25, 288.125);
}

TEST(chamber_profile, without_volumes_is_a_failure) {
    EXPECT_FAILURE(read_chamber_volumes(""), failure::input_past_end);
    EXPECT_FAILURE(read_chamber_volumes("a\nb\n"), failure::input_past_end);
    EXPECT_FAILURE(read_chamber_volumes("a\nb\n0\n"), failure::input_past_end);
    EXPECT_FAILURE(read_chamber_volumes("a\nb\n0 30\n\n"), failure::input_past_end);
    EXPECT_FAILURE(read_chamber_volumes("a\nb\n0 big\n"), failure::type_mismatch);
}

}  // namespace
}  // namespace kvt
