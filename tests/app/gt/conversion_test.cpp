#include "app/gt/conversion.hpp"

#include "app/gt/gt_person.hpp"
#include "support/expect_failure.hpp"
#include "support/gt_stand_in.hpp"

namespace kvt {
namespace {

using std::chrono::milliseconds;

const conversion_limits LIMITS;  // 600 s, 0.5 s, 2 s

TEST(conversion_watch, is_over_when_both_files_have_kept_their_sizes) {
    conversion_watch watch(LIMITS);
    EXPECT_FALSE(watch.is_over(milliseconds(0), std::nullopt, true));
    EXPECT_FALSE(watch.is_over(milliseconds(1000), conversion_sizes{1, 1}, true));
    EXPECT_FALSE(watch.is_over(milliseconds(1400), conversion_sizes{2, 1}, true)) << "it grows";
    EXPECT_FALSE(watch.is_over(milliseconds(1899), conversion_sizes{2, 1}, true));
    EXPECT_TRUE(watch.is_over(milliseconds(1900), conversion_sizes{2, 1}, true));
}

TEST(conversion_watch, counts_anew_when_a_file_goes) {
    conversion_watch watch(LIMITS);
    EXPECT_FALSE(watch.is_over(milliseconds(0), conversion_sizes{1, 1}, true));
    EXPECT_FALSE(watch.is_over(milliseconds(400), std::nullopt, true));
    EXPECT_FALSE(watch.is_over(milliseconds(800), conversion_sizes{1, 1}, true));
    EXPECT_TRUE(watch.is_over(milliseconds(1300), conversion_sizes{1, 1}, true));
}

TEST(conversion_watch, is_over_two_seconds_after_the_end_of_the_converter) {
    conversion_watch watch(LIMITS);
    EXPECT_FALSE(watch.is_over(milliseconds(100), std::nullopt, false));
    EXPECT_FALSE(watch.is_over(milliseconds(2099), std::nullopt, false));
    EXPECT_TRUE(watch.is_over(milliseconds(2100), std::nullopt, false));
}

TEST(conversion_watch, is_over_after_ten_minutes) {
    conversion_watch watch(LIMITS);
    EXPECT_FALSE(watch.is_over(milliseconds(599999), std::nullopt, true));
    EXPECT_TRUE(watch.is_over(milliseconds(600000), std::nullopt, true));
}

TEST(run_conversion, without_the_converter_is_a_failure) {
    gt_stand_in package;
    gt_person person;
    std::filesystem::remove(package.home() / "bin/gemc");
    EXPECT_FAILURE(run_conversion(person, {}, LIMITS), failure::file_not_found);
    package.home_variable().set(std::nullopt);
    EXPECT_FAILURE(run_conversion(person, {}, LIMITS), failure::path_not_found);
    EXPECT_TRUE(person.log.empty());
}

}  // namespace
}  // namespace kvt
