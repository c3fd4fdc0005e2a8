// Tests of the words for what became of a design.
#include "app/study/run_words.hpp"

#include "app/study/study_problem.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(run_words, are_empty_where_a_stage_did_not_run) {
    EXPECT_EQ(ports_word({}), "");
    EXPECT_EQ(performance_word({}), "");
}

TEST(run_words, say_what_was_refused) {
    batch_result result;
    result.ports_reached = true;
    EXPECT_EQ(ports_word(result), "ok");
    result.ports_refused = true;
    EXPECT_EQ(ports_word(result), "refused");
    result.performance_refused = true;
    EXPECT_EQ(performance_word(result), "refused");
    result.performance_refused = false;
    result.performance_reached = true;
    EXPECT_EQ(performance_word(result), "ok");
}

TEST(run_words, stand_on_one_line) {
    EXPECT_EQ(on_one_line({}), "");
    EXPECT_EQ(on_one_line({"told", "more"}), "told | more");
    EXPECT_EQ(on_one_line({"first\r\nsecond\n\nthird"}), "first second third");
}

TEST(run_words, read_back_to_the_same_run) {
    for (const std::string ports : {"", "ok", "refused"}) {
        for (const std::string performance : {"", "ok", "refused"}) {
            const batch_result result = result_of_words("ok", ports, performance);
            EXPECT_EQ(ports_word(result), ports);
            EXPECT_EQ(performance_word(result), performance);
        }
    }
    for (const batch_end end :
         {batch_end::ok, batch_end::validation, batch_end::failure, batch_end::closing,
          batch_end::error, batch_end::fatal, batch_end::read_error}) {
        EXPECT_EQ(result_of_words(batch_end_name(end), "", "").end, end);
    }
    EXPECT_THROW(result_of_words("good", "", ""), study_problem);
}

}  // namespace
}  // namespace kvt
