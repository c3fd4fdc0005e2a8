#include "gtsuite/model_text.hpp"

#include "base/code_page.hpp"
#include "base/letter_case.hpp"
#include "base/run_time_error.hpp"

#include <algorithm>
#include <array>
#include <charconv>

namespace kvt {

namespace {

using difference = model_lines::difference_type;

struct character_name {
    char character;
    std::string_view name;
};

constexpr std::array CHARACTER_NAMES = {character_name{'&', "&amp;"}, character_name{'<', "&lt;"},
                                        character_name{'>', "&gt;"}, character_name{'"', "&quot;"}};

std::string_view name_of(char character) {
    const auto* const found =
        std::ranges::find(CHARACTER_NAMES, character, &character_name::character);
    return found == CHARACTER_NAMES.end() ? std::string_view() : found->name;
}

/// An XML declaration that names another encoding than UTF-8 means the code page.
model_encoding encoding_of(const model_lines& lines) {
    if (lines.empty() || lines.front().find("<?xml") == std::string::npos) {
        return model_encoding::utf8;
    }
    const std::optional<std::string_view> named = attribute(lines.front(), "encoding");
    return !named || is_same_ignoring_case(*named, "utf-8") ? model_encoding::utf8
                                                            : model_encoding::code_page;
}

bool is_line_of_value(std::string_view line, std::string_view a_id) {
    return without_blanks(line).starts_with("<va ") && attribute(line, "a_id") == a_id;
}

/// Writes one value; the object grows by the line when it has to be added.
int set_value(model_lines& lines, line_range& object, const object_value& value) {
    const std::string a_id = std::to_string(value.a_id);
    for (std::size_t i = object.first; i <= object.last; ++i) {
        if (is_line_of_value(lines[i], a_id)) {
            lines[i] = value_line(value);
            return 1;
        }
    }
    for (std::size_t i = object.first; i <= object.last; ++i) {
        if (without_blanks(lines[i]) == "</value>") {
            insert_ahead(lines, i, {value_line(value)});
            ++object.last;
            return 1;
        }
    }
    return 0;
}

std::size_t found_line(const model_lines& lines, model_lines::const_iterator found,
                       std::string_view anchor) {
    if (found == lines.end()) {
        throw run_time_error(failure::input_past_end, "no line '" + std::string(anchor) + "'");
    }
    return static_cast<std::size_t>(found - lines.begin());
}

}  // namespace

model_text read_model_text(std::string_view bytes) {
    model_text text;
    const std::size_t first_end = bytes.find('\n');
    if (first_end != std::string_view::npos && first_end > 0 && bytes[first_end - 1] == '\r') {
        text.line_end = "\r\n";
    }
    const bool has_returns = text.line_end == "\r\n";
    text.ends_last_line = bytes.ends_with('\n');
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
        if (has_returns && line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        text.lines.emplace_back(line);
    }
    text.encoding = encoding_of(text.lines);
    return text;
}

std::string model_bytes(const model_text& text) {
    std::string bytes;
    for (const std::string& line : text.lines) {
        bytes += line;
        bytes += text.line_end;
    }
    if (!text.ends_last_line && !text.lines.empty()) {
        bytes.resize(bytes.size() - text.line_end.size());
    }
    return bytes;
}

std::string attribute_text(std::string_view utf8, model_encoding encoding) {
    std::string escaped;
    for (const char character : utf8) {
        const std::string_view name = name_of(character);
        escaped += name.empty() ? std::string_view(&character, 1) : name;
    }
    return encoding == model_encoding::utf8 ? escaped : code_page_of_utf8(escaped);
}

std::string text_of_attribute(std::string_view value, model_encoding encoding) {
    std::string text;
    while (!value.empty()) {
        const auto* const named = std::ranges::find_if(
            CHARACTER_NAMES,
            [&](const character_name& row) { return value.starts_with(row.name); });
        const bool is_named = named != CHARACTER_NAMES.end();
        text += is_named ? named->character : value.front();
        value.remove_prefix(is_named ? named->name.size() : 1);
    }
    return encoding == model_encoding::utf8 ? text : utf8_of_code_page(text);
}

std::string_view without_blanks_behind(std::string_view line) {
    const std::size_t last = line.find_last_not_of(" \t\r");
    return last == std::string_view::npos ? std::string_view() : line.substr(0, last + 1);
}

std::string_view without_blanks(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view()
                                           : without_blanks_behind(line.substr(first));
}

std::optional<std::string_view> attribute(std::string_view line, std::string_view name) {
    const std::string opening = " " + std::string(name) + "=\"";
    const std::size_t at = line.find(opening);
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    line.remove_prefix(at + opening.size());
    const std::size_t end = line.find('"');
    return end == std::string_view::npos ? std::nullopt : std::optional(line.substr(0, end));
}

long long leading_number(std::string_view text) {
    constexpr long long LARGEST = 1'000'000'000'000'000;
    long long number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec == std::errc::result_out_of_range || number > LARGEST) {
        throw run_time_error(failure::overflow, std::string(text));
    }
    return number;
}

long long attribute_number(std::string_view line, std::string_view name, char letter) {
    const std::optional<std::string_view> value = attribute(line, name);
    return value && value->starts_with(letter) ? leading_number(value->substr(1)) : 0;
}

std::size_t anchor_line(const model_lines& lines, std::string_view anchor) {
    return found_line(lines, std::ranges::find(lines, anchor, without_blanks_behind), anchor);
}

std::size_t anchor_line_beginning(const model_lines& lines, std::string_view anchor) {
    const auto found = std::ranges::find_if(
        lines, [&](const std::string& line) { return line.starts_with(anchor); });
    return found_line(lines, found, anchor);
}

std::optional<line_range> find_object(const model_lines& lines, std::string_view name,
                                      std::string_view value) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].find("<object id=") == std::string::npos ||
            attribute(lines[i], name) != value) {
            continue;
        }
        const auto end = std::find_if(
            lines.begin() + static_cast<difference>(i), lines.end(),
            [](const std::string& line) { return line.find("</object>") != std::string::npos; });
        if (without_blanks_behind(lines[i]).ends_with("/>") || end == lines.end()) {
            return std::nullopt;
        }
        return line_range{i, static_cast<std::size_t>(end - lines.begin())};
    }
    return std::nullopt;
}

std::string value_line(const object_value& value) {
    return "                <va a_id=\"" + std::to_string(value.a_id) + "\" text=\"" + value.text +
           "\" unitID=\"" + std::to_string(value.unit) + "\"/>";
}

int set_values(model_lines& lines, line_range object, std::span<const object_value> values) {
    int written = 0;
    for (const object_value& value : values) {
        written += set_value(lines, object, value);
    }
    return written;
}

pass_count set_values_of(model_lines& lines, std::string_view attribute, std::string_view value,
                         std::span<const object_value> values) {
    const std::optional<line_range> object = find_object(lines, attribute, value);
    return object ? pass_count{1, set_values(lines, *object, values)} : pass_count{};
}

void insert_behind(model_lines& lines, std::size_t line, const model_lines& added) {
    insert_ahead(lines, line + 1, added);
}

void insert_ahead(model_lines& lines, std::size_t line, const model_lines& added) {
    lines.insert(lines.begin() + static_cast<difference>(line), added.begin(), added.end());
}

}  // namespace kvt
