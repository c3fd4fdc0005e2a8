// The seven lines of the settings file: read as far as they go, written whole. And the paths of our
// own file, which find their places by what the seven lines made of them.
#include "core/settings_file.hpp"

#include "base/code_page.hpp"
#include "base/text_file.hpp"
#include "base/trimmed.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <vector>

namespace kvt {

namespace {

constexpr std::size_t SETTINGS_LINE_COUNT = 7;

std::vector<std::string> utf8_lines(std::string_view bytes) {
    std::vector<std::string> lines = split_lines(bytes);
    for (std::string& line : lines) {
        line = utf8_of_code_page(line);
    }
    return lines;
}

/// 0 for anything but "1" and "2": the messages are then English and the next write leaves line 5
/// empty.
std::int16_t language_of_line(const std::string& line) {
    const std::string_view code = trimmed(line);
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

constexpr std::string_view RECENT_PATH = "recent_";

/// What KVT.ini can hold of a path, UTF-8.
std::string held_by_code_page(const std::string& path) {
    std::string held = utf8_of_code_page(code_page_of_utf8(path));
    std::ranges::replace(held, '\r', '?');
    std::ranges::replace(held, '\n', '?');
    return held;
}

/// A path on one line: line ends and the sign that marks them become "%" and two digits.
std::string one_line(const std::string& path) {
    std::string line;
    for (const char c : path) {
        switch (c) {
            case '\r':
                line += "%0D";
                break;
            case '\n':
                line += "%0A";
                break;
            case '%':
                line += "%25";
                break;
            default:
                line += c;
        }
    }
    return line;
}

std::string path_of_line(std::string_view line) {
    std::string path;
    while (!line.empty()) {
        std::size_t taken = 3;
        if (line.starts_with("%0D")) {
            path += '\r';
        } else if (line.starts_with("%0A")) {
            path += '\n';
        } else if (line.starts_with("%25")) {
            path += '%';
        } else {
            path += line.front();
            taken = 1;
        }
        line.remove_prefix(taken);
    }
    return path;
}

/// One line of our own file.
struct own_path {
    std::size_t entry;
    std::string path;
};

/// "recent_1=PATH" to "recent_3=PATH"; nothing for any other line.
std::optional<own_path> own_path_of_line(std::string_view line) {
    if (!line.starts_with(RECENT_PATH)) {
        return std::nullopt;
    }
    line.remove_prefix(RECENT_PATH.size());
    if (line.size() < 2 || line[0] < '1' || line[0] > '3' || line[1] != '=') {
        return std::nullopt;
    }
    return own_path{static_cast<std::size_t>(line[0] - '0'), path_of_line(line.substr(2))};
}

/// The whole path in place of what KVT.ini could hold of it. False when the entry is another one.
bool restore_path(const std::string& path, std::string& entry) {
    if (entry != held_by_code_page(path)) {
        return false;
    }
    entry = path;
    return true;
}

}  // namespace

void read_settings(std::string_view bytes, app_state& state) {
    std::vector<std::string> lines = utf8_lines(bytes);
    if (lines.size() < SETTINGS_LINE_COUNT) {
        lines.resize(SETTINGS_LINE_COUNT);
        state.last_update_check.clear();
    }
    state.mnufileprev[1] = lines[0];
    state.mnufileprev[2] = lines[1];
    state.mnufileprev[3] = lines[2];
    state.modelling_package = lines[3];
    state.language = language_of_line(lines[4]);
    state.auto_update_mode = lines[5];
    read_date(lines[6], state.last_update_check);
}

std::string write_settings(const app_state& state) {
    text_lines file;
    file.line(held_by_code_page(state.mnufileprev[1]));
    file.line(held_by_code_page(state.mnufileprev[2]));
    file.line(held_by_code_page(state.mnufileprev[3]));
    file.line(state.modelling_package);
    file.line(line_of_language(state.language));
    file.line(state.auto_update_mode);
    file.line("#" + state.last_update_check + "#");
    return file.bytes();
}

void read_own_settings(std::string_view utf8, app_state& state) {
    std::vector<own_path> moved;
    for (const std::string& line : split_lines(utf8)) {
        const std::optional<own_path> own = own_path_of_line(line);
        if (own && !restore_path(own->path, state.mnufileprev[own->entry])) {
            moved.push_back(*own);
        }
    }
    for (const own_path& own : moved) {
        for (std::size_t entry = 1; entry < std::size(state.mnufileprev); ++entry) {
            if (restore_path(own.path, state.mnufileprev[entry])) {
                break;
            }
        }
    }
}

std::string write_own_settings(const app_state& state) {
    text_lines text;
    for (std::size_t entry = 1; entry < std::size(state.mnufileprev); ++entry) {
        const std::string& path = state.mnufileprev[entry];
        if (path != held_by_code_page(path)) {
            text.raw_line(std::string(RECENT_PATH) + static_cast<char>('0' + entry) + "=" +
                          one_line(path));
        }
    }
    return text.bytes();
}

}  // namespace kvt
