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

void write_block(text_lines& file, std::string_view heading, const window_rectangle& window) {
    file.line(heading);
    file.line(print_form_single(window.height));
    file.line(print_form_single(window.width));
    file.line(print_form_single(window.top));
    file.line(print_form_single(window.left));
    file.line("");
}

/// The windows that have a block while they are there, in the order of the file.
std::vector<const form_row*> optional_blocks() {
    std::vector<const form_row*> rows;
    for (const form_row& form : form_rows().subspan(fixed_child_rows().size())) {
        if (!form.heading.empty()) {
            rows.push_back(&form);
        }
    }
    return rows;
}

bool is_chart(const form_row& form) {
    return form.kind == form_kind::window;
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

/// The place of a chart is whole twips of 16 bits.
float number_of(const form_row& form, std::string_view text) {
    return is_chart(form) ? static_cast<float>(integer16_of_text(text)) : single_of_text(text);
}

/// Each number as it comes; the first one touches the window, which opens it.
void read_numbers(layout_lines& lines, const form_row& form, window_rectangles& rectangles) {
    std::optional<window_rectangle>& window = rectangles.of(form.name);
    const float height = number_of(form, lines.next());
    if (!window) {
        window.emplace();
    }
    window->height = height;
    window->width = number_of(form, lines.next());
    window->top = number_of(form, lines.next());
    window->left = number_of(form, lines.next());
    lines.next();
}

/// The optional blocks, tested one after the other against the heading read last. Behind the last
/// one no heading is read.
void read_optional_blocks(layout_lines& lines, window_rectangles& rectangles) {
    if (lines.is_at_end()) {
        return;
    }
    std::string heading = lines.next();
    const std::vector<const form_row*> blocks = optional_blocks();
    for (const form_row* block : blocks) {
        const bool is_last = block == blocks.back();
        if (heading == block->heading) {
            read_numbers(lines, *block, rectangles);
            heading = is_last ? "" : lines.next();
        }
        if (lines.is_at_end()) {
            return;
        }
    }
    rectangles.main_window_maximised = false;
}

}  // namespace

std::string write_layout(const window_rectangles& windows) {
    text_lines file;
    for (const form_row& block : fixed_child_rows()) {
        write_block(file, block.heading, windows.of(block.name).value_or(window_rectangle()));
    }
    for (const form_row* block : optional_blocks()) {
        if (const auto& window = windows.of(block->name)) {
            write_block(file, block->heading, *window);
        }
    }
    return file.bytes();
}

layout_reading read_layout(std::string_view bytes, window_rectangles& rectangles) {
    layout_reading reading;
    for (const form_row* block : optional_blocks()) {
        if (!is_chart(*block)) {
            rectangles.of(block->name).reset();
        }
    }
    rectangles.main_window_maximised = true;
    try {
        layout_lines lines(bytes);
        for (const form_row& block : fixed_child_rows()) {
            lines.next();
            read_numbers(lines, block, rectangles);
        }
        read_optional_blocks(lines, rectangles);
    } catch (const run_time_error&) {
        reading.failed = true;
        set_sizes_after_failure(rectangles);
    }
    reading.explain = rectangles.of("explain").has_value();
    reading.port_explain = rectangles.of("port_explain").has_value();
    return reading;
}

void set_sizes_after_failure(window_rectangles& rectangles) {
    std::optional<window_rectangle>& design = rectangles.of("Form1");
    const window_rectangle stored = design.value_or(window_rectangle());
    for (const form_row& block : fixed_child_rows()) {
        rectangles.of(block.name) = block.rectangle;
    }
    design->top = stored.top;
    design->left = stored.left;
    rectangles.main_window_maximised = true;
}

}  // namespace kvt
