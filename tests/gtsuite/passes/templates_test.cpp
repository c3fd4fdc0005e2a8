#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"

namespace kvt {
namespace {

TEST(add_templates, ends_the_table_with_two_templates) {
    const passed done =
        run_pass(add_templates, {"        <tt id=\"1\"/>", "    </template_table>", "x"});
    EXPECT_EQ(done.lines,
              (model_lines{"        <tt id=\"1\"/>", "        <tt id=\"106\"/>",
                           "        <tt id=\"114701\"/>", "    </template_table>", "x"}));
    expect_count(done, 2, 2);
}

TEST(add_templates, needs_the_table) {
    EXPECT_FAILURE(run_pass(add_templates, {"</template_table>"}), failure::input_past_end);
}

}  // namespace
}  // namespace kvt
