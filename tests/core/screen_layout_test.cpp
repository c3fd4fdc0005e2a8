// Tests of the layout file: the bytes written, and every way a reading can end.
#include "core/screen_layout.hpp"

#include "base/text_file.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <array>
#include <gtest/gtest.h>
#include <limits>

namespace kvt {
namespace {

constexpr std::array CHARTS = {"FLOW_graphview2",      "LOAD_graphview2", "HERTZ_graphview2",
                               "PRESS_RIP_graphview2", "VE_graphview2",   "EFFIC_graphview2",
                               "OVREFF_graphview2"};

window_rectangles moved_windows() {
    window_rectangles windows;
    windows.of("Form1") = window_rectangle{8000, 5000, 10, 20};
    windows.of("portdes") = window_rectangle{2000, 10000, 8200, -30};
    windows.of("viewwinfrm") = window_rectangle{7000, 6205, 40, 9000};
    windows.of("Perffrm") = window_rectangle{8100, 3500, 50, 5500};
    windows.of("select_graphs") = window_rectangle{2300, 4400, 8300, 10300};
    return windows;
}

std::string block(const std::string& heading,
                  const std::string& numbers = " 1 \r\n 2 \r\n 3 \r\n 4 \r\n") {
    return heading + "\r\n" + numbers + "\r\n";
}

std::string five_blocks() {
    return write_layout(moved_windows());
}

void expect_five_read(const window_rectangles& read) {
    EXPECT_EQ(read.of("Form1"), moved_windows().of("Form1"));
    EXPECT_EQ(read.of("portdes"), moved_windows().of("portdes"));
    EXPECT_EQ(read.of("viewwinfrm"), moved_windows().of("viewwinfrm"));
    EXPECT_EQ(read.of("Perffrm"), moved_windows().of("Perffrm"));
    EXPECT_EQ(read.of("select_graphs"), moved_windows().of("select_graphs"));
}

/// The built-in sizes, with Form1 where the file put it.
void expect_sizes_after_failure(const window_rectangles& read, float top, float left) {
    const window_rectangles built_in;
    EXPECT_EQ(read.of("Form1"), (window_rectangle{8085, 5430, top, left}));
    EXPECT_EQ(read.of("portdes"), built_in.of("portdes"));
    EXPECT_EQ(read.of("viewwinfrm"), built_in.of("viewwinfrm"));
    EXPECT_EQ(read.of("Perffrm"), built_in.of("Perffrm"));
    EXPECT_EQ(read.of("select_graphs"), built_in.of("select_graphs"));
    EXPECT_TRUE(read.main_window_maximised);
}

TEST(write_layout, writes_the_five_fixed_blocks) {
    EXPECT_EQ(five_blocks(),
              "Design\r\n 8000 \r\n 5000 \r\n 10 \r\n 20 \r\n\r\n"
              "Port Design\r\n 2000 \r\n 10000 \r\n 8200 \r\n-30 \r\n\r\n"
              "View\r\n 7000 \r\n 6205 \r\n 40 \r\n 9000 \r\n\r\n"
              "Performance\r\n 8100 \r\n 3500 \r\n 50 \r\n 5500 \r\n\r\n"
              "Charts\r\n 2300 \r\n 4400 \r\n 8300 \r\n 10300 \r\n\r\n");
}

TEST(write_layout, adds_the_windows_that_are_there_in_their_order) {
    window_rectangles windows = moved_windows();
    windows.of("OVREFF_graphview2") = window_rectangle{6630, 8790, 2100, 2100};
    windows.of("FLOW_graphview2") = window_rectangle{6630, 8790, 300, 300};
    windows.of("MDIForm1") = window_rectangle{12000, 15000, -60, 7.5F};
    windows.of("port_explain") = window_rectangle{1, 2, 3, 4};
    windows.of("explain") = window_rectangle{5, 6, 7, 8};
    EXPECT_EQ(write_layout(windows).substr(five_blocks().size()),
              "Gerotor Explanation\r\n 5 \r\n 6 \r\n 7 \r\n 8 \r\n\r\n"
              "Port Explanation\r\n 1 \r\n 2 \r\n 3 \r\n 4 \r\n\r\n"
              "Main Screen\r\n 12000 \r\n 15000 \r\n-60 \r\n 7.5 \r\n\r\n"
              "Flow Chart\r\n 6630 \r\n 8790 \r\n 300 \r\n 300 \r\n\r\n"
              "Overall Effic Chart\r\n 6630 \r\n 8790 \r\n 2100 \r\n 2100 \r\n\r\n");
}

TEST(write_layout, names_each_chart) {
    const std::array headings = {"Flow Chart",         "Power Chart", "Stress Chart",
                                 "Ripple Chart",       "VE Chart",    "Mech Effic Chart",
                                 "Overall Effic Chart"};
    for (std::size_t i = 0; i < headings.size(); ++i) {
        window_rectangles windows = moved_windows();
        windows.of(CHARTS[i]) = window_rectangle{1, 2, 3, 4};
        EXPECT_EQ(write_layout(windows).substr(five_blocks().size()), block(headings[i]));
    }
}

TEST(write_layout, fails_for_a_number_that_is_not_finite) {
    window_rectangles windows;
    windows.of("Form1")->top = std::numeric_limits<float>::infinity();
    EXPECT_FAILURE(write_layout(windows), failure::overflow);
}

TEST(read_layout, of_exactly_five_blocks_restores_them_and_maximises_the_main_window) {
    window_rectangles read;
    read.main_window_maximised = false;
    EXPECT_FALSE(read_layout(five_blocks(), read).failed);
    expect_five_read(read);
    EXPECT_TRUE(read.main_window_maximised);
    EXPECT_FALSE(read.of("MDIForm1").has_value());
}

TEST(read_layout, looks_at_positions_and_not_at_the_headings_of_the_fixed_blocks) {
    std::string bytes = five_blocks();
    bytes.replace(0, 6, "Nonsen");
    window_rectangles read;
    EXPECT_FALSE(read_layout(bytes, read).failed);
    expect_five_read(read);
}

TEST(read_layout, of_nothing_gives_the_built_in_sizes) {
    window_rectangles read;
    EXPECT_TRUE(read_layout("", read).failed);
    EXPECT_EQ(read, window_rectangles());
}

TEST(read_layout,
     that_ends_behind_an_optional_block_gives_the_built_in_sizes_with_Form1_where_it_was) {
    window_rectangles read;
    EXPECT_TRUE(read_layout(five_blocks() + block("Main Screen"), read).failed);
    expect_sizes_after_failure(read, 10, 20);
    EXPECT_EQ(read.of("MDIForm1"), (window_rectangle{1, 2, 3, 4}));
}

TEST(read_layout, keeps_a_chart_read_before_the_end_is_missed) {
    window_rectangles read;
    EXPECT_TRUE(read_layout(five_blocks() + block("Flow Chart"), read).failed);
    expect_sizes_after_failure(read, 10, 20);
    EXPECT_EQ(read.of("FLOW_graphview2"), (window_rectangle{1, 2, 3, 4}));
}

TEST(read_layout, of_all_blocks_ends_well_and_maximises_the_main_window) {
    window_rectangles windows = moved_windows();
    for (const char* form : {"explain", "port_explain", "MDIForm1"}) {
        windows.of(form) = window_rectangle{1, 2, 3, 4};
    }
    for (const char* chart : CHARTS) {
        windows.of(chart) = window_rectangle{5, 6, 7, 8};
    }
    window_rectangles read;
    const layout_reading reading = read_layout(write_layout(windows), read);
    EXPECT_FALSE(reading.failed);
    EXPECT_TRUE(reading.explain);
    EXPECT_TRUE(reading.port_explain);
    expect_five_read(read);
    EXPECT_EQ(read.of("MDIForm1"), (window_rectangle{1, 2, 3, 4}));
    for (const char* chart : CHARTS) {
        EXPECT_EQ(read.of(chart), (window_rectangle{5, 6, 7, 8})) << chart;
    }
    EXPECT_TRUE(read.main_window_maximised);
}

TEST(read_layout, with_lines_behind_the_last_block_leaves_the_main_window_normal) {
    window_rectangles read;
    EXPECT_FALSE(
        read_layout(five_blocks() + block("Overall Effic Chart") + "more\r\n", read).failed);
    EXPECT_FALSE(read.main_window_maximised);
    EXPECT_EQ(read.of("OVREFF_graphview2"), (window_rectangle{1, 2, 3, 4}));
    expect_five_read(read);
}

TEST(read_layout,
     with_an_unknown_heading_and_more_behind_it_reads_no_block_and_leaves_the_main_window_normal) {
    window_rectangles read;
    EXPECT_FALSE(read_layout(five_blocks() + block("Other") + block("Flow Chart"), read).failed);
    EXPECT_EQ(read.of("FLOW_graphview2"), std::nullopt);
    EXPECT_FALSE(read.main_window_maximised);
    expect_five_read(read);
}

TEST(read_layout, with_a_last_line_of_a_heading_alone_ends_there) {
    window_rectangles read;
    EXPECT_FALSE(read_layout(five_blocks() + "Flow Chart", read).failed);
    EXPECT_TRUE(read.main_window_maximised);
    EXPECT_FALSE(read_layout(five_blocks() + block("Flow Chart") + "Main Screen", read).failed);
    EXPECT_TRUE(read.main_window_maximised);
    EXPECT_EQ(read.of("FLOW_graphview2"), (window_rectangle{1, 2, 3, 4}));
}

TEST(read_layout, out_of_order_reads_no_block_twice_back) {
    window_rectangles read;
    EXPECT_FALSE(
        read_layout(five_blocks() + block("Power Chart") + block("Flow Chart"), read).failed);
    EXPECT_EQ(read.of("LOAD_graphview2"), (window_rectangle{1, 2, 3, 4}));
    EXPECT_EQ(read.of("FLOW_graphview2"), std::nullopt);
}

TEST(read_layout, with_a_number_that_does_not_convert_keeps_what_came_before) {
    const std::string broken = "Design\r\n 8000 \r\n 5000 \r\n 10 \r\n20,5\r\n\r\n";
    window_rectangles read;
    read.of("Form1")->left = 77;
    EXPECT_TRUE(read_layout(broken, read).failed);
    expect_sizes_after_failure(read, 10, 77);
    for (const char* number : {"", "abc", "1E39", "8000 twips"}) {
        window_rectangles other;
        EXPECT_TRUE(
            read_layout(std::string("Design\r\n") + number + "\r\n 1 \r\n 2 \r\n 3 \r\n\r\n", other)
                .failed);
        EXPECT_EQ(other, window_rectangles()) << number;
    }
}

TEST(read_layout, rounds_chart_numbers_to_16_bits_and_fails_beyond) {
    window_rectangles read;
    read_layout(five_blocks() + block("Flow Chart", " 1.5 \r\n 2.5 \r\n-3 \r\n 32767 \r\n") + "x",
                read);
    EXPECT_EQ(read.of("FLOW_graphview2"), (window_rectangle{2, 2, -3, 32767}));
    EXPECT_TRUE(
        read_layout(five_blocks() + block("Flow Chart", " 40000 \r\n 2 \r\n 3 \r\n 4 \r\n") + "x",
                    read)
            .failed);
}

TEST(read_layout, opens_an_explanation_window_at_its_first_number) {
    window_rectangles read;
    EXPECT_FALSE(read_layout(five_blocks() + block("Gerotor Explanation", "a\r\n"), read).explain);
    const layout_reading touched =
        read_layout(five_blocks() + block("Gerotor Explanation", " 9 \r\na\r\n"), read);
    EXPECT_TRUE(touched.failed);
    EXPECT_TRUE(touched.explain);
    EXPECT_EQ(read.of("explain")->height, 9.0F);
}

TEST(read_layout, ends_for_any_bytes) {
    random_values random;
    for (int run = property_count(3000); run > 0; --run) {
        std::string bytes = five_blocks() + block("Main Screen") + block("Flow Chart");
        for (int change = random.whole(0, 4); change > 0; --change) {
            const auto at =
                static_cast<std::size_t>(random.whole(0, static_cast<int>(bytes.size()) - 1));
            bytes.replace(at, static_cast<std::size_t>(random.whole(0, 20)),
                          random.text("19 -,.E\r\nMain\xFC", 8));
        }
        window_rectangles read;
        const layout_reading reading = read_layout(bytes, read);
        if (reading.failed) {
            EXPECT_EQ(read.of("portdes"), window_rectangles().of("portdes"));
        }
    }
}

}  // namespace
}  // namespace kvt
