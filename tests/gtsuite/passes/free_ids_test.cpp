#include "gtsuite/pass_case.hpp"

namespace kvt {
namespace {

TEST(find_free_ids, raises_the_next_object_above_every_new_number) {
    const passed done = run_pass(
        find_free_ids, {"<gtm next_obj=\"8\" product=\"13\">", "<object id=\"o20\" name=\"a\">"});
    EXPECT_EQ(done.lines.front(), "<gtm next_obj=\"23\" product=\"13\">");
    expect_count(done, 1, 1);
}

TEST(find_free_ids, leaves_a_next_object_that_is_high_enough) {
    const model_lines lines = {"<gtm next_obj=\"23\">", "<object id=\"o20\" name=\"a\">"};
    const passed done = run_pass(find_free_ids, lines);
    EXPECT_EQ(done.lines, lines);
    expect_count(done, 1, 0);
    expect_untouched(find_free_ids, {"<gtm product=\"13\">"});
}

TEST(find_free_ids, hands_the_numbers_to_the_passes_behind_it) {
    const pump_values pump = hand_made_pump();
    pass_work work{pump};
    model_lines lines = {"<object id=\"o20\" name=\"a\">", "<part id=\"p30\">"};
    find_free_ids(lines, work);
    EXPECT_EQ(work.ids.object(axial_gap::lower), 22);
    EXPECT_EQ(work.ids.part(axial_gap::upper), 31);
}

}  // namespace
}  // namespace kvt
