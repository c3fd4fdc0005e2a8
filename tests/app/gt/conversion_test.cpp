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

TEST(run_conversion, ends_a_converter_whose_time_is_over) {
    gt_stand_in package;
    package.delay("30");
    gt_person person;
    conversion_limits limits;
    limits.whole = milliseconds(300);
    const conversion files = {"none.gem", package.home() / "a.gtm", package.home() / "a.txt", 2021};
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(run_conversion(person, files, limits)) << "nobody ended it";
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_FALSE(person.is_tool_running());
}

TEST(run_conversion, ends_when_the_person_wants_no_more_of_it) {
    gt_stand_in package;
    package.delay("30");
    gt_person person;
    person.patience = 2;
    const conversion files = {"none.gem", package.home() / "a.gtm", package.home() / "a.txt", 2021};
    EXPECT_FALSE(run_conversion(person, files, LIMITS));
    EXPECT_EQ(person.waits, 2);
    EXPECT_FALSE(person.is_tool_running());
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
