// The seven lines of the settings file: read as far as they go, written whole.
#include "core/settings_file.hpp"

#include "base/code_page.hpp"
#include "base/text_file.hpp"

#include <cstddef>
#include <vector>

namespace kvt {

namespace {

std::vector<std::string> utf8_lines(std::string_view bytes) {
    std::vector<std::string> lines = split_lines(bytes);
    for (std::string& line : lines) {
        line = utf8_of_code_page(line);
    }
    return lines;
}

std::string without_blanks_around(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t");
    const std::size_t last = text.find_last_not_of(" \t");
    return first == std::string::npos ? "" : text.substr(first, last - first + 1);
}

/// 0 for anything but "1" and "2": the messages are then English and the next write leaves line 5
/// empty.
std::int16_t language_of_line(const std::string& line) {
    const std::string code = without_blanks_around(line);
    if (code == "1") {
        return ENGLISH;
    }
    return code == "2" ? GERMAN : std::int16_t{0};
}

std::string_view line_of_language(std::int16_t language) {
    if (language == ENGLISH) {
        return "1";
    }
    return language == GERMAN ? "2" : "";
}

/// A date field stands between two "#"; a line without both is no date, and the value stays as it
/// is.
void read_date(const std::string& line, std::string& date) {
    const std::size_t first = line.find('#');
    const std::size_t last = line.rfind('#');
    if (first != last) {
        date = line.substr(first + 1, last - first - 1);
    }
}

}  // namespace

void read_settings(std::string_view bytes, app_state& state) {
    const std::vector<std::string> lines = utf8_lines(bytes);
    const auto read_text = [&lines](std::size_t number, std::string& value) {
        if (number <= lines.size()) {
            value = lines[number - 1];
        }
    };
    read_text(1, state.mnufileprev[1]);
    read_text(2, state.mnufileprev[2]);
    read_text(3, state.mnufileprev[3]);
    read_text(4, state.modelling_package);
    if (lines.size() >= 5) {
        state.language = language_of_line(lines[4]);
    }
    read_text(6, state.auto_update_mode);
    if (lines.size() >= 7) {
        read_date(lines[6], state.last_update_check);
    }
}

std::string first_settings_line(std::string_view bytes) {
    const std::vector<std::string> lines = utf8_lines(bytes);
    return lines.empty() ? "" : lines.front();
}

std::string write_settings(const app_state& state) {
    text_lines file;
    file.line(state.mnufileprev[1]);
    file.line(state.mnufileprev[2]);
    file.line(state.mnufileprev[3]);
    file.line(state.modelling_package);
    file.line(line_of_language(state.language));
    file.line(state.auto_update_mode);
    file.line("#" + state.last_update_check + "#");
    return file.bytes();
}

}  // namespace kvt
