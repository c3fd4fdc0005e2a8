// Converters that are ended; the stand-in is a script.
#include "app/gt/conversion.hpp"
#include "app/gt/gt_person.hpp"
#include "support/gt_stand_in.hpp"

namespace kvt {
namespace {

using std::chrono::milliseconds;

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
    EXPECT_FALSE(run_conversion(person, files, conversion_limits()));
    EXPECT_EQ(person.waits, 2);
    EXPECT_FALSE(person.is_tool_running());
}

}  // namespace
}  // namespace kvt
