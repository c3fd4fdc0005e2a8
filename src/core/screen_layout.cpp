#include "core/screen_layout.hpp"

#include "base/checked_math.hpp"
#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/text_file.hpp"

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace kvt {

namespace {

struct fixed_block {
    std::string_view heading;
    window_rectangle present_windows::*present;
    window_rectangle window_rectangles::*read;
};

constexpr std::array FIXED_BLOCKS = {
    fixed_block{"Design", &present_windows::Form1, &window_rectangles::Form1},
    fixed_block{"Port Design", &present_windows::portdes, &window_rectangles::portdes},
    fixed_block{"View", &present_windows::viewwinfrm, &window_rectangles::viewwinfrm},
    fixed_block{"Performance", &present_windows::Perffrm, &window_rectangles::Perffrm},
    fixed_block{"Charts", &present_windows::select_graphs, &window_rectangles::select_graphs},
};

constexpr std::string_view EXPLAIN_HEADING = "Gerotor Explanation";
constexpr std::string_view PORT_EXPLAIN_HEADING = "Port Explanation";
constexpr std::string_view MAIN_HEADING = "Main Screen";
/// In the order of chart_rectangle_fields.
constexpr std::array<std::string_view, 7> CHART_HEADINGS = {
    "Flow Chart", "Power Chart",      "Stress Chart",       "Ripple Chart",
    "VE Chart",   "Mech Effic Chart", "Overall Effic Chart"};

void write_block(text_lines& file, std::string_view heading, const window_rectangle& window) {
    file.line(heading);
    file.line(print_form_single(window.height));
    file.line(print_form_single(window.width));
    file.line(print_form_single(window.top));
    file.line(print_form_single(window.left));
    file.line("");
}

void write_open(text_lines& file, std::string_view heading,
                const std::optional<window_rectangle>& window) {
    if (window) {
        write_block(file, heading, *window);
    }
}

float single_of_text(std::string_view text) {
    const double number = number_of_text(text);
    if (!(std::fabs(number) <= static_cast<double>(std::numeric_limits<float>::max()))) {
        throw run_time_error(failure::overflow, "a window's number");
    }
    return static_cast<float>(number);
}

/// The lines of the file, read one after the other.
class layout_lines {
  public:
    explicit layout_lines(std::string_view bytes) : lines_(split_lines(bytes)) {}

    bool is_at_end() const { return next_ == lines_.size(); }
    std::string next() {
        if (is_at_end()) {
            throw run_time_error(failure::input_past_end, "screen.ini");
        }
        return utf8_of_code_page(lines_[next_++]);
    }

  private:
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
};

void read_numbers(layout_lines& lines, window_rectangle& window) {
    window.height = single_of_text(lines.next());
    window.width = single_of_text(lines.next());
    window.top = single_of_text(lines.next());
    window.left = single_of_text(lines.next());
    lines.next();
}

void read_numbers(layout_lines& lines, chart_rectangle& chart) {
    chart.height = integer16_of_text(lines.next());
    chart.width = integer16_of_text(lines.next());
    chart.top = integer16_of_text(lines.next());
    chart.left = integer16_of_text(lines.next());
    lines.next();
}

/// The first number touches the window, which opens it.
void read_numbers(layout_lines& lines, std::optional<window_rectangle>& window) {
    const float height = single_of_text(lines.next());
    window = window_rectangle{height, 0.0F, 0.0F, 0.0F};
    window->width = single_of_text(lines.next());
    window->top = single_of_text(lines.next());
    window->left = single_of_text(lines.next());
    lines.next();
}

/// The optional blocks, tested one after the other against the heading read last.
class optional_blocks {
  public:
    optional_blocks(layout_lines& lines, window_rectangles& rectangles)
        : lines_(lines), rectangles_(rectangles) {}

    void read() {
        if (lines_.is_at_end()) {
            return;
        }
        heading_ = lines_.next();
        bool goes_on = read_one(EXPLAIN_HEADING, rectangles_.explain) &&
                       read_one(PORT_EXPLAIN_HEADING, rectangles_.port_explain) &&
                       read_one(MAIN_HEADING, rectangles_.MDIForm1);
        const auto charts = chart_rectangle_fields();
        for (std::size_t i = 0; goes_on && i + 1 < charts.size(); ++i) {
            goes_on = read_one(CHART_HEADINGS[i], rectangles_.*charts[i].member);
        }
        if (goes_on) {
            read_last(rectangles_.*charts.back().member);
        }
    }

  private:
    /// False at the end of the file.
    template <typename rectangle>
    bool read_one(std::string_view heading, rectangle& window) {
        if (heading_ == heading) {
            read_numbers(lines_, window);
            heading_ = lines_.next();
        }
        return !lines_.is_at_end();
    }

    /// No heading is read behind the last block.
    void read_last(chart_rectangle& chart) {
        if (heading_ == CHART_HEADINGS.back()) {
            read_numbers(lines_, chart);
        }
        rectangles_.main_window_maximised = lines_.is_at_end();
    }

    layout_lines& lines_;
    window_rectangles& rectangles_;
    std::string heading_;
};

}  // namespace

std::string write_layout(const present_windows& windows) {
    text_lines file;
    for (const fixed_block& block : FIXED_BLOCKS) {
        write_block(file, block.heading, windows.*block.present);
    }
    write_open(file, EXPLAIN_HEADING, windows.explain);
    write_open(file, PORT_EXPLAIN_HEADING, windows.port_explain);
    write_open(file, MAIN_HEADING, windows.MDIForm1);
    for (std::size_t i = 0; i < CHART_HEADINGS.size(); ++i) {
        write_open(file, CHART_HEADINGS[i], windows.charts[i]);
    }
    return file.bytes();
}

layout_reading read_layout(std::string_view bytes, window_rectangles& rectangles) {
    layout_reading reading;
    rectangles.explain.reset();
    rectangles.port_explain.reset();
    rectangles.MDIForm1.reset();
    rectangles.main_window_maximised = true;
    try {
        layout_lines lines(bytes);
        for (const fixed_block& block : FIXED_BLOCKS) {
            lines.next();
            read_numbers(lines, rectangles.*block.read);
        }
        optional_blocks(lines, rectangles).read();
    } catch (const run_time_error&) {
        reading.failed = true;
        set_sizes_after_failure(rectangles);
    }
    reading.explain = rectangles.explain.has_value();
    reading.port_explain = rectangles.port_explain.has_value();
    return reading;
}

void set_sizes_after_failure(window_rectangles& rectangles) {
    const window_rectangles built_in;
    rectangles.Form1.height = built_in.Form1.height;
    rectangles.Form1.width = built_in.Form1.width;
    rectangles.viewwinfrm = built_in.viewwinfrm;
    rectangles.Perffrm = built_in.Perffrm;
    rectangles.portdes = built_in.portdes;
    rectangles.select_graphs = built_in.select_graphs;
    rectangles.main_window_maximised = true;
}

}  // namespace kvt
