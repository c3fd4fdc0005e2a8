#include "output/step_entities.hpp"

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

/// Appends the reference that begins at text[at], raised by the offset; answers where the text goes on.
std::size_t append_raised(std::string& line, std::string_view text, std::size_t at, int offset) {
    int number = 0;
    const auto end = std::from_chars(text.data() + at + 1, text.data() + text.size(), number).ptr;
    append_reference(line, number + offset);
    return static_cast<std::size_t>(end - text.data());
}

std::size_t append_value(std::string& line, std::string_view text, std::size_t at, std::span<const step_value> values) {
    const std::size_t end = text.find('}', at);
    line += value_of(values, text.substr(at + 1, end - at - 1));
    return end + 1;
}

void append_row_text(std::string& line, std::string_view text, std::span<const step_value> values, int offset) {
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t mark = std::min(text.find_first_of("#{", at), text.size());
        line += text.substr(at, mark - at);
        at = mark;
        if (at < text.size()) {
            at = text[at] == '#' ? append_raised(line, text, at, offset) : append_value(line, text, at, values);
        }
    }
}

}  // namespace

void append_reference(std::string& line, int number) {
    std::array<char, 16> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    line += '#';
    line.append(digits.data(), end);
}

void write_step_rows(text_lines& out, std::span<const step_row> rows, std::span<const step_value> values, int offset) {
    std::string line;
    for (const step_row& row : rows) {
        line.clear();
        append_reference(line, row.number + offset);
        append_row_text(line, row.text, values, offset);
        out.raw_line(line);
    }
}

}  // namespace kvt
