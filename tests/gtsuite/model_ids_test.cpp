#include "gtsuite/model_ids.hpp"

#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"

namespace kvt {
namespace {

TEST(model_ids, follow_the_highest_of_the_sample) {
    const model_ids ids = read_model_ids(sample_model().lines);
    EXPECT_EQ(ids.object(axial_gap::upper), 60017);
    EXPECT_EQ(ids.object(axial_gap::lower), 60018);
    EXPECT_EQ(ids.part(axial_gap::upper), 60025);
    EXPECT_EQ(ids.part(axial_gap::lower), 60026);
    EXPECT_EQ(ids.link(0), 60027);
    EXPECT_EQ(ids.link(3), 60030);
    EXPECT_EQ(ids.highest_new(), 60030);
}

TEST(model_ids, take_numbers_of_any_length_in_any_order) {
    const model_ids ids =
        read_model_ids({"<object id=\"o1234567\" name=\"a\">", "   <object id=\"o12\" name=\"b\">",
                        "<part name=\"c\" id=\"p7\">", "<link id=\"l9\"/>"});
    EXPECT_EQ(ids.highest_object, 1234567);
    EXPECT_EQ(ids.highest_part, 9);
    EXPECT_EQ(ids.highest_new(), 1234569);
}

TEST(model_ids, count_from_nothing_in_an_empty_file) {
    EXPECT_EQ(read_model_ids({}).object(axial_gap::upper), 1);
    EXPECT_FAILURE(read_model_ids({"<object id=\"o99999999999999999999\">"}), failure::overflow);
    EXPECT_FAILURE(read_model_ids({"<part id=\"p2000000000000000\">"}), failure::overflow);
}

}  // namespace
}  // namespace kvt
