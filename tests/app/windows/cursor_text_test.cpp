// cursor_text: the place of the mouse in both length units.
#include "app/windows/cursor_text.hpp"

#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "support/sample_design.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class cursor_text_test : public testing::Test {
  protected:
    void calculate() {
        scripted_user person;
        kavetta.entries = sample_entries();
        kavetta.view_state.view_size = 6000;
        ASSERT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    }
    /// The place of the picture at which a point of the design is drawn.
    std::string text_at(double x_mm, double y_mm) {
        const view_state& state = kavetta.view_state;
        return cursor_text(kavetta, state.view_cx + state.view_ecc + x_mm * state.view_scale,
                           state.view_cy - y_mm * state.view_scale);
    }

    program kavetta;
};

TEST_F(cursor_text_test, is_empty_until_rotors_are_drawn) {
    EXPECT_EQ(cursor_text(kavetta, 100.0, 100.0), "");
}

TEST_F(cursor_text_test, has_two_decimals_in_millimetres) {
    calculate();
    EXPECT_EQ(text_at(12.5, -3.254), "12.50, -3.25 mm");
    EXPECT_EQ(text_at(0.0, 0.0), "0.00, 0.00 mm");
}

TEST_F(cursor_text_test, has_four_decimals_in_inches) {
    calculate();
    kavetta.app_state.drawing_units = INCHES;
    EXPECT_EQ(text_at(25.4, -2.54), "1.0000, -0.1000 in");
}

TEST_F(cursor_text_test, is_empty_for_a_place_beyond_any_number) {
    calculate();
    kavetta.view_state.view_scale = 1e-300;
    EXPECT_EQ(cursor_text(kavetta, 1e300, 0.0), "");
}

}  // namespace
}  // namespace kvt
