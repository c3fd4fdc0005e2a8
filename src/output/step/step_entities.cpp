#include "output/step/step_entities.hpp"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <cstddef>

namespace kvt {

namespace {

const std::string& value_of(std::span<const step_value> values, std::string_view name) {
    const auto found = std::ranges::find(values, name, &step_value::name);
    assert(found != values.end());
    return found->text;
}

/// Writes the reference that begins at text[at], raised by the offset; answers where the text goes
/// on.
std::size_t write_raised(text_lines& out, std::string_view text, std::size_t at, int offset) {
    int number = 0;
    const auto end = std::from_chars(text.data() + at + 1, text.data() + text.size(), number).ptr;
    write_reference(out, number + offset);
    return static_cast<std::size_t>(end - text.data());
}

std::size_t write_value(text_lines& out, std::string_view text, std::size_t at,
                        std::span<const step_value> values) {
    const std::size_t end = text.find('}', at);
    out.raw_part(value_of(values, text.substr(at + 1, end - at - 1)));
    return end + 1;
}

void write_row_text(text_lines& out, std::string_view text, std::span<const step_value> values,
                    int offset) {
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t mark = std::min(text.find_first_of("#{", at), text.size());
        out.raw_part(text.substr(at, mark - at));
        at = mark;
        if (at < text.size()) {
            at = text[at] == '#' ? write_raised(out, text, at, offset)
                                 : write_value(out, text, at, values);
        }
    }
}

}  // namespace

void write_reference(text_lines& out, int number) {
    std::array<char, 16> text;
    text[0] = '#';
    const auto end = std::to_chars(text.data() + 1, text.data() + text.size(), number).ptr;
    out.raw_part({text.data(), static_cast<std::size_t>(end - text.data())});
}

void write_step_rows(text_lines& out, std::span<const step_row> rows,
                     std::span<const step_value> values, int offset) {
    for (const step_row& row : rows) {
        write_reference(out, row.number + offset);
        write_row_text(out, row.text, values, offset);
        out.end_line();
    }
}

}  // namespace kvt
