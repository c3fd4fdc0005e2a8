// figures: a result and its change, in the number texts of the forms.
#include "app/trial/figures.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

std::string changed(const char* form, const char* control, const std::string& present,
                    const std::string& other, char mark = '.') {
    const figure& row = *find_figure(form, control);
    labels before, after;
    before.*row.text = present;
    after.*row.text = other;
    return changed_figure_text(row, before, after, mark);
}

}  // namespace

TEST(changed_figure_text, has_the_new_value_and_its_change) {
    EXPECT_EQ(changed("Form1", "capacity", "7.601", "7.94"), "→ 7.94, +4.5 %");
    EXPECT_EQ(changed("Form1", "max_chamb_vol", "1038 mm3", "954 mm3"), "→ 954, -8.1 %");
    EXPECT_EQ(changed("Form1", "area_ratio", "28.65 %", "28.65 %"), "→ 28.65, 0.0 %");
    EXPECT_EQ(changed("perf_res", "max_speed", " 7403 RPM", " 7517 RPM"), "→ 7517, +1.5 %");
    EXPECT_EQ(
        changed("perf_res", "Label1", "Pressure Ripple:  15.02 %", "Pressure Ripple:  7.51 %"),
        "→ 7.51, -50.0 %");
}

TEST(changed_figure_text, reads_a_number_without_a_leading_zero) {
    EXPECT_EQ(changed("Form1", "capacity", ".5", "-.75"), "→ -.75, -250.0 %");
}

TEST(changed_figure_text, has_the_decimal_mark) {
    EXPECT_EQ(changed("Form1", "capacity", "7.601", "7.94", ','), "→ 7,94, +4,5 %");
}

TEST(changed_figure_text, has_no_percentage_of_an_angle_and_of_nothing) {
    EXPECT_EQ(changed("perf_res", "side_load_direction", "-29.27 °", "-30.12 °"), "→ -30.12");
    EXPECT_EQ(changed("Form1", "capacity", "0.0", "7.94"), "→ 7.94");
    EXPECT_EQ(changed("Form1", "area_ratio", "", "28.65 %"), "→ 28.65");
}

TEST(changed_figure_text, counts_a_change_by_the_size_of_the_present_value) {
    EXPECT_EQ(changed("Form1", "min_chamb_vol", "-2 mm3", "-1 mm3"), "→ -1, +50.0 %");
}

TEST(changed_figure_text, is_empty_without_the_other_value) {
    EXPECT_EQ(changed("perf_res", "max_speed", " 7403 RPM", ""), "");
}

TEST(find_figure, knows_the_results_alone) {
    EXPECT_EQ(find_figure("Form1", "max_speed"), nullptr);
    EXPECT_EQ(find_figure("perf_res", "Label5"), nullptr);
    EXPECT_EQ(figures().size(), 9U);
}

}  // namespace kvt
